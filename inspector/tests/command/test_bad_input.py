"""Whatever is given in error: one line that names the place and what to do next, exit code 2, nothing written."""
import os
import subprocess
import unittest

from inspector import PROGRAM, V4, InspectorTest, frames, run

NOBODY = 65534

# Every command that reads messages, up to its input.
READERS = [("decode", "subscriber_v4"), ("decode", "--json", "subscriber_v4"), ("explain", "subscriber_v4"),
           ("app", "session_delete", "decode"), ("check", "session_delete"), ("guess",)]
JSON_READERS = [("encode", "subscriber_v4"), ("app", "session_delete", "encode")]


class FileTest(InspectorTest):
    def test_a_missing_file_is_named(self):
        for command in READERS + JSON_READERS:
            self.refused(*command, "/no/such/file", says=["/no/such/file: cannot open", "check the path"])
        for pair in [("/no/such/file", "-"), ("-", "/no/such/file")]:
            self.refused("diff", "subscriber_v4", *pair, data=V4, says="/no/such/file: cannot open")

    def test_a_folder_is_no_input(self):
        for command in READERS + JSON_READERS:
            self.refused(*command, self.folder, says=[self.folder, "is a folder"])

    def test_an_unreadable_file_is_named(self):
        path = self.file("secret", V4)
        os.chmod(path, 0)
        os.chmod(self.folder, 0o755)
        # Root may read every file.
        somebody = {"user": NOBODY, "group": NOBODY} if os.getuid() == 0 else {}
        try:
            done = subprocess.run([PROGRAM, "decode", "subscriber_v4", path], capture_output=True, text=True, cwd="/",
                                  check=False, timeout=60, **somebody)
        except PermissionError:
            self.skipTest("nobody else than root may run the program where it was built")
        self.assertEqual((done.returncode, done.stdout), (2, ""))
        self.assertEqual(done.stderr, f"mava-tum decode: {path}: cannot open: Permission denied; "
                                      "check the permissions of the file and of its folders\n")

    def test_a_file_that_fails_while_it_is_read_is_named(self):
        self.refused("decode", "subscriber_v4", "/proc/self/mem", says="/proc/self/mem: cannot read at byte 0")

    def test_empty_input_is_told(self):
        for command in READERS:
            self.refused(*command, self.file("empty", b""), says=["empty: is empty", "-f raw"])
            self.refused(*command, data=b"", says="standard input: is empty")
        for command in JSON_READERS:
            self.refused(*command, self.file("empty", b""), says=["empty: is empty", "{}"])

    def test_an_empty_raw_input_is_an_empty_message(self):
        for command in READERS:
            done = run(*command, "-f", "raw", data=b"")
            self.assertEqual((done.status, done.errors), (0, ""), command)
        done = self.succeeds("decode", "-f", "raw", "subscriber_v4", self.file("empty", b""))
        self.assertEqual(done.output.splitlines()[0], "subscriber_v4, 0 bytes")

    def test_a_name_with_a_line_end_stays_on_one_line(self):
        self.refused("decode", "subscriber_v4", "no\nsuch\nfile", says="no?such?file")


class HexTest(InspectorTest):
    def test_an_odd_digit_is_told_with_its_place(self):
        self.refused("decode", "subscriber_v4", data=b"0801\n15c00002010", says="line 2, column 12: odd number")
        self.refused("decode", "subscriber_v4", self.file("odd", b"080"), says=["odd: line 1, column 4", "add the one"])

    def test_what_is_no_digit_is_told_with_its_place(self):
        self.refused("decode", "-f", "hex", "subscriber_v4", data=b"08 0g", says=["column 5", "'g' is no hex digit"])
        self.refused("decode", "-f", "hex", "subscriber_v4", data=b"08\x00", says="byte 0x00 is no hex digit")

    def test_a_slip_in_hex_is_told_without_the_format(self):
        for data, place in [(b"0801 15 c00o0201\n", "column 12: 'o'"), (b"0801\n15 c0*00201", "line 2, column 6: '*'"),
                            (b"08 01 15 c0-00-02-01", "column 12: '-'")]:
            self.refused("decode", "subscriber_v4", data=data, says=place)

    def test_hex_without_a_digit_is_told(self):
        self.refused("decode", "-f", "hex", "subscriber_v4", data=b" \n", says="has no byte in hex")


class Base64Test(InspectorTest):
    def test_what_is_no_digit_is_told_with_its_place(self):
        self.refused("decode", "-f", "base64", "subscriber_v4", data=b"CAE*",
                     says=["column 4", "'*' is no base64 digit"])

    def test_a_cut_group_is_told(self):
        for data in (b"CAEVw", b"CAEVwAACAQ="):
            self.refused("decode", "-f", "base64", "subscriber_v4", data=data, says="the last group is incomplete")

    def test_text_behind_the_padding_is_told(self):
        self.refused("decode", "-f", "base64", "subscriber_v4", data=b"CA==CA==", says="after the padding")


