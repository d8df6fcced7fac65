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
    /// Makes this call fail; that of createApplication has no element and no attribute.
    void fail(const LMElement& element, LMFakeCall call, QLatin1String attribute,
              LMPlatformError error) {
        m_injected.insert_or_assign({element, call, attribute}, Answer::failure(error));
    }
    /// Answers reads of the attribute with this value, whatever its type.
    void answer(const LMElement& element, QLatin1String attribute, const LMAttributeValue& value) {
        m_injected.insert_or_assign({element, LMFakeCall::Copy, attribute}, Answer::success(value));
    }
    /// Takes back every failure and answer.
    void mend() { m_injected.clear(); }

private:
    using Answer = LMPlatformResult<LMAttributeValue>;

    /// What tests make the call answer.
    std::optional<Answer> injected(const LMElement& element, LMFakeCall call,
                                   QLatin1String attribute);
    Answer applicationValue(const LMElement& element, QLatin1String attribute);
    LMPlatformResult<QList<LMElement>> elements(const LMElement& element, LMFakeCall call,
                                                QLatin1String attribute);

    LMFakeWorld& m_world;
    std::map<std::tuple<LMElement, LMFakeCall, QLatin1String>, Answer> m_injected;
    int m_readingDepth = 0;
    std::map<qint64, LMPlatformResult<LMFakeWindow>> m_remembered; ///< By window number.
};
