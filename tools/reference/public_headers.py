"""What the public headers declare, each declaration with the comment above it."""
import pathlib
import re
from dataclasses import dataclass

from comment_blocks import blocks_of, sentence

COMMENT = r"(?P<comment>/\*(?:(?!\*/)[\s\S])*\*/)\n"
FUNCTION = re.compile(COMMENT + r"MAVA_TUM_API (?P<type>[\w ]*?[\s*]+)(?P<name>\w+)\(\s*(?P<parameters>[^;]*)\);")
CALLBACK = re.compile(COMMENT + r"(?P<type>typedef [\w ]*?[\s*]+)(?P<name>\(\*\w+\))\((?P<parameters>[^;]*)\);")
RECORD = re.compile(COMMENT + r"typedef struct (?P<tag>\w+) \{\n(?P<members>[\s\S]*?)\n\} (?P<name>\w+);")
ENUM = re.compile(COMMENT + r"enum \{\s*(?P<values>[^}]*?)\s*\};")
RESULT_CODE = re.compile(r"(?P<before>(?:/\*(?:(?!\*/)[\s\S])*\*/\s+)?)(?P<name>MAVA_TUM_\w+) = (?P<value>-?\d+),?"
                         r"(?: /\* (?P<behind>.*) \*/)?")
DIVIDER = re.compile(r"^/\* ---- (\w+) -+ \*/$", re.M)


@dataclass
class Function:
    name: str
    type: str  # "nal_queue_node_t *", "int32_t "; of a callback's type "typedef void "
    parameters: list  # "const uint8_t *data"
    comment: str


@dataclass
class Record:
    name: str
    tag: str  # the name behind "struct", inside of the record
    members: str  # as in the header
    comment: str


@dataclass
class Enum:
    values: str
    comment: str


@dataclass
class Header:
    path: str  # as in an #include
    comment: str
    functions: list
    callbacks: list
    records: list
    enums: list


def parameters_of(text):
    return [" ".join(parameter.split()) for parameter in text.split(",")]


def functions_in(text, pattern):
    return [Function(found["name"], found["type"], parameters_of(found["parameters"]), found["comment"])
            for found in pattern.finditer(text)]


def header_of(path, comment, text):
    records = [Record(found["name"], found["tag"], found["members"], found["comment"])
               for found in RECORD.finditer(text)]
    enums = [Enum(found["values"], found["comment"]) for found in ENUM.finditer(text)]
    return Header(path, comment, functions_in(text, FUNCTION), functions_in(text, CALLBACK), records, enums)


def read_header(path, root):
    text = path.read_text(encoding="utf-8")
    return header_of(path.relative_to(root).as_posix(), text[:text.index("*/") + 2], text)


def read_headers(include):
    root = pathlib.Path(include)
    return [read_header(path, root) for folder in ("mava_tum", "tum_nal")
            for path in sorted((root / folder).glob("*.h"))]


def read_parts(path):
    """What a header declares above its first divider, then what below each: as the headers that they could be."""
    text = path.read_text(encoding="utf-8")
    above, *parts = DIVIDER.split(text)
    start = header_of(path.name, text[:text.index("*/") + 2], above)
    # The list in the comment of the header says what its parts are about.
    subjects = dict(row for block in blocks_of(start.comment) for row in block.rows)
    return [start, *(header_of(path.name, sentence(subjects[title]), part)
                     for title, part in zip(parts[::2], parts[1::2]))]


def result_codes(header):
    """name -> (value, comment) of the codes that functions return: the first enumeration of the header."""
    values = header.enums[0].values
    return {found["name"]: (found["value"], found["behind"] or found["before"])
            for found in RESULT_CODE.finditer(values)}
