#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The list of stored windows with real keys and clicks: rename, delete, make active, open in the editor."""
import sqlite3
import unittest

from desktop_test import DesktopTest
from rig.probe import Frame
from rig.processes import wait_until
from rig.scenario import frames, open_windows, scatter

WINDOWS = (("xterm", "shell", Frame(60, 80, 520, 340)), ("featherpad", "notes.txt", Frame(700, 310, 555, 444)))


class StoredWindowsList(DesktopTest):
    settings = {}

    def setUp(self) -> None:
        super().setUp()
        self.press = self.probe.press
        self.opened = open_windows(self.desktop, WINDOWS)
        self.stored = frames(self.desktop, self.opened)
        self.rook.do("store-all", "--overwrite")
        self.server.set_layout("left")
        self.rook.process.wait_until(lambda: self.rook.report("status")["currentWorkspace"] is None, "the change", 20.0)
        scatter(self.desktop, self.opened, 1)
        self.rook.do("store-all", "--overwrite")

    def monitors(self) -> list[tuple[int, int]]:
        x, y = self.probe.main_origin()
        return sorted((monitor.frame.x - x, monitor.frame.y - y) for monitor in self.probe.monitors())

    def names(self) -> list[str]:
        return [workspace["name"] for workspace in self.rook.report("list")["workspaces"]]

    def kept(self) -> list[str]:
        """What the store file says: it is saved at once."""
        with sqlite3.connect(f"file:{self.rook.store}?mode=ro", uri=True) as store:
            return [name or "" for name, in store.execute("SELECT name FROM Workspace ORDER BY 1")]

    def test_rename_and_delete(self) -> None:
        self.rook.do("show")
        self.probe.wait_for_focus("Stored Windows")
        self.press("F2")
        self.probe.type("Desk & <b>")
        self.press("Return")
        wait_until(lambda: self.names() == ["2 Displays", "Desk & <b>"], "the new name")
        self.assertEqual(self.kept(), ["", "Desk & <b>"])
        for answer, left in (("Escape", 2), ("Return", 1)):
            self.press("Delete")
            self.probe.wait_for_focus("Rook")
            self.assertNotEqual(self.rook.run("restore-all").returncode, 0, "a question is open")
            self.press(answer)
            self.probe.wait_for_focus("Stored Windows")
            self.assertEqual(len(self.names()), left)
        self.assertEqual(self.kept(), [""])
        self.press("Escape")
        wait_until(lambda: not self.probe.shown("Stored Windows"), "the list to close")

    def test_make_active_and_edit(self) -> None:
        self.rook.run()  # a second start opens the list
        window = self.probe.wait_for_focus("Stored Windows")
        self.assertEqual(self.monitors(), [(-1440, 90), (0, 0)])
        self.press("Down", "alt+a")
        wait_until(lambda: self.monitors() == [(0, 0), (1920, 0)], "the displays to be rearranged", 20.0)
        wait_until(lambda: frames(self.desktop, self.opened) == self.stored, "the windows to follow", 30.0)
        self.probe.activate(window)
        self.probe.tool("xdotool", "mousemove", "--window", str(window), "70", "45", "click", "--repeat", "2", "1")
        wait_until(lambda: not self.probe.shown("Stored Windows"), "the editor to take the list's place", 15.0)
        # Another window may have the focus between the two.
        editor = wait_until(lambda: next((shown for shown in self.probe.windows("rook")
                                          if shown.identifier == self.probe.active_window()), None), "the editor", 15.0)
        self.rook.do("show")
        self.probe.wait_for_focus("Stored Windows")
        self.assertNotIn(editor.identifier, self.probe.client_list(), "the list takes the editor's place")


if __name__ == "__main__":
    unittest.main()
