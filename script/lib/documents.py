# SPDX-License-Identifier: MIT
"""The documentation as data: code blocks, tables, links and words in code, with where each stands.

A comment of the form `<!-- check: WORD [TEXT] -->` on the line before a code block says how the block is checked:

    skip REASON     it is not run; the check lists it with the reason
    by SCRIPT       it is not run here: that script must have each of its commands
    machine         script/check-install runs it, as root, on a copy of the machine; one after the other
    then COMMAND    fails before the block and succeeds after it, perhaps not at once
    status NUMBER   its last command ends with this status instead of 0
    windows NAME    before it, the windows of that name are opened (live_documents.py knows them)
    schema          it is the store's schema
"""
from __future__ import annotations

import re
from dataclasses import dataclass, field
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent.parent
LANGUAGES = ("sh", "console", "ini", "json", "sql", "cpp", "text")
MARKS = ("skip", "by", "machine", "then", "status", "windows", "schema")
MARK = re.compile(r"<!-- check: (\w+) ?(.*?) -->$")


@dataclass(frozen=True)
class Place:
    file: Path
    line: int

    def __str__(self) -> str:
        return f"{self.file.relative_to(ROOT)}:{self.line}"


@dataclass
class Block:
    """A fenced block. `marks` are the comments before it."""
    place: Place
    language: str
    lines: list[str] = field(default_factory=list)
    marks: dict[str, str] = field(default_factory=dict)

    @property
    def text(self) -> str:
        return "\n".join(self.lines)

    @property
    def wanted_status(self) -> int:
        return int(self.marks.get("status", 0))


@dataclass(frozen=True)
class Row:
    """A table row by its column names, with the headings above it, the outermost first."""
    place: Place
    headings: tuple[str, ...]
    cells: dict[str, str]


@dataclass
class Document:
    file: Path
    blocks: list[Block] = field(default_factory=list)
    rows: list[Row] = field(default_factory=list)
    codes: list[tuple[Place, str]] = field(default_factory=list)
    links: list[tuple[Place, str]] = field(default_factory=list)
    marks: list[tuple[Place, str]] = field(default_factory=list)
    headings: list[str] = field(default_factory=list)

    @property
    def anchors(self) -> set[str]:
        """As web pages of repositories make them of headings."""
        return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in self.headings}


def code_of(cell: str) -> str:
    """What stands between the first back quotes of a cell."""
    found = re.search(r"`([^`]+)`", cell)
    return found.group(1) if found else ""


def cells_of(line: str) -> list[str]:
    return [cell.strip() for cell in re.split(r"(?<!\\)\|", line.strip().strip("|"))]


class _Reader:
    def __init__(self, file: Path) -> None:
        self.document = Document(file)
        self._marks: dict[str, str] = {}
        self._block: Block | None = None
        self._header: list[str] = []
        self._levels: list[str] = []
        self._paragraph: list[tuple[int, str]] = []

    def read(self) -> Document:
        for number, line in enumerate(self.document.file.read_text().splitlines(), 1):
            place = Place(self.document.file, number)
            if self._block or line.startswith("```"):
                self._code_line(place, line)
            else:
                self._text_line(place, line)
        self._end_paragraph()
        if self._block:
            raise ValueError(f"{self._block.place}: this block does not end")
        return self.document

    def _code_line(self, place: Place, line: str) -> None:
        if not self._block:
            self._end_paragraph()
            self._block = Block(place, line[3:].strip(), [], self._marks)
            self._marks = {}
        elif line == "```":
            self.document.blocks.append(self._block)
            self._block = None
        else:
            self._block.lines.append(line)

    def _text_line(self, place: Place, line: str) -> None:
        mark = MARK.match(line)
        if mark:
            self._marks[mark.group(1)] = mark.group(2)
            self.document.marks.append((place, mark.group(1)))
            return
        if line.startswith("#"):
            level, text = len(line) - len(line.lstrip("#")), line.lstrip("#").strip()
            self._levels = self._levels[:level - 1] + [text]
            self.document.headings.append(text)
        if line.startswith("|"):
            self._table_line(place, line)
        else:
            self._header = []
        if not line.strip() or line.startswith(("#", "|", "* ", "- ")):
            self._end_paragraph()
        self._paragraph.append((place.line, line))

    def _table_line(self, place: Place, line: str) -> None:
        cells = cells_of(line)
        if not self._header:
            self._header = cells
        elif not all(re.fullmatch(r":?-+:?", cell) for cell in cells):
            self.document.rows.append(Row(place, tuple(self._levels), dict(zip(self._header, cells))))

    def _end_paragraph(self) -> None:
        """Words in code may go over the end of a line, so they are looked for in whole paragraphs."""
        text = "\n".join(line for _, line in self._paragraph)
        for pattern, found in ((r"`([^`]+)`", self.document.codes), (r"\]\(([^)\s]+)\)", self.document.links)):
            for match in re.finditer(pattern, text):
                place = Place(self.document.file, self._paragraph[text[:match.start()].count("\n")][0])
                found.append((place, " ".join(match.group(1).split())))
        self._paragraph = []


def read_documents() -> list[Document]:
    files = [ROOT / name for name in ("README.md", "CONTRIBUTING.md", "CHANGELOG.md")] + sorted(ROOT.glob("docs/**/*.md"))
    return [_Reader(file).read() for file in files]
