// SPDX-License-Identifier: MIT
#include "CommandLine/LMInvocation.h"

#include "CommandLine/LMCommandLineDescription.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>

#include <utility>

namespace {

using Kind = LMInvocation::Kind;

constexpr std::pair<int, const char*> ExitCodes[] = {
    {LMExitCode::Done, "done"},
    {LMExitCode::Refused, "the command could not run"},
    {LMExitCode::Usage, "usage error"},
    {LMExitCode::NotRunning, "no resident process"},
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

void addCommand(CLI::App& app, LMInvocation& invocation, const char* name, const char* help,
                const char* method) {
    app.add_subcommand(name, help)->callback([&invocation, method] {
        invocation.kind = Kind::Command;
        invocation.method = QLatin1String(method);
    });
}

CLI::App* addStoreCommand(CLI::App& app, LMInvocation& invocation, Options& options,
                          const char* name, const char* help, const char* method) {
    CLI::App* command = app.add_subcommand(name, help);
    command->add_flag("--overwrite", options.overwrite, "Replace what is stored already");
    command->callback([&invocation, &options, method] {
        invocation.kind = Kind::Command;
        invocation.method = QLatin1String(method);
        invocation.arguments = {options.overwrite};
    });
    return command;
}

/// What a launcher starts: whoever clicks there sees no terminal.
void addStoreAll(CLI::App& app, LMInvocation& invocation, Options& options) {
    CLI::App* command =
        addStoreCommand(app, invocation, options, "store-all", "Remember every window", "StoreAll");
    command->add_flag("--ask", options.asks, "Ask on the screen whether to replace what is stored")
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
                    const char* help, const char* method) {
    CLI::App* command = app.add_subcommand(name, help);
    command->add_flag("--json", options.json, "Print JSON instead of a table");
    command->callback([&invocation, &options, method] {
        invocation.kind = Kind::Report;
        invocation.method = QLatin1String(method);
        invocation.wantsJson = options.json;
    });
    return command;
}

void addCommands(CLI::App& app, LMInvocation& invocation, Options& options) {
    addCommand(app, invocation, "restore-all", "Put every window back", "RestoreAll");
    CLI::App* restore =
        app.add_subcommand("restore-app", "Put back the windows of one application");
    const CLI::Option* identifier =
        restore->add_option("ID", options.application,
                            "The application's identifier; the active application without it");
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
                    "Remember the windows of the active application", "StoreActiveApplication");
    addStoreCommand(app, invocation, options, "store-window", "Remember the active window",
                    "StoreActiveWindow");
    addCommand(app, invocation, "link-window", "Link the active window to a stored window",
               "LinkActiveWindow");
    addCommand(app, invocation, "menu", "Open the status menu at the pointer", "ShowMenu");
    addCommand(app, invocation, "show", "Show the list of stored windows", "ShowStoredWindows");
    addCommand(app, invocation, "preferences", "Show the preferences", "ShowPreferences");
    addCommand(app, invocation, "about", "Show version and credits", "ShowAbout");
    addCommand(app, invocation, "check-for-updates", "Look for a newer version", "CheckForUpdates");
    app.add_subcommand("quit", "End the resident process")->callback([&invocation] {
        invocation.kind = Kind::Quit;
        invocation.method = QStringLiteral("Quit");
    });
}

void addReports(CLI::App& app, LMInvocation& invocation, Options& options) {
    addReport(app, invocation, options, "status", "Show displays, counts, back end, permission",
              "Status");
    addReport(app, invocation, options, "list", "Show what is stored", "List");
    addReport(app, invocation, options, "windows", "Show the live windows as Rook sees them",
              "Windows");
    CLI::App* plan = addReport(app, invocation, options, "plan",
                               "Show what a restore would do, and why; changes nothing", "Plan");
    plan->add_option("ID", options.application, "One application's identifier");
    plan->callback([&invocation, &options] {
        invocation.kind = Kind::Report;
        invocation.method = QStringLiteral("Plan");
        invocation.wantsJson = options.json;
        invocation.arguments = {QString::fromStdString(options.application)};
    });
}

std::string footer() {
    std::string text = "Exit codes:";
    for (const auto& [code, meaning] : ExitCodes)
        text += (code == 0 ? " " : ", ") + std::to_string(code) + ' ' + meaning;
    return text +
           ".\nWithout a command Rook starts its resident process in the foreground. Where Rook "
           "is installed, a\ncommand that does something starts it, too; list, plan, quit, "
           "status and windows never do.";
}

/// Fills the application with everything it understands. Parsing writes to invocation and options,
/// which outlive it.
void define(CLI::App& app, LMInvocation& invocation, Options& options) {
    app.description("Rook remembers where your windows stand, per set of displays, and puts them "
                    "back.");
    app.name("rook");
    app.footer(footer());
    app.set_version_flag("--version",
                         "rook " + QCoreApplication::applicationVersion().toStdString());
    app.require_subcommand(0, 1);
    app.add_flag("--headless", options.isHeadless, "Start without tray or windows");
    app.add_flag("--verbose", options.isVerbose, "Log debug messages too");
    addCommands(app, invocation, options);
    addReports(app, invocation, options);
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
        result.exitCodes.append({code, QLatin1String(meaning)});
    return result;
}

LMInvocation LMParseCommandLine(int argc, const char* const* argv) {
    LMInvocation invocation;
    Options options;
    CLI::App app;
    define(app, invocation, options);

    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        const bool isHelp = error.get_exit_code() == int(CLI::ExitCodes::Success);
        app.exit(error); // Prints help, version or the complaint.
        invocation.kind = Kind::Exit;
        invocation.exitCode = isHelp ? LMExitCode::Done : LMExitCode::Usage;
        return invocation;
    }
    invocation.isHeadless = options.isHeadless;
    invocation.isVerbose = options.isVerbose;
    return invocation;
}
