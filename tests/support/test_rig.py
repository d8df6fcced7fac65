#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The rig leaves nothing behind and says how its command ended; the desktop tests prove the rest."""
from __future__ import annotations

import os
import signal
import subprocess
import sys
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parent.parent.parent / "tools"
sys.path.insert(0, str(TOOLS))
from rig.processes import marked_processes, wait_until  # noqa: E402


class NothingIsLeftBehind(unittest.TestCase):
    def test_after_kill_of_the_rig(self) -> None:
        command = [sys.executable, str(TOOLS / "with-desktop"), "--wm", "xfwm4", "--",
                   "sh", "-c", 'setsid xterm & echo "$ROOK_RIG"; exec sleep 1000']
        for number in (signal.SIGKILL, signal.SIGTERM):
            with self.subTest(number), subprocess.Popen(command, stdout=subprocess.PIPE, text=True) as rig:
                assert rig.stdout
                directory = Path(rig.stdout.readline().strip())
                self.assertGreaterEqual(len(marked_processes(directory)), 4)
                os.kill(rig.pid, number)
                wait_until(lambda: not marked_processes(directory) and not directory.exists(), "everything to end")

    def test_exit_statuses(self) -> None:
        for command, status in ((["true"], 0), (["sh", "-c", "exit 3"], 3), (["no-such-program"], 127)):
            rig = subprocess.run([sys.executable, str(TOOLS / "with-desktop"), "--wm", "none", "--", *command],
                                 stderr=subprocess.DEVNULL)
            self.assertEqual(rig.returncode, status)


if __name__ == "__main__":
    unittest.main()
