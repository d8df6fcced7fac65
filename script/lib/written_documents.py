# SPDX-License-Identifier: MIT
"""What can be checked without running Rook: links, paths, names of the source, settings, D-Bus methods."""
from __future__ import annotations

import plistlib
import re
import subprocess
from collections.abc import Iterable, Iterator
from functools import cache
from pathlib import Path
from xml.etree import ElementTree

from documents import LANGUAGES, MARKS, ROOT, Document, Place, code_of

Problem = tuple[object, str]
TYPES = {"bool": "Boolean", "double": "number", "string": "text", "strings": "list", "data": "shortcut"}


@cache
def tracked() -> tuple[str, ...]:
    """Every file of the repository, the new ones included; outside a repository every file but what is built."""
    listed = subprocess.run(["git", "ls-files", "--cached", "--others", "--exclude-standard"], cwd=ROOT,
                            capture_output=True, text=True)
    names: Iterable[str] = listed.stdout.splitlines()
    if listed.returncode != 0:
        names = (str(path.relative_to(ROOT)) for top in ROOT.iterdir() if top.name not in ("build", ".git")
                 for path in (top, *top.rglob("*")) if path.is_file())
    return tuple(name for name in names if (ROOT / name).exists())


@cache
def source() -> str:
    """All that is not documentation, to look for names in."""
    return "\n".join((ROOT / name).read_text(errors="ignore") for name in tracked()
                     if name.startswith(("src/", "tests/", "tools/", "resources/", "packaging/")))


def check_links(documents: Iterable[Document]) -> Iterator[Problem]:
    by_file = {document.file: document for document in documents}
    used = set()
    for document in by_file.values():
        for place, link in document.links:
            if re.match(r"\w+:", link):
                continue
            path, _, anchor = link.partition("#")
            target = (document.file.parent / path).resolve() if path else document.file
            used.add(target)
            if not target.exists():
                yield place, f"{link}: there is no such file"
            elif anchor and target in by_file and anchor not in by_file[target].anchors:
                yield place, f"{link}: there is no such heading"
    for picture in (ROOT / "docs/images").iterdir():
        if picture not in used:
            yield picture.relative_to(ROOT), "no document shows this picture"
        if f'"{picture.stem}":' not in (ROOT / "script/lib/make_pictures.py").read_text():
            yield picture.relative_to(ROOT), "script/pictures does not make this picture"


def check_blocks(documents: Iterable[Document]) -> Iterator[Problem]:
    for document in documents:
        for place, mark in document.marks:
            if mark not in MARKS:
                yield place, f"{mark} is no mark"
        for block in document.blocks:
            if block.language and block.language not in LANGUAGES:
                yield block.place, f"blocks are of {', '.join(LANGUAGES)}, not {block.language}"
            if block.language in ("", "text") and re.search(r"^(\$ |rook |script/)", block.text, re.MULTILINE):
                yield block.place, "commands belong into a block of sh or console"
            if block.language == "ini":
                for key in re.findall(r"^(\w+)=", block.text, re.MULTILINE):
                    if key not in settings_of_source():
                        yield block.place, f"{key} is no setting"


def check_scripts(documents: Iterable[Document]) -> Iterator[Problem]:
    """Where a script is said to run a block, it does."""
    for block in (block for document in documents for block in document.blocks if "by" in block.marks):
        script = (ROOT / block.marks["by"]).read_text()
        for command in (line.partition("#")[0].strip() for line in block.lines):
            if not re.search(rf"^(step |thorough )?(env \S+ )?{re.escape(command)}(?!\S)", script, re.MULTILINE):
                yield block.place, f"{block.marks['by']} does not run {command}"


# What a script of the repository is called with is its own business; that it exists is not.
def paths_of(code: str) -> Iterator[str]:
    top = {name.split("/")[0] for name in tracked() if "/" in name}
    for word in code.split():
        if re.fullmatch(r"\.?[\w.-]+(/[\w.*-]*)+", word) and word.split("/")[0] in top:
            yield word.rstrip("/")
        elif re.fullmatch(r"[\w-]+\.(md|txt|json|h|cpp|xml|plist)", word):
            yield word


def check_paths(documents: Iterable[Document]) -> Iterator[Problem]:
    names = set(tracked())
    folders = {str(parent) for name in names for parent in Path(name).parents}
    for document in documents:
        for place, code in [*document.codes, *((block.place, line) for block in document.blocks
                                               if block.language in ("sh", "console") for line in block.lines)]:
            for path in paths_of(code):
                known = path in names or path in folders or any(name.endswith("/" + path) for name in names)
                if not known and not any(Path(name).match(path) for name in names):
                    yield place, f"{path}: there is no such file"


