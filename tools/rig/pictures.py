# SPDX-License-Identifier: MIT
"""Pictures of the desktop and plain tables, for people."""
from __future__ import annotations

import subprocess
from collections.abc import Mapping, Sequence
from pathlib import Path

from .probe import Frame


def take_picture(environment: Mapping[str, str], file: Path, monitors: Sequence[Frame]) -> Path:
    """A PNG of the whole root window with the monitors outlined."""
    file.parent.mkdir(parents=True, exist_ok=True)
    outlines = " ".join(f"rectangle {x},{y} {x + width - 1},{y + height - 1}" for x, y, width, height in monitors)
    subprocess.run(["import", "-silent", "-window", "root", f"png:{file}"], env=dict(environment), check=True)
    subprocess.run(["mogrify", "-fill", "none", "-stroke", "#e0a030", "-strokewidth", "4", "-draw", outlines,
                    str(file)], env=dict(environment), check=True)
    return file


def stack_pictures(environment: Mapping[str, str], pictures: Mapping[str, Path], file: Path) -> Path:
    """One PNG with the pictures below each other, each under its label."""
    arguments = [argument for label, picture in pictures.items() for argument in ("-label", label, str(picture))]
    subprocess.run(["montage", *arguments, "-tile", "1x", "-geometry", "1680x+8+8", "-background", "#dddddd",
                    f"png:{file}"], env=dict(environment), check=True)
    return file


def table(header: Sequence[str], rows: Sequence[Sequence[object]]) -> str:
    """The rows as text in aligned columns."""
    lines = [[str(cell) for cell in row] for row in (header, *rows)]
    widths = [max(len(line[column]) for line in lines) for column in range(len(header))]
    lines.insert(1, ["-" * width for width in widths])
    return "\n".join("  ".join(cell.ljust(width) for cell, width in zip(line, widths)).rstrip() for line in lines)
