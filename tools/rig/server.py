# SPDX-License-Identifier: MIT
"""A private X.Org server with the dummy driver: sixteen outputs that can be plugged and unplugged."""
from __future__ import annotations

import os
import re
import subprocess
from collections.abc import Sequence
from dataclasses import dataclass

from .displays import make_edid, set_edids
from .processes import Process, RigError, WorkDirectory

# The server itself where the distribution keeps it, because the wrapper in the search path may
# admit console users only; the dummy driver needs no privileges.
SERVERS = ("/usr/lib/xorg/Xorg", "/usr/libexec/Xorg", "/usr/lib/Xorg")
CONFIGURATION = """\
Section "ServerFlags"
    Option "AutoAddDevices" "off"
    Option "AutoEnableDevices" "off"
    Option "AutoAddGPU" "off"
    Option "BlankTime" "0"
EndSection
Section "Device"
    Identifier "device"
    Driver "dummy"
    VideoRam 256000
EndSection
Section "Monitor"
    Identifier "monitor"
    HorizSync 1-1000
    VertRefresh 1-1000
EndSection
Section "Screen"
    Identifier "screen"
    Device "device"
    Monitor "monitor"
    DefaultDepth 24
    SubSection "Display"
        Depth 24
        Modes "1920x1080"
        Virtual 5760 2160
    EndSubSection
EndSection
"""


@dataclass(frozen=True)
class Monitor:
    """One monitor of a layout: where it stands in root coordinates and how large it is."""
    output: str
    width: int
    height: int
    x: int
    y: int
    primary: bool = False

    @property
    def mode(self) -> str:
        return f"{self.width}x{self.height}"


# A portrait monitor is a tall mode: the dummy driver refuses RandR rotation.
LAYOUTS: dict[str, tuple[Monitor, ...]] = {
    "single": (Monitor("DUMMY0", 1920, 1080, 0, 0, primary=True),),
    "two": (Monitor("DUMMY0", 1920, 1080, 0, 0, primary=True), Monitor("DUMMY1", 1440, 900, 1920, 0)),
    "left": (Monitor("DUMMY0", 1920, 1080, 1440, 0, primary=True), Monitor("DUMMY1", 1440, 900, 0, 90)),
    "portrait": (Monitor("DUMMY0", 1920, 1080, 0, 420, primary=True), Monitor("DUMMY1", 1200, 1920, 1920, 0)),
    "three": (Monitor("DUMMY0", 1920, 1080, 1280, 0, primary=True), Monitor("DUMMY1", 1440, 900, 3200, 180),
              Monitor("DUMMY2", 1280, 1024, 0, 56)),
}


