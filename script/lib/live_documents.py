# SPDX-License-Identifier: MIT
"""Runs what the documents tell people to type, each document on a desktop of its own."""
from __future__ import annotations

import difflib
import os
import re
import signal
import sqlite3
import subprocess
import sys
from collections.abc import Iterator, Mapping
from pathlib import Path

from documents import ROOT, Block, Document, Place
from written_documents import Problem

sys.path.insert(0, str(ROOT / "tools"))
from rig.accessibility import SYSTEM_PYTHON  # noqa: E402
from rig.desktop import Desktop  # noqa: E402
from rig.displays import keyboard_is_free  # noqa: E402
from rig.probe import Frame  # noqa: E402
from rig.processes import MARK, wait_until  # noqa: E402
from rig.resident import Resident, hot_key  # noqa: E402
from rig.scenario import open_windows  # noqa: E402

# Nothing moves by itself while windows are opened and placed.
SETTINGS = {"ShowMenuHotKey": hot_key(46, 0x1000 | 0x800), "RestoreWindowsAsApplicationsLaunch": False}
HOME = "/home/ann"  # what the documents call the home directory
# For commands one after the other: what would wait for an answer proceeds.
UNASKED = {"SuppressStoreAllAlert": True, "SuppressStoreAllSuccess": True}
REFUSES = "Ask to overwrite in order to replace them."  # what a store command may do without --overwrite
SECONDS = 30.0
TOOK_TOO_LONG = 124  # as timeout(1) says it
WINDOWS = {
    "terminals": (("xterm", "build", Frame(60, 80, 520, 340)), ("xterm", "logs", Frame(2000, 60, 600, 400))),
    "stored": (("xterm", "build", Frame(60, 80, 520, 340)), ("xterm", "logs", Frame(2000, 60, 600, 400))),
    "shells": (("xterm", "one", Frame(40, 60, 520, 340)), ("xterm", "two", Frame(640, 60, 520, 340)),
               ("xterm", "three", Frame(2000, 60, 520, 340))),
    "patterns": (("xterm", "build", Frame(60, 80, 520, 340)), ("xterm", "logs", Frame(2000, 60, 520, 340))),
}
# What no test can have, done at once: the screen is unlocked, the note is shown.
PROGRAMS = {"i3lock": '[ "$*" = --nofork ]', "notify-send": 'echo "$*" >"$HOME/shown"'}
# Words that stand for something of the reader's own.
STAND_INS = {"ID": "debian-xterm", "COMMAND": "restore-all"}


