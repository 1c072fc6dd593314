"""The bytes of a session on the wire: as one strip, and field by field."""
from dataclasses import dataclass, field
import re

from svg_picture import Picture

CELL, STRIP_CELL, ROW = 25, 15.6, 30
LEFT, CELLS_LEFT, STEP = 24, 66, 25
WORDS_LEFT = 566

# The schema that the tests use against other implementations.
MESSAGE = re.compile(r"^message (\w+) \{(.*?)^\}", re.MULTILINE | re.DOTALL)
FIELD = re.compile(r"^  (?:optional|repeated) (\w+) (\w+) = (\d+);(.*)$", re.MULTILINE)


@dataclass
class Schema:
    """messages[name][number] is a name and a kind: uint32, fixed32, bytes, text or another message."""

    messages: dict

    @classmethod
    def read(cls, path):
        with open(path, encoding="utf-8") as file:
            content = file.read()
        return cls({name: {int(number): (member, "text" if "text" in comment else kind)
                           for kind, member, number, comment in FIELD.findall(body)}
                    for name, body in MESSAGE.findall(content)})


@dataclass
class WireField:
    """One field on the wire: its offset, its parts, and its nested fields."""

    start: int
    depth: int
    number: int
    name: str
    kind: str
    tag: bytes
    length: bytes
    value: bytes
    nested: list = field(default_factory=list)

    def meaning(self):
        if self.nested:
            return f"record, {len(self.value)} bytes"
        if self.kind == "text":
            return f"{len(self.value)} characters"
        if self.kind == "fixed32":
            return ".".join(str(byte) for byte in self.value)
        if self.kind.startswith("uint"):
            number = varint_value(self.value)
            return f"= {number:#x}" if "mask" in self.name else f"= {number}"
        return f"record, {len(self.value)} bytes" if self.length else ""


def varint_value(encoded):
    return sum((byte & 0x7F) << 7 * i for i, byte in enumerate(encoded))


def take_varint(wire, at):
    end = at
    while wire[end] & 0x80:
        end += 1
    return wire[at:end + 1]


def take_apart(wire, schema, message, start=0, depth=0):
    """The fields of `wire`, which starts at `start` of the whole message, in order."""
    fields, at = [], 0
    while at < len(wire):
        tag = take_varint(wire, at)
        number, wire_type = varint_value(tag) >> 3, varint_value(tag) & 7
        name, kind = schema.messages[message][number]
        behind_tag = at + len(tag)
        length = take_varint(wire, behind_tag) if wire_type == 2 else b""
        begin = behind_tag + len(length)
        size = {0: lambda: len(take_varint(wire, begin)), 2: lambda: varint_value(length), 5: lambda: 4}[wire_type]()
        value = wire[begin:begin + size]
        nested = take_apart(value, schema, kind, start + begin, depth + 1) if kind in schema.messages else []
        fields.append(WireField(start + at, depth, number, name, kind, tag, length, value, nested))
        at = begin + size
    return fields


def flattened(fields):
    for each in fields:
        yield each
        yield from flattened(each.nested)


def roles(fields):
    """The role of every byte, from the first to the last."""
    found = {}
    for each in flattened(fields):
        at = each.start
        for role, part in (("tag", each.tag), ("length", each.length), ("value", each.value)):
            for _ in part:
                found[at] = role
                at += 1
    return [found[at] for at in sorted(found)]


def draw_strip(picture, fields, top):
    every = roles(fields)
    for at, role in enumerate(every):
        picture.rect(LEFT + at * STRIP_CELL, top, STRIP_CELL, 20, role, radius=0)
    for at in range(0, len(every), 8):
        picture.text(LEFT + at * STRIP_CELL, top + 34, str(at), "small faint code")


def draw_legend(picture, top):
    for x, role, words in ((24, "tag", "tag: field number x 8 + wire type"), (300, "length", "length in bytes"),
                           (470, "value", "value")):
        picture.rect(x, top, 18, 14, role)
        picture.text(x + 26, top + 12, words, "small")


def draw_cells(picture, each, x, y):
    """Tag and length, and the value if it has no nested fields."""
    parts = [("tag", each.tag), ("length", each.length), ("value", b"" if each.nested else each.value)]
    for role, part in parts:
        for byte in part:
            picture.rect(x, y, CELL, 22, role, radius=0)
            picture.text(x + CELL / 2, y + 16, f"{byte:02X}", "code", "middle")
            letter = chr(byte) if each.kind == "text" and role == "value" else ""
            picture.text(x + CELL / 2, y + 32, letter, "small faint code", "middle")
            x += CELL


def height_of(each):
    """A text has its letters below its bytes."""
    return ROW + 8 if each.kind == "text" else ROW


def draw_rows(picture, fields, top):
    y = top
    for each in flattened(fields):
        x = CELLS_LEFT + each.depth * STEP
        picture.text(LEFT, y + 16, str(each.start), "small faint code")
        draw_cells(picture, each, x, y)
        picture.text(WORDS_LEFT + each.depth * 14, y + 16, f"{each.number}  {each.name}", "code")
        picture.text(856, y + 16, each.meaning(), "small faint", "end")
        if each.nested:
            last = y + sum(height_of(inner) for inner in list(flattened([each]))[:-1])
            picture.line([(x + CELL / 2, y + 22), (x + CELL / 2, last + 11), (x + CELL - 2, last + 11)], "length")
        y += height_of(each)
    return y


def draw(wire, schema):
    fields = take_apart(wire, schema, "session_context")
    top = 148
    height = top + sum(height_of(each) for each in flattened(fields)) + 14
    picture = Picture(880, height, f"A session on the wire: {len(wire)} bytes",
                      "Every byte of the message that the first example sends, as tag, length or value, with the field "
                      "that it belongs to. Nested records are indented below the field that holds them.")
    draw_strip(picture, fields, 44)
    draw_legend(picture, 92)
    picture.text(LEFT, top - 14, "at", "small faint")
    picture.text(CELLS_LEFT, top - 14, "bytes, in hex", "small faint")
    picture.text(WORDS_LEFT, top - 14, "field of session_context; indented: of the record in it", "small faint")
    draw_rows(picture, fields, top)
    return picture
