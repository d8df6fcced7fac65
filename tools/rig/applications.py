# SPDX-License-Identifier: MIT
"""Real applications with real windows, and one synthetic client for what they do not offer."""
from __future__ import annotations

import os
import subprocess
import urllib.parse
from dataclasses import dataclass
from pathlib import Path

from .probe import Probe, Window
from .processes import Process, RigError
from .session import Session

SPAWNER_SOURCE = Path(__file__).resolve().parent.parent / "window_spawner.cpp"


@dataclass(frozen=True)
class Kind:
    """How one application opens a window for a document. `{path}` and `{name}` are the document's."""
    wm_class: str
    command: tuple[str, ...]
    identifier: str  # the desktop file's name without ".desktop"
    one_process: bool  # further starts hand over to the first and end
    opens_folders: bool = False


KINDS: dict[str, Kind] = {
    "xterm": Kind("XTerm", ("xterm", "-T", "{name}", "-e", "cat"), "debian-xterm", one_process=False),
    "mousepad": Kind("Mousepad", ("mousepad", "--opening-mode=window", "{path}"), "org.xfce.mousepad", True),
    "pcmanfm": Kind("Pcmanfm", ("pcmanfm", "--new-win", "{path}"), "pcmanfm", True, opens_folders=True),
    "featherpad": Kind("FeatherPad", ("featherpad", "--win", "{path}"), "featherpad", True),
    "gedit": Kind("Gedit", ("gedit", "--new-window", "{path}"), "org.gnome.gedit", True),
}


class Applications:
    """Opens windows of real applications and remembers what runs."""

    def __init__(self, session: Session, probe: Probe) -> None:
        self._session, self._probe = session, probe
        self.processes: dict[str, list[Process]] = {}

    def open(self, kind_name: str, name: str, deadline: float = 20.0) -> Window:
        """Opens a new window titled after `name` and returns it once its geometry is at rest."""
        kind = KINDS[kind_name]
        path = self._document(kind, name)
        before = set(self._probe.client_list())
        command = [part.format(path=path, name=name) for part in kind.command]
        process = self._session.start(kind_name, command)
        self.processes.setdefault(kind_name, []).append(process)

        def opened() -> Window | None:
            for identifier in set(self._probe.client_list()) - before:
                window = self._probe.window(identifier)
                if window and window.wm_class == kind.wm_class and name in window.title:
                    return window
            return None
        try:
            window = self._probe.wait_until_managed(opened, f"a window of {kind_name} for {name}", deadline)
        except RigError as error:
            raise RigError(f"{error}\n{process.log_tail()}") from None
        return self._probe.settled(window.identifier, quiet=0.15)

    def close(self, kind_name: str) -> None:
        """Ends all processes of one application."""
        for process in self.processes.pop(kind_name, []):
            process.stop()

    def _document(self, kind: Kind, name: str) -> Path:
        path = self._session.home / "Documents" / name
        if kind.opens_folders:
            path.mkdir(parents=True, exist_ok=True)
        else:
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(f"{name}\n")
        return path


class WindowSpawner:
    """The scriptable client of window_spawner.cpp. Freeze it with `process.signal(SIGSTOP)`."""

    def __init__(self, session: Session, probe: Probe, name: str = "window-spawner") -> None:
        self._probe = probe
        self.process = session.start(name, [self._binary(session)], stdin=subprocess.PIPE, stdout=subprocess.PIPE)

    @staticmethod
    def _binary(session: Session) -> str:
        """The built program when the caller names it, else one compiled for this desktop."""
        if built := os.environ.get("ROOK_WINDOW_SPAWNER"):
            return built
        binary = session.work.path / "window-spawner"
        if not binary.exists():
            subprocess.run(["c++", "-std=c++20", "-o", str(binary), str(SPAWNER_SOURCE), "-lxcb", "-lxcb-icccm"],
                           check=True)
        return str(binary)

    def command(self, line: str) -> list[str]:
        """Sends one command and returns the words of its answer after the first."""
        stdin, stdout = self.process.popen.stdin, self.process.popen.stdout
        assert stdin and stdout
        stdin.write(line.encode() + b"\n")
        stdin.flush()
        answer = stdout.readline().decode().split()
        if not answer or answer[0] == "error":
            raise RigError(f"window-spawner, {line[:80]!r}: {' '.join(answer) or self.process.log_tail()}")
        return answer[1:]

    def create(self, wait: bool = True, **arguments: str | bytes | int) -> list[int]:
        """Creates windows as window_spawner.cpp describes and returns their identifiers once they are managed."""
        words = [f"{key}={urllib.parse.quote(value if isinstance(value, bytes) else str(value), safe=',+-')}"
                 for key, value in arguments.items()]
        identifiers = [int(word, 16) for word in self.command("create " + " ".join(words))]
        if wait:
            self._probe.wait_until_managed(lambda: set(identifiers) <= set(self._probe.client_list()),
                                           "the spawned windows", 30.0)
        return identifiers

    def retitle(self, identifier: int, title: str | bytes) -> None:
        self.command(f"retitle {identifier} {urllib.parse.quote(title)}")

    def configure(self, identifier: int, geometry: str) -> None:
        self.command(f"configure {identifier} {geometry}")

    def destroy(self, identifier: int) -> None:
        self.command(f"destroy {identifier}")
