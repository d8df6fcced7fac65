#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The list of stored windows with real keys and clicks: rename, delete, make active, open in the editor."""
from __future__ import annotations

import os
import sqlite3
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.processes import wait_until  # noqa: E402
from rig.resident import Resident  # noqa: E402
from rig.scenario import frames, open_windows, scatter  # noqa: E402

WINDOWS = (("xterm", "shell", Frame(60, 80, 520, 340)), ("featherpad", "notes.txt", Frame(700, 310, 555, 444)))


class StoredWindowsList(unittest.TestCase):
    def setUp(self) -> None:
        self.desktop = Desktop(os.environ.get("ROOK_TEST_MANAGER", "openbox"), "two")
        self.addCleanup(self.desktop.close)
        self.probe = self.desktop.probe
        self.rook = Resident(self.desktop.session, headless=False, settings={})
        self.opened = open_windows(self.desktop, WINDOWS)
        self.stored = frames(self.desktop, self.opened)
        self.rook.do("store-all", "--overwrite")
        self.change("left")
        scatter(self.desktop, self.opened, 1)
        self.rook.do("store-all", "--overwrite")

    def change(self, layout: str) -> None:
        """Returns once the program has noticed, too."""
        self.desktop.server.set_layout(layout)
        wait_until(lambda: self.layout() == self.shown(), "the monitors", 20.0)
        self.rook.process.wait_until(lambda: self.rook.report("status")["currentWorkspace"] is None, "the change", 20.0)

    def layout(self) -> list[tuple[int, int]]:
        return sorted((int(display["bounds"]["x"]), int(display["bounds"]["y"]))
                      for display in self.rook.report("status")["displays"])

    def shown(self) -> list[tuple[int, int]]:
        x, y = self.probe.main_origin()
        return sorted((monitor.frame.x - x, monitor.frame.y - y) for monitor in self.probe.monitors())

    def windows(self, title: str) -> list[int]:
        return [int(word) for word in
                self.probe.tool("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()]

    def wait_for_focus(self, title: str) -> int:
        return wait_until(lambda: next((window for window in self.windows(title)
                                        if self.probe.active_window() == window), None), f"{title} in front", 15.0)

    def press(self, *keys: str) -> None:
        self.probe.tool("xdotool", "key", *keys)

    def names(self) -> list[str]:
        return [workspace["name"] for workspace in self.rook.report("list")["workspaces"]]

    def kept(self) -> list[str]:
        """What the store file says: it is saved at once."""
        with sqlite3.connect(f"file:{self.rook.store}?mode=ro", uri=True) as store:
            return [name or "" for name, in store.execute("SELECT name FROM Workspace ORDER BY 1")]

    def test_rename_and_delete(self) -> None:
        self.rook.do("show")
        self.wait_for_focus("Stored Windows")
        self.press("F2")
        self.probe.tool("xdotool", "type", "Desk & <b>")
        self.press("Return")
        wait_until(lambda: self.names() == ["2 Displays", "Desk & <b>"], "the new name")
        self.assertEqual(self.kept(), ["", "Desk & <b>"])
        for answer, left in (("Escape", 2), ("Return", 1)):
            self.press("Delete")
            self.wait_for_focus("Rook")
            self.assertNotEqual(self.rook.run("restore-all").returncode, 0, "a question is open")
            self.press(answer)
            self.wait_for_focus("Stored Windows")
            self.assertEqual(len(self.names()), left)
        self.assertEqual(self.kept(), [""])
        self.press("Escape")
        wait_until(lambda: not self.windows("Stored Windows"), "the list to close")

    def test_make_active_and_edit(self) -> None:
        self.rook.run()  # a second start opens the list
        window = self.wait_for_focus("Stored Windows")
        self.assertEqual(self.shown(), [(-1440, 90), (0, 0)])
        self.press("Down", "alt+a")
        wait_until(lambda: self.shown() == [(0, 0), (1920, 0)], "the displays to be rearranged", 20.0)
        wait_until(lambda: frames(self.desktop, self.opened) == self.stored, "the windows to follow", 30.0)
        self.probe.activate(window)
        self.probe.tool("xdotool", "mousemove", "--window", str(window), "70", "45", "click", "--repeat", "2", "1")
        wait_until(lambda: not self.windows("Stored Windows"), "the editor to take the list's place", 15.0)
        # Another window may have the focus between the two.
        editor = wait_until(lambda: next((shown for shown in self.probe.windows("rook")
                                          if shown.identifier == self.probe.active_window()), None), "the editor", 15.0)
        self.rook.do("show")
        self.wait_for_focus("Stored Windows")
        self.assertNotIn(editor.identifier, self.probe.client_list(), "the list takes the editor's place")


if __name__ == "__main__":
    unittest.main()
