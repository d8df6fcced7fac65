# SPDX-License-Identifier: MIT
"""What a screen reader gets to know of the windows of a program (AT-SPI)."""
from __future__ import annotations

import json
import subprocess
import sys
from collections.abc import Iterator
from typing import Any

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"
SYSTEM_PYTHON = "/usr/bin/python3"  # The distribution's bindings are for its own interpreter.
ENVIRONMENT = {"QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"}  # For programs that shall tell.


def start_registry(session: Any) -> None:
    """To be started before the programs that shall be asked."""
    session.start("at-spi", [LAUNCHER, "--launch-immediately"])


def shown_objects(session: Any, application: str) -> list[dict[str, Any]]:
    """What the application shows, windows first: of each object name, role, states, window, and place on the screen
    (pixels: x, y, width, height)."""
    result = subprocess.run([SYSTEM_PYTHON, __file__, application], env=session.environment, text=True,
                            capture_output=True, timeout=60.0)
    if result.returncode != 0:
        raise RuntimeError(result.stderr)
    return json.loads(result.stdout)


def _walk(accessible: Any, window: str) -> Iterator[dict[str, Any]]:
    states = [state.value_nick for state in accessible.get_state_set().get_states()]
    if "showing" not in states:
        return
    place = accessible.get_extents(0)  # ATSPI_COORD_TYPE_SCREEN
    yield {"name": accessible.get_name() or "", "role": accessible.get_role_name(), "states": states, "window": window,
           "place": (place.x, place.y, place.width, place.height)}
    for index in range(accessible.get_child_count()):
        child = accessible.get_child_at_index(index)
        if child is not None:
            yield from _walk(child, window)


def _main(name: str) -> None:
    import gi
    gi.require_version("Atspi", "2.0")
    from gi.repository import Atspi
    Atspi.init()
    desktop = Atspi.get_desktop(0)
    applications = [desktop.get_child_at_index(index) for index in range(desktop.get_child_count())]
    windows = [application.get_child_at_index(index) for application in applications
               if application is not None and application.get_name() == name
               for index in range(application.get_child_count())]
    json.dump([found for window in windows if window is not None
               for found in _walk(window, window.get_name())], sys.stdout)


if __name__ == "__main__":
    _main(sys.argv[1])
