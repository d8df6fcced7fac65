#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Store, scatter, restore: every window is back to the pixel, measured with xwininfo and xprop."""
import unittest

from desktop_test import MANAGER
from rig.desktop import Desktop
from rig.probe import Frame
from rig.resident import Resident
from rig.scenario import frames, open_windows, scatter

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

    def test_2_a_maximised_window_leaves_that_state_for_its_frame_and_fills_its_monitor_again(self) -> None:
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

    def test_3_swapped_stacking_order_swaps_no_documents(self) -> None:
        stored = self.store()
        pairs = [("first shell", "second shell"), ("letter.txt", "notes.txt"), ("program.c", "readme.txt")]
        for order in (1, -1):
            for document in (document for pair in pairs for document in pair[::order]):
                self.probe.activate(self.by_document[document])
            scatter(self.desktop, self.windows, order)
            self.restore_and_compare(stored)


if __name__ == "__main__":
    unittest.main()
