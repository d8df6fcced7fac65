// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/LMAccessibility.h"
#include "support/LMFakeWorld.h"

#include <map>
#include <tuple>

/// Accessibility of the fake desktop's windows. The world must outlive it.
class LMFakeAccessibility final : public LMAccessibility {
public:
    explicit LMFakeAccessibility(LMFakeWorld& world) : m_world(world) {}

    LMPlatformResult<LMElement> createApplication(qint64 processIdentifier) override;
    LMPlatformResult<LMAttributeValue> copyAttributeValue(const LMElement& element,
                                                          QLatin1String attribute) override;
    LMPlatformResult<int> attributeValueCount(const LMElement& element,
                                              QLatin1String attribute) override;
    LMPlatformResult<QList<LMElement>> copyAttributeValues(const LMElement& element,
                                                           QLatin1String attribute, int index,
                                                           int maxValues) override;
    LMPlatformResult<bool> isAttributeSettable(const LMElement& element,
                                               QLatin1String attribute) override;
    LMPlatformStatus setAttributeValue(const LMElement& element, QLatin1String attribute,
                                       const LMAttributeValue& value) override;
    void beginReading(const QList<LMElement>& windows) override;
    void endReading() override;

    /// As it is remembered, else as it is; other errors than of the window's own are not injected.
    LMPlatformResult<LMFakeWindow> readWindow(const LMElement& element);
    void forget(const LMElement& window) { m_remembered.erase(window.identifier); }

    // --- for tests ----------------------------------------------------------------------------
    /// Makes this call fail after so many calls that go well.
    void fail(const LMElement& element, LMFakeCall call, QLatin1String attribute,
              LMPlatformError error, int after = 0);
    void failCreateApplication(LMPlatformError error) {
        fail({}, LMFakeCall::CreateApplication, QLatin1String(), error);
    }
    /// Answers reads of the attribute with this value, whatever its type.
    void answer(const LMElement& element, QLatin1String attribute, const LMAttributeValue& value);
    /// Takes back every failure and answer.
    void mend() { m_injected.clear(); }

private:
    struct Answer {
        LMPlatformResult<LMAttributeValue> value;
        int after;
    };

    /// What tests, or the loss of the connection, make the call answer.
    std::optional<LMPlatformResult<LMAttributeValue>>
    injected(const LMElement& element, LMFakeCall call, QLatin1String attribute);
    LMPlatformResult<LMAttributeValue> applicationValue(const LMElement& element,
                                                        QLatin1String attribute);
    LMPlatformResult<QList<LMElement>> elements(const LMElement& element, LMFakeCall call,
                                                QLatin1String attribute);

    LMFakeWorld& m_world;
    std::map<std::tuple<LMElement, LMFakeCall, QLatin1String>, Answer> m_injected;
    int m_readingDepth = 0;
    std::map<qint64, LMPlatformResult<LMFakeWindow>> m_remembered; ///< By window number.
};
