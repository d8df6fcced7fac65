// SPDX-License-Identifier: MIT
#pragma once

#include "Utilities/LMSourceLocation.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

enum class LMLogLevel { Debug, Info, Warning, Error };

/// Writes levelled messages with file, line and function to the system log and to standard error,
/// synchronously. Made once in main or in a test and handed to whoever logs.
///
/// Messages are formatted by LMFormat. What comes from outside may be anything: control characters,
/// line breaks and text-direction marks are escaped ("\n", "\u202e"), arguments beyond
/// 1,000 characters and messages beyond 8,000 are cut with a note of what is missing.
class LMLogger {
public:
    struct Options {
        bool systemLog = true;
        bool standardError = true;
        LMLogLevel level = LMLogLevel::Info; ///< Messages below it are dropped.
    };
    using Callback =
        std::function<void(LMLogLevel, const QString& message, const LMSourceLocation& where)>;

    LMLogger();
    explicit LMLogger(const Options& options);
    LMLogger(LMLogger&&) noexcept;
    LMLogger& operator=(LMLogger&&) noexcept;
    ~LMLogger();

    /// A logger that writes nowhere and hands each finished message to the callback, for tests.
    /// Its level is Debug.
    static LMLogger withCallback(Callback callback);

    void error(const QString& format, const QStringList& arguments = {},
               const LMSourceLocation& where = LMSourceLocation::current()) const;
    void warning(const QString& format, const QStringList& arguments = {},
                 const LMSourceLocation& where = LMSourceLocation::current()) const;
    void info(const QString& format, const QStringList& arguments = {},
              const LMSourceLocation& where = LMSourceLocation::current()) const;
    void debug(const QString& format, const QStringList& arguments = {},
               const LMSourceLocation& where = LMSourceLocation::current()) const;

    void log(LMLogLevel level, const QString& format, const QStringList& arguments,
             const LMSourceLocation& where = LMSourceLocation::current()) const;

    /// Ask before building costly arguments of debug messages.
    bool isDebugEnabled() const;
    LMLogLevel level() const;
    void setLevel(LMLogLevel level);

private:
    struct Private;
    std::unique_ptr<Private> d;
};
