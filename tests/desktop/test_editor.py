#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""The editor of stored windows with real keys and clicks; what they do is read from the store."""
import sqlite3
import unittest

from desktop_test import DesktopTest
from rig.accessibility import shown_objects
from rig.displays import keyboard_is_free
from rig.probe import Frame
from rig.processes import wait_until
from rig.scenario import open_windows

WINDOWS = (("xterm", "first shell", Frame(60, 80, 520, 340)), ("xterm", "second shell", Frame(700, 390, 530, 350)),
           ("featherpad", "notes.txt", Frame(2100, 310, 555, 444)))


class Editor(DesktopTest):
    settings, tells_screen_readers = {}, True

    def setUp(self) -> None:
        super().setUp()
        self.press = self.probe.press
        open_windows(self.desktop, WINDOWS)
        self.rook.do("store-all")
        self.rook.do("show")
        self.probe.wait_for_focus("Stored Windows")
        self.press("Return")
        self.editor = self.probe.wait_for_focus("2 Displays")

    # Acting

    def add_shell_script(self, *keys: str) -> None:
        """Then presses keys without a pause, as long as the menu still has the keyboard for itself."""
        self.press("alt+a")
        wait_until(lambda: not keyboard_is_free(self.server.display), "the menu")
        self.press("--delay", "0", "s", *keys)

    def drag_first_window_to_the_end(self) -> None:
        (x, y, width, height), = (found["place"] for found in shown_objects(self.session, "rook")
                                  if found["name"] == "first shell")
        x, y = x + width // 2, y + height // 2
        self.probe.tool("xdotool", "mousemove", str(x), str(y), "mousedown", "1")
        for step in range(1, 7):
            self.probe.tool("xdotool", "mousemove", str(x), str(y + 25 * step))
        self.probe.tool("xdotool", "mouseup", "1")

    # Looking

    def applications(self) -> list[dict]:
        return [application for workspace in self.rook.report("list")["workspaces"]
                for application in workspace["applications"]]

    def names(self) -> list[str]:
        return [window["name"] for application in self.applications() if "xterm" in application["identifier"]
                for window in application["windows"]]

    def wait_for_names(self, *names: str) -> None:
        wait_until(lambda: self.names() == list(names), f"{names}, not {self.names()}")

    def actions(self) -> list[tuple[str, str]]:
        with sqlite3.connect(f"file:{self.rook.store}?mode=ro", uri=True) as store:
            return store.execute("SELECT label, script FROM Action").fetchall()

    def colours_in_picture(self, title: str, area: str) -> int:
        with sqlite3.connect(f"file:{self.rook.store}?mode=ro", uri=True) as store:
            (name,), = store.execute("SELECT screenshotFilename FROM Window WHERE title = ?", (title,))
        picture, = self.session.data.rglob(name)
        return int(self.session.run("convert", str(picture), "-crop", area, "-format", "%k", "info:"))

    # Tests

    def test_stored_windows(self) -> None:
        self.assertEqual(self.colours_in_picture("second shell", "400x200+60+80"), 1, "the progress is in the picture")
        first, second = self.names()
        self.press("alt+p", "Down", "alt+w", "Down", "F2")
        self.probe.type("Kitchen & <b>sink")
        self.press("Return")
        self.wait_for_names(first, "Kitchen & <b>sink")
        self.press("alt+Up")
        self.wait_for_names("Kitchen & <b>sink", first)
        self.drag_first_window_to_the_end()
        self.wait_for_names(first, "Kitchen & <b>sink")
        # Down to nothing and back.
        whole = self.applications()
        self.press("alt+p", "Delete", "Delete")
        wait_until(lambda: self.rook.report("list")["workspaces"] == [], "the workspace to go with its last window")
        self.probe.wait_for_focus("Stored Windows")
        self.press("ctrl+z", "ctrl+z")
        self.probe.wait_for_focus("2 Displays")
        wait_until(lambda: self.applications() == whole, "everything to be back")
        self.press("Escape")
        wait_until(lambda: self.editor not in self.probe.client_list(), "the editor to close")
        self.rook.quit()
        self.rook.start()
        self.assertEqual(self.applications(), whole)

    def test_actions(self) -> None:
        ran = self.session.home / "ran"
        self.add_shell_script("m", "o", "u", "n", "t", "Return")
        wait_until(lambda: self.actions() == [("mount", "#!/bin/bash\n\n")], "the action")
        self.press("alt+s", "ctrl+End")
        self.probe.type(f"touch {ran}; sleep 1")
        self.press("alt+n")
        wait_until(ran.exists, "the script to run")
        self.press("x", "Return", "ctrl+a", "Delete")  # Nobody listens.
        self.rook.report("status")
        wait_until(lambda: self.press("shift+Tab") or self.actions() == [
            ("mount", f"#!/bin/bash\n\ntouch {ran}; sleep 1")], f"the script to be saved, not {self.actions()}")
        # The workspace goes away under the editor, which then does nothing, whatever is pressed.
        # For a moment after the script nobody listens.
        wait_until(lambda: not self.applications() or self.press("alt+p", "Delete"), "the applications to go")
        self.press("alt+c", "Delete")
        wait_until(lambda: self.actions() == [], "the action to go")
        self.press("Delete", "F2", "alt+a", "s", "alt+n", "Escape")
        self.assertEqual(self.actions(), [])


if __name__ == "__main__":
    unittest.main()
