#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""A week in the life of the resident process, compressed: random events with a fixed seed.

Usage: soak.py [--events N] [--seed N] [--wm NAME]. The environment names the binary (ROOK_BINARY).
Ends with 0 when the process lived through it all, answers, holds no grab, kept its memory, ends
well and leaves a consistent store.
"""
from __future__ import annotations

import argparse
import json
import os
import random
import signal
import sqlite3
import sys
from collections.abc import Callable
from contextlib import closing
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))
from rig.desktop import Desktop  # noqa: E402
from rig.displays import keyboard_is_free  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.processes import RigError, wait_until  # noqa: E402
from rig.resident import Resident, hot_key  # noqa: E402

KINDS = ("xterm", "mousepad", "pcmanfm", "featherpad")
LAYOUTS = ("single", "two", "left", "three")
# Key code and what xdotool presses: Ctrl+Alt+ R, A, S, W, D, and M for the menu.
CONTROL_OPTION = 0x1000 | 0x800
HOT_KEYS = {"RestoreAllWindowsHotKey": (15, "ctrl+alt+r"), "StoreAllWindowsHotKey": (0, "ctrl+alt+a"),
            "StoreActiveApplicationWindowsHotKey": (1, "ctrl+alt+s"), "StoreActiveWindowHotKey": (13, "ctrl+alt+w"),
            "RestoreActiveApplicationWindowsHotKey": (2, "ctrl+alt+d"), "ShowMenuHotKey": (46, "ctrl+alt+m")}
SETTINGS = {key: hot_key(code, CONTROL_OPTION) for key, (code, _) in HOT_KEYS.items()} | {
    name: True for name in ("SuppressStoreActiveApplicationAlert", "SuppressStoreActiveWindowAlert",
                            "SuppressStoreAllAlert", "SuppressStoreActiveApplicationSuccess",
                            "SuppressStoreActiveWindowSuccess", "SuppressStoreAllSuccess")
} | {"ApplicationLaunchRestoreDelay": 0.2}
WARM_UP = 150  # events until every window of Rook was shown and every cache is filled
MOST_GROWTH = 4096  # KiB
HOSTILE = ("plain", "%@ %s %n", "<b>x</b>", "two\nlines", "\u202eoverride", "x" * 20_000, "")


class Soak:
    def __init__(self, desktop: Desktop, seed: int) -> None:
        self.desktop, self.probe, self.chance = desktop, desktop.probe, random.Random(seed)
        self.rook = Resident(desktop.session, headless=False, settings=SETTINGS)
        self.spawner = desktop.spawner()
        self.spawned: list[int] = []
        self.kinds: list[str] = []
        self.documents = 0
        self.settled_memory = 0
        self.events: dict[Callable[[], None], int] = {
            self.launch: 6, self.quit: 3, self.crash: 2, self.move: 8, self.spawn: 4, self.destroy: 3, self.retitle: 6,
            self.minimise: 3, self.maximise: 3, self.change_displays: 3, self.press: 6, self.menu: 3, self.command: 6}

    def run(self, count: int) -> None:
        for number in range(count):
            event, = self.chance.choices(list(self.events), list(self.events.values()))
            print(f"{number + 1:5} {event.__name__}", flush=True)
            try:
                event()
            except (RigError, AssertionError) as error:  # a window went away under the tools' hands
                print(f"      {error}".splitlines()[0])
            self.check_alive()
            if number == WARM_UP:
                self.settled_memory = self.memory()

    def check_alive(self) -> None:
        process = self.rook.process
        assert process
        if not process.is_running():
            raise SystemExit(f"rook ended with {process.popen.wait()}\n{process.log_tail(40)}")

    def any_window(self) -> int:
        windows = self.probe.client_list()
        if not windows:
            raise RigError("no window")
        return self.chance.choice(windows)

    def launch(self) -> None:
        kind = self.chance.choice(KINDS)
        if self.kinds.count(kind) < 3:
            self.documents += 1
            self.kinds.append(kind)
            self.desktop.applications.open(kind, f"document {self.documents}")

    def quit(self) -> None:
        if self.kinds:
            kind = self.chance.choice(self.kinds)
            self.kinds = [other for other in self.kinds if other != kind]
            self.desktop.applications.close(kind)

    def crash(self) -> None:
        if self.kinds:
            kind = self.chance.choice(self.kinds)
            for process in self.desktop.applications.processes.get(kind, []):
                if process.is_running():
                    process.signal(signal.SIGKILL)
            self.quit()

    def move(self) -> None:
        frame = Frame(self.chance.randrange(0, 2500), self.chance.randrange(30, 700),
                      self.chance.randrange(200, 900), self.chance.randrange(150, 700))
        self.probe.tool("wmctrl", "-i", "-r", hex(self.any_window()), "-e", f"0,{frame.x},{frame.y},{frame.width},{frame.height}")

    def spawn(self) -> None:
        if len(self.spawned) < 12:
            extra = self.chance.choice(({}, {"type": "DIALOG"}, {"iconic": 1}, {"stubborn": 1}, {"process": 0}))
            self.spawned += self.spawner.create(title=self.chance.choice(HOSTILE), count=self.chance.randrange(1, 4),
                                                geometry="300x200+100+100", wait=False, **extra)

    def destroy(self) -> None:
        if self.spawned:
            self.spawner.destroy(self.spawned.pop(self.chance.randrange(len(self.spawned))))

    def retitle(self) -> None:
        if self.spawned:
            self.spawner.retitle(self.chance.choice(self.spawned), self.chance.choice(HOSTILE))

    def minimise(self) -> None:
        self.probe.tool("xdotool", "windowminimize", str(self.any_window()))

    def maximise(self) -> None:
        self.probe.tool("wmctrl", "-i", "-r", hex(self.any_window()), "-b", "toggle,maximized_vert,maximized_horz")

    def change_displays(self) -> None:
        self.desktop.server.set_layout(self.chance.choice(LAYOUTS))

    def press(self) -> None:
        self.probe.tool("xdotool", "key", self.chance.choice([keys for _, keys in HOT_KEYS.values()]))
        self.probe.tool("xdotool", "key", "Escape")  # a menu that was opened is closed again

    def menu(self) -> None:
        self.rook.run("menu")
        for _ in range(self.chance.randrange(0, 4)):
            self.probe.tool("xdotool", "key", "Down")
        self.probe.tool("xdotool", "key", "Escape")

    def command(self) -> None:
        arguments = self.chance.choice((["store-all", "--overwrite"], ["restore-all"], ["store-app", "--overwrite"],
                                        ["store-window", "--overwrite"], ["restore-app"], ["plan"], ["windows"]))
        if self.rook.run(*arguments).returncode not in (0, 1):
            raise SystemExit(f"rook {' '.join(arguments)} failed")

    def memory(self) -> int:
        """What the process has for itself, in KiB: libraries count more once nobody else uses them."""
        assert self.rook.process
        rollup = Path(f"/proc/{self.rook.process.identifier}/smaps_rollup").read_text()
        return next(int(line.split()[1]) for line in rollup.splitlines() if line.startswith("Pss_Anon:"))

    def finish(self) -> list[str]:
        """What is wrong at the end."""
        wrong = []
        self.rook.report("status")
        memory = self.memory()
        growth = memory - (self.settled_memory or memory)
        print(f"== memory: {memory} KiB, {growth} KiB of them since the warm-up")
        if growth > MOST_GROWTH:
            wrong.append(f"memory grew by {growth} KiB")
        # An alert may stand before a menu that is open as well; no key ends a stuck grab.
        try:
            wait_until(lambda: self.probe.tool("xdotool", "key", "Escape") is None
                       or keyboard_is_free(self.desktop.server.display), "the keyboard to be free", 10.0)
        except RigError as error:
            wrong.append(str(error))
        counts = self.rook.report("status")["counts"]
        self.rook.quit()
        with closing(sqlite3.connect(self.rook.store)) as store:
            check = [row[0] for row in store.execute("PRAGMA integrity_check")] + list(store.execute("PRAGMA foreign_key_check"))
            stored, = store.execute("SELECT count(*) FROM StoredWindow").fetchone()
        print(f"== store: {check}, {stored} stored windows, {json.dumps(counts)}")
        if check != ["ok"] or stored != counts["storedWindows"]:
            wrong.append(f"store: {check}, {stored}")
        return wrong


def main() -> int:
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--events", type=int, default=500)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--wm", default=os.environ.get("ROOK_TEST_MANAGER") or "openbox")
    arguments = parser.parse_args()
    with Desktop(arguments.wm, "two", tray=True) as desktop:
        soak = Soak(desktop, arguments.seed)
        soak.run(arguments.events)
        wrong = soak.finish()
    for fault in wrong:
        print(f"== {fault}")
    print("== it held up" if not wrong else "== it did NOT hold up")
    return bool(wrong)


if __name__ == "__main__":
    sys.exit(main())
