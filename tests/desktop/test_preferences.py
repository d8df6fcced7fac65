#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The preferences with real keys: the login item, the icon that comes back, a hot key that is recorded."""
from __future__ import annotations

import os
import subprocess
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.displays import keyboard_is_free  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.processes import wait_until  # noqa: E402
from rig.resident import Resident, hot_key  # noqa: E402
from rig.scenario import frames, open_windows, scatter  # noqa: E402

SETTINGS = {"ShowMenuHotKey": hot_key(46, 0x1000 | 0x800)}
WINDOWS = (("xterm", "shell", Frame(60, 80, 520, 340)), ("featherpad", "notes.txt", Frame(700, 310, 555, 444)))


class Preferences(unittest.TestCase):
    def setUp(self) -> None:
        self.desktop = Desktop(os.environ.get("ROOK_TEST_MANAGER", "openbox"), "single", tray=True)
        self.addCleanup(self.desktop.close)
        self.probe, self.session = self.desktop.probe, self.desktop.session
        self.rook = Resident(self.session, headless=False, settings=SETTINGS)
        self.entries = self.session.config / "autostart"

    def open(self, command: str = "preferences", title: str = "Preferences") -> int:
        self.rook.do(command)
        return wait_until(lambda: next((int(window) for window in self.search(title)
                                        if self.probe.active_window() == int(window)), None), f"{title} in front", 15.0)

    def search(self, title: str) -> list[str]:
        return self.probe.tool("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()

    def press(self, *keys: str) -> None:
        for key in keys:
            self.probe.tool("xdotool", "key", key)

    def picture(self, window: int) -> bytes:
        return subprocess.run(["import", "-silent", "-window", str(window), "rgb:-"], env=self.session.environment,
                              capture_output=True, check=True).stdout

    def has_icon(self) -> bool:
        return '"rook": ("rook" "rook")' in self.probe.tool("xwininfo", "-root", "-tree")

    def hot_keys(self) -> dict[str, str]:
        return {key["key"]: key.get("shortcut") for key in self.rook.report("status")["hotKeys"]}

    def record(self, *keys: str) -> None:
        self.press("Return")
        wait_until(lambda: not keyboard_is_free(self.desktop.server.display), "the recorder to listen")
        self.press(*keys)
        wait_until(lambda: keyboard_is_free(self.desktop.server.display), "the recorder to be done")

    def test_start_at_login_follows_the_login_items(self) -> None:
        window = self.open()
        entry = self.entries / "org.rook.Rook.desktop"
        self.press("alt+l")
        wait_until(entry.exists, "the login item")
        self.assertIn(f'Exec="{self.rook.binary}"\n', entry.read_text())
        self.press("alt+l")
        wait_until(lambda: not entry.exists(), "the login item to go")
        off = self.picture(window)
        self.entries.joinpath("mine.desktop").write_text(f"[Desktop Entry]\nType=Application\nExec={self.rook.binary}\n")
        wait_until(lambda: self.picture(window) != off, "the box to be ticked by another program")
        entry.write_text("[Desktop Entry]\nHidden=true\n")
        self.entries.joinpath("mine.desktop").unlink()
        wait_until(lambda: self.picture(window) == off, "the box to be unticked by another program")
        self.press("alt+l")
        wait_until(lambda: "Hidden" not in entry.read_text(), "the login item to be back")

    def test_the_window_that_is_asked_for_comes_to_the_front(self) -> None:
        opened = open_windows(self.desktop, WINDOWS[:1])
        for command, title in (("preferences", "Preferences"), ("show", "Stored Windows"), ("preferences", "Preferences")):
            self.open(command, title)
        self.probe.activate(opened[0].identifier)
        self.open("show", "Stored Windows")
        self.probe.switch_desktop(2)
        self.open("show", "Stored Windows")
        self.assertEqual(self.probe.current_desktop(), 2)

    def test_the_menu_stays_reachable(self) -> None:
        wait_until(self.has_icon, "the icon", 10.0)
        self.open()
        self.press("alt+h")
        wait_until(lambda: not self.has_icon(), "the icon to go")
        self.press("ctrl+alt+m")
        wait_until(lambda: self.search("Rook Menu"), "the menu", 10.0)
        self.press("Escape")
        self.open()
        self.press("ctrl+Tab", "alt+m", "Delete")
        wait_until(self.has_icon, "the icon to be back")
        self.assertNotIn("DisableStatusBarItem", (self.session.config / "Rook/settings.ini").read_text())

    def test_a_recorded_hot_key_works_at_once(self) -> None:
        opened = open_windows(self.desktop, WINDOWS)
        self.rook.do("store-all", "--overwrite")
        stored = frames(self.desktop, opened)
        scatter(self.desktop, opened, 1)
        self.open()
        self.press("ctrl+Tab", "alt+r")
        # Digits need Shift on this keyboard, and a key alone will not do. The menu's hot key is
        # free to be recorded: no menu opens.
        self.session.run("setxkbmap", "fr")
        self.record("a", "ctrl+alt+m")
        wait_until(lambda: self.hot_keys()["RestoreAllWindowsHotKey"] == "Ctrl+Alt+M", "the conflict to be stored")
        self.assertFalse(self.search("Rook Menu"))
        self.record("Escape")
        self.record("ctrl+shift+eacute")
        wait_until(lambda: self.hot_keys()["RestoreAllWindowsHotKey"] == "Ctrl+Shift+É", "the hot key", 10.0)
        self.press("Escape")
        wait_until(lambda: not self.search("Preferences"), "the preferences to close")
        self.press("ctrl+shift+eacute")
        wait_until(lambda: frames(self.desktop, opened) == stored, "the windows to be back", 20.0, 0.2)


if __name__ == "__main__":
    unittest.main()
