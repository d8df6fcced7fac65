// SPDX-License-Identifier: MIT
#include "CommandLine/LMInvocation.h"

#include "CommandLine/LMCommandLineDescription.h"
#include "Utilities/LMFormat.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>

#include <iostream>
#include <utility>

namespace {

using Kind = LMInvocation::Kind;

constexpr std::pair<int, const char*> ExitCodes[] = {
    {LMExitCode::Done, LMLocalizable("done")},
    {LMExitCode::Refused, LMLocalizable("the command could not run")},
    {LMExitCode::Usage, LMLocalizable("usage error")},
    {LMExitCode::NotRunning, LMLocalizable("no resident process")},
};

/// The values CLI11 fills in while it parses.
struct Options {
    bool isHeadless = false;
    bool isVerbose = false;
    bool overwrite = false;
    bool asks = false;
    bool json = false;
    std::string application;
};

std::string words(const QString& text) {
    return text.toStdString();
}

void addCommand(CLI::App& app, LMInvocation& invocation, const char* name, const QString& help,
                const char* method) {
    app.add_subcommand(name, words(help))->callback([&invocation, method] {
        invocation.kind = Kind::Command;
        invocation.method = QLatin1String(method);
    });
}

CLI::App* addStoreCommand(CLI::App& app, LMInvocation& invocation, Options& options,
                          const char* name, const QString& help, const char* method) {
    CLI::App* command = app.add_subcommand(name, words(help));
    command->add_flag("--overwrite", options.overwrite,
                      words(LMLocalized("Replace what is stored already")));
    command->callback([&invocation, &options, method] {
        invocation.kind = Kind::Command;
        invocation.method = QLatin1String(method);
        invocation.arguments = {options.overwrite};
    });
    return command;
}

/// What a launcher starts: whoever clicks there sees no terminal.
void addStoreAll(CLI::App& app, LMInvocation& invocation, Options& options) {
    CLI::App* command = addStoreCommand(app, invocation, options, "store-all",
                                        LMLocalized("Remember every window"), "StoreAll");
    command
        ->add_flag("--ask", options.asks,
                   words(LMLocalized("Ask on the screen whether to replace what is stored")))
        ->excludes("--overwrite");
    command->callback([&invocation, &options] {
        invocation.kind = Kind::Command;
        invocation.method =
            options.asks ? QStringLiteral("AskToStoreAll") : QStringLiteral("StoreAll");
        if (!options.asks)
            invocation.arguments = {options.overwrite};
    });
}

CLI::App* addReport(CLI::App& app, LMInvocation& invocation, Options& options, const char* name,
                    const QString& help, const char* method) {
    CLI::App* command = app.add_subcommand(name, words(help));
    command->add_flag("--json", options.json, words(LMLocalized("Print JSON instead of a table")));
    command->callback([&invocation, &options, method] {
        invocation.kind = Kind::Report;
        invocation.method = QLatin1String(method);
        invocation.wantsJson = options.json;
    });
    return command;
}

void addCommands(CLI::App& app, LMInvocation& invocation, Options& options) {
    addCommand(app, invocation, "restore-all", LMLocalized("Put every window back"), "RestoreAll");
    CLI::App* restore = app.add_subcommand(
        "restore-app", words(LMLocalized("Put back the windows of one application")));
    const CLI::Option* identifier = restore->add_option(
        "ID", options.application,
        words(LMLocalized("The application's identifier; the active application without it")));
    restore->callback([&invocation, &options, identifier] {
        invocation.kind = Kind::Command;
        // An empty name is a slip in a script, not the wish to restore whatever is active.
        const bool isNamed = identifier->count() > 0;
        invocation.method = isNamed ? QStringLiteral("RestoreApplication")
                                    : QStringLiteral("RestoreActiveApplication");
        if (isNamed)
            invocation.arguments = {QString::fromStdString(options.application)};
    });
    addStoreAll(app, invocation, options);
    addStoreCommand(app, invocation, options, "store-app",
                    LMLocalized("Remember the windows of the active application"),
                    "StoreActiveApplication");
    addStoreCommand(app, invocation, options, "store-window",
                    LMLocalized("Remember the active window"), "StoreActiveWindow");
    addCommand(app, invocation, "link-window",
               LMLocalized("Link the active window to a stored window"), "LinkActiveWindow");
    addCommand(app, invocation, "menu", LMLocalized("Open the status menu at the pointer"),
               "ShowMenu");
    addCommand(app, invocation, "show", LMLocalized("Show the list of stored windows"),
               "ShowStoredWindows");
    addCommand(app, invocation, "preferences", LMLocalized("Show the preferences"),
               "ShowPreferences");
    addCommand(app, invocation, "about", LMLocalized("Show version and credits"), "ShowAbout");
    addCommand(app, invocation, "check-for-updates", LMLocalized("Look for a newer version"),
               "CheckForUpdates");
    app.add_subcommand("quit", words(LMLocalized("End the resident process")))
        ->callback([&invocation] {
            invocation.kind = Kind::Quit;
            invocation.method = QStringLiteral("Quit");
        });
}

void addReports(CLI::App& app, LMInvocation& invocation, Options& options) {
    addReport(app, invocation, options, "status",
              LMLocalized("Show displays, counts, back end, permission"), "Status");
    addReport(app, invocation, options, "list", LMLocalized("Show what is stored"), "List");
    addReport(app, invocation, options, "windows",
              LMLocalized("Show the live windows as Rook sees them"), "Windows");
    CLI::App* plan =
        addReport(app, invocation, options, "plan",
                  LMLocalized("Show what a restore would do, and why; changes nothing"), "Plan");
    plan->add_option("ID", options.application, words(LMLocalized("One application's identifier")));
    plan->callback([&invocation, &options] {
        invocation.kind = Kind::Report;
        invocation.method = QStringLiteral("Plan");
        invocation.wantsJson = options.json;
        invocation.arguments = {QString::fromStdString(options.application)};
    });
}

std::string footer() {
    QStringList codes;
    for (const auto& [code, meaning] : ExitCodes)
        codes.append(QStringLiteral("%1 %2").arg(code).arg(LMLocalized(meaning)));
    return words(
        LMFormat(LMLocalized("Exit codes: %@."), {codes.join(LMLocalized(", "))}) +
        QLatin1Char('\n') +
        LMLocalized("Without a command Rook starts its resident process in the foreground. Where "
                    "Rook is installed, a\ncommand that does something starts it, too; list, plan, "
                    "quit, status and windows never do."));
}

/// The complaint about a command line, without the program's name.
QString complaint(const CLI::Error& error) {
    const QString details = QString::fromStdString(error.what());
    const auto kind = CLI::ExitCodes(error.get_exit_code());
    if (kind == CLI::ExitCodes::ExtrasError)
        return LMFormat(LMLocalized("not expected: %@"), {details.section(QLatin1String(": "), 1)});
    if (kind == CLI::ExitCodes::ExcludesError)
        return LMFormat(LMLocalized("not both: %@"),
                        {details.split(QLatin1String(" excludes ")).join(LMLocalized(", "))});
    return details; // Nothing the arguments of Rook lead to; in the words of the library.
}

std::string failureMessage(const CLI::App* /*app*/, const CLI::Error& error) {
    return words(LMFormat(LMLocalized("rook: %@\nRun “rook --help” for more information."),
                          {complaint(error)})) +
           '\n';
}

/// The library's own words.
void translate(CLI::App& app) {
    const auto label = [&app](const char* key, const QString& text) {
        app.get_formatter()->label(key, words(text));
    };
    label("Usage", LMLocalized("Usage"));
    label("OPTIONS", LMLocalized("OPTIONS"));
    label("SUBCOMMAND", LMLocalized("SUBCOMMAND"));
    label("Positionals", LMLocalized("Arguments"));
    label("TEXT", LMLocalized("TEXT"));
    label("Excludes", LMLocalized("Excludes"));
    app.failure_message(failureMessage);
    app.option_defaults()->group(words(LMLocalized("Options")));
    app.set_help_flag("-h,--help", words(LMLocalized("Print this help message and exit")));
}

/// Fills the application with everything it understands. Parsing writes to invocation and options,
/// which outlive it.
void define(CLI::App& app, LMInvocation& invocation, Options& options) {
    app.description(words(LMLocalized(
        "Rook remembers where your windows stand, per set of displays, and puts them back.")));
    app.name("rook");
    translate(app);
    app.footer(footer());
    app.set_version_flag("--version",
                         "rook " + QCoreApplication::applicationVersion().toStdString(),
                         words(LMLocalized("Display program version information and exit")));
    app.require_subcommand(0, 1);
    app.add_flag("--headless", options.isHeadless,
                 words(LMLocalized("Start without tray or windows")));
    app.add_flag("--verbose", options.isVerbose, words(LMLocalized("Log debug messages too")));
    addCommands(app, invocation, options);
    addReports(app, invocation, options);
    for (CLI::App* command : app.get_subcommands({})) {
        command->group(words(LMLocalized("Subcommands")));
        command->get_help_ptr()->group(words(LMLocalized("Options"))); // Made before the defaults.
    }
}

LMCommandDescription describe(CLI::App& app) {
    LMCommandDescription result;
    result.name = QString::fromStdString(app.get_name());
    result.help = QString::fromStdString(app.get_description());
    for (const CLI::Option* option : app.get_options()) {
        LMOptionDescription description;
        for (const std::string& name : option->get_snames())
            description.names.append(QLatin1Char('-') + QString::fromStdString(name));
        for (const std::string& name : option->get_lnames())
            description.names.append(QLatin1String("--") + QString::fromStdString(name));
        description.help = QString::fromStdString(option->get_description());
        if (description.names.isEmpty()) {
            result.argument = QString::fromStdString(option->get_name(true));
            result.argumentHelp = description.help;
        } else {
            result.options.append(description);
        }
    }
    return result;
}

} // namespace

