#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Proves the rig itself under every window manager, and that it leaves nothing behind."""
from __future__ import annotations

import os
import signal
import subprocess
import sys
import unittest
from pathlib import Path

TOOLS = Path(__file__).resolve().parent.parent.parent / "tools"
sys.path.insert(0, str(TOOLS))
from rig.desktop import Desktop  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.processes import marked_processes, wait_until  # noqa: E402
from rig.server import LAYOUTS  # noqa: E402
from rig.window_managers import NAMES  # noqa: E402

COMPOSITED = ("xfwm4", "mutter")  # GTK draws shadows of its own only where they can be blended


class WindowManagers(unittest.TestCase):
    def test_real_windows_are_read_and_scattered(self) -> None:
        for manager in NAMES:
            with self.subTest(manager), Desktop(manager, "left") as desktop:
                probe = desktop.probe
                self.assertEqual({(monitor.output, monitor.frame.x) for monitor in probe.monitors()},
                                 {(monitor.output, monitor.x) for monitor in LAYOUTS["left"]})
                self.assertEqual(probe.main_origin(), (1440, 0))
                for kind in ("xterm", "featherpad", "gedit", "mousepad", "pcmanfm"):
                    window = desktop.applications.open(kind, f"{kind} document")
                    decorated = any(window.frame_extents)
                    self.assertEqual(decorated, kind != "gedit", kind)
                    self.assertEqual(any(window.shadow_extents), kind == "gedit" and manager in COMPOSITED)
                    got = probe.place(window.identifier, Frame(60, 140, 720, 560))
                    self.assertEqual(got[:2], (60, 140), kind)
                    if kind != "xterm":
                        self.assertEqual(got[2:], (720, 560), kind)
                    self.check_states(desktop, window.identifier)

    def check_states(self, desktop: Desktop, window: int) -> None:
        probe = desktop.probe
        self.assertTrue(probe.maximise(window).maximised)
        self.assertFalse(probe.maximise(window, False).maximised)
        self.assertTrue(probe.minimise(window).minimised)
        self.assertFalse(probe.activate(window).minimised)
        self.assertFalse(probe.send_to_desktop(window, 2).minimised)
        probe.send_to_desktop(window, 0)

    def test_a_killed_manager_comes_back(self) -> None:
        for manager in NAMES:
            with self.subTest(manager), Desktop(manager) as desktop:
                assert desktop.window_manager
                monitors = desktop.probe.monitors()
                window = desktop.applications.open("xterm", "survivor").identifier
                desktop.window_manager.stop(grace=0)
                self.assertIsNotNone(desktop.probe.window(window))
                desktop.window_manager.restart()
                self.assertTrue(any(desktop.probe.settled(window).frame_extents))
                self.assertEqual(desktop.probe.monitors(), monitors)


class SyntheticClient(unittest.TestCase):
    def test_hints_titles_and_freezing(self) -> None:
        with Desktop("openbox", "single") as desktop:
            spawner = desktop.spawner()
            title = 'two\nlines "quoted" é\n  Width: 5'
            window, = spawner.create(title=title, geometry="400x300+50+60", increment="7,13", base="20,30", gravity=10)
            reading = desktop.probe.window(window)
            assert reading
            self.assertEqual((reading.title, reading.client.x, reading.client.y), (title, 50, 60))
            spawner.retitle(window, b"\xff\xfe" + b"x" * 100_000)
            self.assertEqual(len(spawner.create(title="many", count=50)), 50)
            spawner.process.signal(signal.SIGSTOP)
            desktop.probe.place(window, Frame(300, 200, 390, 290))
            stubborn, = desktop.spawner().create(title="stubborn", geometry="333x222+10+10", stubborn=1)
            self.assertEqual(desktop.probe.place(stubborn, Frame(300, 300, 500, 400))[2:], (335, 247))


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
