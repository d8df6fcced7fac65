#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The preferences with real keys: the icon that comes back, a hot key that is recorded."""
import unittest

from desktop_test import DesktopTest
from rig.displays import keyboard_is_free
from rig.probe import Frame
from rig.processes import wait_until
from rig.resident import hot_key
from rig.scenario import frames, open_windows, scatter

WINDOWS = (("xterm", "shell", Frame(60, 80, 520, 340)), ("featherpad", "notes.txt", Frame(700, 310, 555, 444)))


class Preferences(DesktopTest):
    layout, has_tray = "single", True
    settings = {"ShowMenuHotKey": hot_key(46, 0x1000 | 0x800)}

    def setUp(self) -> None:
        super().setUp()
        self.press = self.probe.press

    def open(self, command: str = "preferences", title: str = "Preferences") -> None:
        self.rook.do(command)
        self.probe.wait_for_focus(title)

    def has_icon(self) -> bool:
        return '"rook": ("rook" "rook")' in self.probe.tool("xwininfo", "-root", "-tree")

    def hot_keys(self) -> dict[str, str]:
        return {key["key"]: key.get("shortcut") for key in self.rook.report("status")["hotKeys"]}

    def record(self, *keys: str) -> None:
        self.press("Return")
        wait_until(lambda: not keyboard_is_free(self.server.display), "the recorder to listen")
        self.press(*keys)
        wait_until(lambda: keyboard_is_free(self.server.display), "the recorder to be done")

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
        wait_until(lambda: self.probe.shown("Rook Menu"), "the menu", 10.0)
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
        self.assertFalse(self.probe.shown("Rook Menu"))
        self.record("Escape")
        self.record("ctrl+shift+eacute")
        wait_until(lambda: self.hot_keys()["RestoreAllWindowsHotKey"] == "Ctrl+Shift+É", "the hot key", 10.0)
        self.press("Escape")
        wait_until(lambda: not self.probe.shown("Preferences"), "the preferences to close")
        self.press("ctrl+shift+eacute")
        wait_until(lambda: frames(self.desktop, opened) == stored, "the windows to be back", 20.0, 0.2)


if __name__ == "__main__":
    unittest.main()
