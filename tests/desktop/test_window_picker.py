#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The window picker with real keys and clicks: nothing typed reaches another program while it is open,
everything does afterwards, however it ended; a click on a picture makes a link."""
import ctypes
import signal
import sqlite3
import unittest

from desktop_test import DesktopTest
from rig.displays import connection, keyboard_is_free
from rig.probe import Frame
from rig.processes import wait_until
from rig.resident import hot_key

TITLES = ("one", "two", "three")
SHORTCUT = "ctrl+alt+l"


class WindowPicker(DesktopTest):
    settings = {"LinkActiveWindowHotKey": hot_key(37, 0x1000 | 0x800)}

    def setUp(self) -> None:
        super().setUp()
        self.press, self.click = self.probe.press, self.probe.click
        self.windows = {title: self.open_typist(title, Frame(60 + 400 * index, 80 + 150 * index, 520 + 40 * index, 340))
                        for index, title in enumerate(TITLES)}
        self.rook.do("store-all")
        self.focused = self.probe.activate(self.windows["one"]).identifier
        self.typed = ""

    def open_typist(self, title: str, frame: Frame) -> int:
        """A terminal that writes whatever is typed into a file."""
        file = self.session.home / title
        before = set(self.probe.client_list())
        script = f"stty -icanon -echo; printf '\\033[31mThis is {title}'; cat >'{file}'"
        self.session.start(f"xterm-{title}", ["xterm", "-T", title, "-e", "sh", "-c", script])
        window, = self.probe.wait_until_managed(lambda: set(self.probe.client_list()) - before, title, 20.0)
        wait_until(file.exists, f"{title} to read")
        self.probe.place(window, frame)
        return int(window)

    # Acting

    def open_picker(self) -> None:
        self.press(SHORTCUT)
        wait_until(lambda: len(self.overlays()) == len(self.probe.monitors()), "the overlay on all monitors")
        wait_until(lambda: not keyboard_is_free(self.server.display), "the keyboard to be taken")

    def click_picture(self, index: int) -> None:
        """Of three: the first is alone in the bottom row, the others stand side by side above it."""
        column, row = ((0.5, 0), (0, 1), (1, 1))[index]
        self.click((column + 0.5) * 960, 1080 - (row * 540 + 5 + 30 + 8 + 20 + 15))

    def open_about(self) -> None:
        self.rook.do("about")
        self.probe.wait_for_focus("About Rook")
        self.assertEqual(self.overlays(), [])

    def open_about_twice(self) -> None:
        self.open_about()
        self.probe.activate(self.focused)
        self.open_picker()
        self.open_about()  # there already, but not in front
        self.press("Escape")

    # Looking

    def overlays(self) -> list[int]:
        return self.probe.shown("Rook Window Picker")

    def stored(self) -> list[str]:
        workspace, = self.rook.report("list")["workspaces"]
        application, = workspace["applications"]
        return [window["name"] for window in application["windows"]]

    def snapshots(self) -> list[tuple[str, bool]]:
        """The titles that the stored windows are recognised by, and whether each has a picture."""
        with sqlite3.connect(f"file:{self.rook.store}?mode=ro", uri=True) as store:
            return [(title, bool(picture)) for title, picture in
                    store.execute("SELECT title, screenshotFilename FROM Window ORDER BY title")]

    def check_closed(self) -> None:
        """The picker is gone and typing works as if it had never been there."""
        wait_until(lambda: not self.overlays(), "the overlay to go")
        wait_until(lambda: keyboard_is_free(self.server.display), "the keyboard to be free")
        wait_until(lambda: self.probe.active_window() == self.focused, "the user's window to have the focus")
        self.typed += "y"
        self.press("y")
        wait_until(lambda: self.text("one")[-1:] == "y", "the key to arrive")
        self.assertEqual([self.text(title) for title in TITLES], [self.typed, "", ""])

    def text(self, title: str) -> str:
        return (self.session.home / title).read_text()

    # Tests

    def test_whatever_ends_it_gives_the_keyboard_back(self) -> None:
        before = self.rook.run("list", "--json").stdout
        for why, end in (("Escape", lambda: self.press("n", "Return", "Tab", "alt+F4", SHORTCUT, "Escape")),
                         ("a click on the background", lambda: self.click(1915, 5)),
                         ("a click on a label", lambda: self.click(960, 1080 - 5 - 15)),
                         ("a click on another monitor", lambda: self.click(2500, 400)),
                         ("another command", lambda: self.rook.do("restore-all")),
                         ("another window of Rook", self.open_about_twice)):
            with self.subTest(why):
                self.open_picker()
                self.press("n", "space")
                end()
                self.check_closed()
        self.assertEqual(self.rook.run("list", "--json").stdout, before)

    def test_accidents(self) -> None:
        self.open_picker()
        self.desktop.window_manager.restart()
        self.press("n", "Escape")
        wait_until(lambda: not self.overlays(), "Escape to work without the old window manager")
        self.probe.activate(self.focused)
        self.check_closed()
        self.open_picker()
        for count, layout in enumerate(("single", "two"), 1):
            self.server.set_layout(layout)
            self.check_closed()
            wait_until(lambda: self.rook.process.log.read_text().count("The displays have changed") == count, layout)
        with connection(self.server.display) as (x11, display):
            root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
            self.assertEqual(x11.XGrabKeyboard(display, root, 0, 1, 1, ctypes.c_ulong(0)), 0)
            x11.XSync(display, False)
            self.rook.do("link-window")
            wait_until(self.overlays, "the overlay without the keyboard")
        wait_until(lambda: not keyboard_is_free(self.server.display), "the keyboard to be taken once it is free")
        self.rook.do("link-window")  # once more while it is open
        self.press("n", "Escape")
        self.check_closed()
        self.open_picker()
        self.rook.process.signal(signal.SIGKILL)
        self.check_closed()

    def test_a_click_on_a_picture_makes_the_link(self) -> None:
        order = self.stored()
        self.assertEqual(sorted(order), sorted(TITLES))
        target = self.probe.frame(self.windows["two"])
        self.open_picker()
        self.click_picture(order.index("two"))
        wait_until(lambda: self.probe.shown("Rook"), "the question")
        self.assertEqual(self.overlays(), [])
        self.press("Escape")
        self.check_closed()
        self.assertEqual(self.stored(), order)
        self.open_picker()
        self.click_picture(order.index("two"))
        self.probe.wait_for_focus("Rook")
        self.press("Return")
        wait_until(lambda: self.stored() == ["two", "three"], "the link")
        wait_until(lambda: self.probe.frame(self.focused) == target, "the window to stand where it belongs")
        self.assertEqual(self.snapshots(), [("one", True), ("three", True), ("two", True)])
        self.check_closed()
        self.open_picker()
        self.click_picture(0)  # of two now; linked already, so nothing is asked
        self.check_closed()
        self.assertEqual(self.stored(), ["two", "three"])


if __name__ == "__main__":
    unittest.main()
