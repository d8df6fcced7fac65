#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""What other programs, broken files and missing services can do to Rook: nothing worse than a clear message."""
import itertools
import os
import signal
import subprocess
import time
import unittest

from desktop_test import DesktopTest
from rig.desktop import Desktop
from rig.probe import Frame
from rig.processes import WorkDirectory
from rig.resident import Resident
from rig.scenario import frames, open_windows, scatter
from rig.session import Session

HOSTILE_TITLES = ("two\nlines\r\x07", "x" * 100_000, b"\xff\xfe\xc3broken", "\u202eoverride \u0301combining \U0001f600",
                  "%@ %lu %s %n", "<b>&amp;</b>", "'; DROP TABLE StoredWindow; --", "")


class OtherPrograms(DesktopTest):
    def setUp(self) -> None:
        super().setUp()
        self.spawner, self.manager = self.desktop.spawner(), self.desktop.window_manager

    def open_and_store(self) -> None:
        self.opened = open_windows(self.desktop, [("xterm", "shell", Frame(100, 40, 500, 300))])
        self.rook.do("store-all")
        self.stored = frames(self.desktop, self.opened)
        scatter(self.desktop, self.opened, 5)

    def restore_within(self, seconds: float) -> None:
        before = time.monotonic()
        self.rook.do("restore-all")
        self.assertLess(time.monotonic() - before, seconds)
        self.assertEqual(frames(self.desktop, self.opened), self.stored)

    def test_hostile_titles_keep_windows_apart(self) -> None:
        spots = {}
        for index, title in enumerate(HOSTILE_TITLES):
            window, = self.spawner.create(title=title, geometry=f"{300 + 10 * index}x200+{50 + 40 * index}+{60 + 50 * index}")
            spots[window] = self.probe.settled(window).frame
        self.rook.do("store-all", "--overwrite")
        for index, window in enumerate(spots):
            self.probe.place(window, Frame(700 - 30 * index, 400 - 20 * index, 350, 350))
        self.rook.do("restore-all")
        self.assertEqual({window: self.probe.settled(window).frame for window in spots}, spots)
        for table in ("list", "windows", "plan"):
            output = self.rook.run(table).stdout
            self.assertFalse(set(output) & set("\x07\x1b\r\u202e"), table)
            self.assertLess(max(map(len, output.splitlines())), 400)
        self.assertEqual(self.rook.run("plan", "nope").stdout, "", "an error needs no empty table")

    def test_frozen_and_stubborn_clients_cost_little_and_harm_nobody(self) -> None:
        cold, = self.spawner.create(title="cold", geometry="400x300+600+100")
        self.desktop.spawner().create(title="stubborn", stubborn=1)
        self.open_and_store()
        self.probe.place(cold, Frame(900, 400, 450, 350))
        self.spawner.process.signal(signal.SIGSTOP)
        self.restore_within(8.0)

    def test_windows_may_vanish_at_any_time(self) -> None:
        windows = self.spawner.create(title="mayfly", count=40)
        self.rook.do("store-all")
        restoring = self.session.start("restore", [self.rook.binary, "restore-all"])
        for window in windows:
            self.spawner.destroy(window)
        self.assertEqual(restoring.popen.wait(60), 0)
        self.assertEqual(self.rook.run("status").returncode, 0)

    def test_the_window_manager_dies_and_comes_back(self) -> None:
        self.open_and_store()
        self.manager.stop(grace=0)
        for command in ("restore-all", "store-all"):
            refused = self.rook.run(command)
            self.assertEqual(refused.returncode, 1)
            self.assertRegex(refused.stderr, "^.*window manager.*\n$")
        self.assertFalse(self.rook.report("status")["permission"]["trusted"])
        self.manager.restart()
        scatter(self.desktop, self.opened, 2)
        self.restore_within(60.0)

    def test_a_frozen_window_manager_costs_little_and_nothing_is_lost(self) -> None:
        windows = self.spawner.create(title="ice", count=30, geometry="300x200+100+100")
        stored = [window.frame for window in self.probe.all_settled(windows)]
        self.rook.do("store-all")
        for window in windows:
            self.probe.tool("wmctrl", "-i", "-r", hex(window), "-e", "1,500,400,350,250")
        self.probe.all_settled(windows)
        self.manager.process.signal(signal.SIGSTOP)
        before = time.monotonic()
        self.rook.do("restore-all")
        self.assertLess(time.monotonic() - before, 10.0)
        self.manager.process.signal(signal.SIGCONT)
        self.rook.do("restore-all")
        self.assertEqual([window.frame for window in self.probe.all_settled(windows)], stored)

    def test_the_x_server_dies(self) -> None:
        process = self.rook.process
        self.server.stop()
        process.popen.wait(20)
        self.assertIn("rook:", process.log_tail(30))
        self.assertEqual(self.rook.run("status").returncode, 3)

    def test_the_session_bus_dies(self) -> None:
        process = self.rook.process
        process.signal(signal.SIGSTOP)
        asking = subprocess.Popen([self.rook.binary, "status"], env=self.desktop.environment, stderr=subprocess.PIPE)
        self.assertRegex(asking.stderr.readline(), rb"busy.*\S\n$", "no space behind it")
        self.session.bus.stop()
        asking.communicate(timeout=20)
        self.assertEqual(asking.returncode, 1)
        process.signal(signal.SIGCONT)
        self.assertEqual(process.popen.wait(20), 1)
        self.assertIn("The session bus is gone.", process.log_tail(30))


