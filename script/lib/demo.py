# SPDX-License-Identifier: MIT
"""The main job on real windows: store, scatter, restore, compare, with pictures."""
from __future__ import annotations

import os
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.pictures import table  # noqa: E402
from rig.probe import Window  # noqa: E402
from rig.resident import Resident  # noqa: E402
from rig.scenario import Opened, open_windows, readings, scatter  # noqa: E402

PICTURES = ROOT / "build/demo"
MINIMISED, ELSEWHERE, CLIENT_DECORATED = "notes.txt", "Pictures", "todo.txt"


def state(window: Window) -> str:
    words = ["minimised"] if window.minimised else []
    words += [f"desktop {window.desktop + 1}"] if window.desktop else []
    words += ["own decorations"] if any(window.shadow_extents) else []
    return ", ".join(words)


def show(opened: list[Opened], stored: dict[int, Window], scattered: dict[int, Window],
         restored: dict[int, Window]) -> bool:
    """Prints the table; answers whether every window is where it was, to the pixel."""
    rows, all_back = [], True
    for window in opened:
        identifier = window.identifier
        is_back = restored[identifier].frame == stored[identifier].frame
        is_back = is_back and restored[identifier].minimised == stored[identifier].minimised
        is_back = is_back and restored[identifier].desktop == stored[identifier].desktop
        all_back = all_back and is_back
        rows.append([window.application, window.document, stored[identifier].frame, scattered[identifier].frame,
                     restored[identifier].frame, state(restored[identifier]), "yes" if is_back else "NO"])
    print(table(["application", "title", "stored", "scattered", "restored", "state", "ok"], rows))
    return all_back


def main() -> int:
    PICTURES.mkdir(parents=True, exist_ok=True)
    print("== a private X server with two monitors, xfwm4, and real windows")
    with Desktop("xfwm4", "two") as desktop:
        rook = Resident(desktop.session, ROOT / os.environ["ROOK_BINARY"])
        opened = open_windows(desktop)
        by_document = {window.document: window.identifier for window in opened}
        desktop.probe.minimise(by_document[MINIMISED])
        desktop.probe.send_to_desktop(by_document[ELSEWHERE], 1)
        stored = readings(desktop, opened)
        assert stored[by_document[MINIMISED]].minimised and stored[by_document[ELSEWHERE]].desktop == 1
        assert any(stored[by_document[CLIENT_DECORATED]].shadow_extents)

        print("== rook store-all")
        rook.do("store-all", "--overwrite")
        desktop.picture(PICTURES / "1-stored.png")
        print("== every window moved and resized with wmctrl")
        scatter(desktop, opened, seed=1)
        scattered = readings(desktop, opened)
        untouched = [window.document for window in opened
                     if scattered[window.identifier].frame == stored[window.identifier].frame]
        assert not untouched, f"not scattered: {untouched}"
        desktop.picture(PICTURES / "2-scattered.png")
        print("== rook restore-all")
        rook.do("restore-all")
        restored = readings(desktop, opened)
        desktop.picture(PICTURES / "3-restored.png")
        all_back = show(opened, stored, scattered, restored)
        print(rook.run("plan").stdout)
        rook.quit()
    print(f"== pictures: {PICTURES.relative_to(ROOT)}/*.png")
    print("== every window is back to the pixel" if all_back else "== some windows are NOT back")
    return 0 if all_back else 1


if __name__ == "__main__":
    sys.exit(main())
