"""Messages that do not decode, do not fit or differ: exit code 1, and what is there is printed."""
import unittest

from inspector import V4, InspectorTest, frames, run


class BrokenMessageTest(InspectorTest):
    def test_decode_prints_what_came_before_the_fault(self):
        done = self.refused("decode", "subscriber_v4", self.file("cut", V4[:-1]), status=1,
                            says=["cut: subscriber_v4 does not decode: `ipv4_address`", "at byte 3: result -1"])
        self.assertIn("1 field_1", done.output)
        self.assertIn("fault: ", done.output)

    def test_explain_and_app_say_the_same(self):
        for command in [("explain", "subscriber_v4"), ("decode", "--json", "subscriber_v4")]:
            self.refused(*command, data=V4[:-1], status=1,
                         says="`ipv4_address` has 3 of its 4 bytes at byte 3: result -1")
        done = self.refused("app", "session_delete", "decode", data=b"\x08\x02\x15", status=1, says="result -3")
        self.assertIn('"field_1": 2', done.output)

    def test_of_many_messages_the_first_fault_and_the_count_are_told(self):
        data = frames(V4, V4[:-1], b"\x08", V4)
        for command in [("decode", "subscriber_v4"), ("explain", "subscriber_v4"), ("decode", "-j", "subscriber_v4")]:
            self.refused(*command, data=data, status=1, says=["frame 2 at byte 11: ", "2 of 4 messages do not decode"])

    def test_a_name_with_a_line_end_stays_on_one_line(self):
        path = self.file("two\nlines", V4[:-1])
        for command in [("decode", "subscriber_v4"), ("explain", "subscriber_v4"), ("app", "session_delete", "decode")]:
            self.refused(*command, path, status=1, says="two?lines: ")
        self.refused("diff", "subscriber_v4", path, path, status=1, says="two?lines: ")
        self.refused("guess", "-f", "raw", self.file("two\nlines", b"\x0b"), status=1, says="two?lines: ")

    def test_guess_says_when_no_message_decodes(self):
        self.refused("guess", "-f", "raw", data=b"\x0b", status=1, says=["none of the 40 messages", "mava-tum explain"])

    def test_diff_names_the_message_that_is_broken(self):
        self.refused("diff", "subscriber_v4", self.file("good", V4), self.file("cut", V4[:-1]), status=1,
                     says="cut: subscriber_v4 does not decode")

    def test_what_decodes_only_by_leniency_is_noted_and_exits_with_0(self):
        done = self.succeeds("decode", "-f", "hex", "subscriber_v4", data=b"0881 00 9806 05")
        self.assertIn("99 (unknown)", done.output)
        self.assertIn("[", done.output.splitlines()[1])


class FindingTest(InspectorTest):
    def test_each_finding_is_a_line_and_the_exit_code_is_1(self):
        # session_delete: field 3 above 16 bits, an unknown field 9.
        done = run("check", "session_delete", "-f", "hex", data=b"1880 8004 48 01")
        self.assertEqual((done.status, done.errors), (1, ""))
        lines = done.output.splitlines()
        self.assertEqual(len(lines), 3)
        self.assertIn("`field_3`", lines[0])
        self.assertIn("#9", lines[1])
        self.assertTrue(lines[2].startswith("2 findings; the record has "))

    def test_a_message_that_fits_exits_with_0(self):
        done = self.succeeds("check", "session_delete", "-f", "hex", data=b"0802")
        self.assertEqual(done.output.count("\n"), 1)

    def test_a_fault_is_a_finding(self):
        done = run("check", "session_delete", "-f", "hex", data=b"08")
        self.assertEqual(done.status, 1)
        self.assertIn("result -1", done.output)

    def test_the_size_of_the_record_is_told(self):
        done = self.succeeds("check", "session_delete", "-f", "hex", data=b"08 02")
        self.assertEqual(done.output, "0 findings; the record has 32 bytes\n")

    def test_of_many_messages_each_finding_has_its_place(self):
        done = run("check", "session_delete", data=frames(b"\x08\x02", b"\x48\x01"))
        self.assertEqual(done.status, 1)
        self.assertTrue(done.output.startswith("frame 2 at byte 6: "), done.output)
        self.assertIn("2 messages, 1 finding", done.output)


class DifferenceTest(InspectorTest):
    def differences(self, first, second, message="subscriber_v4"):
        done = run("diff", message, "-f", "raw", self.file("a", first), self.file("b", second))
        self.assertEqual(done.errors, "")
        return done

    def test_messages_that_differ_exit_with_1(self):
        done = self.differences(V4, bytes.fromhex("080215c0000202"))
        self.assertEqual(done.status, 1)
        self.assertEqual(done.output, "field_1: 1 -> 2\nipv4_address: c0000201 = 192.0.2.1 -> c0000202 = 192.0.2.2\n")

    def test_fields_of_one_message_only_are_told(self):
        done = self.differences(V4, V4[:2])
        self.assertEqual((done.status, done.output), (1, "only in A: ipv4_address: c0000201 = 192.0.2.1\n"))
        self.assertEqual(self.differences(V4[:2], V4).output, "only in B: ipv4_address: c0000201 = 192.0.2.1\n")

    def test_equal_messages_exit_with_0(self):
        done = self.differences(V4, V4)
        self.assertEqual((done.status, done.output), (0, "the same bytes\n"))

    def test_other_bytes_for_the_same_fields_are_no_difference(self):
        done = self.differences(V4, V4[2:] + V4[:2])
        self.assertEqual((done.status, done.output), (0, "the same fields, in other bytes\n"))

    def test_of_a_record_that_occurs_twice_the_last_counts(self):
        first = bytes.fromhex("120208051202 1006")
        done = self.differences(first, bytes.fromhex("12021006"), "service_stats")
        self.assertEqual(done.status, 0, done.output)

    def test_elements_are_compared_by_their_place(self):
        done = self.differences(bytes.fromhex("5a0208015a020802"), bytes.fromhex("5a0208015a020803"), "session_context")
        self.assertEqual(done.output, "qos[1].field_1: 2 -> 3\n")


if __name__ == "__main__":
    unittest.main()
