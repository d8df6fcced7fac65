// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <memory>

/// Leaves a report in a folder when the process crashes, for as long as it lives: the signal, the
/// version, where the program and its libraries were loaded, and the addresses of the calls. The
/// process then ends as it would have without. Nothing is sent anywhere.
///
/// One at a time per process.
class LMCrashReporter {
public:
    /// Reports go to the directory, of which the latest few are kept. None without a directory, and
    /// where a sanitizer watches, which reports better.
    static std::unique_ptr<LMCrashReporter> install(const QString& directory,
                                                    const QString& version);
    ~LMCrashReporter();
    Q_DISABLE_COPY_MOVE(LMCrashReporter)

    struct Report;

private:
    explicit LMCrashReporter(std::unique_ptr<Report> report);

    std::unique_ptr<Report> m_report;
};
