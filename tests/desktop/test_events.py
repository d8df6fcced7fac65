#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Windows come back unasked when monitors and applications do, and nothing that calls or scripts do gets in the way."""
import os
import signal
import sqlite3
import subprocess
import unittest

from desktop_test import MANAGER, DesktopTest
from rig.desktop import Desktop
from rig.probe import Frame
from rig.processes import wait_until
from rig.resident import Resident
from rig.scenario import Opened, frames, open_windows, scatter

WINDOWS = (("xterm", "shell", Frame(2050, 120, 610, 405)), ("featherpad", "readme.txt", Frame(611, 93, 702, 481)),
           ("mousepad", "letter.txt", Frame(2200, 300, 561, 433)))
DOCUMENTS = (("xterm", "shell"), ("featherpad", "readme.txt"), ("mousepad", "letter.txt"), ("xterm", "log"))
CHANGE = "The displays have changed"


class Events(DesktopTest):
    def open_and_store(self) -> None:
        self.opened = open_windows(self.desktop, WINDOWS)
        self.rook.do("store-all", "--overwrite")
        self.stored = frames(self.desktop, self.opened)

    def logged(self, text: str) -> int:
        return self.rook.process.log.read_text(errors="replace").count(text)

    def wait_until_back(self) -> None:
        wait_until(lambda: frames(self.desktop, self.opened) == self.stored, "the windows to be back unasked", 30.0)

    def change_to(self, layout: str) -> None:
        before = self.logged(CHANGE)
        self.server.set_layout(layout)
        wait_until(lambda: self.logged(CHANGE) > before, f"the change to {layout} to be noticed", 20.0)
        self.rook.report("status")  # Answered when the windows are restored.

    def test_each_configuration_comes_back_with_its_windows(self) -> None:
        self.open_and_store()
        stored = {"two": self.stored}
        for number, layout in enumerate(("single", "left")):
            self.change_to(layout)
            scatter(self.desktop, self.opened, number)
            self.rook.do("store-all")
            stored[layout] = frames(self.desktop, self.opened)
        for layout in ("two", "single", "left", "two"):
            self.change_to(layout)
            self.stored = stored[layout]
            self.wait_until_back()
        status = self.rook.report("status")
        self.assertEqual((status["counts"]["workspaces"], status["currentWorkspace"]), (len(stored), "2 Displays"))
        self.change_to("three")
        self.assertIsNone(self.rook.report("status")["currentWorkspace"])
        self.assertEqual(self.rook.run("restore-all").returncode, 1)

    def test_a_flickering_monitor_restores_once(self) -> None:
        self.open_and_store()
        server, before = self.server, self.logged(CHANGE)
        for layout in ("single", "two", "single"):
            server.set_layout(layout)
        wait_until(lambda: self.logged(CHANGE) > before, "the change", 20.0)
        self.assertEqual(self.logged(CHANGE), before + 1)
        scatter(self.desktop, self.opened, 3)
        restores = self.logged("RESTORE WINDOWS")
        for layout in ("two", "single", "two"):
            server.set_layout(layout)
        self.wait_until_back()
        self.assertEqual(self.logged("RESTORE WINDOWS"), restores + 1)

    def test_a_monitor_that_lies_about_itself_harms_nobody(self) -> None:
        for blob in (b"", b"\0" * 7, os.urandom(128), os.urandom(1024)):
            self.server.set_edid("DUMMY1", blob)
            self.rook.quit()
            self.rook.start()
            self.assertEqual(len(self.rook.report("status")["displays"]), 2, blob)

    def test_an_application_that_returns_is_restored(self) -> None:
        self.open_and_store()
        for application, document, _ in WINDOWS:
            self.desktop.applications.close(application)
            window = self.desktop.applications.open(application, document)
            self.opened = [Opened(application, document, window.identifier) if one.application == application else one
                           for one in self.opened]
            self.wait_until_back()

    def add_action(self, script: str) -> None:
        self.rook.quit()
        with sqlite3.connect(self.rook.store) as store:
            workspace, = store.execute("SELECT key FROM Workspace").fetchone()
            store.execute("INSERT INTO Action(label, script, runAs, runOnDisplayChange, workspace)"
                          " VALUES('Hold', ?, 'Shell Script', 0, ?)", (script, workspace))
        store.close()
        self.rook.start()

    def test_a_script_that_holds_rook_can_be_seen_from_outside(self) -> None:
        self.open_and_store()
        marker, said = self.session.home / "go", self.session.home / "said"
        self.add_action(f"#!/bin/sh\n'{self.rook.binary}' quit 2>'{said}'\nwhile ! test -e '{marker}'; do sleep 0.05; done")
        scatter(self.desktop, self.opened, 1)
        restore = subprocess.Popen([self.rook.binary, "restore-all"], env=self.desktop.environment)
        wait_until(lambda: self.logged("Running the action “Hold” of “2 Displays”…"), "the script to run")
        status = subprocess.Popen([self.rook.binary, "status"], env=self.desktop.environment, text=True,
                                  stdout=subprocess.PIPE, stderr=subprocess.PIPE)
        self.assertIn("Running the action “Hold” of “2 Displays”… since", status.stderr.readline())
        self.assertIn("Rook waits for the script that calls it.", said.read_text())
        marker.touch()
        self.assertIn("Before", status.communicate(timeout=60)[0])
        self.assertEqual(restore.wait(60), 0)
        self.assertEqual(frames(self.desktop, self.opened), self.stored)

    def test_calls_of_all_kinds(self) -> None:
        refusal = self.rook.run("menu")
        self.assertEqual((refusal.returncode, refusal.stderr), (1, "rook: This Rook was started without windows.\n"))
        call = ["dbus-send", "--session", "--print-reply", "--dest=org.rook.Rook", "/org/rook/Rook"]
        for arguments in (["org.rook.Rook1.StoreAll", "string:yes"], ["org.rook.Rook1.StoreAll"],
                          ["org.rook.Rook1.RestoreApplication", f"string:{'x' * 100_000}"],
                          ["org.rook.Rook1.Plan", "array:string:a,b"], ["org.rook.Rook1.Nothing"],
                          ["org.freedesktop.DBus.Properties.Set", "string:org.rook.Rook1", "string:Version", "variant:string:0"]):
            subprocess.run([*call, *arguments], env=self.desktop.environment, capture_output=True, check=False, timeout=20)
        flood = [subprocess.Popen([self.rook.binary, "status"], env=self.desktop.environment,
                                  stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL) for _ in range(100)]
        self.assertEqual({process.wait(60) for process in flood}, {0})
        self.open_and_store()
        refused = [subprocess.Popen([self.rook.binary, "restore-app", f"org.{number}"], env=self.desktop.environment, text=True,
                                    stderr=subprocess.PIPE) for number in range(10)]
        for number, process in enumerate(refused):  # each caller gets its own reason
            self.assertIn(f"“org.{number}”", process.communicate(timeout=60)[1])

    def test_the_end_of_the_session_is_saved(self) -> None:
        self.open_and_store()
        for number in (signal.SIGTERM, signal.SIGINT, signal.SIGHUP):
            self.rook.do("store-all", "--overwrite")
            self.rook.process.popen.send_signal(number)
            self.assertEqual(self.rook.process.popen.wait(20), 0)
            self.assertEqual(self.rook.run("quit").returncode, 3)
            self.rook.start()
            self.assertEqual(self.rook.report("status")["counts"]["storedWindows"], len(WINDOWS))

    @unittest.skipIf(os.environ.get("ROOK_TEST_GUI") == "0", "a build without windows")
    def test_commands_and_signals_during_the_alert_of_the_launch(self) -> None:
        self.rook.quit()
        (self.session.config / "Rook/settings.ini").unlink()
        process = self.session.start("rook", [self.rook.binary])
        process.wait_until(lambda: self.desktop.probe.windows(), "the offer of a launcher", 20.0)
        result = self.rook.run("store-all")
        self.assertEqual((result.returncode, result.stderr), (1, "rook: Rook is asking something: answer that first.\n"))
        self.assertEqual(self.rook.run("status").returncode, 0)
        process.popen.send_signal(signal.SIGTERM)
        self.assertEqual(process.popen.wait(20), 0)


class Displays(unittest.TestCase):
    """Monitors left of the main one, upright, three."""

    def test_layouts(self) -> None:
        for layout in ("portrait", "three", "left"):
            with self.subTest(layout), Desktop(MANAGER, layout) as desktop:
                rook = Resident(desktop.session)
                left, top = desktop.probe.main_origin()
                # A window in the middle of each monitor, and one across the edge between two.
                spots = [Frame(frame.x - left + 70, frame.y - top + 90, frame.width // 2, frame.height // 2)
                         for _, frame, _ in desktop.probe.monitors()]
                spots.append(Frame(max(spot.x for spot in spots) - 220, 200, 500, 400))
                opened = open_windows(desktop, [(*document, spot) for document, spot in zip(DOCUMENTS, spots)])
                rook.do("store-all")
                stored = frames(desktop, opened)
                scatter(desktop, opened, 1)
                rook.do("restore-all")
                self.assertEqual(frames(desktop, opened), stored)
                displays = rook.report("status")["displays"]
                self.assertEqual([display["product"] for display in displays[:2]], ["Rig Monitor 0", "Rig Monitor 1"])


if __name__ == "__main__":
    unittest.main()