class FrameTest(InspectorTest):
    def test_a_cut_length_is_told_with_its_frame(self):
        self.refused("decode", "-f", "frames", "subscriber_v4", "-o", os.path.join(self.folder, "out"),
                     data=frames(V4) + b"\0\0", says=["frame 2 at byte 11", "2 of the 4 bytes of its length"])

    def test_a_cut_frame_is_told_with_its_place(self):
        self.refused("check", "session_delete", "-f", "frames", data=frames(b"", V4)[:-1],
                     says=["frame 2 at byte 4", "after 6 of its 7 bytes", "get the whole file"])

    def test_a_cut_frame_is_not_taken_for_a_raw_message(self):
        self.refused("decode", "subscriber_v4", data=frames(V4)[:-1], says="frame 1 at byte 0: the input ends after 6")

    def test_a_length_that_cannot_be_is_told(self):
        self.refused("guess", "-f", "frames", data=b"\x7f\xff\xff\xff", says=["frame 1 at byte 0", "claims 2147483647"])


class NameTest(InspectorTest):
    def test_a_wrong_message_gets_the_nearest_names(self):
        for command in ("decode", "explain", "encode"):
            self.refused(command, "sesion_context", data=V4, says=['"sesion_context"', "session_context"])
        self.refused("list", "session_contxt", says="session_context")
        self.refused("diff", "subscriber_v5", "a", "b", says=["subscriber_v4", "subscriber_v6"])

    def test_a_wrong_adapter_gets_the_nearest_names(self):
        self.refused("app", "rec_start_ress", "decode", data=V4, says="rec_start_res")
        self.refused("check", "sub_rout", data=V4, says="sub_route")

    def test_a_name_in_other_letters_finds_its_message(self):
        expected = self.succeeds("decode", "subscriber_v4", data=V4).output
        for name in ("SUBSCRIBER_V4", "subscriber-v4", "SubscriberV4", "mava_tum_subscriber_v4", "Subscriber V4"):
            self.assertEqual(self.succeeds("decode", name, data=V4).output, expected)
        self.refused("decode", "SUBSCRIBER_V5", data=V4, says=["subscriber_v4", "subscriber_v6"])
        self.assertEqual(self.succeeds("app", "SessionDelete", "encode", "--to", "hex", data=b"{}").output,
                         self.succeeds("app", "session_delete", "encode", "--to", "hex", data=b"{}").output)

    def test_every_name_is_one_of_its_own_without_its_underscores(self):
        names = [line.split()[0] for line in self.succeeds("list").output.splitlines()[1:]]
        self.assertEqual(len({name.replace("_", "") for name in names}), 40)

    def test_an_adapter_that_alone_carries_a_message_may_be_named_by_it(self):
        data = b"\x08\x01"
        self.assertEqual(self.succeeds("check", "rec_sess_resp", "-f", "raw", data=data).output,
                         self.succeeds("check", "rec_sess_res", "-f", "raw", data=data).output)

    def test_a_message_with_several_adapters_leads_to_them(self):
        self.refused("check", "rec_resp", data=b"\x08\x01",
                     says="2 adapters carry the message rec_resp: rec_start_res and rec_complete_res; name one of them")
        self.refused("app", "subscriber_v4", "decode", data=V4, says="no adapter carries the message subscriber_v4")

    def test_a_name_like_none_leads_to_the_list(self):
        done = self.refused("decode", "%%%%", data=V4, says="mava-tum list has all names")
        self.assertNotIn("nearest", done.errors)


class ArgumentTest(InspectorTest):
    def test_missing_arguments_lead_to_the_help(self):
        for command in ("decode", "explain", "encode", "app", "check", "diff"):
            self.refused(command, says=f"see mava-tum {command} --help")
        self.refused(says="see mava-tum --help")

    def test_what_is_too_much_leads_to_the_help(self):
        self.refused("list", "subscriber_v4", "b", says=["b", "--help"])
        self.refused("diff", "subscriber_v4", "a", "b", "c", says=["c", "--help"])
        self.refused("decode", "subscriber_v4", "--wide", says=["--wide", "--help"])
        self.refused("unpack", says=['there is no command "unpack"', "decode, explain"])

    def test_choices_are_told(self):
        self.refused("decode", "subscriber_v4", "--format", "octal",
                     says=["--format", "octal not in {auto,raw,hex,base64,frames,dump,c,capture}"])
        self.refused("app", "session_delete", "transcode", says="transcode")

    def test_standard_input_is_one_message_only(self):
        self.refused("diff", "subscriber_v4", "-", "-", says="both messages cannot come from standard input")

    def test_an_input_that_can_be_two_things_is_not_guessed(self):
        # As hex: field 4 is 1, field 7 a text of 21 letters. As raw: field 6 is a text of 48 digits.
        self.refused("decode", "sess_oper_resp", data=b"20013a15" + b"61" * 21,
                     says=["can be read as hex and as raw", "--format"])


if __name__ == "__main__":
    unittest.main()
