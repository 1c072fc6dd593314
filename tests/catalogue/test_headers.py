#!/usr/bin/env python3
"""Does the catalogue agree with the headers, and does it reject a header with other constructs?

    test_headers.py <project root>
"""
import pathlib
import re
import sys
import tempfile
import unittest

ROOT = pathlib.Path(sys.argv.pop(1)).resolve()
sys.path.insert(0, str(ROOT / "catalogue"))

from header_reader import HeaderError, HeaderReader, read_headers  # noqa: E402  (found by the line above)
from json_tables import json_tables  # noqa: E402
from library_tables import library_of, read_library  # noqa: E402

FUNCTIONS = """
MAVA_TUM_API int32_t mava_tum_mark_decode_ext(mava_tum_mark *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_mark_encode_ext(const mava_tum_mark *record, uint8_t *buffer, uint64_t length);
MAVA_TUM_API int32_t mava_tum_mark_duplicate(mava_tum_mark *destination, const mava_tum_mark *source);
MAVA_TUM_API void mava_tum_mark_free_ext(mava_tum_mark *record);
"""
ADAPTERS = """
/* Encodes one mark message into `buffer`. */
MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_mark(const tum_nal_data_mark *record, uint8_t *buffer);
/* Decodes the mark message in the `length` bytes at `data`. */
MAVA_TUM_API void tum_nal_data_gpb_decode_tum_mark(const uint8_t *data, uint32_t length, tum_nal_data_mark *record);
"""
FIELD = "    uint32_t field_1; /* 1: varint, bit 0 */"
MASK = "    uint8_t presence_mask; /* bits 1-7 spare */"
LIST = "/* Shared.\n *\n *     messages          header\n *     {}       marks.h\n *\n * More. */\n"


def record(name, *members):
    return f"typedef struct {name} {{\n" + "\n".join(members) + f"\n}} {name};\n"


def read(text, contract=LIST.format("mark")):
    reader = HeaderReader()
    return library_of([reader.read("codec_contract.h", contract), reader.read("marks.h", text)])


def message(*members, functions=FUNCTIONS, **more):
    return read(record("mava_tum_mark", *members) + functions, **more)


def application_record(*members):
    return read(record("tum_nal_data_mark", *members)).records["tum_nal_data_mark"]


class Case(unittest.TestCase):
    def expect_refused(self, rows, make):
        """Each row: a regular expression for the message, and the arguments of `make`."""
        for says, *arguments in rows:
            with self.subTest(arguments), self.assertRaisesRegex(HeaderError, says):
                make(*arguments)


