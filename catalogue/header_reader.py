"""Reads the public headers: every declaration, with the comments that belong to it.

The headers use few constructs. At any other, the reader stops with file and line. The compiler checks every type and
member again that it found (docs/decisions/0011-one-catalogue.md)."""

from __future__ import annotations

import re
from dataclasses import dataclass, field
from pathlib import Path

# Public headers without exported functions.
NOT_OF_THE_LIBRARY = {"tum_nal/message_stream.h"}

COMMENT = r"/\*(?:(?!\*/).)*\*/"
DIVIDER = re.compile(r"/\* ---- (\w+) -+ \*/")

# The constructs of a header. A pattern without groups declares nothing.
ITEMS = {kind: re.compile(pattern, re.DOTALL) for kind, pattern in {
    "space": r"\s+",
    "comment": COMMENT,
    "include": r'#include ["<](?P<name>[\w./]+)[">]\n',
    "guard": r"#ifndef (?P<name>\w+_H)\n#define (?P=name)\n",
    "macro": r"#define MAVA_TUM_VERSION\w* [^\n]+\n",
    "end": r"#endif\s*\Z",
    "extern": r'#ifdef __cplusplus\n(?:extern "C" \{|\})\n#endif\n',
    "export": r"#if !defined\(MAVA_TUM_API\)[^\n]*\n#define MAVA_TUM_API [^\n]+\n#elif [^\n]*\n#define MAVA_TUM_API\n#endif\n",
    "record": r"typedef struct (?P<tag>\w+) \{\n(?P<body>.*?)\n\} (?P<name>\w+);",
    "callback": r"typedef (?P<type>[\w ]*?[\s*]+)(?P<name>\(\*\w+\))\((?P<parameters>[^;()]*)\);",
    "function": r"MAVA_TUM_API (?P<type>[\w ]*?[\s*]+)(?P<name>\w+)\(\s*(?P<parameters>[^;()]*)\);",
    "enum": r"enum \{\s*(?P<values>[^}]*?)\s*\};",
}.items()}
MEMBER = re.compile(r"(?:const )?(?:struct )?(?P<type>\w+) (?P<pointers>\**)(?P<name>\w+)(?P<sizes>(?:\[\w+\])*);"
                    rf"(?:[ ]*(?P<comment>{COMMENT}))?", re.DOTALL)
ENUMERATOR = re.compile(rf"(?P<above>(?:{COMMENT})?)\s*(?P<name>[A-Z][A-Z0-9_]*) = (?P<value>-?\d+)"
                        rf"(?: << (?P<shift>\d+))?,?[ ]*(?P<behind>(?:{COMMENT})?)", re.DOTALL)
PARAMETER = re.compile(r"(?P<type>(?:const )?\w+ \**)(?P<name>\w+)")


class HeaderError(Exception):
    """A header has a construct that the reader does not know."""


@dataclass(frozen=True)
class Member:
    """A member of a record. `comment` follows it, on one line; `sizes` are those of an array."""

    name: str
    c_type: str
    pointers: int
    sizes: tuple[int, ...]
    comment: str


@dataclass(frozen=True)
class Declaration:
    """`comment` is directly above it, as in the header; `divider` is the title of the part of the header."""

    name: str
    comment: str
    divider: str
    text: str


@dataclass(frozen=True)
class Record(Declaration):
    tag: str
    body: str  # its members, as in the header
    members: list[Member]


@dataclass(frozen=True)
class Function(Declaration):
    type: str  # "int32_t ", "nal_queue_node_t *"; of a callback's type "typedef void "
    parameters: list[str]  # "const uint8_t *data"

    def named_parameters(self) -> list[tuple[str, str]]:
        """Type and name of each: ("const uint8_t*", "data")."""
        parts = [PARAMETER.fullmatch(each) for each in self.parameters if each != "void"]
        if not all(parts):
            raise HeaderError(f"the parameters of {self.name} are not understood")
        return [(each["type"].replace(" *", "*").strip(), each["name"]) for each in parts]


@dataclass(frozen=True)
class Constant:
    """An enumerator. `comment` is the one behind it or above it, as in the header."""

    value: int
    comment: str


@dataclass(frozen=True)
class Enum(Declaration):
    constants: dict[str, Constant]

    @property
    def values(self) -> str:
        """As in the header."""
        return ITEMS["enum"].match(self.text)["values"]


@dataclass
class Header:
    """What a header declares, in its order. `path` is as in an #include, `comment` the first one of the file."""

    path: str
    comment: str = ""
    includes: list[str] = field(default_factory=list)
    declarations: list[Declaration] = field(default_factory=list)
    dividers: list[str] = field(default_factory=list)

    def all_of(self, kind: type) -> list:
        return [each for each in self.declarations if type(each) is kind]

    @property
    def stem(self) -> str:
        return Path(self.path).stem

    @property
    def records(self) -> list[Record]:
        return self.all_of(Record)

    @property
    def enums(self) -> list[Enum]:
        return self.all_of(Enum)

    @property
    def functions(self) -> list[Function]:
        return [each for each in self.all_of(Function) if not each.type.startswith("typedef")]

    @property
    def callbacks(self) -> list[Function]:
        return [each for each in self.all_of(Function) if each.type.startswith("typedef")]


