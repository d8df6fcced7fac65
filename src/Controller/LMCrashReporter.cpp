// SPDX-License-Identifier: MIT
#include "Controller/LMCrashReporter.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFile>

#include <execinfo.h>
#include <fcntl.h>
#include <link.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>

/// Everything the signal handler needs, made beforehand: it may neither allocate nor format.
struct LMCrashReporter::Report {
    static constexpr std::array Signals{SIGSEGV, SIGABRT, SIGBUS, SIGFPE, SIGILL};

    QByteArray path;
    QByteArray heading;
    /// The handler's own stack: the usual one may be what has overflown.
    std::array<char, 65536> stack{};
    std::array<struct sigaction, Signals.size()> previousActions{};
    stack_t previousStack{};
};

namespace {

constexpr int MaxReports = 10;
constexpr int MaxFrames = 64;
constexpr QLatin1String NamePattern{"Crash *.txt"};

// A signal handler is handed nothing of its own.
volatile LMCrashReporter::Report* installedReport = nullptr;

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool IsSanitized = true;
#else
constexpr bool IsSanitized = false;
#endif

// --- in the signal handler: async-signal-safe calls only -------------------------------------

void writeText(int file, const char* text, std::size_t length) {
    while (length > 0) {
        const ssize_t written = ::write(file, text, length);
        if (written < 0 && errno != EINTR)
            return;
        text += written > 0 ? written : 0;
        length -= written > 0 ? std::size_t(written) : 0;
    }
}

void writeLine(int file, const char* name, std::uintptr_t value) {
    std::array<char, 2 * sizeof value> digits{};
    std::size_t first = digits.size();
    do {
        digits[--first] = "0123456789abcdef"[value % 16];
        value /= 16;
    } while (value != 0);
    writeText(file, name, std::strlen(name));
    writeText(file, " 0x", 3);
    writeText(file, digits.data() + first, digits.size() - first);
    writeText(file, "\n", 1);
}

extern "C" void reportCrash(int signal, siginfo_t* information, void*) {
    const int savedError = errno;
    const auto* report = const_cast<LMCrashReporter::Report*>(installedReport);
    installedReport = nullptr;
    const int file = report == nullptr ? -1
                                       : ::open(report->path.constData(),
                                                O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file >= 0) {
        writeText(file, report->heading.constData(), std::size_t(report->heading.size()));
        writeLine(file, "Signal", std::uintptr_t(signal));
        writeLine(file, "Address", reinterpret_cast<std::uintptr_t>(information->si_addr));
        std::array<void*, MaxFrames> frames{};
        const int count = ::backtrace(frames.data(), MaxFrames);
        for (int i = 0; i < count; ++i)
            writeLine(file, "Frame", reinterpret_cast<std::uintptr_t>(frames[std::size_t(i)]));
        ::close(file);
    }
    errno = savedError;
    // The default action is back in place (SA_RESETHAND) and comes with the return.
    ::raise(signal);
}

// --- before ---------------------------------------------------------------------------------

int appendModule(dl_phdr_info* module, std::size_t, void* text) {
    const char* const name = module->dlpi_name;
    *static_cast<QByteArray*>(text) += "Module 0x" +
                                       QByteArray::number(qulonglong(module->dlpi_addr), 16) + ' ' +
                                       (name && *name ? name : "rook") + '\n';
    return 0;
}

QByteArray heading(const QString& version) {
    QByteArray text = "Rook " + version.toUtf8() + ", process " +
                      QByteArray::number(QCoreApplication::applicationPid()) + ", started " +
                      QDateTime::currentDateTime().toString(Qt::ISODate).toUtf8() + '\n';
    ::dl_iterate_phdr(&appendModule, &text);
    return text;
}

void removeOldReports(QDir directory) {
    const QStringList names = directory.entryList({NamePattern}, QDir::Files, QDir::Time);
    for (qsizetype i = MaxReports - 1; i < names.size(); ++i)
        directory.remove(names[i]);
}

} // namespace

std::unique_ptr<LMCrashReporter> LMCrashReporter::install(const QString& directory,
                                                          const QString& version) {
    if (IsSanitized || directory.isNull() || installedReport != nullptr)
        return nullptr;
    removeOldReports(QDir(directory));
    auto report = std::make_unique<Report>();
    const QString time = QDateTime::currentDateTime().toString(QStringLiteral("yyyy-MM-dd hhmmss"));
    report->path = QFile::encodeName(
        QStringLiteral("%1/Crash %2 %3.txt")
            .arg(directory, time, QString::number(QCoreApplication::applicationPid())));
    report->heading = heading(version);
    return std::unique_ptr<LMCrashReporter>(new LMCrashReporter(std::move(report)));
}

LMCrashReporter::LMCrashReporter(std::unique_ptr<Report> report) : m_report(std::move(report)) {
    // The first call loads a library, which a signal handler must not do.
    std::array<void*, 1> frame{};
    ::backtrace(frame.data(), 1);

    stack_t stack{};
    stack.ss_sp = m_report->stack.data();
    stack.ss_size = m_report->stack.size();
    ::sigaltstack(&stack, &m_report->previousStack);
    installedReport = m_report.get();
    struct sigaction action {};
    action.sa_sigaction = &reportCrash;
    action.sa_flags = int(SA_SIGINFO | SA_ONSTACK | SA_RESETHAND);
    for (std::size_t i = 0; i < Report::Signals.size(); ++i)
        ::sigaction(Report::Signals[i], &action, &m_report->previousActions[i]);
}

LMCrashReporter::~LMCrashReporter() {
    for (std::size_t i = 0; i < Report::Signals.size(); ++i)
        ::sigaction(Report::Signals[i], &m_report->previousActions[i], nullptr);
    installedReport = nullptr;
    ::sigaltstack(&m_report->previousStack, nullptr);
}
