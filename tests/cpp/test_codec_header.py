#!/usr/bin/env python3
"""Compares the fields that are read from the C headers with the rows of the library's own field lists, and sees that a
header that is written otherwise is refused.

    test_codec_header.py <project root>
"""
import pathlib
import re
import sys
import tempfile
import unittest

ROOT = pathlib.Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(ROOT / "tools" / "cpp_layer"))

from codec_header import HeaderError, read_header  # noqa: E402

ROW_KINDS = {
    "varint": ("varint", "64-bit varint"), "fixed32": ("fixed32",), "bytes": ("bytes",), "text": ("text",),
    "record": ("record",), "record_array": ("array of records",), "text_array": ("array of texts",),
}
SCHEMA = re.compile(r"struct schema<(mava_tum_\w+)> \{(.*?)\n\};", re.S)
ROW = re.compile(r"(\w+)<(\d+), &self::(\w+)(?:, &self::(\w+))?>")


def library_fields():
    """Of each record the rows of its field list: kind, number, member, count."""
    fields = {}
    for path in (ROOT / "src" / "messages").iterdir():
        for record, body in SCHEMA.findall(path.read_text(encoding="utf-8")):
            fields[record] = [(kind, int(number), member, count) for kind, number, member, count in ROW.findall(body)]
    return fields


def header_messages():
    for path in (ROOT / "include" / "mava_tum").glob("*.h"):
        if path.stem != "codec_contract":
            yield from read_header(path).messages


class TestCodecHeader(unittest.TestCase):
    def test_the_fields_are_those_of_the_library(self):
        library = library_fields()
        messages = list(header_messages())
        self.assertEqual(len(messages), 40)
        self.assertEqual(sorted(message.record for message in messages), sorted(library))
        for message in messages:
            rows = library[message.record]
            self.assertEqual([(f.number, f.name, f.count) for f in message.fields], [row[1:] for row in rows])
            for field, row in zip(message.fields, rows):
                self.assertIn(field.kind, ROW_KINDS[row[0]], f"{message.record}.{field.name}")

    def refused(self, found, replaced, says):
        """A header in which `found` is replaced is refused with a message that has `says` in it."""
        text = (ROOT / "include" / "mava_tum" / "subscriber_records.h").read_text(encoding="utf-8")
        self.assertIn(found, text)
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "subscriber_records.h"
            path.write_text(text.replace(found, replaced, 1), encoding="utf-8")
            with self.assertRaisesRegex(HeaderError, says):
                read_header(path)

    def test_a_kind_without_a_meaning_is_refused(self):
        self.refused("1: varint, bit 0", "1: zigzag, bit 0", "does not say number, kind and bit")

    def test_a_number_that_is_out_of_order_is_refused(self):
        self.refused("2: fixed32, bit 1", "3: fixed32, bit 2", "field 2 with bit 1 should stand here")

    def test_a_kind_that_is_not_the_type_is_refused(self):
        self.refused("2: bytes, bit 1", "2: text, bit 1", "text as mava_tum_bytes")

    def test_a_member_without_a_comment_is_refused(self):
        self.refused("uint32_t field_1;      /* 1: varint, bit 0 */", "uint32_t field_1;", "does not say")

    def test_a_structure_that_is_not_found_is_refused(self):
        self.refused("} mava_tum_vlan_info;", "} vlan_info;", "not those that the functions decode")


if __name__ == "__main__":
    unittest.main()
