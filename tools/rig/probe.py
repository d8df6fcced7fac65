# SPDX-License-Identifier: MIT
"""What stands on the desktop, read and changed with tools that are not Rook's.

Coordinates are those of the X root window; `main_origin` tells where the main monitor stands.
"""
from __future__ import annotations

import re
import subprocess
import time
from collections.abc import Callable, Mapping, Sequence
from dataclasses import dataclass
from typing import NamedTuple, TypeVar

from .processes import RigError, wait_until

T = TypeVar("T")

PROPERTIES = ("_NET_FRAME_EXTENTS", "_GTK_FRAME_EXTENTS", "_NET_WM_PID", "_NET_WM_DESKTOP", "_NET_WM_STATE",
              "_NET_WM_WINDOW_TYPE", "WM_CLASS")
ALL_DESKTOPS = 0xFFFFFFFF


class Frame(NamedTuple):
    x: int
    y: int
    width: int
    height: int

    def __str__(self) -> str:
        return f"{self.width}x{self.height}{self.x:+d}{self.y:+d}"


class MonitorReading(NamedTuple):
    output: str
    frame: Frame
    primary: bool


@dataclass(frozen=True)
class Window:
    """One reading of one managed window."""
    identifier: int
    process: int | None
    instance: str
    wm_class: str
    title: str
    desktop: int
    states: frozenset[str]  # "HIDDEN", "MAXIMIZED_VERT", ...: the EWMH names without "_NET_WM_STATE_"
    types: tuple[str, ...]  # "NORMAL", "DIALOG", ...
    client: Frame
    frame: Frame  # what the user sees: with the manager's decorations, without the client's shadows
    frame_extents: tuple[int, ...]
    shadow_extents: tuple[int, ...]

    @property
    def minimised(self) -> bool:
        return "HIDDEN" in self.states

    @property
    def maximised(self) -> bool:
        return {"MAXIMIZED_VERT", "MAXIMIZED_HORZ"} <= self.states


def visible_frame(client: Frame, decoration: tuple[int, ...], shadow: tuple[int, ...]) -> Frame:
    """Extents are left, right, top, bottom, as in _NET_FRAME_EXTENTS."""
    left, right, top, bottom = (outer - inner for outer, inner in zip(decoration, shadow))
    return Frame(client.x - left, client.y - top, client.width + left + right, client.height + top + bottom)