def check_names(documents: Iterable[Document]) -> Iterator[Problem]:
    """Classes, functions and files of the source; a folder may stand before them."""
    stems = {re.sub(r"\.\w+$", "", name) for name in tracked()}
    for document in documents:
        for place, code in document.codes:
            if re.fullmatch(r"[A-Z]\w+(/\w+)+", code):
                if not any(stem == f"src/{code}" or stem.startswith(f"src/{code}/") for stem in stems):
                    yield place, f"{code}: the source has nothing of that name"
            elif re.fullmatch(r"LM\w+(::\w+)*", code):
                for word in code.split("::"):
                    if not re.search(rf"\b{word}\b", source()):
                        yield place, f"{code}: the source does not know {word}"


@cache
def settings_of_source() -> dict[str, tuple[str, str]]:
    """Type and default of every setting, as the documentation writes them."""
    header = (ROOT / "src/Utilities/LMUserDefaultsKeys.h").read_text()
    defaults = plistlib.loads((ROOT / "resources/RegistrationDefaults.plist").read_bytes())
    found = {}
    for key, kind in re.findall(r"LM_KEY\((\w+)\);\s*///<\s*(\w+)", header):
        value = defaults.get(key)
        text = "empty" if value in (None, []) else str(value).lower() if isinstance(value, bool) else f"{value:g}"
        found[key] = (TYPES[kind], text)
    for key in defaults:
        found.setdefault(key, ("?", "?"))
    return found


def check_settings(documents: Iterable[Document]) -> Iterator[Problem]:
    wanted, seen = settings_of_source(), set()
    for row in (row for document in documents for row in document.rows if "Setting" in row.cells):
        key = code_of(row.cells["Setting"])
        seen.add(key)
        written = (row.cells["Type"], row.cells["Default"].strip("`"))
        if key not in wanted:
            yield row.place, f"{key} is no setting"
        elif written != wanted[key]:
            yield row.place, f"{key} is {' '.join(wanted[key])}, not {' '.join(written)}"
    for key in wanted.keys() - seen:
        yield "LMUserDefaultsKeys.h", f"no document says what {key} is"


def check_methods(documents: Iterable[Document]) -> Iterator[Problem]:
    interface = ElementTree.parse(ROOT / "resources/org.rook.Rook1.xml").find("interface")
    wanted = {}
    for member in interface if interface is not None else ():
        kinds = {"in": "", "out": ""}
        for argument in member.findall("arg"):
            kinds[argument.get("direction", "in")] += argument.get("type", "")
        if member.tag in ("method", "property"):
            wanted[member.get("name")] = (kinds["in"], kinds["out"] or member.get("type", ""))
    seen = set()
    for row in (row for document in documents for row in document.rows if "Method" in row.cells):
        name = code_of(row.cells["Method"])
        seen.add(name)
        written = (code_of(row.cells["Takes"]), code_of(row.cells["Answers"]))
        if wanted.get(name) != written:
            yield row.place, f"{name} is {wanted.get(name)}, not {written}"
    for name in wanted.keys() - seen:
        yield "org.rook.Rook1.xml", f"no document says what {name} does"


# What docs/security.md promises not to do, and the one file that is allowed to.
FORBIDDEN = {
    r"(?<!QLocale::)\b(system|popen|exec[lv]p?e?|v?fork)\s*\(|\bQProcess\b|QDesktopServices": "starts a program",
    r"\bposix_spawnp?\s*\(": "starts a program",
    r"\bQ(Network|Tcp|Udp|Ssl|Local(Server|Socket))\w*|[^:\w]::(socket|connect|bind|listen)\s*\(": "opens a connection",
}
ALLOWED = "src/Model/LMShellScript.cpp"


def check_promises(_: Iterable[Document]) -> Iterator[Problem]:
    for name in tracked():
        if not name.startswith("src/") or not name.endswith((".cpp", ".h")):
            continue
        for number, line in enumerate((ROOT / name).read_text().splitlines(), 1):
            for pattern, what in FORBIDDEN.items():
                if re.search(pattern, line.split("//")[0]) and not (name == ALLOWED and "posix_spawn" in line):
                    yield f"{name}:{number}", f"{what}, which docs/security.md says Rook does not do: {line.strip()}"


def check_written(documents: list[Document]) -> list[Problem]:
    checks = (check_links, check_blocks, check_scripts, check_paths, check_names, check_settings, check_methods,
              check_promises)
    return [problem for check in checks for problem in check(documents)]
