#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A session over four virtual desktops comes back as it was: states, desktops, the order above each other.

Measured with xprop, xwininfo and wmctrl. --short opens fewer windows and makes fewer rounds.
"""
import os
import subprocess
import sys
import unittest
from contextlib import ExitStack
from typing import NamedTuple

from desktop_test import MANAGER
from rig.desktop import Desktop
from rig.probe import ALL_DESKTOPS, Frame
from rig.processes import wait_until
from rig.resident import Resident

IS_SHORT = "--short" in sys.argv
WINDOWS, ROUNDS = (20, 3) if IS_SHORT else (40, 10)
KNOWN = frozenset({"MAXIMIZED_VERT", "MAXIMIZED_HORZ", "FULLSCREEN", "HIDDEN", "SHADED", "ABOVE", "BELOW"})
MAXIMISED = ("maximized_vert", "maximized_horz")
# The first stands where the user works; its application has windows on every desktop.
STANCES: tuple[tuple[str, ...], ...] = (
    (), MAXIMISED, ("above",), ("minimised",), ("fullscreen",), (*MAXIMISED, "minimised"), ("shaded",), ("below",),
    ("maximized_vert",), ("everywhere", "above"))
WITHOUT_SHADES = ("mutter",)
# They keep a fullscreen window in a layer of its own that depends on what had the focus last.
WITH_FULLSCREEN_LAYER = ("xfwm4", "kwin_x11")


class Reading(NamedTuple):
    desktop: int
    states: frozenset[str]
    frame: Frame


class WindowStates(unittest.TestCase):
    desktop: Desktop

    @classmethod
    def setUpClass(cls) -> None:
        cls.desktop = Desktop(MANAGER, "two")
        cls.addClassCleanup(cls.desktop.close)
        cls.probe = cls.desktop.probe
        cls.rook = Resident(cls.desktop.session)
        cls.spawner = cls.desktop.spawner()
        cls.origin = cls.probe.main_origin()
        cls.windows: list[int] = []
        cls.normal: dict[int, Frame] = {}
        for number in range(WINDOWS):
            x = cls.origin[0] + 60 + 13 * number + (1920 if number % 4 >= 2 else 0)
            (window,) = cls.spawner.create(title=f"document {number}", geometry=f"{420 + 4 * number}x300{x:+d}+{60 + 7 * number}",
                                           **{"class": f"app{number % 5},App{number % 5}"})
            cls.windows.append(window)
        cls.probe.all_settled(cls.windows, deadline=20.0)
        for number, window in enumerate(cls.windows):
            cls.stand(window, STANCES[number % len(STANCES)], number // len(STANCES) % 4 if number else 0)
        # Drawn by hand to the size of a maximised one.
        cls.probe.place(cls.windows[10], cls.probe.frame(cls.windows[1]))
        cls.user = cls.windows[0]
        cls.probe.switch_desktop(0)
        cls.probe.activate(cls.user)
        cls.before = cls.readings()
        cls.order = cls.stacking()
        cls.rook.do("store-all", "--overwrite")

    @classmethod
    def stand(cls, window: int, stance: tuple[str, ...], desktop: int) -> None:
        cls.normal[window] = cls.probe.frame(window)
        cls.probe.send_to_desktop(window, desktop)
        if set(MAXIMISED) <= set(stance):  # xfwm4 takes both directions together only
            cls.probe.maximise(window)
            stance = stance[len(MAXIMISED):]
        for state in stance:
            if state == "minimised":
                cls.probe.switch_desktop(desktop)
                cls.probe.minimise(window)
            elif state == "everywhere":
                cls.probe.tool("xdotool", "set_desktop_for_window", str(window), "-1")
                cls.probe.wait_for(window, lambda reading: reading.desktop == ALL_DESKTOPS, "on all desktops")
            elif state != "shaded" or MANAGER not in WITHOUT_SHADES:
                cls.probe.set_state(window, state)

    @classmethod
    def readings(cls) -> dict[int, Reading]:
        return {window.identifier: Reading(window.desktop, window.states & KNOWN, window.frame)
                for window in cls.probe.all_settled(cls.windows, quiet=0.3, deadline=20.0)}

    @classmethod
    def stacking(cls) -> dict[int, list[int]]:
        """From the bottom to the top what the user sees on each desktop."""
        order = [window for window in cls.probe.client_list(stacking=True) if window in cls.windows]
        if MANAGER in WITH_FULLSCREEN_LAYER:
            order = [window for window in order if STANCES[cls.windows.index(window) % len(STANCES)] != ("fullscreen",)]
        now = {window: cls.probe.window(window) for window in order}
        return {desktop: [window for window in order if (reading := now[window]) and not reading.minimised
                          and reading.desktop in (desktop, ALL_DESKTOPS)] for desktop in range(4)}

    def heap_up(self) -> None:
        """Everything plain, on one desktop, somewhere else on the first monitor, in another order."""
        tool = self.probe.tool
        for number, window in enumerate(self.windows):
            identifier = hex(window)
            tool("wmctrl", "-i", "-r", identifier, "-t", "0")
            tool("wmctrl", "-i", "-a", identifier)
            for states in ("fullscreen,shaded", "maximized_vert,maximized_horz", "above,below"):
                tool("wmctrl", "-i", "-r", identifier, "-b", f"remove,{states}")
            tool("wmctrl", "-i", "-r", identifier, "-t", "0")
            tool("wmctrl", "-i", "-r", identifier, "-e",
                 f"0,{self.origin[0] + 20 + 11 * (number * 7 % 40)},{40 + 9 * (number * 3 % 40)},500,350")
        self.probe.switch_desktop(0)
        self.probe.activate(self.user)
        now = self.readings()
        left = [window for window in self.windows if now[window] == self.before[window]]
        self.assertLess(len(left), WINDOWS // 4, "not heaped up")

    def assert_user_undisturbed(self) -> None:
        self.assertEqual(self.probe.current_desktop(), 0, "the desktop was changed")
        self.assertEqual(self.probe.active_window(), self.user, "the focus was taken")

    def assert_as_stored(self) -> None:
        now = self.readings()
        wrong = [f"{number} {STANCES[number % len(STANCES)]}: {now[window]} instead of {self.before[window]}"
                 for number, window in enumerate(self.windows) if now[window] != self.before[window]]
        self.assertFalse(wrong, "\n".join(wrong))
        self.assertEqual(self.stacking(), self.order)

    def test_1_storing_leaves_everything_as_it_was(self) -> None:
        self.assert_as_stored()
        self.assert_user_undisturbed()

    def test_2_everything_comes_back(self) -> None:
        self.heap_up()
        self.rook.do("restore-all")
        self.assert_user_undisturbed()
        self.assert_as_stored()

    def test_3_what_is_right_is_not_touched(self) -> None:
        with ExitStack() as spies:
            logs = [spies.enter_context(self.spy(window)) for window in self.windows]
            wait_until(lambda: all(os.fstat(log.fileno()).st_size for log in logs), "the spies", 20.0)
            seen = [os.fstat(log.fileno()).st_size for log in logs]
            for _ in range(ROUNDS):
                self.rook.do("restore-all")
            self.assertEqual([os.fstat(log.fileno()).st_size for log in logs], seen, "a window was touched")
        self.assert_as_stored()
        self.assert_user_undisturbed()

    def spy(self, window: int):
        """The file to which each change of the window's state, desktop or mapping is written."""
        file = (self.desktop.work.path / f"spy-{window}").open("w+b")
        process = subprocess.Popen(["xprop", "-spy", "-id", str(window), "_NET_WM_STATE", "_NET_WM_DESKTOP", "WM_STATE"],
                                   env=self.desktop.environment, stdout=file)
        self.addCleanup(process.wait)
        self.addCleanup(process.terminate)
        return file

    def set_desktops(self, number: int) -> None:
        if MANAGER == "mutter":  # It takes the number from its settings alone.
            self.desktop.session.run("gsettings", "set", "org.gnome.desktop.wm.preferences", "num-workspaces",
                                     str(number))
        else:
            self.probe.tool("wmctrl", "-n", str(number))
        wait_until(lambda: len(self.probe.tool("wmctrl", "-d").splitlines()) == number, f"{number} desktops")

    def test_4_a_missing_desktop_leaves_windows_where_they_are(self) -> None:
        self.set_desktops(2)
        try:
            gone = [window for window in self.windows if self.before[window].desktop in (2, 3)]
            self.rook.do("restore-all")
            now = self.readings()
            self.assertLessEqual({now[window].desktop for window in gone}, {0, 1})
            kept = [window for window in self.windows if window not in gone]
            self.assertEqual([now[window] for window in kept], [self.before[window] for window in kept])
        finally:
            self.set_desktops(4)
        self.rook.do("restore-all")
        self.assert_as_stored()

    def test_5_a_monitor_that_was_gone(self) -> None:
        self.desktop.server.set_layout("single")
        self.readings()
        done = self.latest_activity()
        self.desktop.server.set_layout("two")
        wait_until(lambda: self.latest_activity() != done, "Rook to have its turn, whatever came back by itself", 30.0)
        wait_until(lambda: self.readings() == self.before, "the windows to come back", 30.0, 0.5)

    def latest_activity(self) -> list[dict]:
        return self.rook.report("status")["activity"]["recent"][:1]

    def test_6_windows_return_to_the_frames_they_had(self) -> None:
        self.heap_up()
        self.rook.do("restore-all")
        for number, window in enumerate(self.windows):
            if STANCES[number % len(STANCES)] == MAXIMISED:
                self.assertEqual(self.probe.maximise(window, False).frame, self.normal[window])


if __name__ == "__main__":
    unittest.main(argv=[argument for argument in sys.argv if argument != "--short"])