class Probe:
    """Reads and changes the desktop that `environment` points to."""

    def __init__(self, environment: Mapping[str, str]) -> None:
        self._environment = dict(environment)

    def tool(self, *arguments: str) -> str:
        """Runs one of the tools; "" when it fails, as it does for a window that just went away."""
        result = subprocess.run(arguments, env=self._environment, capture_output=True)
        return result.stdout.decode(errors="replace") if result.returncode == 0 else ""

    # Reading

    def client_list(self, stacking: bool = False) -> list[int]:
        """Managed windows, in the order of their mapping or from the bottom to the top."""
        name = "_NET_CLIENT_LIST_STACKING" if stacking else "_NET_CLIENT_LIST"
        return [int(word, 16) for word in re.findall(r"0x[0-9a-f]+", self.tool("xprop", "-root", "-notype", name))]

    def wait_until_managed(self, condition: Callable[[], T], what: str, deadline: float) -> T:
        """Waits for new windows. Openbox may sleep on the first one when it has read its request to be
        shown while it was still starting: any further event wakes it."""
        woken = time.monotonic()

        def holds() -> T:
            nonlocal woken
            if time.monotonic() - woken > 1.0:
                self.tool("xprop", "-root", "-f", "_ROOK_RIG", "8s", "-set", "_ROOK_RIG", "awake")
                woken = time.monotonic()
            return condition()
        return wait_until(holds, what, deadline)

    def windows(self, wm_class: str | None = None) -> list[Window]:
        readings = (self.window(identifier) for identifier in self.client_list())
        return [window for window in readings
                if window and (wm_class is None or window.wm_class.lower() == wm_class.lower())]

    def window(self, identifier: int) -> Window | None:
        """A reading of the window, None when it is gone."""
        geometry = self.tool("xwininfo", "-id", str(identifier), "-stats")
        properties = self._properties(identifier)
        client = self._client(geometry)
        if not client or not properties:
            return None
        numbers = {name: tuple(int(number) for number in re.findall(r"\d+", properties.get(name, "")))
                   for name in ("_NET_FRAME_EXTENTS", "_GTK_FRAME_EXTENTS", "_NET_WM_PID", "_NET_WM_DESKTOP")}
        decoration = numbers["_NET_FRAME_EXTENTS"] or (0, 0, 0, 0)
        shadow = numbers["_GTK_FRAME_EXTENTS"] or (0, 0, 0, 0)
        classes = re.findall(r'"((?:[^"\\]|\\.)*)"', properties.get("WM_CLASS", "")) or ["", ""]
        return Window(
            identifier, next(iter(numbers["_NET_WM_PID"]), None), classes[0], classes[-1],
            self.tool("xdotool", "getwindowname", str(identifier)).removesuffix("\n"),
            next(iter(numbers["_NET_WM_DESKTOP"]), 0),
            frozenset(re.findall(r"_NET_WM_STATE_(\w+)", properties.get("_NET_WM_STATE", ""))),
            tuple(re.findall(r"_NET_WM_WINDOW_TYPE_(\w+)", properties.get("_NET_WM_WINDOW_TYPE", ""))),
            client, visible_frame(client, decoration, shadow), decoration, shadow)

    def frame(self, identifier: int) -> Frame:
        window = self.window(identifier)
        if not window:
            raise RigError(f"window {identifier:#x} is gone")
        return window.frame

    def _properties(self, identifier: int) -> dict[str, str]:
        text = self.tool("xprop", "-id", str(identifier), "-notype", *PROPERTIES)
        return dict(re.findall(r"^(\w+)(?: = |: +)(.*)$", text, re.MULTILINE))

    @staticmethod
    def _client(geometry: str) -> Frame | None:
        # The last match counts: a hostile title may hold lines that look like the tool's own.
        parts = [re.findall(rf"^  {label}: +(-?\d+)$", geometry, re.MULTILINE)
                 for label in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
        return Frame(*(int(part[-1]) for part in parts)) if all(parts) else None

    def monitors(self) -> list[MonitorReading]:
        found = re.findall(r"^ \d+: \+(\*?)\S+ (\d+)/\d+x(\d+)/\d+([+-]\d+)([+-]\d+)  (\S+)$",
                           self.tool("xrandr", "--listactivemonitors"), re.MULTILINE)
        return [MonitorReading(output, Frame(int(x), int(y), int(width), int(height)), star == "*")
                for star, width, height, x, y, output in found]

    def main_origin(self) -> tuple[int, int]:
        """Where the main monitor, the origin of Rook's coordinates, stands in the root window."""
        monitors = sorted(self.monitors(), key=lambda monitor: not monitor.primary)
        return monitors[0].frame[:2]

    def current_desktop(self) -> int:
        return int(self.tool("xdotool", "get_desktop") or 0)

    def active_window(self) -> int:
        """The active window's identifier, 0 when none is active."""
        value = re.search(r"0x[0-9a-f]+", self.tool("xprop", "-root", "-notype", "_NET_ACTIVE_WINDOW"))
        return int(value.group(), 16) if value else 0

    def shown(self, title: str) -> list[int]:
        """The windows with this title that are on the screen, those that no manager manages included."""
        return [int(word) for word in
                self.tool("xdotool", "search", "--onlyvisible", "--name", f"^{title}$").split()]

    def wait_for_focus(self, title: str, deadline: float = 20.0) -> int:
        """The window with this title once it is active."""
        return wait_until(lambda: self.active_window() if self.active_window() in self.shown(title) else 0,
                          f"the window {title} to have the focus", deadline)

    # Typing and clicking, as a user does

    def press(self, *keys: str) -> None:
        """Keys as xdotool names them, one after the other; its options may stand before them."""
        self.tool("xdotool", "key", *keys)

    def type(self, text: str) -> None:
        self.tool("xdotool", "type", text)

    def click(self, x: float, y: float, button: int = 1) -> None:
        self.tool("xdotool", "mousemove", str(round(x)), str(round(y)), "click", str(button))

    # Changing; each returns when the change can be read back

    def wait_for(self, identifier: int, condition: Callable[[Window], bool], what: str,
                 deadline: float = 5.0) -> Window:
        def reached() -> Window | None:
            window = self.window(identifier)
            return window if window and condition(window) else None
        return wait_until(reached, f"window {identifier:#x} to be {what}", deadline)

    def settled(self, identifier: int, quiet: float = 0.08, deadline: float = 5.0) -> Window:
        return self.all_settled([identifier], quiet, deadline)[0]

    def all_settled(self, identifiers: Sequence[int], quiet: float = 0.08, deadline: float = 5.0) -> list[Window]:
        """The windows once geometry and states of all have stood still for `quiet` seconds."""
        end = time.monotonic() + deadline
        last: list[Window | None] = []
        since = time.monotonic()
        while time.monotonic() < end:
            now = [self.window(identifier) for identifier in identifiers]
            if now != last:
                last, since = now, time.monotonic()
            elif None not in now and time.monotonic() - since >= quiet:
                return [window for window in now if window]
            time.sleep(0.01)
        raise RigError(f"windows {', '.join(map(hex, identifiers))} do not come to rest")

    def place(self, identifier: int, frame: Frame) -> Frame:
        """Moves and resizes a window so that its visible frame stands at `frame`, as far as window
        manager and size increments allow, and gives the frame that it got."""
        window = self.settled(identifier)
        request, corrections, give_up = frame, 4, time.monotonic() + 8.0
        while corrections and time.monotonic() < give_up:
            before = window.frame
            client = visible_frame(request, window.shadow_extents, window.frame_extents)
            x, y = (number - (number == -1) for number in request[:2])  # to wmctrl -1 means "as it is"
            self.tool("wmctrl", "-i", "-r", hex(identifier), "-e", f"1,{x},{y},{client.width},{client.height}")
            window = self._arrival(window, frame)
            got = window.frame
            if got[:2] == frame[:2]:
                break
            if got == before:
                continue  # a busy manager, still placing its new window: the same once more
            # Managers differ in what a request means to client-side decorations.
            corrections -= 1
            request = Frame(request.x + frame.x - got.x, request.y + frame.y - got.y, request.width, request.height)
        return window.frame

    def _arrival(self, before: Window, wanted: Frame) -> Window:
        try:
            self.wait_for(before.identifier, lambda now: now.frame == wanted or now.frame != before.frame, "moved", 1.0)
        except RigError:
            pass  # the request changed nothing
        return self.settled(before.identifier)

    def minimise(self, identifier: int) -> Window:
        self.tool("xdotool", "windowminimize", str(identifier))
        return self.wait_for(identifier, lambda window: window.minimised, "minimised")

    def activate(self, identifier: int) -> Window:
        """Activates the window, which also unminimises it and shows its desktop."""
        self.tool("wmctrl", "-i", "-a", hex(identifier))
        wait_until(lambda: self.active_window() == identifier, f"window {identifier:#x} to be active", 5.0)
        self.wait_for(identifier, lambda window: not window.minimised, "unminimised")
        return self.settled(identifier)  # openbox draws the window on its way back

    def maximise(self, identifier: int, on: bool = True) -> Window:
        self.tool("wmctrl", "-i", "-r", hex(identifier), "-b",
                  f"{'add' if on else 'remove'},maximized_vert,maximized_horz")
        self.wait_for(identifier, lambda window: window.maximised == on, "maximised" if on else "unmaximised")
        return self.settled(identifier)

    def set_state(self, identifier: int, state: str, on: bool = True) -> Window:
        """Any other EWMH state by its wmctrl name: "fullscreen", "above", "shaded", "skip_taskbar", ..."""
        self.tool("wmctrl", "-i", "-r", hex(identifier), "-b", f"{'add' if on else 'remove'},{state}")
        self.wait_for(identifier, lambda window: (state.upper() in window.states) == on, f"{state}={on}")
        return self.settled(identifier)

    def send_to_desktop(self, identifier: int, desktop: int) -> Window:
        self.tool("wmctrl", "-i", "-r", hex(identifier), "-t", str(desktop))
        return self.wait_for(identifier, lambda window: window.desktop == desktop, f"on desktop {desktop}")

    def switch_desktop(self, desktop: int) -> None:
        self.tool("wmctrl", "-s", str(desktop))
        wait_until(lambda: self.current_desktop() == desktop, f"desktop {desktop} to be current", 5.0)
