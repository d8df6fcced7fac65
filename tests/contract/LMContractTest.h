// SPDX-License-Identifier: MIT
#pragma once

#include "contract/LMContractBackend.h"

#include <gtest/gtest.h>

#include <optional>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* stream) {
    *stream << (text.isNull() ? "null" : '"' + text.toStdString() + '"');
}
inline void PrintTo(const QRectF& rect, std::ostream* stream) {
    *stream << rect.width() << 'x' << rect.height() << " at " << rect.x() << ',' << rect.y();
}
inline void PrintTo(const LMContractBackendFactory& factory, std::ostream* stream) {
    *stream << factory.name;
}

/// One desktop of the back end under test, and short names for what the tests do all the time.
class LMContractTest : public testing::TestWithParam<LMContractBackendFactory> {
protected:
    void SetUp() override { backend = GetParam().create(); }

    LMDesktop& desktop() { return backend->desktop(); }
    LMAccessibility& accessibility() { return desktop().accessibility(); }

    LMElement open(const LMContractWindow& window = {}) { return backend->openWindow(window); }
    /// Process identifier 0 when it does not run.
    LMRunningApplication running(const QString& application = QStringLiteral("first"));
    qint64 process(const QString& application = QStringLiteral("first")) {
        return running(application).processIdentifier;
    }
    QList<LMElement> windows(const QString& application = QStringLiteral("first"));

    /// The value, or a failed expectation and an empty one.
    template <class T>
    T read(const LMElement& element, QLatin1String attribute);
    std::optional<LMPlatformError> readError(const LMElement& element, QLatin1String attribute);
    std::optional<LMPlatformError> setError(const LMElement& element, QLatin1String attribute,
                                            const LMAttributeValue& value);
    QString text(const LMElement& element, QLatin1String attribute) {
        return read<QString>(element, attribute);
    }
    QRectF frame(const LMElement& window) {
        return {read<QPointF>(window, LMAttribute::Position),
                read<QSizeF>(window, LMAttribute::Size)};
    }
    bool isSettable(const LMElement& window, QLatin1String attribute) {
        return accessibility().isAttributeSettable(window, attribute).valueOr(false);
    }
    bool setFrame(const LMElement& window, const QRectF& frame) {
        return set(window, LMAttribute::Position, frame.topLeft()) &&
               set(window, LMAttribute::Size, frame.size());
    }
    /// True when the window stands there for the desktop as for everybody else.
    bool isAt(const LMElement& window, const QRectF& rect) {
        return frame(window) == rect && backend->visibleFrame(window) == rect;
    }
    bool set(const LMElement& window, QLatin1String attribute, const LMAttributeValue& value) {
        return accessibility().setAttributeValue(window, attribute, value).isSuccess();
    }

    std::unique_ptr<LMContractBackend> backend;
};

template <class T>
T LMContractTest::read(const LMElement& element, QLatin1String attribute) {
    const auto value = accessibility().copyAttributeValue(element, attribute);
    if (!value) {
        ADD_FAILURE() << attribute.data() << " cannot be read, error " << int(value.error());
        return T();
    }
    const T* typed = std::get_if<T>(&*value);
    EXPECT_NE(typed, nullptr) << attribute.data() << " has the wrong type " << value->index();
    return typed ? *typed : T();
}

inline std::string LMBackendName(const testing::TestParamInfo<LMContractBackendFactory>& info) {
    return info.param.name;
}

/// Declares a suite that runs against every back end.
#define LM_CONTRACT_SUITE(name)                                                                    \
    class name : public LMContractTest {};                                                         \
    INSTANTIATE_TEST_SUITE_P(On, name, testing::ValuesIn(LMContractBackends()), LMBackendName)
