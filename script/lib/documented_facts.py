# SPDX-License-Identifier: MIT
"""What Rook leaves on the disk and prints, compared with what the documents say of it: schema, JSON, files, modes."""
from __future__ import annotations

import json
import os
import re
import signal
import sqlite3
import stat
import subprocess
import tempfile
from collections.abc import Iterator
from pathlib import Path

from documents import Document, Row, code_of
from live_documents import Sandbox
from rig.processes import wait_until
from written_documents import Problem

# Objects that the documents describe once and then name like a type.
FRAME = {"x", "y", "width", "height"}
STATE = {"states", "desktop", "desktopName", "normalFrame", "stackingPosition"}
ACTION = """#!/bin/sh
cp "$XDG_RUNTIME_DIR"/rook-*.json "$HOME/activity.json"
stat -c %a "$0" >"$HOME/script-mode"
"""


class Facts:
    """One life of Rook in which everything happens that leaves something behind. The umask lets everybody read and
    write everything, so the modes of the files are Rook's own doing."""

    def __init__(self, sandbox: Sandbox) -> None:
        self.sandbox, self.rook = sandbox, sandbox.rook
        self.reports: dict[str, list[object]] = {"plan": [self.rook.report("plan")]}
        sandbox.open("terminals")
        self.rook.do("store-all")
        self._add_action()
        self.rook.do("restore-all")
        sandbox.windows.pop()
        self.sandbox.desktop.probe.tool("wmctrl", "-c", "logs")
        wait_until(lambda: len(sandbox.desktop.probe.windows()) == 1, "the window to close")
        for name in ("status", "list", "windows", "plan"):
            self.reports.setdefault(name, []).append(self.rook.report(name))
        activity = json.loads((sandbox.home / "activity.json").read_text())
        self.reports["status"].append({"activity": activity})
        self.schema = sandbox.run(f"sqlite3 '{self.rook.store}' .schema")[1]
        self._start_at_login()
        self.runtime_files = self._runtime_files()
        assert self.rook.process
        self.rook.process.signal(signal.SIGSEGV)
        self.rook.process.popen.wait()

    def _add_action(self) -> None:
        """While Rook does not run, as an older version whose store is backed up."""
        self.rook.quit()
        with sqlite3.connect(self.rook.store) as store:
            store.execute("INSERT INTO Action VALUES(1, 1, 'Look', ?, 'Shell Script', 0)", [ACTION])
            store.execute("INSERT OR REPLACE INTO NextKey VALUES('Action', 2)")
        settings = self.sandbox.desktop.session.config / "Rook/settings.ini"
        settings.write_text(re.sub("RookVersion=.*", "RookVersion=0.0.1", settings.read_text()))
        self.rook.start()

    def _start_at_login(self) -> None:
        self.rook.do("preferences")
        probe = self.sandbox.desktop.probe
        wait_until(lambda: str(probe.active_window()) in probe.tool("xdotool", "search", "--name", "^Preferences$").split(),
                   "the preferences")
        probe.tool("xdotool", "key", "alt+l")
        entry = self.sandbox.desktop.session.config / "autostart/org.rook.Rook.desktop"
        settings = self.sandbox.desktop.session.config / "Rook/settings.ini"
        wait_until(lambda: entry.exists() and "StartRookAtLogin=true" in settings.read_text(), "the login item")
        self.rook.run("status")  # when it answers, nothing is being written any more

    def _runtime_files(self) -> dict[str, int]:
        runtime = Path(self.sandbox.environment["XDG_RUNTIME_DIR"])
        return {f"$XDG_RUNTIME_DIR/{re.sub('[0-9]+', 'PROCESS', file.name)}": stat.S_IMODE(file.stat().st_mode)
                for file in runtime.glob("rook-*")}

    def files(self) -> dict[str, int]:
        """Every file and folder of Rook's, by the name the documents use, with its mode."""
        session = self.sandbox.desktop.session
        found = dict(self.runtime_files)
        for name, base in (("$XDG_DATA_HOME", session.data), ("$XDG_CONFIG_HOME", session.config)):
            for path in [*base.glob("Rook"), *base.glob("Rook/**/*"), *base.glob("autostart/*")]:
                found[f"{name}/{path.relative_to(base)}"] = stat.S_IMODE(path.stat().st_mode)
        return found


# --- the store --------------------------------------------------------------------------------------------------------