class Sandbox:
    """A desktop with Rook on it, and a shell whose `rook` is the one that was built; it runs with the umask."""

    def __init__(self, binary: Path, umask: str = "022", settings: Mapping[str, object] | None = None) -> None:
        self.desktop = Desktop("openbox", "two")
        try:
            self.home = self.desktop.session.home
            rook = self.home / "bin/rook"
            rook.parent.mkdir()
            rook.write_text(f"#!/bin/sh\numask {umask}\nexec '{binary}' \"$@\"\n")
            rook.chmod(0o755)
            (rook.parent / "python3").symlink_to(SYSTEM_PYTHON)
            for name, script in PROGRAMS.items():
                (rook.parent / name).write_text(f"#!/bin/sh\n{script}\n")
                (rook.parent / name).chmod(0o755)
            # As in most sessions: what the documents say must hold without these.
            unset = ("XDG_DATA_HOME", "XDG_CONFIG_HOME")
            self.environment = {**{name: value for name, value in self.desktop.environment.items() if name not in unset}, MARK: str(self.desktop.work.path),
                                "PATH": f"{rook.parent}:{os.environ['PATH']}"}
            self._teach_the_bus(rook)
            self.rook = Resident(self.desktop.session, rook, headless=False, settings={**SETTINGS, **(settings or {})})
        except BaseException:
            self.desktop.close()
            raise

    def _teach_the_bus(self, binary: Path) -> None:
        """As where Rook is installed: commands start it."""
        (self.desktop.work.path / "services/org.rook.Rook.service").write_text(
            f"[D-BUS Service]\nName=org.rook.Rook\nExec={binary}\n")
        self.desktop.session.run("dbus-send", "--session", "--print-reply", "--dest=org.freedesktop.DBus",
                                 "/org/freedesktop/DBus", "org.freedesktop.DBus.ReloadConfig")

    def open(self, name: str) -> None:
        """The windows of that name and no others."""
        for kind in list(self.desktop.applications.processes):
            self.desktop.applications.close(kind)
        wait_until(lambda: not self.desktop.probe.windows(), "the windows to close")
        self.windows = open_windows(self.desktop, WINDOWS[name])
        self.activate()
        if name in ("stored", "patterns"):
            self.rook.do("store-all", "--overwrite")
        if name == "patterns":
            self.rook.quit()
            with sqlite3.connect(self.rook.store) as store:
                store.execute("UPDATE StoredWindow SET label = 'Build', titleRegularExpression = ? WHERE key IN "
                              "(SELECT storedWindow FROM Window WHERE title = 'build')", [r"^build\b"])
            self.rook.start()

    def activate(self) -> None:
        """As if the reader had just clicked the last window. A window of Rook's that comes up late takes the focus
        again."""
        window, probe = self.windows[-1].identifier, self.desktop.probe

        def is_active() -> bool:
            probe.tool("wmctrl", "-i", "-a", hex(window))
            return probe.active_window() == window
        wait_until(is_active, "the window to be active", interval=0.2)

    def run(self, command: str) -> tuple[int, str]:
        """Status and output of a shell command. What it leaves running must not keep us waiting."""
        output = self.desktop.work.path / "output"
        with output.open("wb") as file:
            process = subprocess.Popen(["bash", "-euo", "pipefail", "-c", command], cwd=ROOT, env=self.environment, stdout=file,
                                       stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, start_new_session=True)
            try:
                status = process.wait(SECONDS)
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
                status = TOOK_TOO_LONG
        self._calm()
        return status, output.read_text(errors="replace").replace(str(self.home), HOME).rstrip("\n")

    def _calm(self) -> None:
        """Closes a menu or a picker that the command has opened."""
        def is_calm() -> bool:
            if keyboard_is_free(self.desktop.server.display):
                return True
            self.desktop.probe.tool("xdotool", "key", "Escape")
            return False
        wait_until(is_calm, "the keyboard to be free", interval=0.1)

    def __enter__(self) -> Sandbox:
        return self

    def __exit__(self, *_: object) -> None:
        self.desktop.close()


def ended(status: int) -> str:
    return f"had not ended after {SECONDS:.0f} s" if status == TOOK_TOO_LONG else f"ended with {status}"


def comparable(text: str) -> list[str]:
    """Without what differs from run to run: times, versions, process numbers, widths of columns."""
    for pattern, word in ((r"\d{4}-\d\d-\d\d[ T]\d\d:\d\d:\d\d(\.\d+)?", "TIME"), (r"\b\d+\.\d+\.\d+\b", "VERSION"),
                          (r"(Process|process\"?:) +\d+", r"\1 NUMBER"), (r" +", " "), (r" $", "")):
        text = re.sub(pattern, word, text, flags=re.MULTILINE)
    return text.splitlines()


def session_of(block: Block) -> Iterator[tuple[str, list[str]]]:
    """The commands of a console block, each with the lines it is said to print."""
    command, printed = "", []
    for line in block.lines:
        if line.startswith("$ "):
            if command:
                yield command, printed
            command, printed = line[2:], []
        else:
            printed.append(line)
    yield command, printed


