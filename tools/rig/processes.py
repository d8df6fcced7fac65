# SPDX-License-Identifier: MIT
"""Child processes of one private desktop, all of which end with it.

Every process inherits ROOK_RIG=<work directory> in its environment, whether the rig started it
or a bus or a shell did. Ending the desktop means ending all processes that carry this mark; a
guard process does the same when the rig itself dies without a chance to clean up (kill -9).
"""
from __future__ import annotations

import os
import shutil
import signal
import subprocess
import sys
import tempfile
import time
from collections.abc import Callable, Mapping, Sequence
from pathlib import Path
from typing import TypeVar

MARK = "ROOK_RIG"
T = TypeVar("T")


class RigError(RuntimeError):
    """Something the rig waited for did not happen; the text says what and where the log is."""


def wait_until(condition: Callable[[], T], what: str, deadline: float = 10.0, interval: float = 0.01) -> T:
    """The first true value of `condition`, asked again every `interval` seconds."""
    end = time.monotonic() + deadline
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise RigError(f"waited {deadline:g} s in vain for {what}")
        time.sleep(interval)


def marked_processes(directory: Path) -> list[int]:
    """The processes that belong to the desktop with this work directory, this one excepted."""
    mark = f"{MARK}={directory}".encode()
    found = []
    for entry in os.listdir("/proc"):
        if not entry.isdigit() or int(entry) == os.getpid():
            continue
        try:
            environment = Path("/proc", entry, "environ").read_bytes()
        except OSError:
            continue
        if mark in environment.split(b"\0"):
            found.append(int(entry))
    return found


def signal_all(identifiers: Sequence[int], number: int) -> None:
    for identifier in identifiers:
        try:
            os.kill(identifier, number)
        except ProcessLookupError:
            pass


def end_marked_processes(directory: Path, grace: float = 2.0) -> None:
    """Asks all processes of the desktop to end, and after `grace` seconds makes them."""
    alive = marked_processes(directory)
    signal_all(alive, signal.SIGCONT)
    signal_all(alive, signal.SIGTERM)
    end = time.monotonic() + grace
    while alive and time.monotonic() < end:
        time.sleep(0.02)
        alive = marked_processes(directory)
    while alive:
        signal_all(alive, signal.SIGKILL)
        time.sleep(0.01)
        alive = marked_processes(directory)


class Process:
    """One started program, leader of its own process group, with its output in a log file."""

    def __init__(self, name: str, popen: subprocess.Popen[bytes], log: Path) -> None:
        self.name, self.popen, self.log = name, popen, log

    @property
    def identifier(self) -> int:
        return self.popen.pid

    def is_running(self) -> bool:
        return self.popen.poll() is None

    def signal(self, number: int) -> None:
        """Sends a signal to the whole group: SIGSTOP makes a frozen client, SIGCONT thaws it."""
        try:
            os.killpg(self.popen.pid, number)
        except ProcessLookupError:
            pass

    def stop(self, grace: float = 2.0) -> None:
        if self.is_running():
            self.signal(signal.SIGCONT)
            self.signal(signal.SIGTERM)
            try:
                self.popen.wait(grace)
            except subprocess.TimeoutExpired:
                pass
        self.signal(signal.SIGKILL)
        self.release()

    def release(self) -> None:
        """Waits for the ended program and closes the pipes to it."""
        for pipe in (self.popen.stdin, self.popen.stdout):
            if pipe:
                pipe.close()
        self.popen.wait()

    def log_tail(self, lines: int = 12) -> str:
        text = self.log.read_text(errors="replace") if self.log.exists() else ""
        return "\n".join(text.splitlines()[-lines:])

    def wait_until(self, condition: Callable[[], T], what: str, deadline: float = 10.0) -> T:
        """As the function of this name, but fails at once, with the log, when the program ends."""
        def checked() -> T:
            value = condition()
            if not value and not self.is_running():
                raise RigError(f"{self.name} ended with {self.popen.returncode} before {what}:\n{self.log_tail()}")
            return value
        try:
            return wait_until(checked, what, deadline)
        except RigError as error:
            raise RigError(f"{error}\n{self.name} said:\n{self.log_tail()}") from None


class WorkDirectory:
    """The temporary directory of one desktop and the life of every process that belongs to it."""

    def __init__(self, keep_logs_in: Path | None = None) -> None:
        self.path = Path(tempfile.mkdtemp(prefix="rook-rig-"))
        self.logs = keep_logs_in or self.path / "logs"
        self.logs.mkdir(parents=True, exist_ok=True)
        self._processes: list[Process] = []
        # Without the mark of an outer desktop, whose end must not take the guard with it.
        environment = {name: value for name, value in os.environ.items() if name != MARK}
        self._guard = subprocess.Popen(
            [sys.executable, "-S", str(Path(__file__).resolve()), str(self.path)], env=environment,
            stdin=subprocess.PIPE, stdout=subprocess.DEVNULL, start_new_session=True)

    def start(self, name: str, arguments: Sequence[str], environment: Mapping[str, str],
              keep_open: Sequence[int] = (), stdin: int = subprocess.DEVNULL,
              stdout: int | None = None) -> Process:
        """Starts a program in its own process group. Its output goes to logs/<name>.log."""
        log = self.logs / f"{name}.log"
        with log.open("ab") as output:
            try:
                popen = subprocess.Popen(
                    list(arguments), env={**environment, MARK: str(self.path)}, pass_fds=keep_open,
                    stdin=stdin, stdout=output if stdout is None else stdout, stderr=output,
                    cwd=self.path, start_new_session=True)
            except FileNotFoundError:
                raise RigError(f"{arguments[0]} is not installed; script/bootstrap installs it") from None
        process = Process(name, popen, log)
        self._processes.append(process)
        return process

    def close(self) -> None:
        """Ends every process of the desktop, removes the directory, and lets the guard go."""
        end_marked_processes(self.path)
        for process in self._processes:
            process.release()
        shutil.rmtree(self.path, ignore_errors=True)
        assert self._guard.stdin is not None
        self._guard.stdin.close()
        self._guard.wait()

    def __enter__(self) -> WorkDirectory:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()


def guard(directory: Path) -> None:
    """Waits until the rig closes its end of standard input, by itself or by dying."""
    sys.stdin.buffer.read()
    if directory.exists():
        end_marked_processes(directory, grace=1.0)
        shutil.rmtree(directory, ignore_errors=True)


if __name__ == "__main__":
    guard(Path(sys.argv[1]))