LMCommandLineDescription LMDescribeCommandLine() {
    LMInvocation invocation;
    Options options;
    CLI::App app;
    define(app, invocation, options);
    LMCommandLineDescription result;
    result.program = describe(app);
    for (CLI::App* command : app.get_subcommands({}))
        result.commands.append(describe(*command));
    for (const auto& [code, meaning] : ExitCodes)
        result.exitCodes.append({code, LMLocalized(meaning)});
    return result;
}

LMInvocation LMParseCommandLine(int argc, const char* const* argv) {
    LMInvocation invocation;
    Options options;
    CLI::App app;
    define(app, invocation, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError&) {
        invocation.kind = Kind::Explain;
        return invocation;
    }
    invocation.isHeadless = options.isHeadless;
    invocation.isVerbose = options.isVerbose;
    return invocation;
}

int LMExplainCommandLine(int argc, const char* const* argv) {
    LMInvocation invocation;
    Options options;
    CLI::App app;
    define(app, invocation, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const bool isHelp = error.get_exit_code() == int(CLI::ExitCodes::Success);
        app.exit(error); // Prints it.
        if (!std::cout.flush()) {
            std::cerr << "rook: " << words(LMLocalized("the output could not be written")) << '\n';
            return LMExitCode::Refused;
        }
        return isHelp ? LMExitCode::Done : LMExitCode::Usage;
    }
    return LMExitCode::Done;
}
