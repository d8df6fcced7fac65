# SPDX-License-Identifier: MIT
"""The resident process under test and its command line."""
from __future__ import annotations

import json
import os
import subprocess
from collections.abc import Mapping
from pathlib import Path
from typing import Any

from .processes import Process, wait_until
from .session import Session


def hot_key(key_code: int, old_modifiers: int) -> dict[str, int]:
    """A hot key as older versions kept it, which the process converts when it starts."""
    return {"keyCode": key_code, "modifierFlags": old_modifiers}


class Resident:
    """Starts `rook` in a session and asks it things through its own command line.

    `settings` are user defaults by their keys, in place of those that the session has already.
    """

    def __init__(self, session: Session, binary: Path | str | None = None, start: bool = True,
                 headless: bool = True, settings: Mapping[str, object] | None = None) -> None:
        self.session = session
        self.binary = str(binary or os.environ["ROOK_BINARY"])
        self.options = ["--headless"] if headless else []
        self.process: Process | None = None
        if settings is not None:
            self.set_defaults({"moveToApplicationsFolderAlertSuppress": True, **settings})
        if start:
            self.start()

    def start(self, *, environment: dict[str, str] | None = None) -> Process:
        self.process = self.session.start("rook", [self.binary, *self.options, "--verbose"], environment=environment)
        self.process.wait_until(lambda: self.run("status").returncode != 3, "the resident process", 20.0)
        return self.process

    def set_defaults(self, settings: Mapping[str, object]) -> None:
        """Writes the settings file; a process that runs already reads it when it starts next."""
        file = self.session.config / "Rook/settings.ini"
        file.parent.mkdir(parents=True, exist_ok=True)
        lines = [f"{key}={json.dumps(json.dumps(value) if isinstance(value, dict) else value)}"
                 for key, value in settings.items()]
        file.write_text("\n".join(["[General]", *lines, ""]))

    def run(self, *arguments: str, deadline: float = 120.0) -> subprocess.CompletedProcess[str]:
        return subprocess.run([self.binary, *arguments], env=self.session.environment, capture_output=True,
                              text=True, errors="replace", timeout=deadline)

    def do(self, *arguments: str) -> None:
        """A command that must succeed."""
        result = self.run(*arguments)
        if result.returncode != 0:
            log = self.process.log_tail(30) if self.process else ""
            raise AssertionError(f"rook {' '.join(arguments)}: {result.returncode}\n{result.stderr}\n{log}")

    def report(self, *arguments: str) -> dict[str, Any]:
        result = self.run(*arguments, "--json")
        if not result.stdout:
            raise AssertionError(f"rook {' '.join(arguments)} --json: {result.returncode} {result.stderr}")
        return json.loads(result.stdout)

    def quit(self) -> None:
        """Ends the process the way a user does; raises unless it ended well."""
        assert self.process
        self.do("quit")
        process, self.process = self.process, None
        wait_until(lambda: not process.is_running(), "the resident process to end")
        if process.popen.wait() != 0:
            raise AssertionError(f"rook ended with {process.popen.returncode}\n{process.log_tail(30)}")

    @property
    def store(self) -> Path:
        return self.session.data / "Rook" / "Stored Windows.sqlite"
