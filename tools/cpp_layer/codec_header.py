"""Reads the messages and their fields from a public header of the codec.

Each field's number and kind stand in the comment beside its member; what does not read as expected is refused, so that
no field is left out in silence.
"""
import re
from dataclasses import dataclass, field

STRUCT = re.compile(
    r"/\* (?P<summary>[^/]*?) \*/\n"
    r"typedef struct (?P<name>mava_tum_\w+) \{\n(?P<body>.*?)\n\} (?P=name);", re.S)
MEMBER = re.compile(r"^ +(?P<type>[\w ]+?) (?P<stars>\**)(?P<name>\w+);(?: +/\* (?P<comment>.*) \*/)?$")
COMMENT = re.compile(r"^(?P<number>\d+): (?P<kind>[^,]+), bit (?P<bit>\d+)(?:; (?P<note>.*))?$")
INCLUDE = re.compile(r'^#include "mava_tum/(\w+)\.h"$', re.M)

NUMBER_KINDS = ("varint", "64-bit varint", "fixed32")
ARRAY_KINDS = ("array of records", "array of texts")
OWNING_KINDS = ("text", "bytes") + ARRAY_KINDS
KINDS = NUMBER_KINDS + OWNING_KINDS + ("record",)


class HeaderError(Exception):
    """The header is not written as its neighbours are."""


@dataclass
class Field:
    number: int
    name: str
    kind: str
    type: str  # without the stars
    note: str
    count: str = ""  # of arrays: the member that counts the elements


@dataclass
class Message:
    record: str  # the structure's name
    summary: str
    fields: list = field(default_factory=list)

    @property
    def name(self):
        return self.record.removeprefix("mava_tum_")


@dataclass
class Header:
    stem: str
    summary: str
    includes: list  # stems of the headers whose messages it nests
    messages: list


def read_header(path):
    text = path.read_text(encoding="utf-8")
    messages = [read_message(match) for match in STRUCT.finditer(text)]
    declared = re.findall(r"^MAVA_TUM_API int32_t (mava_tum_\w+)_decode_ext\(", text, re.M)
    if [message.record for message in messages] != declared:
        raise HeaderError(f"{path}: the structures are not those that the functions decode")
    includes = [stem for stem in INCLUDE.findall(text) if stem != "codec_contract"]
    summary = re.match(r"/\* (.*?)\n \*\n", text, re.S).group(1)
    return Header(path.stem, summary, includes, messages)


def read_message(match):
    message = Message(match["name"], " ".join(match["summary"].replace("\n *", " ").split()))
    *members, mask = match["body"].split("\n")
    if not re.match(r"^ +uint(8|16|32)_t presence_mask;", mask):
        raise HeaderError(f"{message.record}: the last member is not the presence mask but '{mask.strip()}'")
    for line in members:
        add_member(message, line)
    return message


def add_member(message, line):
    """Adds a field, or the count of the array before it."""
    member = MEMBER.match(line)
    if not member:
        raise HeaderError(f"{message.record}: this is no member: '{line.strip()}'")
    array = message.fields[-1] if message.fields else None
    if array and array.kind in ARRAY_KINDS and not array.count:
        array.count = member["name"]
        return
    message.fields.append(read_field(message, member))


def read_field(message, member):
    place = f"{message.record}.{member['name']}"
    comment = COMMENT.match(member["comment"] or "")
    if not comment or comment["kind"] not in KINDS:
        raise HeaderError(f"{place}: the comment beside it does not say number, kind and bit")
    number = len(message.fields) + 1
    if (int(comment["number"]), int(comment["bit"])) != (number, number - 1):
        raise HeaderError(f"{place}: field {number} with bit {number - 1} should stand here")
    check_type(place, comment["kind"], member)
    return Field(number, member["name"], comment["kind"], member["type"], comment["note"] or "")


def check_type(place, kind, member):
    """The kind in words against the type that the compiler sees."""
    wanted = {
        "varint": r"uint32_t", "64-bit varint": r"uint64_t", "fixed32": r"uint32_t", "text": r"char\*",
        "bytes": r"mava_tum_bytes", "record": r"mava_tum_(?!bytes)\w+", "array of records": r"mava_tum_\w+\*",
        "array of texts": r"char\*\*",
    }[kind]
    if not re.fullmatch(wanted, member["type"] + member["stars"]):
        raise HeaderError(f"{place}: {kind} as {member['type']} {member['stars']}")


def owning_messages(headers):
    """The structures whose records can own memory, at any depth."""
    owning = set()
    for header in headers:
        for message in header.messages:
            if any(f.kind in OWNING_KINDS or f.type in owning for f in message.fields):
                owning.add(message.record)
    return owning


def in_order_of_inclusion(headers):
    """Each header after those that it includes."""
    by_stem = {header.stem: header for header in headers}
    ordered = []

    def place(header):
        for stem in header.includes:
            place(by_stem[stem])
        if header not in ordered:
            ordered.append(header)

    for header in headers:
        place(header)
    return ordered
