# SPDX-License-Identifier: MIT
"""What the resident process costs when nothing happens: memory, start-up time, wake-ups."""
from __future__ import annotations

import os
import statistics
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.resident import Resident  # noqa: E402

STORED = 100
STARTS = 7
IDLE_SECONDS = int(os.environ.get("ROOK_IDLE_SECONDS", "60"))
ASK = ["dbus-send", "--session", "--print-reply", "--dest=org.rook.Rook", "/org/rook/Rook", "org.rook.Rook1.Status"]


def memory(process: int) -> float:
    """Proportional set size in MB."""
    rollup = Path(f"/proc/{process}/smaps_rollup").read_text().splitlines()
    return next(int(line.split()[1]) for line in rollup if line.startswith("Pss:")) / 1024


def wake_ups(process: int) -> int:
    """How often any thread of the process was put to work after it had waited."""
    statuses = [task.joinpath("status").read_text() for task in Path(f"/proc/{process}/task").iterdir()]
    return sum(int(line.split()[1]) for status in statuses for line in status.splitlines()
               if line.startswith("voluntary_ctxt_switches"))


def milliseconds_to_ready(desktop: Desktop, rook: Resident) -> float:
    """From exec to the first answer."""
    start = time.monotonic()
    rook.process = desktop.session.start("rook", [rook.binary])
    while not desktop.probe.tool(*ASK):
        if not rook.process.is_running() or time.monotonic() - start > 20:
            raise SystemExit(rook.process.log_tail(20))
    return 1000 * (time.monotonic() - start)


def main() -> None:
    with Desktop("openbox", "two", tray=True) as desktop:
        rook = Resident(desktop.session, ROOT / os.environ["ROOK_BINARY"],
                        headless=False, settings={"CreateScreenshotsWhenStoringWindows": False})
        spawner = desktop.spawner()
        spawner.create(count=STORED, title="window", geometry="120x80+100+100")
        rook.do("store-all")
        stored = rook.report("status")["counts"]["storedWindows"]
        spawner.process.stop()
        rook.quit()
        times, sizes = [], []
        for number in range(STARTS):
            times.append(milliseconds_to_ready(desktop, rook))
            assert rook.process
            sizes.append(memory(rook.process.identifier))
            if number < STARTS - 1:
                rook.quit()
        print(f"ready for commands, {stored} stored windows: {statistics.median(times):.0f} ms after exec (at most 250)")
        print(f"proportional memory before any window was opened: {statistics.median(sizes):.1f} MB (at most 25)")
        identifier = rook.process.identifier
        time.sleep(5)  # what starting left to do is done
        before = wake_ups(identifier)
        time.sleep(IDLE_SECONDS)
        print(f"wake-ups in {IDLE_SECONDS} s of an idle desktop: {wake_ups(identifier) - before} (none wanted)")
        rook.quit()


main()