class TestReader(Case):
    def test_what_it_does_not_know_is_refused_with_its_place(self):
        self.expect_refused([
            ("marks.h:1: this is not understood: static int value;", "static int value;"),
            ("marks.h:3: this is not understood: union", "/* A comment. */\n\nunion mark { int a; };"),
            ("not understood: #if", "#if MARKS > 1\n#endif\n"),
            ("not understood: #define", "#define MAVA_TUM_MARKS 3\n"),
            ("not understood: int32_t mava_tum_hidden", "int32_t mava_tum_hidden(void);"),
            ("not understood: enum mark", "enum mark { MAVA_TUM_A = 1 };"),
            ("not understood: typedef struct", "typedef struct mark {\n    int a;\n} mark"),
            ("not understood: /\\* without an end", "/* without an end"),
        ], read)

    def test_a_member_that_it_does_not_know_is_refused_with_its_place(self):
        self.expect_refused([(f"marks.h:1: a member of mark is not understood: {re.escape(member)}", member)
                             for member in ("int (*call)(void);", "unsigned long value;", "uint32_t a, b;",
                                            "uint32_t flag : 1;", "struct { int a; } inner;", "uint32_t a")],
                            lambda member: read(record("mark", f"    {member}")))

    def test_constants_without_a_value_or_a_size_are_refused(self):
        self.expect_refused([("a constant is not understood: A", "enum { A };"),
                             ("a constant is not understood: B = A", "enum { A = 1, B = A };"),
                             ("NO_SUCH_SIZE is no constant", record("mark", "    char text[NO_SUCH_SIZE];"))], read)

    def test_a_structure_with_two_names_is_refused(self):
        self.expect_refused([("struct mark is called other", "typedef struct mark {\n    int a;\n} other;")], read)

    def test_a_header_that_nobody_includes_is_refused(self):
        with tempfile.TemporaryDirectory() as name:
            folder = pathlib.Path(name)
            (folder / "mava_tum.h").write_text('#include "one.h"\n', encoding="utf-8")
            (folder / "one.h").write_text("/* One. */\n", encoding="utf-8")
            self.assertEqual([header.path for header in read_headers(folder)], ["one.h", "mava_tum.h"])
            (folder / "two.h").write_text("/* Two. */\n", encoding="utf-8")
            with self.assertRaisesRegex(HeaderError, "two.h: mava_tum.h does not include it"):
                read_headers(folder)

    def test_a_comment_belongs_to_what_is_just_below_it_or_before_it_on_its_line(self):
        text = ("/* File. */\n\n/* Two; of them. */\nenum { A = 1 << 3, /* a */ B = -1 };\n"
                "/* Not this. */\n\nMAVA_TUM_API void call(void);\n")
        header = HeaderReader().read("marks.h", text)
        self.assertEqual([header.comment, header.enums[0].comment], ["/* File. */", "/* Two; of them. */"])
        self.assertEqual(header.functions[0].comment, "")
        constants = header.enums[0].constants
        self.assertEqual([(each.value, each.comment) for each in constants.values()], [(8, "/* a */"), (-1, "")])

    def test_a_comment_with_a_semicolon_is_no_member(self):
        members = application_record("    /* Two; of them. */", "    uint32_t a; /* sent; received */",
                                     "    uint32_t b;")
        self.assertEqual([(each.name, each.declared.comment) for each in members], [("a", "sent; received"), ("b", "")])


class TestMessages(Case):
    def test_a_message_is_read_from_its_comments(self):
        fields = message(FIELD, "    uint32_t field_2; /* 2: fixed32, bit 1; IPv4 address, network byte order */",
                         "    char **texts;     /* 3: array of texts, bit 2 */",
                         "    uint32_t text_count; /* texts in the array */", MASK).messages["mark"].fields
        self.assertEqual([(each.number, each.name, each.kind, each.bits, each.is_ipv4, each.count) for each in fields],
                         [(1, "field_1", "varint", 32, False, ""), (2, "field_2", "fixed32", 32, True, ""),
                          (3, "texts", "array of texts", 0, False, "text_count")])

    def test_a_record_that_breaks_the_pattern_is_refused(self):
        texts = "    char **field_1; /* 1: array of texts, bit 0 */"
        nine = [f"    uint32_t field_{n}; /* {n}: varint, bit {n - 1} */" for n in range(1, 10)]
        self.expect_refused([
            ("number 1 and bit 1, in the place of field 1", FIELD.replace("bit 0", "bit 1"), MASK),
            ("number 2 and bit 1, in the place of", FIELD.replace("1: varint, bit 0", "2: varint, bit 1"), MASK),
            ("is not 'number: kind, bit n'", FIELD.replace("varint", "zigzag"), MASK),
            ("is not 'number: kind, bit n'", "    uint32_t field_1;", MASK),
            ("not declared as its kind says", FIELD.replace("uint32_t", "uint64_t"), MASK),
            ("not declared as its kind says", "    char *field_1; /* 1: bytes, bit 0 */", MASK),
            ("not declared as its kind says", "    mava_tum_bytes field_1; /* 1: record, bit 0 */", MASK),
            ("not declared as its kind says", "    uint32_t field_1[2]; /* 1: varint, bit 0 */", MASK),
            ("not followed by its count", texts, MASK),
            ("not followed by its count", texts, "    uint32_t other_count;", MASK),
            ("do not fit the 8 bits", *nine, MASK),
            ("field_1 stands where presence_mask should", FIELD),
        ], message)

    def test_a_message_without_one_of_its_functions_is_refused(self):
        for name in ("encode_ext", "duplicate", "free_ext"):
            with self.assertRaisesRegex(HeaderError, f"mava_tum_mark_{name}"):
                message(FIELD, MASK, functions=FUNCTIONS.replace(name, "other"))

    def test_a_list_of_messages_that_is_not_that_of_the_headers_is_refused(self):
        self.assertEqual([each.name for each in message(FIELD, MASK).in_documented_order()], ["mark"])
        for names, says in (("other", "mark, other"), ("", "mark"), ("mark, other", "other"),
                            ("mark, mark", "one of them twice"), ("mark, _er", "'_er' behind mark")):
            with self.subTest(names), self.assertRaisesRegex(HeaderError, says):
                message(FIELD, MASK, contract=LIST.format(names)).in_documented_order()


