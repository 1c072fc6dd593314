"""Takes the bytes of a message apart, with the names of the schema that the tests use against other implementations."""
from dataclasses import dataclass, field
import re

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
    """One field on the wire: where it starts, its parts, and what is nested in it."""

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
