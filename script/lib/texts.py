"""Finds the texts in C++ sources, and reads and writes the catalogues that translate them."""
import dataclasses
import pathlib
import re
import xml.etree.ElementTree as ElementTree
from xml.sax.saxutils import escape

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
CATALOGUES = ROOT / "resources/translations"
LANGUAGES = ("ar", "de", "es", "fr", "ja")
CONTEXT = "Rook"
TO_ROOT = "../../"  # Catalogues name files from where they lie themselves.
MARKERS = ("LMLocalized", "LMLocalizable")

TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | R"(?P<delimiter>[^(\s]*)\((?P<raw>.*?)\)(?P=delimiter)"
  | (?:u8|u|U|L)?"(?P<string>(?:[^"\\\n]|\\.)*)"
  | '(?:[^'\\\n]|\\.)+'
  | (?P<word>[A-Za-z_]\w*)
  | (?P<sign>[(),;{}]|\S)
""", re.VERBOSE | re.DOTALL)
ESCAPES = {"n": "\n", "t": "\t", "0": "\0"}
WRAPPERS = {"QStringLiteral", "QLatin1String", "QString", "fromUtf8", "tr"}


@dataclasses.dataclass(frozen=True)
class Literal:
    text: str
    file: str
    line: int
    calls: tuple[str, ...]  # The functions it is an argument of, the outermost first.
    argument: int  # Which argument of the innermost of them, from 0.

    @property
    def callee(self) -> str:
        """The innermost function that is more than a way to write a literal."""
        return next((name for name in reversed(self.calls) if name not in WRAPPERS), "")

    @property
    def is_marked(self) -> bool:
        return bool(self.calls) and self.calls[-1] in MARKERS


def unescaped(text: str) -> str:
    return re.sub(r"\\(.)", lambda match: ESCAPES.get(match[1], match[1]), text)


def literals(source: str, file: str) -> list[Literal]:
    """Every string literal of a C++ source; neighbours that the compiler joins are one."""
    found: list[Literal] = []
    open_calls: list[list] = []  # Name and number of the current argument.
    word = ""
    is_neighbour = False
    for match in TOKEN.finditer(source):
        if match["comment"] is not None:
            continue
        text = match["raw"] if match["raw"] is not None else match["string"]
        if text is not None:
            text = text if match["raw"] is not None else unescaped(text)
            if is_neighbour:
                found[-1] = dataclasses.replace(found[-1], text=found[-1].text + text)
            else:
                calls = tuple(name for name, _ in open_calls)
                argument = open_calls[-1][1] if open_calls else 0
                line = source.count("\n", 0, match.start()) + 1
                found.append(Literal(text, file, line, calls, argument))
        elif match["sign"] == "(":
            open_calls.append([word, 0])
        elif match["sign"] == ")" and open_calls:
            open_calls.pop()
        elif match["sign"] == "," and open_calls:
            open_calls[-1][1] += 1
        is_neighbour = text is not None
        word = match["word"] or ""
    return found


def sources(root: pathlib.Path = ROOT) -> list[pathlib.Path]:
    return sorted([*(root / "src").rglob("*.h"), *(root / "src").rglob("*.cpp")])


def all_literals(root: pathlib.Path = ROOT) -> list[Literal]:
    return [literal for path in sources(root)
            for literal in literals(path.read_text(), path.relative_to(root).as_posix())]


def texts(found: list[Literal]) -> dict[tuple[str, str], list[str]]:
    """The texts for users: text and sense, and the files they stand in."""
    result: dict[tuple[str, str], list[str]] = {}
    for index, literal in enumerate(found):
        if not literal.is_marked or literal.argument != 0:
            continue
        following = found[index + 1] if index + 1 < len(found) else literal
        has_sense = (following.argument == 1 and following.is_marked and following.calls == literal.calls
                     and following.file == literal.file)
        files = result.setdefault((literal.text, following.text if has_sense else ""), [])
        if literal.file not in files:
            files.append(literal.file)
    return result


@dataclasses.dataclass
class Message:
    source: str
    sense: str
    translation: str
    is_finished: bool
    files: list[str]


def path_of(language: str) -> pathlib.Path:
    return CATALOGUES / f"rook_{language}.ts"


def read_catalogue(path: pathlib.Path) -> list[Message]:
    messages = []
    for message in ElementTree.parse(path).getroot().iterfind("context/message"):
        translation = message.find("translation")
        messages.append(Message(message.findtext("source") or "", message.findtext("comment") or "",
                                translation.text or "", translation.get("type") is None,
                                [location.get("filename").removeprefix(TO_ROOT)
                                 for location in message.iterfind("location")]))
    return messages


def write_catalogue(path: pathlib.Path, language: str, messages: list[Message]) -> None:
    lines = ['<?xml version="1.0" encoding="utf-8"?>', "<!DOCTYPE TS>",
             f'<TS version="2.1" language="{language}" sourcelanguage="en">', "<context>",
             f"    <name>{CONTEXT}</name>"]
    for message in messages:
        lines.append("    <message>")
        lines += [f'        <location filename="{TO_ROOT}{file}"/>' for file in message.files]
        lines.append(f"        <source>{escape(message.source)}</source>")
        if message.sense:
            lines.append(f"        <comment>{escape(message.sense)}</comment>")
        state = "" if message.is_finished else ' type="unfinished"'
        lines += [f"        <translation{state}>{escape(message.translation)}</translation>", "    </message>"]
    path.write_text("\n".join([*lines, "</context>", "</TS>", ""]))
