# SPDX-License-Identifier: MIT
"""The main job on real windows, on command and unasked: stored, scattered, restored, compared, with pictures."""
from __future__ import annotations

import os
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.pictures import table  # noqa: E402
from rig.probe import Window  # noqa: E402
from rig.processes import RigError, wait_until  # noqa: E402
from rig.resident import Resident  # noqa: E402
from rig.scenario import Opened, open_windows, readings, scatter  # noqa: E402

PICTURES = ROOT / "build/demo"
MINIMISED, ELSEWHERE, CLIENT_DECORATED = "notes.txt", "Pictures", "todo.txt"
MAXIMISED, ABOVE = "readme.txt", "first shell"
RESTARTED = "gedit"


def state(window: Window) -> str:
    words = [word for word, is_so in (("maximised", window.maximised), ("minimised", window.minimised),
                                      ("above", "ABOVE" in window.states)) if is_so]
    words += [f"desktop {window.desktop + 1}"] if window.desktop else []
    words += ["own decorations"] if any(window.shadow_extents) else []
    return ", ".join(words)


def show(opened: list[Opened], *stages: tuple[str, dict[int, Window]]) -> bool:
    """Prints the table of frames, the first stage being what was stored; answers whether every window is back in the
    last one, to the pixel."""
    (_, stored), (_, last) = stages[0], stages[-1]
    rows, all_back = [], True
    for window in opened:
        before, after = stored[window.identifier], last[window.identifier]
        is_back = after.frame == before.frame and state(after) == state(before)
        all_back = all_back and is_back
        rows.append([window.application, window.document, *(stage[window.identifier].frame for _, stage in stages),
                     state(after), "yes" if is_back else "NO"])
    print(table(["application", "title", *(name for name, _ in stages), "state", "ok"], rows))
    return all_back


def upset(desktop: Desktop, opened: list[Opened], by_document: dict[str, int]) -> None:
    """Moves and resizes every window, and takes away every state and virtual desktop."""
    probe = desktop.probe
    probe.maximise(by_document[MAXIMISED], False)
    probe.set_state(by_document[ABOVE], "above", False)
    probe.send_to_desktop(by_document[ELSEWHERE], 0)
    probe.activate(by_document[MINIMISED])
    probe.activate(by_document[ABOVE])
    scatter(desktop, opened, seed=1)


def wait_until_back(desktop: Desktop, opened: list[Opened], stored: dict[int, Window]) -> dict[int, Window]:
    """What stands on the desktop once every window is back, or when waiting makes no sense any more."""
    def is_back() -> bool:
        now = readings(desktop, opened)
        return all((now[window].frame, state(now[window])) == (stored[window].frame, state(stored[window]))
                   for window in now)
    try:
        wait_until(is_back, "the windows to come back", 20.0, 0.3)
    except RigError as error:
        print(f"== {error}")
    return readings(desktop, opened)


def show_displays(desktop: Desktop, opened: list[Opened], stored: dict[int, Window]) -> bool:
    """The second monitor goes and comes back."""
    print("== the second monitor is unplugged: the window manager heaps its windows on the first")
    desktop.server.set_layout("single")
    heaped = readings(desktop, opened)
    desktop.picture(PICTURES / "4-unplugged.png")
    print("== and plugged in again: Rook restores unasked")
    desktop.server.set_layout("two")
    back = wait_until_back(desktop, opened, stored)
    desktop.picture(PICTURES / "5-plugged.png")
    return show(opened, ("stored", stored), ("unplugged", heaped), ("plugged in", back))


def show_launch(desktop: Desktop, opened: list[Opened], stored: dict[int, Window]) -> bool:
    """An application ends and is started again."""
    print(f"== {RESTARTED} is ended and started again: its windows go where they were")
    desktop.applications.close(RESTARTED)
    again, before, fresh = [], {}, {}
    for old in (window for window in opened if window.application == RESTARTED):
        window = desktop.applications.open(RESTARTED, old.document)
        again.append(Opened(RESTARTED, old.document, window.identifier))
        before[window.identifier], fresh[window.identifier] = stored[old.identifier], window
    return show(again, ("stored", before), ("as started", fresh),
                ("a moment later", wait_until_back(desktop, again, before)))


def main() -> int:
    PICTURES.mkdir(parents=True, exist_ok=True)
    print("== a private X server with two monitors, xfwm4, and real windows")
    with Desktop("xfwm4", "two") as desktop:
        rook = Resident(desktop.session, ROOT / os.environ["ROOK_BINARY"])
        opened = open_windows(desktop)
        by_document = {window.document: window.identifier for window in opened}
        desktop.probe.minimise(by_document[MINIMISED])
        desktop.probe.send_to_desktop(by_document[ELSEWHERE], 1)
        desktop.probe.maximise(by_document[MAXIMISED])
        desktop.probe.set_state(by_document[ABOVE], "above")
        stored = readings(desktop, opened)
        assert stored[by_document[MINIMISED]].minimised and stored[by_document[ELSEWHERE]].desktop == 1
        assert any(stored[by_document[CLIENT_DECORATED]].shadow_extents)

        print("== rook store-all")
        rook.do("store-all", "--overwrite")
        desktop.picture(PICTURES / "1-stored.png")
        print("== every window moved, resized and made an ordinary one of the first desktop with wmctrl")
        upset(desktop, opened, by_document)
        scattered = readings(desktop, opened)
        untouched = [window.document for window in opened
                     if scattered[window.identifier].frame == stored[window.identifier].frame]
        assert not untouched, f"not scattered: {untouched}"
        desktop.picture(PICTURES / "2-scattered.png")
        print("== rook restore-all")
        rook.do("restore-all")
        restored = readings(desktop, opened)
        desktop.picture(PICTURES / "3-restored.png")
        all_back = show(opened, ("stored", stored), ("scattered", scattered), ("restored", restored))
        print(rook.run("plan").stdout)
        all_back = show_displays(desktop, opened, stored) and all_back
        all_back = show_launch(desktop, opened, stored) and all_back
        rook.quit()
    print(f"== pictures: {PICTURES.relative_to(ROOT)}/*.png")
    print("== every window is back to the pixel" if all_back else "== some windows are NOT back")
    return 0 if all_back else 1


if __name__ == "__main__":
    sys.exit(main())
