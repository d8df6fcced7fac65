# SPDX-License-Identifier: MIT
"""One private desktop: server, session, window manager, and the means to look at it."""
from __future__ import annotations

from pathlib import Path

from .applications import Applications, WindowSpawner
from .displays import selection_owner
from .pictures import take_picture
from .probe import Probe
from .processes import WorkDirectory
from .server import XServer
from .session import Session
from .window_managers import WindowManager


class Desktop:
    """
    with Desktop("openbox", layout="two") as desktop:
        window = desktop.applications.open("xterm", "first shell")
        desktop.probe.place(window.identifier, Frame(100, 100, 640, 480))

    Without a window manager (`manager=None`) the server and the session bus run alone.
    """

    def __init__(self, manager: str | None, layout: str = "two", tray: bool = False, logs: Path | None = None) -> None:
        self.work = WorkDirectory(keep_logs_in=logs)
        try:
            self.server = XServer(self.work)
            self.server.set_layout(layout)
            self.session = Session(self.work, self.server.display)
            self.probe = Probe(self.session.environment)
            self.window_manager = WindowManager(self.session, self.server, manager) if manager else None
            self.applications = Applications(self.session, self.probe)
            if tray:
                self._start_tray()
        except BaseException:
            self.work.close()
            raise

    @property
    def environment(self) -> dict[str, str]:
        """The environment for programs that run on this desktop."""
        return self.session.environment

    def spawner(self) -> WindowSpawner:
        return WindowSpawner(self.session, self.probe)

    def picture(self, file: Path) -> Path:
        return take_picture(self.environment, file, [monitor.frame for monitor in self.probe.monitors()])

    def _start_tray(self) -> None:
        """A panel with a system tray (the selection of the freedesktop tray protocol)."""
        panel = self.session.start("tint2", ["tint2"])
        panel.wait_until(lambda: selection_owner(self.server.display, "_NET_SYSTEM_TRAY_S0"), "the system tray")

    def close(self) -> None:
        self.work.close()

    def __enter__(self) -> Desktop:
        return self

    def __exit__(self, *_: object) -> None:
        self.close()
