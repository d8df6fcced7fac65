#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Keys and clicks as a user makes them: hot keys, the tray icon, the menu, the buttons of alerts."""
from __future__ import annotations

import os
import re
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.processes import wait_until  # noqa: E402
from rig.resident import Resident, hot_key  # noqa: E402
from rig.scenario import frames, open_windows, scatter  # noqa: E402

CONTROL_OPTION = 0x1000 | 0x800
SETTINGS = {"RestoreAllWindowsHotKey": hot_key(15, CONTROL_OPTION), "StoreAllWindowsHotKey": hot_key(0, CONTROL_OPTION),
            "StoreActiveWindowHotKey": hot_key(13, CONTROL_OPTION), "ShowMenuHotKey": hot_key(46, CONTROL_OPTION)}
WINDOWS = (("xterm", "shell", Frame(60, 80, 520, 340)), ("featherpad", "notes.txt", Frame(2100, 310, 555, 444)))


class RealInput(unittest.TestCase):
    def setUp(self) -> None:
        self.desktop = Desktop(os.environ.get("ROOK_TEST_MANAGER", "openbox"), "two", tray=True)
        self.addCleanup(self.desktop.close)
        self.probe = self.desktop.probe
        self.rook = Resident(self.desktop.session, headless=False, settings=SETTINGS)
        self.opened = open_windows(self.desktop, WINDOWS)
        self.rook.do("store-all")
        self.stored = frames(self.desktop, self.opened)

    def press(self, *keys: str) -> None:
        for key in keys:
            self.probe.tool("xdotool", "key", key)

    def windows(self, title: str) -> list[str]:
        return self.probe.tool("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()

    def wait_for_window(self, title: str) -> None:
        wait_until(lambda: self.windows(title), f"the window {title}", 10.0)

    def answer(self, *keys: str) -> None:
        """Answers the alert that is in front once it has the focus."""
        self.wait_for_window("Rook")
        alert = int(self.windows("Rook")[0])
        wait_until(lambda: self.probe.active_window() == alert, "the alert to have the focus", 10.0)
        self.press(*keys)
        wait_until(lambda: str(alert) not in self.windows("Rook"), "the alert to close", 10.0)

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
        found = wait_until(icon, "the icon in the tray", 10.0)
        size, x, y = (int(number) for number in found.groups())
        for button in ("1", "3"):
            self.probe.tool("xdotool", "mousemove", str(x + size // 2), str(y + size // 2), "click", button)
            self.wait_for_window("Rook Menu")
            self.press("Escape")
            wait_until(lambda: not self.windows("Rook Menu"), "the menu to close", 10.0)
        for keys, reached in ((["Up", "Up", "Return"], lambda: self.windows("About Rook")),
                              (["Up", "Return"], lambda: self.rook.run("status").returncode == 3)):
            self.press("ctrl+alt+m")
            self.wait_for_window("Rook Menu")
            self.press(*keys)
            wait_until(reached, f"what {keys} choose", 10.0)


if __name__ == "__main__":
    unittest.main()
