#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whatever the keyboard can reach has a name and a role that a screen reader can tell."""
import unittest

from desktop_test import DesktopTest
from rig.accessibility import shown_objects
from rig.probe import Frame
from rig.processes import wait_until
from rig.scenario import open_windows

WINDOWS = (("xterm", "first shell", Frame(60, 80, 520, 340)), ("featherpad", "notes.txt", Frame(700, 310, 555, 444)))
# How each window is opened, by a command or by keys in the one before; its name, its role, and parts of it.
LOOKS = (
    ("link-window", (), "Rook Window Picker", "frame", {"first shell": "push button"}),
    ("show", (), "Stored Windows", "frame", {"Displays": "image", "Rename": "push button"}),
    (None, ("Delete",), "Rook", "dialog", {"Delete display configuration": "label", "Cancel": "push button"}),
    (None, ("Escape",), "Stored Windows", "frame", {"Make Active": "push button"}),
    (None, ("Return",), "2 Displays", "frame",
     {"Applications": "table", "XTerm": "table cell", "No title pattern": "table cell", "Add Action": "push button",
      "Picture of the stored window": "image", "Shell script": "text"}),
    ("preferences", (), "Preferences", "frame", {"Start Rook at login": "check box", "Hot Keys": "page tab"}),
    (None, ("Right",), "Preferences", "frame", {"Display Menu: Record Shortcut": "check box"}),
    ("about", (), "About Rook", "dialog", {"Credits": "page tab", "Close": "push button"}),
)


class Accessibility(DesktopTest):
    settings, tells_screen_readers = {}, True

    def objects(self, window: str) -> list[dict]:
        return [found for found in shown_objects(self.session, "rook") if found["window"] == window]

    def test_every_window_tells_what_it_is(self) -> None:
        shell, _ = open_windows(self.desktop, WINDOWS)
        self.rook.do("store-all")
        self.probe.activate(shell.identifier)
        for command, keys, window, role, parts in LOOKS:
            with self.subTest(window=window, command=command, keys=keys):
                if command:
                    self.rook.do(command)
                self.probe.press(*keys)
                expected = {(window, role, True), *((name, part, False) for name, part in parts.items())}
                wait_until(lambda: expected <= {(found["name"], found["role"], "active" in found["states"])
                                                for found in self.objects(window)},
                           f"{expected} among {self.objects(window)}", 20.0)
                for found in self.objects(window):
                    if "focusable" in found["states"]:
                        self.assertTrue(found["name"].strip(), found)
                        self.assertNotIn(found["role"], ("unknown", "invalid"), found)


if __name__ == "__main__":
    unittest.main()
