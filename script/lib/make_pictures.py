# SPDX-License-Identifier: MIT
"""The pictures of the documentation, taken of real windows on private desktops."""
from __future__ import annotations

import os
import sqlite3
import subprocess
import sys
import time
from collections.abc import Callable, Mapping
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))
from rig.applications import KINDS, Kind  # noqa: E402
from rig.desktop import Desktop  # noqa: E402
from rig.displays import keyboard_is_free  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.processes import wait_until  # noqa: E402
from rig.resident import Resident, hot_key  # noqa: E402

IMAGES = ROOT / "docs/images"
CTRL_ALT = 0x1000 | 0x800
HOT_KEYS = {"RestoreAllWindowsHotKey": hot_key(15, CTRL_ALT), "StoreActiveWindowHotKey": hot_key(1, CTRL_ALT),
            "LinkActiveWindowHotKey": hot_key(37, CTRL_ALT), "ShowMenuHotKey": hot_key(46, CTRL_ALT)}
# Application, the file it shows, where it stands.
DESK = (
    ("xterm", "src/Model/LMRestorePlan.h", Frame(40, 60, 720, 480)),
    ("xterm", "script/common.sh", Frame(1990, 40, 640, 400)),
    ("gedit", "README.md", Frame(800, 40, 700, 560)),
    ("gedit", "CHANGELOG.md", Frame(2680, 60, 640, 560)),
    ("gedit", "docs/matching.md", Frame(60, 590, 690, 430)),
    ("gedit", "CONTRIBUTING.md", Frame(2040, 470, 600, 400)),
    ("gedit", "LICENSE", Frame(1120, 470, 740, 560)),
)
EDITED = (
    ("xterm", "notes", Frame(40, 60, 640, 400)),
    ("xterm", "journal: kernel", Frame(1960, 40, 720, 420)),
    ("xterm", "make (debug)", Frame(2400, 470, 660, 380)),
    ("xterm", "shell", Frame(700, 90, 530, 340)),
    ("gedit", "CHANGELOG.md", Frame(200, 480, 600, 420)),
    ("pcmanfm", "Pictures", Frame(900, 500, 560, 440)),
)
READ = tuple(("gedit", name, Frame(60 + 190 * index, 60 + 70 * index, 760, 620 - 40 * (index % 2))) for index, name in
             enumerate(("README.md", "docs/architecture.md", "script/lib/demo.py", "src/Model/LMRestorePlan.h",
                        "src/main.cpp")))
ACTIONS = (("Mount the share", "#!/bin/bash\n\nmountpoint -q ~/Share || mount ~/Share\n", 0),
           ("Quiet fans", "#!/bin/bash\n\necho quiet >~/.config/fan-profile\n", 1))


