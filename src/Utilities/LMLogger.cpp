// SPDX-License-Identifier: MIT
#include "Utilities/LMLogger.h"

#include "Utilities/LMFormat.h"

#include <spdlog/logger.h>
#include <spdlog/pattern_formatter.h>
#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/sinks/syslog_sink.h>

#include <atomic>
#include <utility>

namespace {

constexpr qsizetype longestArgument = 1000;
constexpr qsizetype longestMessage = 8000;
constexpr auto systemLogPattern = "%l: %s:%# %!: %v";
constexpr auto standardErrorPattern = "%Y-%m-%d %H:%M:%S.%e %l: %s:%# %!: %v";

QString cut(const QString& text, qsizetype longest) {
    if (text.size() <= longest)
        return text;
    return LMFormat(QStringLiteral("%@... (%lu more characters)"),
                    {text.left(longest), QString::number(text.size() - longest)});
}

/// Whether a character would break a line, act on a terminal or reorder the text around it.
bool isUnsafe(QChar character) {
    switch (character.category()) {
    case QChar::Other_Control:
        return character != u'\t';
    case QChar::Other_Format:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return character.isNonCharacter();
    }
}

QString escaped(QChar character) {
    if (character == u'\n')
        return QStringLiteral("\\n");
    if (character == u'\r')
        return QStringLiteral("\\r");
    return QStringLiteral("\\u%1").arg(character.unicode(), 4, 16, QLatin1Char('0'));
}

/// Printable text of well-formed UTF-16 on one line.
QString printable(const QString& text) {
    QString result;
    result.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar character = text[i];
        const bool isPair =
            character.isHighSurrogate() && i + 1 < text.size() && text[i + 1].isLowSurrogate();
        if (isPair) {
            result += character;
            result += text[++i];
        } else if (character.isSurrogate() || isUnsafe(character)) {
            result += escaped(character);
        } else {
            result += character;
        }
    }
    return result;
}

QString finishedMessage(const QString& format, const QStringList& arguments) {
    QStringList shortArguments;
    for (const QString& argument : arguments)
        shortArguments.append(cut(argument, longestArgument));
    return printable(cut(LMFormat(format, shortArguments), longestMessage));
}

spdlog::level::level_enum spdlogLevel(LMLogLevel level) {
    switch (level) {
    case LMLogLevel::Debug:
        return spdlog::level::debug;
    case LMLogLevel::Info:
        return spdlog::level::info;
    case LMLogLevel::Warning:
        return spdlog::level::warn;
    case LMLogLevel::Error:
        break;
    }
    return spdlog::level::err;
}

void addSink(spdlog::logger& logger, spdlog::sink_ptr sink, const char* pattern,
             const char* lineEnd) {
    sink->set_formatter(std::make_unique<spdlog::pattern_formatter>(
        pattern, spdlog::pattern_time_type::local, lineEnd));
    logger.sinks().push_back(std::move(sink));
}

} // namespace

struct LMLogger::Private {
    explicit Private(const Options& options) : level(options.level), backend("rook") {
        constexpr bool formatsForSystemLog = true;
        if (options.systemLog) {
            addSink(backend,
                    std::make_shared<spdlog::sinks::syslog_sink_mt>("rook", LOG_PID, LOG_USER,
                                                                    formatsForSystemLog),
                    systemLogPattern, "");
        }
        if (options.standardError) {
            addSink(backend, std::make_shared<spdlog::sinks::stderr_sink_mt>(),
                    standardErrorPattern, "\n");
        }
        backend.set_level(spdlog::level::trace);
    }

    std::atomic<LMLogLevel> level;
    spdlog::logger backend;
    Callback callback;
};

LMLogger::LMLogger() : LMLogger(Options()) {}
LMLogger::LMLogger(const Options& options) : d(std::make_unique<Private>(options)) {}
LMLogger::LMLogger(LMLogger&&) noexcept = default;
LMLogger& LMLogger::operator=(LMLogger&&) noexcept = default;
LMLogger::~LMLogger() = default;

LMLogger LMLogger::withCallback(Callback callback) {
    LMLogger logger({.systemLog = false, .standardError = false, .level = LMLogLevel::Debug});
    logger.d->callback = std::move(callback);
    return logger;
}

void LMLogger::error(const QString& format, const QStringList& arguments,
                     const LMSourceLocation& where) const {
    log(LMLogLevel::Error, format, arguments, where);
}

void LMLogger::warning(const QString& format, const QStringList& arguments,
                       const LMSourceLocation& where) const {
    log(LMLogLevel::Warning, format, arguments, where);
}

void LMLogger::info(const QString& format, const QStringList& arguments,
                    const LMSourceLocation& where) const {
    log(LMLogLevel::Info, format, arguments, where);
}

void LMLogger::debug(const QString& format, const QStringList& arguments,
                     const LMSourceLocation& where) const {
    log(LMLogLevel::Debug, format, arguments, where);
}

void LMLogger::log(LMLogLevel level, const QString& format, const QStringList& arguments,
                   const LMSourceLocation& where) const {
    if (level < d->level)
        return;
    const QString message = finishedMessage(format, arguments);
    if (d->callback)
        d->callback(level, message, where);
    const QByteArray text = message.toUtf8();
    d->backend.log(spdlog::source_loc(where.file_name(), static_cast<int>(where.line()),
                                      where.function_name()),
                   spdlogLevel(level),
                   spdlog::string_view_t(text.constData(), static_cast<std::size_t>(text.size())));
}

bool LMLogger::isDebugEnabled() const {
    return d->level == LMLogLevel::Debug;
}
LMLogLevel LMLogger::level() const {
    return d->level;
}
void LMLogger::setLevel(LMLogLevel level) {
    d->level = level;
}