class Processes(unittest.TestCase):
    def test_without_display_or_bus(self) -> None:
        with WorkDirectory() as work:
            session = Session(work)
            rook = Resident(session, start=False)
            self.assertEqual(rook.run("restore-all").returncode, 3)
            started = rook.run("--headless")
            self.assertEqual((started.returncode, started.stdout), (1, ""))
            self.assertIn("DISPLAY", started.stderr)
            session.environment |= {"WAYLAND_DISPLAY": "wayland-0", "DISPLAY": ":4711"}
            self.assertIn("Wayland", rook.run("--headless").stderr)
            del session.environment["WAYLAND_DISPLAY"]
            self.assertEqual(rook.run("--headless").returncode, 1)
            session.environment["DBUS_SESSION_BUS_ADDRESS"] = "unix:path=/nonexistent"
            for arguments, status in ((("--headless",), 1), (("status",), 3), (("--help",), 0), (("--version",), 0)):
                self.assertEqual(rook.run(*arguments).returncode, status, arguments)

    def test_closed_streams_and_second_starts(self) -> None:
        with Desktop("openbox", "single") as desktop:
            rook, session = Resident(desktop.session, start=False), desktop.session
            process = session.start("rook", ["sh", "-c", 'exec "$0" --headless --verbose <&- >&- 2>&-', rook.binary])
            process.wait_until(lambda: rook.run("status").returncode != 3, "the resident process", 20.0)
            for number in range(3):
                self.assertEqual(os.readlink(f"/proc/{process.identifier}/fd/{number}"), "/dev/null")
            for target, command in itertools.product(("&-", "/dev/full"), ("list", "--help", "--version")):
                lost = session.start("lost", ["sh", "-c", f'"$0" {command} >{target}', rook.binary])
                self.assertEqual(lost.popen.wait(10), 1, (target, command))
            self.assertEqual(rook.run("--headless").returncode, 0, "a second start hands over")

    def test_a_store_that_cannot_be_used_is_refused_and_left_alone(self) -> None:
        with Desktop("openbox", "single") as desktop:
            rook = Resident(desktop.session)
            rook.quit()
            content = os.urandom(8192)
            rook.store.write_bytes(content)
            refused = rook.run("--headless", deadline=20)
            self.assertEqual(refused.returncode, 1)
            self.assertIn("Unable to load stored windows.", refused.stderr)
            self.assertEqual(rook.store.read_bytes(), content)


if __name__ == "__main__":
    unittest.main()