class Studio:
    """A desktop with Rook and windows that show something."""

    def __init__(self, manager: str, settings: Mapping[str, object] | None = None, layout: str = "two") -> None:
        self.desktop = Desktop(manager, layout)
        self.probe = self.desktop.probe
        self.probe.tool("xsetroot", "-solid", "#3b5a6b")
        self.rook = Resident(self.desktop.session, headless=False, settings=settings or {})

    def open(self, windows: tuple[tuple[str, str, Frame], ...]) -> list[int]:
        """Where the repository has a file of that name, the window shows it."""
        return [self._open(KINDS[application], ROOT / name, frame) for application, name, frame in windows]

    def _open(self, kind: Kind, text: Path, frame: Frame) -> int:
        path = self.desktop.session.home / "Documents" / text.name
        path.parent.mkdir(exist_ok=True)
        if kind.opens_folders:
            path.mkdir()
        elif text.is_file():
            path.write_text(text.read_text())
        command = [part.format(path=path, name=text.name) for part in kind.command]
        if kind.wm_class == "XTerm":
            show = f"head -n 26 '{path}'; exec cat" if path.exists() else "exec cat"
            command = ["xterm", "-fa", "DejaVu Sans Mono", "-fs", "10", "-T", text.name, "-e", "sh", "-c", show]
        before = set(self.probe.client_list())
        self.desktop.session.start(kind.wm_class, command)
        window, = self.probe.wait_until_managed(lambda: set(self.probe.client_list()) - before, text.name, 20.0)
        if path.exists():
            self.probe.wait_for(window, lambda now: text.name in now.title, "titled", 10.0)
        self.probe.place(window, frame)
        return int(window)

    def edit_store(self, *statements: tuple[str, tuple[object, ...]]) -> None:
        """Changes what is stored while Rook does not run."""
        self.rook.quit()
        with sqlite3.connect(self.rook.store) as store:
            for statement, values in statements:
                store.execute(statement, values)
        self.rook.start()

    def press(self, *keys: str) -> None:
        self.probe.tool("xdotool", "key", *keys)

    def wait_for_window(self, title: str) -> int:
        def active() -> int:
            found = self.probe.tool("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()
            return self.probe.active_window() if str(self.probe.active_window()) in found else 0
        window = wait_until(active, f"the window {title}", 20.0)
        self.probe.settled(window)
        return int(window)

    def take(self, name: str, frame: Frame | None = None) -> Path:
        """A picture of the desktop, or of a part of it, once it has stood still."""
        file = self.desktop.work.path / f"{name}.png"
        last, steady = b"", 0
        while steady < 3:
            time.sleep(0.2)
            subprocess.run(["import", "-silent", "-window", "root", f"png:{file}"], env=self.desktop.environment, check=True)
            now = subprocess.run(["convert", str(file), "rgb:-"], capture_output=True, check=True).stdout
            steady, last = (steady + 1 if now == last else 0), now
        if frame:
            subprocess.run(["mogrify", "-crop", f"{frame.width}x{frame.height}+{frame.x}+{frame.y}", "+repage", str(file)],
                           check=True)
        return file

    def __enter__(self) -> Studio:
        return self

    def __exit__(self, *_: object) -> None:
        self.desktop.close()


def publish(name: str, *arguments: str) -> None:
    """Composes the picture as `convert` is told to, with few colours: it is downloaded often."""
    IMAGES.mkdir(parents=True, exist_ok=True)
    subprocess.run(["convert", *arguments, "-strip", "+dither", "-colors", "200", f"png8:{IMAGES / name}.png"], check=True)
    print(f"docs/images/{name}.png")


def monitors_side_by_side(studio: Studio, picture: Path, label: str) -> list[str]:
    """Arguments for `convert`: the monitors as they stand on a desk, under a label."""
    arguments = ["(", "-gravity", "northwest"]  # a crop is relative to it
    for monitor in studio.probe.monitors():
        x, y, width, height = monitor.frame
        arguments += ["(", str(picture), "-crop", f"{width}x{height}+{x}+{y}", "+repage", "-bordercolor", "#222222",
                      "-border", "12", "-bordercolor", "white", "-border", "10", ")"]
    return [*arguments, "-background", "white", "-gravity", "north", "+append", "-resize", "1200x", "-background", "white",
            "-fill", "#222222", "-font", "DejaVu-Sans", "-pointsize", "20", f"label:{label}", "+swap", "-gravity", "west",
            "-append", ")"]


def before_after() -> None:
    with Studio("openbox", {"RestoreWindowsAutomatically": False}) as studio:
        studio.open(DESK)
        studio.rook.do("store-all")
        studio.desktop.server.set_layout("single")
        studio.take("unplugged")
        studio.desktop.server.set_layout("two")
        before = studio.take("before")
        studio.rook.do("restore-all")
        after = studio.take("after")
        publish("before-after", *monitors_side_by_side(studio, before, " The second display was away for a moment…"),
                *monitors_side_by_side(studio, after, " …and Rook has put every window back."),
                "-background", "white", "-append")


def menu() -> None:
    with Studio("xfwm4", HOT_KEYS) as studio:
        windows = studio.open((DESK[2],))
        studio.rook.do("store-all")
        studio.probe.activate(windows[0])
        studio.probe.tool("xdotool", "mousemove", "300", "300")
        studio.rook.do("menu")
        wait_until(lambda: not keyboard_is_free(studio.desktop.server.display), "the menu")
        window = wait_until(lambda: studio.probe.tool("xdotool", "search", "--onlyvisible", "--name", "^Rook Menu$").split(),
                            "the menu's window")
        geometry = studio.probe.tool("xdotool", "getwindowgeometry", "--shell", window[0])
        values = dict(line.split("=") for line in geometry.split())
        frame = Frame(*(int(values[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")))
        publish("menu", str(studio.take("menu", frame)))


def picker() -> None:
    with Studio("xfwm4", HOT_KEYS) as studio:
        windows = studio.open(READ)
        studio.rook.do("store-all")
        studio.probe.activate(windows[0])
        studio.rook.do("link-window")
        wait_until(lambda: not keyboard_is_free(studio.desktop.server.display), "the picker")
        studio.probe.tool("xdotool", "mousemove", "640", "800")
        publish("picker", str(studio.take("picker", studio.probe.monitors()[0].frame)), "-resize", "1200x")


def stored_windows_list() -> None:
    with Studio("xfwm4", {"RestoreWindowsAutomatically": False}, "single") as studio:
        studio.open(EDITED[3:])
        for layout in ("single", "three", "left", "two"):
            studio.desktop.server.set_layout(layout)
            wait_until(lambda: len(studio.rook.report("status")["displays"]) == len(studio.probe.monitors()), layout)
            studio.rook.do("store-all")
        studio.edit_store(*(("UPDATE Workspace SET name = ? WHERE key = ?", (name, key))
                            for key, name in ((1, "Travel"), (3, "Laptop on the left"), (4, "Desk"))))
        studio.rook.do("show")
        window = studio.wait_for_window("Stored Windows")
        studio.press("Home", "Down")
        publish("list", str(studio.take("list", studio.probe.frame(window))))


def editor() -> None:
    with Studio("xfwm4") as studio:
        windows = studio.open(EDITED)
        studio.probe.maximise(windows[1])
        studio.probe.send_to_desktop(windows[2], 1)
        studio.rook.do("store-all")
        changes = [("UPDATE StoredWindow SET label = ?, titleRegularExpression = ? WHERE key IN "
                    "(SELECT storedWindow FROM Window WHERE title = ?)", values)
                   for values in (("Build", r"^make .(debug|release)", "make (debug)"),
                                  ("Logs", "^journal: ", "journal: kernel"), (None, "(notes", "notes"))]
        changes += [("INSERT INTO Action VALUES(?, 1, ?, ?, 'Shell Script', ?)", (key, label, script, changed))
                    for key, (label, script, changed) in enumerate(ACTIONS, 1)]
        studio.edit_store(*changes, ("INSERT OR REPLACE INTO NextKey VALUES('Action', 3)", ()))
        studio.rook.do("show")
        studio.wait_for_window("Stored Windows")
        studio.press("Return")
        window = studio.wait_for_window("2 Displays")
        studio.probe.place(window, Frame(300, 120, 1044, 720))
        studio.press("alt+p", "ctrl+End", "alt+w", "ctrl+Home", "Down", "Down", "alt+c", "ctrl+Home")
        publish("editor", str(studio.take("editor", studio.probe.frame(window))))


def preferences() -> None:
    with Studio("xfwm4", HOT_KEYS) as studio:
        studio.rook.do("preferences")
        window = studio.wait_for_window("Preferences")
        panes = [studio.take("general", studio.probe.frame(window))]
        studio.press("ctrl+Tab")
        panes.append(studio.take("hot-keys", studio.probe.settled(window).frame))
        publish("preferences", *map(str, panes), "-background", "white", "+append")


PICTURES: dict[str, Callable[[], None]] = {
    "before-after": before_after, "menu": menu, "picker": picker, "list": stored_windows_list, "editor": editor,
    "preferences": preferences,
}


def main() -> int:
    os.environ.setdefault("ROOK_BINARY", str(ROOT / "build/dev/src/rook"))
    for name in sys.argv[1:] or PICTURES:
        PICTURES[name]()
    return 0


if __name__ == "__main__":
    sys.exit(main())
