"""The public headers as plain data: records with their members, functions, constants.

The headers are written by one hand and in one way, so a few patterns read them; whatever does not fit a pattern stops
the build with its place. They are read in the order in which `mava_tum.h` includes them."""

from __future__ import annotations

import re
from dataclasses import dataclass, field
from pathlib import Path

INCLUDE = re.compile(r'^#include "([^"]+)"', re.MULTILINE)
COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)
FOR_CXX_ONLY = re.compile(r"^#ifdef __cplusplus$.*?^#endif$", re.DOTALL | re.MULTILINE)
DIRECTIVE = re.compile(r"^#.*$", re.MULTILINE)

RECORD = re.compile(r"^typedef struct (\w+) \{\n(.*?)^\} (\w+);", re.DOTALL | re.MULTILINE)
# A declaration with the comments above it up to its semicolon, and the comment that ends the same line.
MEMBER = re.compile(r"((?:/\*.*?\*/|[^;/])+);[ \t]*(/\*.*?\*/)?", re.DOTALL)
DECLARATOR = re.compile(r"(?:const )?(?:struct )?(\w+)\s*(\**)\s*(\w+)((?:\[\w+\])*)")
FUNCTION = re.compile(r"\bMAVA_TUM_API\s+([^;()]*?)\b(\w+)\s*\(([^;]*?)\)\s*;", re.DOTALL)
ENUM = re.compile(r"\benum\s*\{(.*?)\}\s*;", re.DOTALL)
# An enumerator, and the comment on the lines of its own before it.
ENUMERATOR = re.compile(r"(?:^ *(/\*(?:(?!\*/).)*\*/)\s*)?\b([A-Z][A-Z0-9_]*) = (-?\d+)(?: << (\d+))?",
                        re.DOTALL | re.MULTILINE)


class HeaderError(Exception):
    """A header says something that is not understood here."""


@dataclass(frozen=True)
class Member:
    """A member of a record. `comment` is the one that stands behind it on its line."""

    name: str
    c_type: str
    pointers: int
    sizes: tuple[int, ...]
    comment: str


@dataclass(frozen=True)
class Constant:
    """An enumerator. `comment` is the one before it."""

    value: int
    comment: str


@dataclass
class Headers:
    """All that the headers declare. A function is the list of its parameters, each a C type and a name."""

    declarations: str = ""
    records: dict[str, list[Member]] = field(default_factory=dict)
    functions: dict[str, list[tuple[str, str]]] = field(default_factory=dict)
    constants: dict[str, Constant] = field(default_factory=dict)


def plain_text(comment: str | None) -> str:
    """What a comment says, on one line."""
    text = re.sub(r"^/\*+<?|\*/$|^\s*\*(?!/)", "", comment or "", flags=re.MULTILINE)
    return " ".join(text.split())


def without_comments(text: str) -> str:
    return COMMENT.sub(" ", text)


def files_in_order(folder: Path, name: str, seen: list[str]) -> list[str]:
    """`name` and what it includes, each once, and what is included first."""
    if name in seen:
        return seen
    for included in INCLUDE.findall((folder / name).read_text(encoding="utf-8")):
        files_in_order(folder, included, seen)
    seen.append(name)
    return seen


def read_constants(text: str, headers: Headers) -> None:
    for body in ENUM.findall(text):
        for comment, name, value, shift in ENUMERATOR.findall(body):
            headers.constants[name] = Constant(int(value) << int(shift or 0), plain_text(comment))


def size_of_dimension(dimension: str, headers: Headers) -> int:
    return int(dimension) if dimension.isdigit() else headers.constants[dimension].value


def read_member(declaration: str, comment: str, headers: Headers) -> Member:
    parts = DECLARATOR.fullmatch(" ".join(without_comments(declaration).split()))
    if not parts:
        raise HeaderError(f"this declaration is not understood: {declaration.strip()}")
    c_type, pointers, name, dimensions = parts.groups()
    sizes = tuple(size_of_dimension(each, headers) for each in re.findall(r"\[(\w+)\]", dimensions))
    return Member(name, c_type, len(pointers), sizes, plain_text(comment))


def read_records(text: str, headers: Headers) -> None:
    for tag, body, name in RECORD.findall(text):
        if name not in (tag, tag + "_t"):
            raise HeaderError(f"struct {tag} is called {name}")
        headers.records[name] = [read_member(declaration, comment, headers)
                                 for declaration, comment in MEMBER.findall(body)]


def read_parameter(text: str) -> tuple[str, str]:
    parts = re.fullmatch(r"(.*?)(\w+)", " ".join(text.split()))
    if not parts:
        raise HeaderError(f"this parameter is not understood: {text.strip()}")
    return parts[1].replace(" *", "*").strip(), parts[2]


def read_functions(text: str, headers: Headers) -> None:
    for _, name, parameters in FUNCTION.findall(without_comments(text)):
        headers.functions[name] = [read_parameter(each) for each in parameters.split(",")]


def c_declarations(text: str) -> str:
    """The header as declarations alone: without comments, directives and what only C++ sees."""
    text = DIRECTIVE.sub("", FOR_CXX_ONLY.sub("", without_comments(text)))
    lines = (line.rstrip() for line in text.replace("MAVA_TUM_API ", "").splitlines())
    return "\n".join(line for line in lines if line) + "\n"


def read_header(text: str, headers: Headers) -> None:
    read_constants(text, headers)
    read_records(text, headers)
    read_functions(text, headers)
    headers.declarations += c_declarations(text)


def read_headers(folder: Path) -> Headers:
    """Reads `mava_tum.h` in `folder` and all that it includes."""
    headers = Headers()
    for name in files_in_order(folder, "mava_tum.h", []):
        try:
            read_header((folder / name).read_text(encoding="utf-8"), headers)
        except (HeaderError, KeyError) as error:
            raise HeaderError(f"{folder / name}: {error}") from error
    return headers
