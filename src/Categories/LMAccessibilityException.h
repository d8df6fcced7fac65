// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <exception>

/// Raised by the element functions when a window or an application cannot be read or changed. It is
/// caught around whole operations; only its reason tells what went wrong.
class LMAccessibilityException final : public std::exception {
public:
    explicit LMAccessibilityException(const QString& reason)
        : m_reason(reason), m_what(reason.toUtf8()) {}

    QString name() const { return QStringLiteral("LMAccessibilityException"); }
    /// One of the fixed texts of LMElementFunctions.h.
    QString reason() const { return m_reason; }
    const char* what() const noexcept override { return m_what.constData(); }

private:
    QString m_reason;
    QByteArray m_what;
};
