#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Keys and clicks as a user makes them: hot keys, the tray icon, the menu, the buttons of alerts."""
import re
import unittest

from desktop_test import DesktopTest
from rig.probe import Frame
from rig.processes import wait_until
from rig.resident import hot_key
from rig.scenario import frames, open_windows, scatter

CONTROL_OPTION = 0x1000 | 0x800
WINDOWS = (("xterm", "shell", Frame(60, 80, 520, 340)), ("featherpad", "notes.txt", Frame(2100, 310, 555, 444)))


class RealInput(DesktopTest):
    has_tray = True
    settings = {"RestoreAllWindowsHotKey": hot_key(15, CONTROL_OPTION), "StoreAllWindowsHotKey": hot_key(0, CONTROL_OPTION),
                "StoreActiveWindowHotKey": hot_key(13, CONTROL_OPTION), "ShowMenuHotKey": hot_key(46, CONTROL_OPTION)}

    def setUp(self) -> None:
        super().setUp()
        self.press = self.probe.press
        self.opened = open_windows(self.desktop, WINDOWS)
        self.rook.do("store-all")
        self.stored = frames(self.desktop, self.opened)

    def wait_for_window(self, title: str) -> None:
        wait_until(lambda: self.probe.shown(title), f"the window {title}")

    def answer(self, *keys: str) -> None:
        """Answers the alert that is in front once it has the focus."""
        alert = self.probe.wait_for_focus("Rook")
        self.press(*keys)
        wait_until(lambda: alert not in self.probe.shown("Rook"), "the alert to close")

    def wait_for(self, expected: dict[str, Frame]) -> None:
        wait_until(lambda: frames(self.desktop, self.opened) == expected, "the windows to be back", 20.0, 0.2)

    def listed(self) -> str:
        return self.rook.run("list", "--json").stdout

    def test_hot_keys_and_the_answers_to_alerts(self) -> None:
        scatter(self.desktop, self.opened, 1)
        self.press("ctrl+alt+r")
        self.wait_for(self.stored)
        scatter(self.desktop, self.opened, 2)
        elsewhere, before = frames(self.desktop, self.opened), self.listed()
        working_in = self.probe.activate(self.opened[0].identifier).identifier
        self.press("ctrl+alt+w")
        for _ in ("replace", "success"):
            self.answer("Return")
        self.assertNotEqual(self.listed(), before, "the window the question was about was not stored")
        before = self.listed()
        self.press("ctrl+alt+a")
        self.answer("Escape")
        self.assertEqual(self.listed(), before, "a cancelled question stored something")
        self.press("ctrl+alt+a")
        self.answer("Tab", "Tab", "space", "Escape")  # the box is ticked, whichever button follows
        self.press("ctrl+alt+a")
        self.answer("Return")  # no question any more, only the message of success
        self.assertNotEqual(self.listed(), before)
        wait_until(lambda: self.probe.active_window() == working_in, "the user's window to have the focus again")
        scatter(self.desktop, self.opened, 3)
        self.rook.do("restore-all")
        self.wait_for(elsewhere)

    def test_the_tray_icon_and_the_menu(self) -> None:
        def icon() -> re.Match[str] | None:
            tree = self.probe.tool("xwininfo", "-root", "-tree")
            return re.search(r'"rook": \("rook" "rook"\)  (\d+)x\d+\+\d+\+\d+  \+(\d+)\+(\d+)', tree)
        found = wait_until(icon, "the icon in the tray")
        size, x, y = (int(number) for number in found.groups())
        for button in (1, 3):
            self.probe.click(x + size // 2, y + size // 2, button)
            self.wait_for_window("Rook Menu")
            self.press("Escape")
            wait_until(lambda: not self.probe.shown("Rook Menu"), "the menu to close")
        for keys, reached in ((["Up", "Up", "Return"], lambda: self.probe.shown("About Rook")),
                              (["Up", "Return"], lambda: self.rook.run("status").returncode == 3)):
            self.press("ctrl+alt+m")
            self.wait_for_window("Rook Menu")
            self.press(*keys)
            wait_until(reached, f"what {keys} choose")


if __name__ == "__main__":
    unittest.main()
