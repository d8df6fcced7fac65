# SPDX-License-Identifier: MIT
"""What the desktop tests begin with: a private desktop with a resident process on it."""
import os
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent.parent / "tools"))
from rig.accessibility import ENVIRONMENT, start_registry  # noqa: E402
from rig.desktop import Desktop  # noqa: E402
from rig.resident import Resident  # noqa: E402

MANAGER = os.environ.get("ROOK_TEST_MANAGER", "openbox")


class DesktopTest(unittest.TestCase):
    layout, has_tray = "two", False
    settings: dict | None = None  # user defaults of a process that shows windows; None: it shows none
    tells_screen_readers = False

    def setUp(self) -> None:
        self.desktop = Desktop(MANAGER, self.layout, self.has_tray)
        self.addCleanup(self.desktop.close)
        self.probe, self.session, self.server = self.desktop.probe, self.desktop.session, self.desktop.server
        if self.tells_screen_readers:
            start_registry(self.session)
        self.rook = Resident(self.session, start=False, headless=self.settings is None, settings=self.settings)
        self.rook.start(environment=ENVIRONMENT if self.tells_screen_readers else None)