class BlockRunner:
    """Runs the blocks of one document. `skipped` says what was not run and why; `true_text` is the console blocks as
    they should be."""

    def __init__(self, sandbox: Sandbox) -> None:
        self.sandbox = sandbox
        self.skipped: list[tuple[Place, str]] = []
        self.true_text: dict[Place, list[str]] = {}

    def run(self, block: Block) -> Iterator[Problem]:
        reason = block.marks.get("skip")
        if reason is not None:
            self.skipped.append((block.place, f"{reason}: {'; '.join(block.lines)}"))
            return
        if "windows" in block.marks:
            self.sandbox.open(block.marks["windows"])
        then = block.marks.get("then", "false")
        if self.sandbox.run(then)[0] == 0:
            yield block.place, f"{then}: succeeds even before"
        yield from self._type(block, block.wanted_status)
        if "then" in block.marks:
            wait_until(lambda: self.sandbox.run(then)[0] == 0, then)

    def _type(self, block: Block, wanted: int) -> Iterator[Problem]:
        if block.language == "sh":
            status, output = self.sandbox.run(block.text)
            if status != wanted:
                yield block.place, f"{ended(status)}:\n{output}"
        else:
            yield from self._console(block, wanted)

    def _console(self, block: Block, wanted: int) -> Iterator[Problem]:
        status, lines, is_true = 0, [], True
        for command, printed in session_of(block):
            status, output = self.sandbox.run(command)
            lines += [f"$ {command}", *output.splitlines()]
            said, true = comparable("\n".join(printed)), comparable(output)
            is_true = is_true and said == true
            if said != true:
                yield block.place, "\n".join([f"$ {command}", *difflib.unified_diff(said, true, "documented", "printed",
                                                                                   lineterm="")])
        if status != wanted:
            yield block.place, f"{ended(status)}, not {wanted}"
        if not is_true:  # times and process numbers alone are no change
            self.true_text[block.place] = lines


def write_true_text(document: Document, true_text: dict[Place, list[str]]) -> None:
    """Puts into the console blocks what the commands have really printed."""
    lines = document.file.read_text().splitlines()
    for block in sorted(document.blocks, key=lambda block: -block.place.line):
        if block.place in true_text:
            lines[block.place.line:block.place.line + len(block.lines)] = true_text[block.place]
    document.file.write_text("\n".join(lines) + "\n")


# --- commands in the text ---------------------------------------------------------------------------------------------


def variants(command: str) -> Iterator[str]:
    """`rook restore-app [ID]` is typed with and without what stands in brackets."""
    for replace in (lambda match: "", lambda match: match.group(1)):
        words = re.sub(r"\[([^\]]*)\]", replace, command).split()
        yield " ".join(STAND_INS.get(word, word) for word in words)


def commands_in_text(documents: list[Document]) -> dict[str, Place]:
    found: dict[str, Place] = {}
    for document in documents:
        for place, code in document.codes:
            if re.match(r"rook( |$)", code) and "=" not in code:
                for command in variants(code):
                    found.setdefault(command, place)
    return found


def options_of(sandbox: Sandbox) -> dict[str, list[str]]:
    """What the program itself says it understands: the options of every command, and its own under ""."""
    def help_of(command: str) -> tuple[list[str], list[str]]:
        text = sandbox.run(f"rook {command} --help")[1]
        options = re.findall(r"^  (?:-\w,)?(--[\w-]+)", text, re.MULTILINE)
        return re.findall(r"^  ([a-z][\w-]+) ", text, re.MULTILINE), [name for name in options if name != "--help"]
    commands, options = help_of("")
    return {"": options, **{command: help_of(command)[1] for command in commands}}


def check_commands_in_text(documents: list[Document], sandbox: Sandbox) -> Iterator[Problem]:
    """Each is typed once, and nothing the program understands is left out of the documents."""
    commands = commands_in_text(documents)
    sandbox.open("stored")
    for command in sorted(commands, key=lambda command: command == "rook quit"):
        sandbox.activate()
        status, output = sandbox.run(command)
        if status != 0 and not output.endswith(REFUSES):
            yield commands[command], f"{command}: ended with {status}: {output}"
    typed = [command.split()[1:] for command in commands]
    for command, options in options_of(sandbox).items():
        said = [words for words in typed if not command or words[:1] == [command]]
        if not said:
            yield "rook --help", f"no document names the command {command}"
        for option in options:
            if not any(option in words for words in said):
                yield "rook --help", f"no document names rook {command} {option}"
