// SPDX-License-Identifier: MIT
#pragma once

#include "contract/LMContractBackend.h"
#include "support/LMPrinting.h"

#include <QStringList>

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

inline void PrintTo(const QRectF& rect, std::ostream* stream) {
    *stream << rect.width() << 'x' << rect.height() << " at " << rect.x() << ',' << rect.y();
}
inline void PrintTo(const LMContractBackendFactory& factory, std::ostream* stream) {
    *stream << factory.name;
}

/// The error of a failure, nothing for a success.
template <class T>
std::optional<LMPlatformError> LMErrorOf(const LMPlatformResult<T>& result) {
    return result ? std::nullopt : std::optional(result.error());
}

/// One desktop of the back end under test, and short names for what the tests do all the time.
class LMContractTest : public testing::TestWithParam<LMContractBackendFactory> {
protected:
    void SetUp() override;

    LMDesktop& desktop() { return backend->desktop(); }
    LMAccessibility& accessibility() { return desktop().accessibility(); }

    LMElement open(const LMContractWindow& window = {}) { return backend->openWindow(window); }
    /// Process identifier 0 when it does not run.
    LMRunningApplication running(const QString& identifier = QStringLiteral("first"));
    qint64 process(const QString& identifier = QStringLiteral("first")) {
        return running(identifier).processIdentifier;
    }
    QList<LMElement> windows(const QString& identifier = QStringLiteral("first"));

    /// The value, or a failed expectation and an empty one.
    template <class T>
    T read(const LMElement& element, QLatin1String attribute);
    auto readError(const LMElement& element, QLatin1String attribute) {
        return LMErrorOf(accessibility().copyAttributeValue(element, attribute));
    }
    auto setError(const LMElement& element, QLatin1String attribute,
                  const LMAttributeValue& value) {
        return LMErrorOf(accessibility().setAttributeValue(element, attribute, value));
    }
    /// Compositing in software, a manager may now and then miss a deadline, twice in a test. What
    /// it was asked for must come all the same.
    bool inTime(bool isDone) { return isDone || ++lateAnswers <= 2; }
    bool set(const LMElement& element, QLatin1String attribute, const LMAttributeValue& value) {
        const auto error = setError(element, attribute, value);
        return !error || (error == LMPlatformError::CannotComplete && inTime(false) &&
                          LMWaitUntil([&] { return rawValue(element, attribute) == value; }));
    }
    LMAttributeValue rawValue(const LMElement& element, QLatin1String attribute) {
        return accessibility().copyAttributeValue(element, attribute).valueOr({});
    }
    bool isSettable(const LMElement& window, QLatin1String attribute) {
        return accessibility().isAttributeSettable(window, attribute).valueOr(false);
    }
    QString text(const LMElement& element, QLatin1String attribute) {
        return read<QString>(element, attribute);
    }
    QRectF frame(const LMElement& window) {
        return {read<QPointF>(window, LMAttribute::Position),
                read<QSizeF>(window, LMAttribute::Size)};
    }
    bool setFrame(const LMElement& window, const QRectF& frame) {
        return set(window, LMAttribute::Position, frame.topLeft()) &&
               set(window, LMAttribute::Size, frame.size());
    }
    /// True when the window stands there for the desktop as for everybody else.
    bool isAt(const LMElement& window, const QRectF& rect) {
        return frame(window) == rect && backend->visibleFrame(window) == rect;
    }

    int lateAnswers = 0;
    QStringList launches; ///< The applications announced so far.
    std::unique_ptr<LMContractBackend> backend;
};

template <class T>
T LMContractTest::read(const LMElement& element, QLatin1String attribute) {
    const auto value = accessibility().copyAttributeValue(element, attribute);
    const T* typed = value ? std::get_if<T>(&*value) : nullptr;
    EXPECT_NE(typed, nullptr) << attribute.data() << " cannot be read or has the wrong type";
    return typed ? *typed : T();
}

inline std::string LMBackendName(const testing::TestParamInfo<LMContractBackendFactory>& info) {
    return info.param.name;
}

/// Declares a suite that runs against every back end.
#define LM_CONTRACT_SUITE(name)                                                                    \
    class name : public LMContractTest {};                                                         \
    INSTANTIATE_TEST_SUITE_P(On, name, testing::ValuesIn(LMContractBackends()), LMBackendName)
