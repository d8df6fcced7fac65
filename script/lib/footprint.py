# SPDX-License-Identifier: MIT
"""What the resident process costs when nothing happens: memory, start-up time, wake-ups."""
from __future__ import annotations

import json
import os
import sqlite3
import statistics
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "tools"))
from rig.desktop import Desktop  # noqa: E402
from rig.resident import Resident  # noqa: E402

LIVE = 50  # more live windows than that take a window manager minutes
STORED = 1000
STARTS = 7
REST_SECONDS = 3  # Rook lets go of what the launch took a second after it
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


def multiply_stored_windows(store: Path) -> None:
    """Copies the stored windows of the one application until there are as many as wanted."""
    with sqlite3.connect(store) as database:
        database.row_factory = sqlite3.Row
        stored = database.execute('SELECT * FROM "StoredWindow"').fetchall()
        snapshots = {row[1]: row for row in database.execute('SELECT * FROM "Window"')}
        ordering = []
        for number in range(STORED):
            original = dict(stored[number % len(stored)])
            _, _, title, *shape = snapshots[original["key"]]
            key = 10_000 + number
            copy = original | {"key": key, "matchingWindowsOrdering": json.dumps([f"rook://Window/{key}"])}
            database.execute(f'INSERT INTO "StoredWindow" VALUES ({", ".join("?" * len(copy))})', tuple(copy.values()))
            database.execute(f'INSERT INTO "Window" VALUES ({", ".join("?" * (3 + len(shape)))})',
                             (key, key, f"{title} of {number}", *shape))
            ordering.append(f"rook://StoredWindow/{key}")
        for table in ("Window", "StoredWindow"):
            database.execute(f'DELETE FROM "{table}" WHERE "key" < 10000')
        database.execute('UPDATE "Application" SET "windowsOrdering" = ?', (json.dumps(ordering),))
        database.execute("""UPDATE "NextKey" SET "nextKey" = 20000 WHERE "entity" = 'StoredWindow'""")
    database.close()


def main() -> None:
    with Desktop("openbox", "two", tray=True) as desktop:
        rook = Resident(desktop.session, ROOT / os.environ["ROOK_BINARY"],
                        headless=False, settings={"CreateScreenshotsWhenStoringWindows": False})
        spawner = desktop.spawner()
        spawner.create(count=LIVE, title="window", geometry="120x80+100+100")
        rook.do("store-all")
        spawner.process.stop()
        rook.quit()
        multiply_stored_windows(rook.store)
        times, sizes, rests = [], [], []
        for number in range(STARTS):
            times.append(milliseconds_to_ready(desktop, rook))
            assert rook.process
            stored = rook.report("status")["counts"]["storedWindows"]
            sizes.append(memory(rook.process.identifier))
            time.sleep(REST_SECONDS)
            rests.append(memory(rook.process.identifier))
            if number < STARTS - 1:
                rook.quit()
        assert stored == STORED, f"{stored} stored windows"
        print(f"ready for commands, {stored} stored windows: {statistics.median(times):.0f} ms after exec (at most 250)")
        print(f"proportional memory before any window was opened: {statistics.median(rests):.1f} MB (at most 25); "
              f"{statistics.median(sizes):.1f} MB in the second after the launch")
        identifier = rook.process.identifier
        time.sleep(40)  # what starting left to do is done; the toolkit looks through its pictures after 30 s
        before = wake_ups(identifier)
        time.sleep(IDLE_SECONDS)
        print(f"wake-ups in {IDLE_SECONDS} s of an idle desktop: {wake_ups(identifier) - before} (none wanted)")
        rook.quit()


main()