def check_schema(documents: list[Document], facts: Facts) -> Iterator[Problem]:
    blocks = [block for document in documents for block in document.blocks if "schema" in block.marks]
    for block in blocks:
        if block.text.split() != facts.schema.split():
            yield block.place, f"the schema is\n{facts.schema}"
    if not blocks:
        yield "docs", "no document shows the schema"
    with sqlite3.connect(facts.rook.store) as store:
        tables = [name for name, in store.execute("SELECT name FROM sqlite_master WHERE type = 'table'")]
        columns = {(table, row[1]) for table in tables for row in store.execute(f"PRAGMA table_info({table})")}
    rows = [row for document in documents for row in document.rows if "Column" in row.cells]
    said = {(code_of(row.headings[-1]), code_of(row.cells["Column"])): row for row in rows}
    for column in said.keys() - columns:
        yield said[column].place, f"the store has no {'.'.join(column)}"
    for column in columns - said.keys():
        yield "docs", f"no document says what {'.'.join(column)} is"


# --- JSON -------------------------------------------------------------------------------------------------------------


def kind_of(value: object) -> str:
    if isinstance(value, dict):
        return "frame" if value.keys() == FRAME else "state" if value.keys() == STATE else "object"
    if isinstance(value, bool):
        return "Boolean"
    return {list: "list", str: "string", type(None): "null"}.get(type(value), "number")


def flat(value: object, path: str = "") -> Iterator[tuple[str, str]]:
    """Every key of a report with the type of its value: ("displays[].bounds", "frame")."""
    kind = kind_of(value)
    if path:
        yield path, kind
    if kind == "object":
        for key, member in value.items():  # type: ignore[attr-defined]
            yield from flat(member, f"{path}.{key}" if path else key)
    elif kind == "list":
        for member in value:  # type: ignore[attr-defined]
            if kind_of(member) in ("object", "list"):
                yield from flat(member, f"{path}[]")
            else:
                yield path, f"list of {kind_of(member)}s"


def documented_keys(rows: list[Row], report: str) -> dict[str, Row]:
    return {code_of(row.cells["Key"]): row for row in rows if "Key" in row.cells and row.headings[-1] == report}


def check_json(documents: list[Document], facts: Facts) -> Iterator[Problem]:
    rows = [row for document in documents for row in document.rows]
    for report, values in facts.reports.items():
        said = documented_keys(rows, report)
        open_ended = [key for key, row in said.items() if row.cells["Type"] == "object of Booleans"]
        printed: dict[str, set[str]] = {}
        for key, kind in (pair for value in values for pair in flat(value)):
            if not key.endswith("[]") and not any(key.startswith(f"{name}.") for name in open_ended):
                printed.setdefault(key, set()).add(kind)
        for key in printed.keys() - said.keys():
            yield "docs", f"no document says what {report} {key} is"
        for key in said.keys() - printed.keys():
            yield said[key].place, f"{report} has no {key}"
        for key in said.keys() & printed.keys():
            kinds = said[key].cells["Type"].replace("object of Booleans", "object").split(" or ")
            allowed = {*kinds, *("list" for kind in kinds if kind.startswith("list "))}
            if not printed[key] <= allowed:
                yield said[key].place, f"{report} {key} is {', '.join(printed[key])}"


# --- files ------------------------------------------------------------------------------------------------------------


def check_files(documents: list[Document], facts: Facts) -> Iterator[Problem]:
    files = facts.files()
    for document in documents:
        for place, code in document.codes:
            path = code.rstrip("/").replace("~/.local/share", "$XDG_DATA_HOME").replace("~/.config", "$XDG_CONFIG_HOME")
            if re.match(r"\$XDG_\w+/(Rook|rook|autostart)", path) and path not in files:
                yield place, f"{code}: Rook makes no such file"
    foreign = {"$XDG_CONFIG_HOME/Rook"}  # made by the rig, before Rook
    for name, mode in files.items():
        if mode & 0o077 and name not in foreign:
            yield name, f"others may use it: mode {mode:o}"
    if (mode := (facts.sandbox.home / "script-mode").read_text().strip()) != "700":
        yield "temporary script", f"others may use it: mode {mode}"


def check_installed(documents: list[Document], build: Path) -> Iterator[Problem]:
    """What the documents name below /usr is what an installation puts there."""
    with tempfile.TemporaryDirectory() as root:
        installed = subprocess.run(["cmake", "--install", str(build), "--prefix", "/usr"], capture_output=True, text=True,
                                   env={**os.environ, "DESTDIR": root})
        if installed.returncode != 0:
            yield build, f"cannot be installed: {installed.stderr}"
            return
        for document in documents:
            lines = [(block.place, line) for block in document.blocks for line in block.lines]
            for place, text in [*document.codes, *lines]:
                for path in re.findall(r"(?<![\w.])/usr/(?:bin|lib|share)/[\w./-]*rook[\w./-]*", text, re.IGNORECASE):
                    if not Path(root + path).exists():
                        yield place, f"{path} is not installed"


def check_facts(documents: list[Document], binary: Path) -> list[Problem]:
    with Sandbox(binary, umask="000") as sandbox:
        facts = Facts(sandbox)
        problems = [problem for check in (check_schema, check_json, check_files) for problem in check(documents, facts)]
    return problems + list(check_installed(documents, binary.parent.parent))
