// SPDX-License-Identifier: MIT
#include "Platform/LMApplicationIdentity.h"

#include "Platform/LMKeyFile.h"
#include "unit/Utilities/Support.h"

namespace {

LMDesktopEntry entry(const char* identifier, const QByteArray& lines) {
    const QByteArray text = "[Desktop Entry]\nType=Application\n" + lines;
    return LMDesktopEntryFromKeyFile(LMKeyFile::fromText(text), QLatin1String(identifier), {})
        .value_or(LMDesktopEntry());
}

const LMDesktopEntryTable& installed() {
    // clang-format off
    static const LMDesktopEntryTable table({
        entry("debian-xterm", "Name=XTerm\nExec=xterm\nStartupWMClass=XTerm"),
        entry("debian-uxterm", "Name=UXTerm\nExec=uxterm\nStartupWMClass=UXTerm"),
        entry("org.gnome.Terminal", "Name=Terminal\nExec=gnome-terminal"),
        entry("org.gnome.gedit", "Name=gedit\nExec=gedit %U"),
        entry("org.kde.kate", "Name=Kate\nExec=kate -b %U"),
        entry("google-chrome", "Name=Chrome\nExec=/usr/bin/google-chrome-stable %U"),
        entry("chrome-abc-Default", "Name=Mail\nExec=google-chrome-stable --app-id=abc\nStartupWMClass=crx_abc"),
        entry("org.flat.Suite", "Name=Suite\nExec=flatpak run org.flat.Suite\nX-Flatpak=org.flat.Suite"),
        entry("org.flat.Suite.draw", "Name=Draw\nExec=flatpak run --command=draw org.flat.Suite\nX-Flatpak=org.flat.Suite\nStartupWMClass=suite-draw"),
        entry("code_code", "Name=Code\nExec=/snap/bin/code %F\nX-SnapInstanceName=code"),
        entry("firefox_firefox", "Name=Firefox\nExec=/snap/bin/firefox\nX-SnapInstanceName=firefox"),
        entry("a.one.viewer", "Name=One\nExec=one"),
        entry("b.two.viewer", "Name=Two\nExec=two"),
        entry("tuner", "Name=Tuner\nExec=env FOO=1 python3 -O /usr/share/tuner/tuner.py"),
        entry("top", "Name=Top\nExec=top\nTerminal=true"),
        entry("removed", "Name=Removed\nExec=removed\nHidden=true"),
    });
    // clang-format on
    return table;
}

/// What a window says, each text as xprop would show it.
struct Said {
    const char* wmInstance = "";
    const char* wmClass = "";
    const char* executable = nullptr; ///< Null for a window whose process is unknown.
    const char* unit = "";            ///< Last part of the process's control group.
    const char* gtk = "";
    const char* kde = "";
    const char* flatpak = "";
    const char* script = nullptr; ///< Argument of the executable.
};

LMWindowIdentityFacts facts(const Said& said) {
    const auto text = [](const char* raw) { return QString::fromUtf8(raw); };
    LMWindowIdentityFacts facts{text(said.gtk), text(said.kde), text(said.wmInstance),
                                text(said.wmClass), std::nullopt};
    if (said.executable != nullptr) {
        LMProcessInformation& process = facts.process.emplace();
        process.processIdentifier = 1234;
        process.executable = text(said.executable);
        process.arguments = QStringList(process.executable);
        if (said.script != nullptr)
            process.arguments.append(text(said.script));
        process.controlGroup = u"/user.slice/user@1000.service/app.slice/"_qs + text(said.unit);
        process.flatpakIdentifier = text(said.flatpak);
    }
    return facts;
}

// One row per rung and per surprise met in the wild.
TEST(LMApplicationIdentityTests, ClimbsTheLadder) {
    using enum LMIdentitySource;
    const char* const inTerminal = "app-gnome-org.gnome.Terminal-99.scope";
    const char* const inCode = "snap.code.code-0a1b2c3d-0a1b-0a1b-0a1b-0a1b2c3d4e5f.scope";
    const char* const suite = "/app/bin/suite";
    // clang-format off
    const struct {
        const char* what;
        Said said;
        const char* identifier;
        LMIdentitySource source;
    } rows[] = {
        {"GTK property", {.wmClass = "XTerm", .gtk = "org.gnome.gedit"}, "org.gnome.gedit", GtkApplicationID},
        {"GTK property without an entry yields to a class that has one", {.wmClass = "XTerm", .gtk = "org.x.Unknown"}, "debian-xterm", StartupWMClass},
        {"KDE property with a path", {.wmClass = "k", .kde = "/usr/share/applications/org.kde.kate.desktop"}, "org.kde.kate", KdeDesktopFile},

        {"scope made for the process", {"", "Odd", "/opt/kate/bin/x", "app-org.kde.kate-1234.scope"}, "org.kde.kate", SystemdScope},
        {"service that runs the entry's program", {"", "Odd", "/usr/bin/kate", "app-org.kde.kate@9f.service"}, "org.kde.kate", SystemdScope},
        {"unknown program in a terminal's scope", {"foo", "Foo", "/usr/bin/foo", inTerminal}, "foo", WMClass},

        {"Flatpak", {.wmClass = "any", .executable = suite, .flatpak = "org.flat.Suite"}, "org.flat.Suite", Flatpak},
        {"one of several applications in a Flatpak", {.wmClass = "suite-draw", .executable = suite, .flatpak = "org.flat.Suite"}, "org.flat.Suite.draw", Flatpak},
        {"Snap by place of the executable", {"Navigator", "f", "/snap/firefox/77/usr/lib/firefox"}, "firefox_firefox", Snap},
        {"Snap by control group", {"", "x", "/usr/share/code/code", inCode}, "code_code", Snap},
        {"program started inside a Snap's group", {"", "Foo", "/usr/bin/foo", inCode}, "foo", WMClass},

        {"browser's application window by instance", {"crx_abc", "Google-chrome"}, "chrome-abc-Default", StartupWMClass},
        {"two entries with the same last part", {"viewer", "Viewer"}, "viewer", WMClass},
        {"entry the user deleted", {"removed", "Removed", "/usr/bin/removed"}, "removed", WMClass},

        {"script behind an interpreter", {.wmClass = "Win", .executable = "/usr/bin/python3.11", .script = "/usr/share/tuner/tuner.py"}, "tuner", Program},
        {"the entry that starts the program plainly", {"", "Strange", "/usr/bin/google-chrome-stable"}, "google-chrome", Program},
        {"forwarded from another computer", {"", "Foo", "/usr/bin/ssh", "app-org.kde.kate-1234.scope"}, "foo", WMClass},
        {"nothing at all", {}, "", None},

        {"path for a class", {"", "../../etc/passwd"}, "etc-passwd", WMClass},
        {"class of dots", {"", "..."}, "", None},
        {"no Latin letters", {"", "ФАЙЛ 文件"}, "файл-文件", WMClass},
    };
    // clang-format on
    for (const auto& row : rows) {
        const LMApplicationIdentity identity = LMIdentifyApplication(facts(row.said), installed());
        EXPECT_EQ(identity.bundleIdentifier, QString::fromUtf8(row.identifier)) << row.what;
        EXPECT_EQ(static_cast<int>(identity.source), static_cast<int>(row.source)) << row.what;
    }
}

TEST(LMApplicationIdentityTests, BoundsWhatAWindowSays) {
    const QByteArray huge(100000, 'a');
    const auto identity = LMIdentifyApplication(facts({.wmClass = huge.constData()}), installed());
    EXPECT_EQ(identity.bundleIdentifier.size(), 255);
    EXPECT_EQ(identity.localizedName.size(), 1000);
}

} // namespace
