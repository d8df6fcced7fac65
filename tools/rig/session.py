# SPDX-License-Identifier: MIT
"""A private user session: home and XDG directories, a session bus, and a clean environment."""
from __future__ import annotations

import os
import shlex
import subprocess
from collections.abc import Sequence
from pathlib import Path

from .processes import Process, RigError, WorkDirectory

# The bus activates nothing but the settings daemon that xfwm4 cannot start without: no
# accessibility bus, portal or file system daemon slows a start down or outlives a test.
BUS_CONFIGURATION = """\
<!DOCTYPE busconfig PUBLIC "-//freedesktop//DTD D-Bus Bus Configuration 1.0//EN"
 "http://www.freedesktop.org/standards/dbus/1.0/busconfig.dtd">
<busconfig>
  <type>session</type>
  <listen>unix:path={socket}</listen>
  <auth>EXTERNAL</auth>
  <servicedir>{services}</servicedir>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
"""
ACTIVATABLE = ("org.xfce.Xfconf.service",)

# What the caller's own desktop would otherwise leak into the private one.
FOREIGN_PREFIXES = ("XDG_", "DBUS_", "GTK_", "GDK_", "QT_", "KDE_", "GNOME_", "MATE_", "LC_", "WAYLAND_", "XAUTH")
FOREIGN_NAMES = ("DISPLAY", "LANGUAGE", "SESSION_MANAGER", "DESKTOP_SESSION", "DESKTOP_STARTUP_ID", "WINDOWID")

# GSettings in a plain file, so that window managers find four desktops when they start.
KEYFILE = """\
[org/gnome/mutter]
dynamic-workspaces=false
edge-tiling=false
auto-maximize=false
[org/gnome/desktop/wm/preferences]
num-workspaces=4
[org/gnome/desktop/interface]
enable-animations=false
[org/mate/marco/general]
num-workspaces=4
compositing-manager=false
"""
KWINRC = "[Desktops]\nNumber=4\nRows=1\n[Compositing]\nEnabled=false\n[Windows]\nElectricBorders=0\n"
XFWM4 = """\
<?xml version="1.0" encoding="UTF-8"?>
<channel name="xfwm4" version="1.0"><property name="general" type="empty">
  <property name="workspace_count" type="int" value="4"/>
  <property name="use_compositing" type="bool" value="true"/>
</property></channel>
"""
# Texts, and with them title bars and rows, are as high on every machine.
FONTS = """\
<fontconfig>
  <alias><family>sans-serif</family><prefer><family>DejaVu Sans</family></prefer></alias>
  <alias><family>monospace</family><prefer><family>DejaVu Sans Mono</family></prefer></alias>
</fontconfig>
"""
# Rook runs from its build folder; nobody is there to answer whether it shall be added to the menu.
ROOK = "[General]\nmoveToApplicationsFolderAlertSuppress=true\n"
SETTINGS = {
    "fontconfig/fonts.conf": FONTS,
    "Rook/settings.ini": ROOK,
    "glib-2.0/settings/keyfile": KEYFILE,
    "kwinrc": KWINRC,
    "xfce4/xfconf/xfce-perchannel-xml/xfwm4.xml": XFWM4,
}


class Session:
    """Environment and session bus for the programs of one desktop; ends with its work directory."""

    def __init__(self, work: WorkDirectory, display: str | None = None) -> None:
        self.work = work
        self.home = work.path / "home"
        self.config = self.home / ".config"
        self.data = self.home / ".local/share"
        self.environment = self._make_environment(display)
        for name, text in SETTINGS.items():
            file = self.config / name
            file.parent.mkdir(parents=True, exist_ok=True)
            file.write_text(text)
        self.bus = self._start_bus()

    def _make_environment(self, display: str | None) -> dict[str, str]:
        runtime = self.work.path / "runtime"
        cache = self.home / ".cache"
        for directory in (self.home, self.config, self.data, cache, runtime):
            directory.mkdir(parents=True, exist_ok=True)
        runtime.chmod(0o700)
        environment = {name: value for name, value in os.environ.items()
                       if not name.startswith(FOREIGN_PREFIXES) and name not in FOREIGN_NAMES}
        environment |= {
            "HOME": str(self.home), "XDG_CONFIG_HOME": str(self.config), "XDG_DATA_HOME": str(self.data),
            "XDG_CACHE_HOME": str(cache), "XDG_STATE_HOME": str(self.home / ".local/state"),
            "XDG_RUNTIME_DIR": str(runtime), "XDG_SESSION_TYPE": "x11",
            "DBUS_SESSION_BUS_ADDRESS": f"unix:path={runtime}/bus",
            "LANG": "C.UTF-8", "GDK_BACKEND": "x11", "QT_QPA_PLATFORM": "xcb", "GTK_A11Y": "none",
            "NO_AT_BRIDGE": "1", "GSETTINGS_BACKEND": "keyfile", "GIO_USE_VFS": "local",
            "GIO_USE_VOLUME_MONITOR": "unix", "LIBGL_ALWAYS_SOFTWARE": "1",
        }
        if display is not None:
            environment["DISPLAY"] = display
        return environment

    def _start_bus(self) -> Process:
        services = self.work.path / "services"
        services.mkdir()
        for name in ACTIVATABLE:
            installed = Path("/usr/share/dbus-1/services", name)
            if installed.exists():
                (services / name).symlink_to(installed)
        socket = self.work.path / "runtime/bus"
        configuration = self.work.path / "bus.conf"
        configuration.write_text(BUS_CONFIGURATION.format(socket=socket, services=services))
        bus = self.start("dbus-daemon", ["dbus-daemon", "--nofork", "--nopidfile", f"--config-file={configuration}"])
        bus.wait_until(socket.exists, "the session bus")
        return bus

    def start(self, name: str, arguments: Sequence[str], *, stdin: int = subprocess.DEVNULL, stdout: int | None = None,
              environment: dict[str, str] | None = None) -> Process:
        """Starts a program in this session; its output goes to the log of that name."""
        return self.work.start(name, arguments, {**self.environment, **(environment or {})}, stdin=stdin, stdout=stdout)

    def run(self, *arguments: str, deadline: float = 30.0) -> str:
        """Runs a program to its end and gives its standard output; raises when it fails."""
        result = subprocess.run(arguments, env=self.environment, capture_output=True, timeout=deadline)
        if result.returncode != 0:
            raise RigError(f"{shlex.join(arguments)}: {result.stderr.decode(errors='replace').strip()}")
        return result.stdout.decode(errors="replace")
