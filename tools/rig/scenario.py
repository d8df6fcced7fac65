# SPDX-License-Identifier: MIT
"""A desktop full of windows as people leave it, and what it takes to upset it."""
from __future__ import annotations

import random
from collections.abc import Iterable, Sequence
from dataclasses import dataclass

from .desktop import Desktop
from .probe import Frame, Window

# Application, document, where it stands. Every application with several windows has two that only
# their titles tell apart; frames cross monitors, and no two are equal.
STANDARD: tuple[tuple[str, str, Frame], ...] = (
    ("xterm", "first shell", Frame(37, 51, 520, 340)),
    ("xterm", "second shell", Frame(2011, 222, 610, 405)),
    ("mousepad", "letter.txt", Frame(611, 93, 702, 481)),
    ("mousepad", "notes.txt", Frame(2340, 40, 561, 633)),
    ("pcmanfm", "Pictures", Frame(120, 480, 790, 503)),
    ("featherpad", "program.c", Frame(1001, 333, 640, 511)),
    ("featherpad", "readme.txt", Frame(2100, 310, 555, 444)),
    ("gedit", "todo.txt", Frame(1203, 407, 655, 522)),
)


@dataclass(frozen=True)
class Opened:
    """A window the scenario opened."""
    application: str
    document: str
    identifier: int


def open_windows(desktop: Desktop, wanted: Iterable[tuple[str, str, Frame]] = STANDARD) -> list[Opened]:
    """Opens the windows and places them; the frames are taken relative to the main monitor."""
    origin = desktop.probe.main_origin()
    opened = []
    for application, document, frame in wanted:
        window = desktop.applications.open(application, document)
        opened.append(Opened(application, document, window.identifier))
        desktop.probe.place(window.identifier, frame._replace(x=frame.x + origin[0], y=frame.y + origin[1]))
    return opened


def readings(desktop: Desktop, windows: Iterable[Opened]) -> dict[int, Window]:
    """What independent tools say of the windows once all of them stand still."""
    identifiers = [window.identifier for window in windows]
    return {window.identifier: window for window in desktop.probe.all_settled(identifiers)}


def frames(desktop: Desktop, windows: Sequence[Opened]) -> dict[str, Frame]:
    """Frames by document: what has to be equal before and after."""
    settled = readings(desktop, windows)
    return {f"{window.application} {window.document}": settled[window.identifier].frame for window in windows}


def scatter(desktop: Desktop, windows: Iterable[Opened], seed: int) -> None:
    """Moves and resizes every window with tools that are not ours; each ends up elsewhere."""
    chance = random.Random(seed)
    for window in windows:
        before = desktop.probe.frame(window.identifier)
        while True:
            frame = Frame(chance.randrange(20, 900), chance.randrange(40, 400),
                          chance.randrange(330, 900), chance.randrange(260, 640))
            after = desktop.probe.place(window.identifier, frame)
            if after != before:
                break
