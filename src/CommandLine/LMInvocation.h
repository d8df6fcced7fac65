// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QVariantList>

/// What the user asked of the binary.
struct LMInvocation {
    enum class Kind {
        Resident, ///< Start the resident process.
        Command,  ///< Ask the resident process to do something; answers a boolean.
        Report,   ///< Ask it for a report; answers JSON.
        Quit,     ///< Ask it to end, and wait until it has.
        Explain,  ///< Nothing to do but to print help, version or what is wrong.
    };

    Kind kind = Kind::Resident;
    bool isHeadless = false; ///< With Kind::Resident: never a tray or a window.
    bool isVerbose = false;  ///< With Kind::Resident: debug messages too.
    bool wantsJson = false;  ///< With Kind::Report: the report itself instead of a table.
    QString method;          ///< The D-Bus method's name.
    QVariantList arguments;  ///< Its arguments.
};

/// Exit codes of the command line.
namespace LMExitCode {
inline constexpr int Done = 0;
inline constexpr int Refused = 1;    ///< The command could not run.
inline constexpr int Usage = 2;      ///< The command line makes no sense.
inline constexpr int NotRunning = 3; ///< There is no resident process.
} // namespace LMExitCode

/// Understands the arguments and prints nothing. Needs neither an application object nor a display
/// nor a bus.
LMInvocation LMParseCommandLine(int argc, const char* const* argv);

/// For arguments that ask for an explanation or need one: prints it in the user's language, help
/// and version to standard output, complaints to standard error. Answers the exit code.
int LMExplainCommandLine(int argc, const char* const* argv);
