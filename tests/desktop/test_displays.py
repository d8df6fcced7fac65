#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Monitors left of the main one, upright, three, unplugged, or lying about themselves."""
from __future__ import annotations

import os
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.resident import Resident  # noqa: E402
from rig.scenario import Opened, frames, open_windows, scatter  # noqa: E402

DOCUMENTS = (("xterm", "shell"), ("featherpad", "readme.txt"), ("mousepad", "letter.txt"), ("xterm", "log"))


def as_frame(report: dict[str, float]) -> Frame:
    return Frame(*(int(report[key]) for key in ("x", "y", "width", "height")))


class Displays(unittest.TestCase):
    def from_main(self, frame: Frame) -> Frame:
        x, y = self.probe.main_origin()
        return frame._replace(x=frame.x - x, y=frame.y - y)

    def open_on_all_monitors(self) -> list[Opened]:
        """A window in the middle of each monitor, and one across the edge of the main one."""
        monitors = [self.from_main(monitor.frame) for monitor in self.probe.monitors()]
        spots = [Frame(x + 70 + 11 * x % 50, y + 90, width // 2 + 13, height // 2 - 17)
                 for x, y, width, height in monitors]
        spots.append(Frame(monitors[-1].x + (monitors[-1].width - 250) * (monitors[-1].x < 0) - 150, 200, 500, 400))
        return open_windows(self.desktop, [(*document, spot) for document, spot in zip(DOCUMENTS, spots)])

    def check_reports(self, opened: list[Opened]) -> None:
        displays = self.rook.report("status")["displays"]
        self.assertEqual({(display["connector"], as_frame(display["bounds"]), display["main"]) for display in displays},
                         {(monitor.output, self.from_main(monitor.frame), monitor.primary)
                          for monitor in self.probe.monitors()})
        seen = {window["title"]: as_frame(window["frame"])
                for application in self.rook.report("windows")["applications"] for window in application["windows"]}
        readings = [self.probe.settled(window.identifier) for window in opened]
        self.assertEqual(seen, {reading.title: self.from_main(reading.frame) for reading in readings})

    def test_layouts(self) -> None:
        for layout in ("portrait", "three", "left"):
            with self.subTest(layout), Desktop(os.environ.get("ROOK_TEST_MANAGER", "openbox"), layout) as self.desktop:
                self.probe, self.rook = self.desktop.probe, Resident(self.desktop.session)
                opened = self.open_on_all_monitors()
                self.rook.do("store-all")
                stored = frames(self.desktop, opened)
                self.check_reports(opened)
                scatter(self.desktop, opened, 1)
                self.check_reports(opened)
                self.rook.do("restore-all")
                self.assertEqual(frames(self.desktop, opened), stored)
                products = [display["product"] for display in self.rook.report("status")["displays"][:2]]
                self.assertEqual(products, ["Rig Monitor 0", "Rig Monitor 1"])
                if layout == "left":
                    for blob in (b"", b"\0" * 7, os.urandom(128), os.urandom(1024)):
                        self.desktop.server.set_edid("DUMMY1", blob)
                        self.rook.quit()
                        self.rook.start()
                        self.check_reports(opened)
                        self.rook.do("store-all", "--overwrite")


if __name__ == "__main__":
    unittest.main()
