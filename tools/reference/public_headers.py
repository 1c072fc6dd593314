"""What the public headers declare, each declaration with the comment above it."""
import pathlib
import re
from dataclasses import dataclass, field

COMMENT = r"(?P<comment>/\*(?:(?!\*/)[\s\S])*\*/)\n"
FUNCTION = re.compile(COMMENT + r"MAVA_TUM_API (?P<type>[\w ]*?[\s*]+)(?P<name>\w+)\(\s*(?P<parameters>[^;]*)\);")
RECORD = re.compile(COMMENT + r"typedef struct (?P<tag>\w+) \{\n(?P<members>[\s\S]*?)\n\} (?P<name>\w+);")
ENUM = re.compile(COMMENT + r"enum \{\s*(?P<values>[^}]*?)\s*\};")
RESULT_CODE = re.compile(r"(?P<before>(?:/\*(?:(?!\*/)[\s\S])*\*/\s+)?)(?P<name>MAVA_TUM_\w+) = (?P<value>-?\d+),?"
                         r"(?: /\* (?P<behind>.*) \*/)?")


@dataclass
class Function:
    name: str
    type: str  # "nal_queue_node_t *", "int32_t "
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
    functions: list = field(default_factory=list)
    records: list = field(default_factory=list)
    enums: list = field(default_factory=list)


def parameters_of(text):
    return [" ".join(parameter.split()) for parameter in text.split(",")]


def read_header(path, root):
    text = path.read_text(encoding="utf-8")
    header = Header(path.relative_to(root).as_posix(), text[:text.index("*/") + 2])
    header.functions = [Function(found["name"], found["type"], parameters_of(found["parameters"]), found["comment"])
                        for found in FUNCTION.finditer(text)]
    header.records = [Record(found["name"], found["tag"], found["members"], found["comment"])
                      for found in RECORD.finditer(text)]
    header.enums = [Enum(found["values"], found["comment"]) for found in ENUM.finditer(text)]
    return header


def read_headers(include):
    root = pathlib.Path(include)
    return [read_header(path, root) for folder in ("mava_tum", "tum_nal")
            for path in sorted((root / folder).glob("*.h"))]


def result_codes(contract):
    """name -> (value, comment) of the codes that decode and duplicate return."""
    values = next(enum.values for enum in contract.enums if "MAVA_TUM_OK" in enum.values)
    return {found["name"]: (found["value"], found["behind"] or found["before"])
            for found in RESULT_CODE.finditer(values)}
