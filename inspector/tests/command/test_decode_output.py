"""What `decode` prints, as a tree and as JSON, and in how much memory."""
import json
import os
import subprocess
import tempfile
import unittest

from inspector import PROGRAM, V4, InspectorTest, frames, run

IS_INSTRUMENTED = os.environ.get("MAVA_TUM_IS_INSTRUMENTED") == "1"
# A sub_route with one route for IPv4: each as small as it can be, so that the JSON is far larger than the message.
ROUTE = bytes.fromhex("22020801")


def peak_memory(arguments, path):
    """The exit code and the most memory that the program had, in KiB."""
    with open(path, "rb") as data, tempfile.TemporaryFile() as output:
        with subprocess.Popen([PROGRAM, *arguments], stdin=data, stdout=output) as process:
            _, status, usage = os.wait4(process.pid, 0)
            process.returncode = os.waitstatus_to_exitcode(status)
        return process.returncode, usage.ru_maxrss, os.fstat(output.fileno()).st_size


class FieldTableTest(InspectorTest):
    def test_where_fields_stand_is_told_when_it_is_asked_for(self):
        self.assertEqual(list(json.loads(self.succeeds("decode", "--json", "subscriber_v4", data=V4).output)),
                         ["message", "bytes", "result", "record"])
        document = json.loads(self.succeeds("decode", "--json", "--fields", "subscriber_v4", data=V4).output)
        self.assertEqual([(field["path"], field["offset"], field["bytes"]) for field in document["fields"]],
                         [("/field_1", 0, 2), ("/ipv4_address", 2, 5)])

    def test_fields_without_json_are_refused(self):
        self.refused("decode", "--fields", "subscriber_v4", data=V4, says="--fields requires --json")

    def test_absent_fields_are_told_unless_they_are_not_wanted(self):
        table = ["decode", "--json", "--fields", "subscriber_v4"]
        every = json.loads(self.succeeds(*table, data=V4[:2]).output)["fields"]
        present = json.loads(self.succeeds(*table, "--no-absent", data=V4[:2]).output)["fields"]
        self.assertEqual([field["present"] for field in every], [True, False])
        self.assertEqual(present, every[:1])

    def test_the_tree_is_printed_without_absent_fields(self):
        tree = ["decode", "-f", "raw", "session_context"]
        whole = self.succeeds(*tree, data=b"\x08\x01").output
        self.assertIn("absent: 2 field_2", whole)
        self.assertEqual(self.succeeds(*tree, "--no-absent", data=b"\x08\x01").output,
                         "".join(whole.splitlines(keepends=True)[:2]))

    def test_a_fault_is_told_before_the_record_that_it_cuts(self):
        done = self.refused("decode", "--json", "session_context", "-f", "raw", data=b"\x08\x02\x52\x02\x10",
                            status=1, says="claims 2 bytes")
        document = json.loads(done.output)
        self.assertEqual(list(document), ["message", "bytes", "result", "fault", "record"])
        self.assertEqual(document["record"], {"field_1": 2})

    def test_records_and_lists_that_a_fault_cuts_are_closed(self):
        wire = ROUTE + b"\x22\x02\x10\x80"
        done = self.refused("decode", "--json", "--fields", "sub_route", "-f", "raw", data=wire, status=1, says="")
        self.assertEqual(json.loads(done.output)["record"], {"ipv4_routes": [{"field_1": 1}, {}]})


class TreeTest(InspectorTest):
    def test_the_columns_of_a_long_tree_stay_in_place(self):
        tree = self.succeeds("decode", "--no-absent", "-f", "raw", "sub_route", data=ROUTE * 20000).output.splitlines()
        self.assertEqual(len(tree), 1 + 2 * 20000)
        self.assertEqual({line.index(" record") for line in tree[1::2]} | {line.index(" varint") for line in tree[2::2]},
                         {len("     0  4 ipv4_routes[0]          ")})


class DirectionTest(InspectorTest):
    """Characters that change the direction of text would make a name look like another one."""
    text = "admin\u202etxt.exe\u2069\u200f \u05d0\u00e9"
    escaped = '"admin\\u202etxt.exe\\u2069\\u200f \u05d0\u00e9"'

    def test_they_are_escaped_wherever_a_text_is_printed(self):
        message = json.dumps({"session_data": {"field_5": self.text}}).encode()
        wire = self.succeeds("encode", "session_context", data=message).raw
        other = self.file("other", self.succeeds("encode", "session_context", data=b'{"session_data": {}}').raw)
        printed = [self.succeeds("decode", "session_context", data=wire), self.succeeds(
            "decode", "--json", "session_context", data=wire), self.succeeds("app", "session_context", "decode", data=wire),
            run("diff", "-f", "raw", "session_context", self.file("one", wire), other)]
        for done in printed:
            self.assertIn(self.escaped, done.output)
            self.assertNotIn("\u202e", done.output)
        self.assertEqual(self.succeeds("encode", "session_context", data=printed[1].raw).raw, wire)


class MemoryTest(InspectorTest):
    @unittest.skipIf(IS_INSTRUMENTED, "sanitizers take memory of their own")
    def test_the_json_of_a_large_message_takes_the_memory_of_the_message(self):
        for routes in (1 << 14, 1 << 18):
            wire = ROUTE * routes
            path = self.file("routes", wire)
            for options in ([], ["--fields", "--no-absent"]):
                status, kibibytes, written = peak_memory(["decode", "--json", *options, "-f", "raw", "sub_route"], path)
                print(f"{routes} routes, {options}: {written} bytes of JSON in {kibibytes} KiB of memory")
                self.assertEqual(status, 0)
                self.assertGreater(written, 8 * len(wire))
                # The input is read into a buffer that grows by doubling.
                self.assertLess(kibibytes, 24 * 1024 + 3 * len(wire) // 1024)

    def test_messages_of_a_file_are_one_line_each(self):
        done = self.succeeds("decode", "--json", "--fields", "subscriber_v4", data=frames(V4, V4))
        self.assertEqual([json.loads(line)["bytes"] for line in done.output.splitlines()], [7, 7])


if __name__ == "__main__":
    unittest.main()
