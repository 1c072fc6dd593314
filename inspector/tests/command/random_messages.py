"""Random messages of the 40 kinds, and damaged ones."""
import random

# Markup, letters of several bytes, a change of direction, a zero byte, and what is no UTF-8.
CHARACTERS = b"abc\xc3\xa9\x00\"<&\xe2\x80\xae\xff"


def varint(value):
    content = bytearray()
    while value > 0x7F:
        content.append(value & 0x7F | 0x80)
        value >>= 7
    content.append(value)
    return bytes(content)


class RandomMessages:
    """The same ones for the same seed. `schema` has the fields of each message, as `mava-tum list --json` prints them."""

    def __init__(self, seed, schema):
        self.random = random.Random(seed)
        self.schema = schema

    def value(self, field):
        kind = field["kind"]
        if kind == "varint":
            return varint(self.random.getrandbits(self.random.choice([1, 3, 7, 14, 31, 64])))
        if kind == "fixed32":
            return self.random.randbytes(4)
        if "record" in kind:
            inner = self.message(field["message"])
        elif kind == "bytes":
            inner = self.random.randbytes(self.random.choice([0, 3, 16]))
        else:
            inner = bytes(self.random.choices(CHARACTERS, k=self.random.randint(0, 12)))
        return varint(len(inner)) + inner

    def message(self, name):
        content = b""
        for field in self.schema[name]:
            wire_type = {"varint": 0, "fixed32": 5}.get(field["kind"], 2)
            repeated = self.random.randint(1, 3) if "array" in field["kind"] else 1
            if self.random.random() < 0.4:
                for _ in range(repeated):
                    content += varint(field["number"] << 3 | wire_type) + self.value(field)
        return content

    def damaged(self, content):
        position = self.random.randrange(len(content) + 1)
        before, after = content[:position], content[position:]
        return self.random.choice([
            before,
            before + self.random.randbytes(1) + after[1:],
            before + self.random.randbytes(self.random.randint(1, 3)) + after,
            before + after[:self.random.randint(1, 12)] + after,
            content + content,
        ])

    def maybe_damaged(self, name):
        content = self.message(name)
        for _ in range(self.random.choice([0, 0, 1, 2])):
            content = self.damaged(content)
        return content

    def several(self, name, count):
        return [self.maybe_damaged(name) for _ in range(count)]
