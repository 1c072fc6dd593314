"""What people paste: dumps of other programs and pieces of source code."""
import functools
import random
import shutil
import subprocess
import unittest

from inspector import V4, InspectorTest, run

# Of a service_stats: rows that are full, short, odd and repeated, and characters that look like parts of a dump.
TEXTS = [b"", b"a", b"|x|  |y|", b"ab cd  ef", b"z" * 14, b"y" * 200, b"ab cd|  |ef 01 02", b"\xff" * 127,
         random.Random(7).randbytes(120)]


def message(text):
    length = len(text)
    return b"\x0a" + (bytes([length]) if length < 128 else bytes([length & 127 | 128, length >> 7])) + text


@functools.lru_cache(None)
def explanation_of(wire):
    done = run("explain", "-f", "raw", "service_stats", data=wire)
    assert (done.status, done.errors) == (0, ""), done.errors
    return done.output


class PastedText(InspectorTest):
    def reads(self, text, wire, *options):
        """Is read as these bytes."""
        data = text if isinstance(text, bytes) else text.encode()
        shown = self.succeeds("explain", *options, "service_stats", data=data).output
        self.assertEqual(shown, explanation_of(wire), text)

    def reads_output_of(self, *command):
        for text in TEXTS:
            wire = message(text)
            path = self.file("wire", wire)
            dump = subprocess.run([*command, path], capture_output=True, check=True, timeout=60).stdout
            self.reads(dump, wire)
            self.reads(dump, wire, "-f", "dump")


class DumpTest(PastedText):
    @unittest.skipUnless(shutil.which("xxd"), "xxd is not installed")
    def test_xxd_is_read(self):
        for options in ([], ["-g", "1"], ["-g", "4"], ["-c", "8"], ["-a"], ["-u"]):
            self.reads_output_of("xxd", *options)

    @unittest.skipUnless(shutil.which("hexdump"), "hexdump is not installed")
    def test_hexdump_is_read(self):
        for options in (["-C"], [], ["-x"]):
            self.reads_output_of("hexdump", *options)

    def test_od_is_read(self):
        for options in ([], ["-x"], ["-t", "x1"], ["-A", "x", "-t", "x1"], ["-t", "x1z"], ["-v"], ["-A", "x", "-x"]):
            self.reads_output_of("od", *options)

    @unittest.skipUnless(shutil.which("text2pcap") and shutil.which("tshark"), "tshark is not installed")
    def test_tshark_is_read(self):
        wire = message(b"ab cd|  |ef 01 02 \x00\xff" * 3)
        rows = "".join(f"{at:06x} {wire[at:at + 16].hex(' ')}\n" for at in range(0, len(wire), 16))
        capture = self.file("capture", b"")
        subprocess.run(["text2pcap", "-l", "147", self.file("rows", rows), capture], check=True, capture_output=True,
                       timeout=60)
        dump = subprocess.run(["tshark", "-x", "-r", capture], check=True, capture_output=True, timeout=60).stdout
        self.reads(dump, wire)

    def test_tshark_is_read_from_an_example(self):
        self.reads("0000  0a 11 61 62 20 63 64 7c 20 20 7c 65 66 20 30 31   ..ab cd|  |ef 01\n"
                   "0010  20 30 32                                           02\n\n", message(b"ab cd|  |ef 01 02"))

    def test_rows_may_be_indented_and_end_as_on_other_systems(self):
        self.reads("  00000000: 0a01 61  ..a\r\n", message(b"a"))

    def test_part_of_a_dump_is_read(self):
        self.reads("00000040: 0a01 61  ..a\n", message(b"a"))

    def test_a_gap_is_told_with_its_line(self):
        self.refused("decode", "service_stats", data=b"00000000: 0a01 61  ..a\n00000010: 61  a\n",
                     says="line 2: the offset does not follow from the rows before it, which have 3 bytes")
        self.refused("decode", "-f", "dump", "service_stats", data=b"0000 0a 01\ntext\n", says="line 2: expected an offset")
        self.refused("decode", "-f", "dump", "service_stats", data=b"0000000 0a 01 61\n*\n", says="ends with *")

    def test_hex_that_begins_with_a_long_word_stays_hex(self):
        self.assertEqual(self.succeeds("decode", "subscriber_v4", data=b"080115c0 000201\n").output,
                         self.succeeds("decode", "subscriber_v4", data=V4).output)


class SourceTest(PastedText):
    wire = message(b"a\x00\x07\xff \"'")

    def test_arrays_are_read(self):
        numbers = ", ".join(f"0x{byte:02x}" for byte in self.wire)
        self.reads(f"unsigned char a_bin[] = {{\n  {numbers}\n}};\nunsigned int a_bin_len = 9;\n", self.wire)
        self.reads(f"const std::uint8_t wire[{len(self.wire)}] = {{ {', '.join(map(str, self.wire))}, }};", self.wire)
        self.reads("{" + ",".join(f"0X{byte:X}u" for byte in self.wire) + "}", self.wire)

    @unittest.skipUnless(shutil.which("xxd"), "xxd is not installed")
    def test_xxd_i_is_read(self):
        dump = subprocess.run(["xxd", "-i", self.file("wire", self.wire)], capture_output=True, check=True, timeout=60)
        self.reads(dump.stdout, self.wire)

    def test_escapes_are_read(self):
        self.reads("".join(f"\\x{byte:02x}" for byte in self.wire), self.wire)
        self.reads("".join(f"\\{byte:03o}" for byte in self.wire), self.wire)
        self.reads(repr(self.wire), self.wire)
        self.reads("$'\\n\\ta\\x00\\a\\377 \"\\''\n".replace("\\ta", "\\x07a"), self.wire)
        self.reads('"\\x0a\\7" "a\\0\\a\\xff \\"\'"', self.wire)

    def test_what_is_no_byte_is_told_with_its_place(self):
        self.refused("decode", "service_stats", data=b"x = {\n 0x0a, 256 }", says=["line 2, column 8", "256 is no number"])
        self.refused("decode", "service_stats", data=b"\\x0a\\x", says="column 5: an escape without a number")
        self.refused("decode", "service_stats", data=b"\\x0a\\q", says="column 5: an escape that is unknown")


class OtherTextTest(InspectorTest):
    def test_other_text_is_refused_and_not_taken_for_a_message(self):
        for text in (b"The session was refused at 02:14.\n", b'{"field_1": 1}', b"<message/>", b"a=1&b=2"):
            self.refused("decode", "session_context", data=text, says=["is a text", "-f raw", "mava-tum encode"])

    def test_a_printable_message_is_a_message(self):
        # Field 6 is a text of 32 characters.
        self.succeeds("decode", "sess_oper_resp", data=b"2 " + b"!" * 32)

    def test_raw_is_what_it_is_said_to_be(self):
        self.refused("decode", "session_context", "-f", "raw", data=b"The session", status=1, says="does not decode")


if __name__ == "__main__":
    unittest.main()