class TestApplicationRecords(Case):
    def test_a_member_that_no_kind_stands_for_is_refused(self):
        self.expect_refused([("is a pointer", "    char *text;"),
                             ("no kind stands for", "    float number;"),
                             ("no kind stands for", "    char letter;"),
                             ("no kind stands for", "    uint32_t numbers[2][3];"),
                             ("nothing counts the elements of texts", "    char texts[2][65];", "    uint8_t other;")],
                            application_record)

    def test_a_member_is_received_from_the_field_that_its_comment_names(self):
        members = application_record("    uint32_t a; /* 1: always; received from field 3 */",
                                   "    uint32_t b; /* 2: always; not received */",
                                   "    uint32_t c; /* 3: always; received in `a` */",
                                   "    uint32_t d[4]; /* 4 to 7: non-zero */", "    uint32_t e; /* 8 */",
                                   "    uint32_t f; /* always */")
        self.assertEqual([each.number for each in members], [3, 0, 0, 4, 8, 0])

    def test_an_adapter_is_its_two_functions_and_the_message_that_both_name(self):
        rest = message(FIELD, MASK, functions=FUNCTIONS + record("tum_nal_data_mark", "    uint32_t a;") + ADAPTERS)
        self.assertEqual([(each.name, each.message, each.sent, each.received) for each in rest.adapters.values()],
                         [("mark", "mark", "tum_nal_data_mark", "tum_nal_data_mark")])

    def test_an_adapter_that_breaks_the_pattern_is_refused(self):
        self.expect_refused([("one direction only: mark", "encode_tum_mark", "hidden"),
                             ("do not name one message", "the mark message", "the other message"),
                             ("do not name one message", "mark message", "thing"),
                             ("takes no record", "mark *record, uint8_t", "mark *what, uint8_t"),
                             ("parameters of .* are not understood", "uint8_t *buffer", "uint8_t buffer[4]")],
                            lambda old, new: message(FIELD, MASK, functions=FUNCTIONS + ADAPTERS.replace(old, new)))


class TestLibrary(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.library = read_library(ROOT / "include")

    def test_the_headers_declare_every_exported_function(self):
        exported = (ROOT / "src" / "exports.txt").read_text(encoding="utf-8").split()
        declared = [each.name for header in self.library.headers for each in header.functions]
        self.assertEqual(sorted(declared), sorted(exported))
        for beginning in ("tum_nal_data_gpb_encode_tum_", "tum_nal_data_gpb_decode_tum_"):
            self.assertEqual(sorted(name.removeprefix(beginning) for name in exported if name.startswith(beginning)),
                             sorted(self.library.adapters))

    def test_there_are_40_messages_and_19_adapters(self):
        self.assertEqual(len(self.library.in_documented_order()), 40)
        self.assertEqual(len(self.library.adapters_in_documented_order()), 19)

    def test_every_array_of_an_application_record_is_counted_or_used_whole(self):
        for c_type, members in self.library.records.items():
            for each in members:
                self.assertEqual(bool(each.count), each.kind in ("records", "texts"), f"{c_type}.{each.name}")

    def test_result_texts_are_those_of_the_codes(self):
        results = json_tables(self.library)["results"]
        self.assertTrue(results["MAVA_TUM_WRONG_WIRE_TYPE"]["text"].startswith("A known field arrives with another"))
        self.assertEqual([each["value"] for each in results.values()], [0, -1, -2, -3, -4])


if __name__ == "__main__":
    unittest.main()
