#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Store, scatter, restore: every window is back to the pixel, measured with xwininfo and xprop."""
from __future__ import annotations

import os
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.resident import Resident  # noqa: E402
from rig.scenario import frames, open_windows, readings, scatter  # noqa: E402

MANAGER = os.environ.get("ROOK_TEST_MANAGER", "openbox")
ROUNDS = 5


class RoundTrip(unittest.TestCase):
    desktop: Desktop

    @classmethod
    def setUpClass(cls) -> None:
        cls.desktop = Desktop(MANAGER, "two")
        cls.addClassCleanup(cls.desktop.close)
        cls.rook = Resident(cls.desktop.session)
        cls.windows = open_windows(cls.desktop)
        cls.by_document = {window.document: window.identifier for window in cls.windows}

    def setUp(self) -> None:
        self.probe = self.desktop.probe

    def store(self) -> dict[str, Frame]:
        stored = frames(self.desktop, self.windows)
        self.rook.do("store-all", "--overwrite")
        self.assertEqual(frames(self.desktop, self.windows), stored, "storing moved a window")
        return stored

    def restore_and_compare(self, stored: dict[str, Frame]) -> None:
        self.rook.do("restore-all")
        self.assertEqual(frames(self.desktop, self.windows), stored)

    def test_1_every_window_comes_back_and_nothing_drifts(self) -> None:
        stored = self.store()
        for seed in range(2):
            scatter(self.desktop, self.windows, seed)
            self.restore_and_compare(stored)
        for _ in range(ROUNDS):
            self.rook.do("store-all", "--overwrite")
            self.rook.do("restore-all")
        self.assertEqual(frames(self.desktop, self.windows), stored)

    def test_2_windows_out_of_sight_get_their_frames_and_stay_there(self) -> None:
        stored = frames(self.desktop, self.windows)
        asleep, away = self.by_document["letter.txt"], self.by_document["program.c"]
        self.put_out_of_sight(asleep, away)
        self.rook.do("store-all", "--overwrite")
        self.bring_back(asleep, away)
        for window in (asleep, away):
            self.probe.place(window, Frame(300, 300, 500, 400))
        self.put_out_of_sight(asleep, away)
        for command in (("restore-all",), ("store-all", "--overwrite")):
            self.rook.do(*command)
            after = readings(self.desktop, self.windows)
            self.assertTrue(after[asleep].minimised, "a minimised window popped up")
            self.assertEqual(after[away].desktop, 2)
            self.assertEqual(self.probe.current_desktop(), 0, "the desktop was changed")
            self.assertEqual(self.probe.active_window(), self.by_document["first shell"])
        self.bring_back(asleep, away)
        self.assertEqual(frames(self.desktop, self.windows), stored)
        stored = self.store()
        scatter(self.desktop, self.windows, 4)
        self.restore_and_compare(stored)

    def put_out_of_sight(self, asleep: int, away: int) -> None:
        self.probe.minimise(asleep)
        self.probe.send_to_desktop(away, 2)
        self.probe.activate(self.by_document["first shell"])

    def bring_back(self, asleep: int, away: int) -> None:
        self.probe.send_to_desktop(away, 0)
        self.probe.activate(asleep)

    def test_3_a_maximised_window_leaves_that_state_for_its_frame_and_fills_its_monitor_again(self) -> None:
        stored = self.store()
        for document in ("second shell", "readme.txt", "todo.txt"):
            self.probe.maximise(self.by_document[document])
        self.restore_and_compare(stored)
        window = self.by_document["readme.txt"]
        self.probe.maximise(window)
        stored = self.store()
        self.probe.maximise(window, False)
        scatter(self.desktop, [opened for opened in self.windows if opened.identifier == window], 6)
        self.restore_and_compare(stored)
        self.probe.maximise(window, False)

    def test_4_swapped_stacking_order_swaps_no_documents(self) -> None:
        stored = self.store()
        pairs = [("first shell", "second shell"), ("letter.txt", "notes.txt"), ("program.c", "readme.txt")]
        for order in (1, -1):
            for document in (document for pair in pairs for document in pair[::order]):
                self.probe.activate(self.by_document[document])
            scatter(self.desktop, self.windows, order)
            self.restore_and_compare(stored)


if __name__ == "__main__":
    unittest.main()
