# SPDX-License-Identifier: MIT
"""The window managers that the desktop tests run under."""
from __future__ import annotations

import re
import subprocess
from collections.abc import Mapping

from .probe import Probe
from .processes import Process, wait_until
from .server import XServer
from .session import Session

COMMANDS: dict[str, tuple[str, ...]] = {
    "openbox": ("openbox", "--sm-disable"),
    "xfwm4": ("xfwm4", "--compositor=on", "--vblank=off"),
    "marco": ("marco", "--no-composite", "--sm-disable"),
    "kwin_x11": ("kwin_x11",),
    "mutter": ("mutter", "--x11", "--sm-disable"),
}
NAMES = tuple(COMMANDS)
DESKTOPS = 4


def root_property(environment: Mapping[str, str], name: str, *window: str) -> str:
    """The value of a window's property as xprop prints it, of the root window's without `window`; "" when absent."""
    target = ["-id", *window] if window else ["-root"]
    result = subprocess.run(["xprop", *target, "-notype", name], env=environment, capture_output=True)
    _, found, value = result.stdout.decode(errors="replace").partition(": window id # ")
    if not found:
        _, found, value = result.stdout.decode(errors="replace").partition(" = ")
    return value.strip() if found else ""


def running_manager(environment: Mapping[str, str]) -> str:
    """The name of the window manager that manages the display, "" when none does (EWMH supporting window)."""
    window = root_property(environment, "_NET_SUPPORTING_WM_CHECK")
    if not window or root_property(environment, "_NET_SUPPORTING_WM_CHECK", window) != window:
        return ""
    return root_property(environment, "_NET_WM_NAME", window).strip('"')


def monitors_xml(listing: str) -> str:
    """The present monitors as mutter's saved configuration.

    Mutter lays monitors out itself when it starts, unless it finds this file with the identities
    of just these monitors and their exact modes in it.
    """
    lit = re.finditer(r"^(\w+) connected (primary )?(\d+)x(\d+)\+(\d+)\+(\d+).*?([\d.]+)MHz[^\n]*\*current[^\n]*\n"
                      r".*?total +(\d+).*?total +(\d+)", listing, re.MULTILINE | re.DOTALL)
    monitors = ""
    for output, primary, width, height, x, y, clock, total_width, total_height in (match.groups() for match in lit):
        index = int(re.sub(r"\D", "", output) or 0)
        monitors += f"""
<logicalmonitor><x>{x}</x><y>{y}</y><scale>1</scale>{"<primary>yes</primary>" if primary else ""}<monitor>
<monitorspec><connector>{output}</connector><vendor>RIG</vendor><product>Rig Monitor {index}</product>
<serial>SN{7000 + index}</serial></monitorspec><mode><width>{width}</width><height>{height}</height>
<rate>{float(clock) * 1e6 / int(total_width) / int(total_height):.6f}</rate></mode></monitor></logicalmonitor>"""
    return f'<monitors version="2"><configuration>{monitors}</configuration></monitors>\n'


class WindowManager:
    """One running window manager with four virtual desktops."""

    def __init__(self, session: Session, server: XServer, name: str) -> None:
        self.name = name
        self._session, self._server = session, server
        self.process: Process = self._start()

    def _start(self) -> Process:
        if self.name == "mutter":
            (self._session.config / "monitors.xml").write_text(monitors_xml(self._server.xrandr("--verbose")))
        environment = {"KWIN_COMPOSE": "N"} if self.name == "kwin_x11" else {}
        process = self._session.start(self.name, COMMANDS[self.name], environment=environment)
        process.wait_until(lambda: running_manager(self._session.environment), f"{self.name} to manage the display", 30.0)
        self._set_desktops()
        return process

    def _set_desktops(self) -> None:
        """Settings made four desktops where they could; where they could not, a request does."""
        def are_there() -> bool:
            return root_property(self._session.environment, "_NET_NUMBER_OF_DESKTOPS") == str(DESKTOPS)
        if not are_there():
            subprocess.run(["wmctrl", "-n", str(DESKTOPS)], env=self._session.environment, check=True)
            wait_until(are_there, f"{DESKTOPS} desktops of {self.name}")

    def stop(self, grace: float = 2.0) -> None:
        """Ends the manager; with grace 0 as a crash does, by SIGKILL."""
        self.process.stop(grace)

    def restart(self, grace: float = 0.0) -> None:
        """Ends the manager and starts it anew; returns when it manages the windows there were."""
        probe = Probe(self._session.environment)
        windows = probe.client_list()
        self.stop(grace)
        # A killed manager's lists stay on the root window and would pass for the new one's.
        probe.tool("xprop", "-root", "-remove", "_NET_CLIENT_LIST", "-remove", "_NET_CLIENT_LIST_STACKING")
        self.process = self._start()
        wait_until(lambda: {window for window in windows if probe.window(window)} <= set(probe.client_list()),
                   f"{self.name} to manage the windows again")
