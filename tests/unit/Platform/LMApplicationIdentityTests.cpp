// SPDX-License-Identifier: MIT
#include "Platform/LMApplicationIdentity.h"

#include "Platform/LMKeyFile.h"
#include "unit/Utilities/Support.h"

namespace {

LMDesktopEntry entry(const QByteArray& identifier, const QByteArray& program,
                     const QByteArray& lines = {}) {
    const QByteArray text = "[Desktop Entry]\nType=Application\nName=" + identifier +
                            "\nExec=" + program + '\n' + lines;
    return LMDesktopEntryFromKeyFile(LMKeyFile::fromText(text), QLatin1String(identifier), {})
        .value_or(LMDesktopEntry());
}

const LMDesktopEntryTable& installed() {
    const QByteArray suite = "X-Flatpak=org.flat.Suite\n";
    static const LMDesktopEntryTable table({
        entry("debian-xterm", "xterm", "StartupWMClass=XTerm"),
        entry("debian-uxterm", "uxterm", "StartupWMClass=UXTerm"),
        entry("org.gnome.Terminal", "gnome-terminal"),
        entry("org.gnome.gedit", "gedit %U"),
        entry("org.kde.kate", "kate -b %U"),
        entry("google-chrome", "/usr/bin/google-chrome-stable %U"),
        entry("chrome-a-Default", "google-chrome-stable --app-id=a", "StartupWMClass=crx_a"),
        entry("org.flat.Suite", "flatpak run org.flat.Suite", suite),
        entry("org.flat.Draw", "flatpak run org.flat.Suite", suite + "StartupWMClass=suite-draw"),
        entry("code_code", "/snap/bin/code %F", "X-SnapInstanceName=code"),
        entry("firefox_firefox", "/snap/bin/firefox", "X-SnapInstanceName=firefox"),
        entry("a.one.viewer", "one"),
        entry("b.two.viewer", "two"),
        entry("tuner", "env FOO=1 python3 -O /usr/share/tuner/tuner.py"),
    });
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
    const char* script = ""; ///< Argument of the executable.
};

LMWindowIdentityFacts facts(const Said& said) {
    const auto text = [](const char* raw) { return QString::fromUtf8(raw); };
    LMWindowIdentityFacts facts{text(said.gtk), text(said.kde), text(said.wmInstance),
                                text(said.wmClass), std::nullopt};
    const QString executable = text(said.executable);
    const QString group = u"/user.slice/user@1000.service/app.slice/"_qs + text(said.unit);
    if (said.executable != nullptr)
        facts.process = {
            1234, 0, executable, {executable, text(said.script)}, group, text(said.flatpak)};
    return facts;
}

// One row per rung and per surprise met in the wild.
TEST(LMApplicationIdentityTests, ClimbsTheLadder) {
    using enum LMIdentitySource;
    const char* const inKate = "app-org.kde.kate-1234.scope";
    const char* const asService = "app-org.kde.kate@9f.service";
    const char* const inTerminal = "app-gnome-org.gnome.Terminal-99.scope";
    const char* const inCode = "snap.code.code-0a1b2c3d-0a1b-0a1b-0a1b-0a1b2c3d4e5f.scope";
    const char* const kate = "/usr/share/applications/org.kde.kate.desktop";
    const char* const suite = "/app/bin/suite";
    const char *const flat = "org.flat.Suite", *const draw = "org.flat.Draw";
    const char* const python = "/usr/bin/python3.11";
    const char* const tuner = "/usr/share/tuner/tuner.py";
    const char* const mozilla = "/snap/firefox/77/usr/lib/firefox";
    const std::tuple<const char*, Said, const char*, LMIdentitySource> rows[] = {
        {"GTK", {.wmClass = "XTerm", .gtk = "org.kde.kate"}, "org.kde.kate", GtkApplicationID},
        {"GTK, no entry", {.wmClass = "XTerm", .gtk = "x.Y"}, "debian-xterm", StartupWMClass},
        {"KDE, a path", {.wmClass = "k", .kde = kate}, "org.kde.kate", KdeDesktopFile},
        {"its own scope", {"", "Odd", "/opt/kate/bin/x", inKate}, "org.kde.kate", SystemdScope},
        {"its service", {"", "Odd", "/usr/bin/kate", asService}, "org.kde.kate", SystemdScope},
        {"in a terminal", {"foo", "Foo", "/usr/bin/foo", inTerminal}, "foo", WMClass},
        {"Flatpak", {.wmClass = "any", .executable = suite, .flatpak = flat}, flat, Flatpak},
        {"one of its applications", {"", "suite-draw", suite, "", "", "", flat}, draw, Flatpak},
        {"Snap by place", {"Navigator", "f", mozilla}, "firefox_firefox", Snap},
        {"Snap by group", {"", "x", "/usr/share/code/code", inCode}, "code_code", Snap},
        {"in a Snap's group", {"", "Foo", "/usr/bin/foo", inCode}, "foo", WMClass},
        {"web application", {"crx_a", "Google-chrome"}, "chrome-a-Default", StartupWMClass},
        {"two entries with the same last part", {"viewer", "Viewer"}, "viewer", WMClass},
        {"script", {.wmClass = "Win", .executable = python, .script = tuner}, "tuner", Program},
        {"plain start", {"", "Z", "/usr/bin/google-chrome-stable"}, "google-chrome", Program},
        {"from another computer", {"", "Foo", "/usr/bin/ssh", inKate}, "foo", WMClass},
        {"nothing at all", {}, "", None},
        {"path for a class", {"", "../../etc/passwd"}, "etc-passwd", WMClass},
        {"class of dots", {"", "..."}, "", None},
        {"no Latin letters", {"", "ФАЙЛ 文件"}, "файл-文件", WMClass},
    };
    for (const auto& [what, said, identifier, source] : rows) {
        const LMApplicationIdentity identity = LMIdentifyApplication(facts(said), installed());
        EXPECT_EQ(identity.bundleIdentifier, QString::fromUtf8(identifier)) << what;
        EXPECT_TRUE(identity.source == source) << what;
    }
}

TEST(LMApplicationIdentityTests, BoundsWhatAWindowSays) {
    const QByteArray huge(100000, 'a');
    const auto identity = LMIdentifyApplication(facts({.wmClass = huge.constData()}), installed());
    EXPECT_EQ(identity.bundleIdentifier.size(), 255);
    EXPECT_EQ(identity.localizedName.size(), 1000);
}

} // namespace