def plain_text(comment: str) -> str:
    """The text of a comment, on one line."""
    text = re.sub(r"^/\*|\*/$|^\s*\*(?!/)", "", comment, flags=re.MULTILINE)
    return " ".join(text.split())


def without_comments(text: str) -> str:
    return re.sub(COMMENT, " ", text, flags=re.DOTALL)


def one_after_the_other(text: str, patterns: list[re.Pattern[str]], what: str):
    """Each match, without a gap between them."""
    position = 0
    while position < len(text):
        found = next((match for match in (each.match(text, position) for each in patterns) if match), None)
        if not found:
            line = text[position:].splitlines()[0]
            raise HeaderError(f"{what} is not understood: {line.strip()}")
        yield found
        position = found.end()


class HeaderReader:
    """Reads headers one after the other: the sizes of arrays are constants of earlier ones."""

    def __init__(self) -> None:
        self.constants: dict[str, Constant] = {}
        self.readers = {"record": self.read_record, "callback": self.read_callback, "function": self.read_function,
                        "enum": self.read_enum}

    def read(self, path: str, text: str) -> Header:
        header = Header(path)
        position = 0
        above = ""  # the comment that ends on the line before
        while position < len(text):
            kind, found = self.item_at(text, position, path)
            try:
                above = self.take(kind, found, above, header)
            except HeaderError as error:
                raise HeaderError(f"{self.place(path, text, position)}: {error}") from error
            position = found.end()
        return header

    @staticmethod
    def place(path: str, text: str, position: int) -> str:
        return f"{path}:{text.count(chr(10), 0, position) + 1}"

    def item_at(self, text: str, position: int, path: str) -> tuple[str, re.Match[str]]:
        for kind, pattern in ITEMS.items():
            found = pattern.match(text, position)
            if found:
                return kind, found
        line = text[position:].splitlines()[0]
        raise HeaderError(f"{self.place(path, text, position)}: this is not understood: {line}")

    def take(self, kind: str, found: re.Match[str], above: str, header: Header) -> str:
        """Adds the declaration to the header. Returns the comment that may belong to the next one."""
        text = found.group()
        if kind == "space":
            return above if text == "\n" else ""
        if kind == "comment":
            header.comment = header.comment or text
            header.dividers += DIVIDER.findall(text)
            return text
        if kind == "include":
            header.includes.append(found["name"])
        elif kind in self.readers:
            divider = header.dividers[-1] if header.dividers else ""
            name = found.groupdict().get("name", "")
            header.declarations.append(self.readers[kind](found, (name, above, divider, text)))
        return ""

    def read_record(self, found: re.Match[str], common: tuple) -> Record:
        if found["name"] not in (found["tag"], found["tag"] + "_t"):
            raise HeaderError(f"struct {found['tag']} is called {found['name']}")
        items = one_after_the_other(found["body"], [ITEMS["space"], ITEMS["comment"], MEMBER],
                                    f"a member of {found['name']}")
        members = [self.read_member(each) for each in items if each.re is MEMBER]
        return Record(*common, found["tag"], found["body"], members)

    def size_of(self, text: str) -> int:
        if text.isdigit():
            return int(text)
        if text not in self.constants:
            raise HeaderError(f"{text} is no constant of this header or of one before it")
        return self.constants[text].value

    def read_member(self, found: re.Match[str]) -> Member:
        sizes = tuple(self.size_of(each) for each in re.findall(r"\w+", found["sizes"]))
        return Member(found["name"], found["type"], len(found["pointers"]), sizes, plain_text(found["comment"] or ""))

    @staticmethod
    def read_function(found: re.Match[str], common: tuple) -> Function:
        parameters = [" ".join(each.split()) for each in without_comments(found["parameters"]).split(",")]
        return Function(*common, found["type"], parameters)

    def read_callback(self, found: re.Match[str], common: tuple) -> Function:
        declared = self.read_function(found, common)
        return Function(*common, "typedef " + declared.type, declared.parameters)

    def read_enum(self, found: re.Match[str], common: tuple) -> Enum:
        constants = {}
        for each in one_after_the_other(found["values"], [ITEMS["space"], ENUMERATOR], "a constant"):
            if each.re is ENUMERATOR:
                value = int(each["value"]) << int(each["shift"] or 0)
                constants[each["name"]] = Constant(value, each["behind"] or each["above"])
        self.constants.update(constants)
        return Enum(*common, constants)


def read_headers(folder: Path, first: str = "mava_tum.h") -> list[Header]:
    """`first` in `folder` and all headers that it includes, in the order of their dependencies. Another header is an
    error."""
    reader = HeaderReader()
    headers: dict[str, Header] = {}

    def read(path: str) -> None:
        text = (folder / path).read_text(encoding="utf-8")
        for included in re.findall(r'^#include "([^"]+)"', text, re.MULTILINE):
            if included not in headers:
                read(included)
        headers[path] = reader.read(path, text)

    read(first)
    for path in sorted(folder.rglob("*.h")):
        if path.relative_to(folder).as_posix() not in {*headers, *NOT_OF_THE_LIBRARY}:
            raise HeaderError(f"{path}: {first} does not include it")
    return list(headers.values())
