#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Whatever the keyboard can reach has a name and a role that a screen reader can tell."""
from __future__ import annotations

import os
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
from rig.accessibility import ENVIRONMENT, shown_objects, start_registry  # noqa: E402
from rig.desktop import Desktop  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.processes import wait_until  # noqa: E402
from rig.resident import Resident  # noqa: E402
from rig.scenario import open_windows  # noqa: E402

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


class Accessibility(unittest.TestCase):
    def setUp(self) -> None:
        self.desktop = Desktop(os.environ.get("ROOK_TEST_MANAGER", "openbox"), "two")
        self.addCleanup(self.desktop.close)
        start_registry(self.desktop.session)
        self.rook = Resident(self.desktop.session, start=False, headless=False, settings={})
        self.rook.start(environment=ENVIRONMENT)
        shell, _ = open_windows(self.desktop, WINDOWS)
        self.rook.do("store-all")
        self.desktop.probe.activate(shell.identifier)

    def objects(self, window: str) -> list[dict]:
        return [found for found in shown_objects(self.desktop.session, "rook") if found["window"] == window]

    def test_every_window_tells_what_it_is(self) -> None:
        for command, keys, window, role, parts in LOOKS:
            with self.subTest(window=window, command=command, keys=keys):
                if command:
                    self.rook.do(command)
                for key in keys:
                    self.desktop.probe.tool("xdotool", "key", key)
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
