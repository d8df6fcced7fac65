// SPDX-License-Identifier: MIT
#include "CommandLine/LMInvocation.h"

#include <CLI/CLI.hpp>

#include <QCoreApplication>

namespace {

using Kind = LMInvocation::Kind;

constexpr const char* Footer =
    "Exit codes: 0 done, 1 the command could not run, 2 usage error, 3 no resident process.\n"
    "Without a command Rook starts its resident process in the foreground.";

/// The values CLI11 fills in while it parses.
struct Options {
    bool isHeadless = false;
    bool isVerbose = false;
    bool overwrite = false;
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

void addStoreCommand(CLI::App& app, LMInvocation& invocation, Options& options, const char* name,
                     const char* help, const char* method) {
    CLI::App* command = app.add_subcommand(name, help);
    command->add_flag("--overwrite", options.overwrite, "Replace what is stored already");
    command->callback([&invocation, &options, method] {
        invocation.kind = Kind::Command;
        invocation.method = QLatin1String(method);
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
    addStoreCommand(app, invocation, options, "store-all", "Remember every window", "StoreAll");
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

} // namespace

LMInvocation LMParseCommandLine(int argc, const char* const* argv) {
    LMInvocation invocation;
    Options options;
    CLI::App app{"Rook remembers where your windows stand, per set of displays, and puts them "
                 "back.",
                 "rook"};
    app.footer(Footer);
    app.set_version_flag("--version",
                         "rook " + QCoreApplication::applicationVersion().toStdString());
    app.require_subcommand(0, 1);
    app.add_flag("--headless", options.isHeadless, "Start without tray or windows");
    app.add_flag("--verbose", options.isVerbose, "Log debug messages too");
    addCommands(app, invocation, options);
    addReports(app, invocation, options);

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