class XServer:
    """The server runs until its work directory is closed, or `stop`. It picks its display number itself."""

    def __init__(self, work: WorkDirectory) -> None:
        self._work = work
        self._modes = {"DUMMY0": "1920x1080"}
        self._edids: dict[str, bytes] = {}
        self.display = ""
        self.process = self._start()
        self._identify_outputs()

    @property
    def environment(self) -> dict[str, str]:
        return {**os.environ, "DISPLAY": self.display, "LANG": "C.UTF-8"}

    def _start(self) -> Process:
        configuration = self._work.path / "xorg.conf"
        configuration.write_text(CONFIGURATION)
        server = next((path for path in SERVERS if os.access(path, os.X_OK)), "Xorg")
        reader, writer = os.pipe()
        process = self._work.start(
            "Xorg",
            [server, "-displayfd", str(writer), "-config", str(configuration), "-noreset", "-novtswitch", "-sharevts",
             "-nolisten", "tcp", "-logfile", str(self._work.logs / "Xorg.0.log")],
            {**os.environ, "LANG": "C.UTF-8"}, keep_open=[writer])
        os.close(writer)
        with os.fdopen(reader, "rb") as answer:
            number = answer.readline().strip().decode()
        if not number:
            process.popen.wait()
            hint = "" if os.geteuid() == 0 else "\nThe server may refuse an ordinary user here: run as root."
            raise RigError(f"Xorg ended with {process.popen.returncode}:\n{process.log_tail()}{hint}")
        self.display = f":{number}"
        return process

    def stop(self) -> None:
        self.process.stop()

    def xrandr(self, *arguments: str) -> str:
        """Runs xrandr on this server and gives its output; a refusal becomes a RigError."""
        result = subprocess.run(["xrandr", *arguments], env=self.environment, capture_output=True, text=True)
        if result.returncode != 0:
            raise RigError(f"xrandr {' '.join(arguments)}: {result.stderr.strip()}")
        return result.stdout

    def plug(self, output: str, mode: str, *, right_of: str | None = None, left_of: str | None = None,
             at: tuple[int, int] | None = None, primary: bool = False) -> None:
        """Switches an output on as a monitor of the given mode ("1440x900") with an EDID of its own."""
        self._add_mode(output, mode)
        place: list[str] = []
        if right_of:
            place = ["--right-of", right_of]
        elif left_of:
            place = ["--left-of", left_of]
        elif at:
            place = ["--pos", f"{at[0]}x{at[1]}"]
        self.xrandr("--output", output, "--mode", mode, *place, *(["--primary"] if primary else []))
        self._identify_outputs()

    def unplug(self, output: str) -> None:
        self.xrandr("--output", output, "--off")

    def set_layout(self, layout: str | Sequence[Monitor]) -> None:
        """Makes the given monitors, and no others, the desktop, in one step."""
        arguments: list[str] = []
        monitors = LAYOUTS[layout] if isinstance(layout, str) else layout
        for monitor in monitors:
            self._add_mode(monitor.output, monitor.mode)
            arguments += ["--output", monitor.output, "--mode", monitor.mode, "--pos", f"{monitor.x}x{monitor.y}"]
            arguments += ["--primary"] if monitor.primary else []
        for output in self.lit_outputs() - {monitor.output for monitor in monitors}:
            arguments += ["--output", output, "--off"]
        self.xrandr(*arguments)
        self._identify_outputs()

    def lit_outputs(self) -> set[str]:
        """The outputs that show a picture."""
        listing = self.xrandr("--current")
        return set(re.findall(r"^(\S+) (?:dis)?connected (?:primary )?\d+x\d+\+", listing, re.MULTILINE))

    def set_edid(self, output: str, blob: bytes) -> None:
        """Gives an output any EDID, broken ones included, until it is unplugged and after."""
        self._edids[output] = blob
        set_edids(self.display, {output: blob})

    def _identify_outputs(self) -> None:
        """The driver has no EDIDs, and the server forgets one whenever it finds an output newly connected."""
        self.xrandr("--query")
        blobs = {}
        for output in self.lit_outputs():
            index = int(re.sub(r"\D", "", output) or 0)
            width, height = (int(part) for part in self._modes[output].split("x"))
            blobs[output] = make_edid("RIG", 0x1000 + index, 7000 + index, f"Rig Monitor {index}", width, height)
        set_edids(self.display, blobs | {output: self._edids[output] for output in blobs.keys() & self._edids.keys()})

    def _add_mode(self, output: str, mode: str) -> None:
        self._modes[output] = mode
        listing = self.xrandr("--current")
        if re.search(rf"^{output} .*(?:\n   .*)*\n   {mode} ", listing, re.MULTILINE):
            return
        if not re.search(rf"^   {mode} |^  {mode} \(", listing, re.MULTILINE):
            width, height = (int(part) for part in mode.split("x"))
            timings = [width, width + 48, width + 80, width + 160, height, height + 3, height + 8, height + 30]
            clock = timings[3] * timings[7] * 60 / 1e6
            self.xrandr("--newmode", mode, f"{clock:.6f}", *map(str, timings))
        self.xrandr("--addmode", output, mode)
