"""Files of many messages, many files, and messages that come one by one."""
import json
import os
import select
import subprocess
import unittest

from inspector import PROGRAM, V4, InspectorTest, frames, run

OTHER_V4 = bytes.fromhex("080215c0000202")
CUT_V4 = V4[:-1]
SECONDS = 20


def lines_of(done):
    return [json.loads(line) for line in done.output.splitlines()]


class JsonLinesTest(InspectorTest):
    def test_each_line_tells_the_number_and_the_offset_of_its_message(self):
        done = self.succeeds("decode", "--json", "subscriber_v4", data=frames(V4, b"", OTHER_V4))
        self.assertEqual([(line["number"], line["offset"], line["bytes"]) for line in lines_of(done)],
                         [(1, 0, 7), (2, 11, 0), (3, 15, 7)])

    def test_a_single_message_has_neither(self):
        self.assertEqual(list(json.loads(self.succeeds("decode", "--json", "subscriber_v4", data=V4).output)),
                         ["message", "bytes", "result", "record"])

    def test_encode_takes_the_lines_back(self):
        data = frames(V4, b"", OTHER_V4)
        printed = self.succeeds("decode", "--json", "subscriber_v4", data=data)
        self.assertEqual(self.succeeds("encode", "subscriber_v4", "--to", "frames", data=printed.raw).raw, data)

    def test_app_takes_the_lines_of_records_back(self):
        data = frames(b"\x08\x01\x10\x02\x18\x03\x20\x04\x28\x05", b"\x08\x02\x10\x02\x18\x03\x20\x04\x28\x05")
        printed = self.succeeds("app", "session_delete", "decode", data=data)
        again = self.succeeds("app", "session_delete", "encode", "--to", "frames", data=printed.raw)
        self.assertEqual(again.raw, data)

    def test_documents_need_not_be_on_one_line_each(self):
        data = b'{"field_1":\n1}{"field_1": 2} \n\n {\n"field_1": 3, "ipv4_address": "192.0.2.1"\n}\n\n'
        done = self.succeeds("encode", "subscriber_v4", "--to", "frames", data=data)
        self.assertEqual(done.raw, frames(b"\x08\x01", b"\x08\x02", b"\x08\x03" + V4[2:]))

    def test_brackets_and_quotes_in_texts_do_not_end_a_document(self):
        for text in ("}{", '"}', "\\", '\\"}', "]["):
            line = json.dumps({"field_1": {"text": text}} if ":" in text else {"field_1": text})
            done = self.succeeds("encode", "service_stats", "--to", "frames", data=f"{line}\n{line}\n".encode())
            message = b"\x0a" + bytes([len(text)]) + text.encode()
            self.assertEqual(done.raw, frames(message, message))

    def test_a_document_larger_than_a_block_is_read_whole(self):
        line = json.dumps({"field_1": "x" * 700000})
        done = self.succeeds("encode", "service_stats", "--to", "frames", data=f"{line}\n{line}\n".encode())
        self.assertEqual(len(done.raw), 2 * (4 + 4 + 700000))

    def test_a_second_message_is_refused_where_nothing_tells_it_from_the_first(self):
        for chosen in ([], ["--to", "hex"], ["--to", "base64"]):
            self.refused("encode", "subscriber_v4", *chosen, data=b"{}\n{}\n", says="a second message")

    def test_what_is_wrong_is_told_with_the_line_of_its_document(self):
        command = ("encode", "subscriber_v4", "--to", "frames")
        self.refused(*command, data=b'{}\n\n{"field_1": -1}\n', says="the document at line 3: /field_1: expected a number")
        self.refused(*command, data=b'{}\n{"field_1" 1}\n', says="the document at line 2: parse error")
        self.refused(*command, data=b'{} text', says="parse error")
        self.refused(*command, data=b'{}\n{"field_1": 1\n', says="the document at line 2: parse error")
        self.refused(*command, data=b' \n\t\n', says="standard input: is empty")


class NumberTest(InspectorTest):
    data = frames(V4, OTHER_V4, V4)

    def test_one_message_is_picked_by_its_number(self):
        for command in (["decode"], ["explain"], ["decode", "--json"], ["explain", "--json"]):
            done = self.succeeds(*command, "subscriber_v4", "--message", "2", data=self.data)
            self.assertIn("192.0.2.2", done.output)
            self.assertNotIn("192.0.2.1", done.output)
        self.assertEqual(lines_of(self.succeeds("decode", "--json", "subscriber_v4", "--message", "3",
                                                data=self.data))[0]["offset"], 22)
        done = run("app", "session_delete", "decode", "--message", "2", data=frames(b"\x08\x01", b"\x08\x02"))
        self.assertEqual(json.loads(done.output)["field_1"], 2)

    def test_what_follows_is_not_read(self):
        done = self.succeeds("decode", "subscriber_v4", "--message", "2", data=self.data + b"\xff\xff")
        self.assertIn("frame 2 at byte 11", done.output)

    def test_a_number_without_a_message_is_refused(self):
        self.refused("decode", "subscriber_v4", "--message", "4", data=self.data, says="standard input: has 3 messages")
        self.refused("decode", "subscriber_v4", "--message", "2", "-f", "raw", data=V4, says="has 1 message;")
        self.refused("decode", "subscriber_v4", "--message", "0", data=self.data, says="--message")

    def test_a_single_message_is_number_1(self):
        self.assertEqual(self.succeeds("decode", "subscriber_v4", "--message", "1", data=V4).output,
                         self.succeeds("decode", "subscriber_v4", data=V4).output)


class ManyFilesTest(InspectorTest):
    def setUp(self):
        super().setUp()
        self.first, self.second = self.file("first", V4), self.file("second", frames(OTHER_V4, V4))

    def test_each_message_is_told_with_its_file(self):
        done = self.succeeds("decode", "subscriber_v4", self.first, self.second)
        self.assertEqual([line for line in done.output.splitlines() if "subscriber_v4" in line],
                         [f"{self.first}: subscriber_v4, 7 bytes",
                          f"{self.second}: frame 1 at byte 0: subscriber_v4, 7 bytes",
                          f"{self.second}: frame 2 at byte 11: subscriber_v4, 7 bytes"])
        lines = lines_of(self.succeeds("decode", "--json", "subscriber_v4", self.first, self.second))
        self.assertEqual([(line["file"], line.get("number")) for line in lines],
                         [(self.first, None), (self.second, 1), (self.second, 2)])

    def test_the_file_of_a_fault_is_named(self):
        cut = self.file("cut", CUT_V4)
        for command in (["decode"], ["explain"], ["decode", "--json"]):
            self.refused(*command, "subscriber_v4", self.first, cut, status=1, says=[f"{cut}: subscriber_v4 does not"])
        done = run("check", "session_delete", self.file("good", b"\x08\x01"), self.file("bad", b"\x48\x01"), "-f", "raw")
        self.assertEqual(done.output.splitlines()[0], f"{self.folder}/bad: `#9` at byte 0 does not arrive: "
                         "session_delete does not know it")

    def test_a_file_that_is_not_there_is_refused(self):
        for files in (["/no/such/file", self.first], [self.first, "/no/such/file"]):
            self.refused("decode", "subscriber_v4", *files, says="/no/such/file: cannot open")

    def test_encode_makes_a_message_of_each_document_of_each_file(self):
        files = [self.file("a.json", '{"field_1": 1}'), self.file("b.json", '{"field_1": 2}\n{"field_1": 3}')]
        done = self.succeeds("encode", "subscriber_v4", "--to", "frames", *files)
        self.assertEqual(done.raw, frames(b"\x08\x01", b"\x08\x02", b"\x08\x03"))


class LiveTest(InspectorTest):
    """What has come is shown before the rest is waited for."""

    def talk(self, arguments, parts):
        """What the program has printed after each part, while its input stays open."""
        printed = []
        with subprocess.Popen([PROGRAM, *arguments], stdin=subprocess.PIPE, stdout=subprocess.PIPE) as process:
            for part in parts:
                process.stdin.write(part)
                process.stdin.flush()
                self.assertTrue(select.select([process.stdout], [], [], SECONDS)[0], "nothing is printed")
                printed.append(os.read(process.stdout.fileno(), 1 << 16))
            process.stdin.close()
            printed.append(process.stdout.read())
        return printed

    def test_each_message_is_printed_as_it_comes(self):
        parts = [frames(V4), frames(OTHER_V4)]
        for command in (["decode"], ["decode", "--json"], ["explain"]):
            printed = self.talk([*command, "-f", "frames", "subscriber_v4"], parts)
            self.assertIn(b"192.0.2.1", printed[0], command)
            self.assertIn(b"192.0.2.2", printed[1], command)
            self.assertEqual(printed[2], b"", command)

    def test_each_document_is_encoded_as_it_comes(self):
        printed = self.talk(["encode", "--to", "frames", "subscriber_v4"], [b'{"field_1": 1}\n', b'{"field_1": 2}\n'])
        self.assertEqual(printed, [frames(b"\x08\x01"), frames(b"\x08\x02"), b""])


class GuessTest(InspectorTest):
    def test_the_messages_of_a_stream_are_summed_up(self):
        done = self.succeeds("guess", data=frames(V4, OTHER_V4, b"\x08\x01"))
        table = [line.split() for line in done.output.split("\n\n")[1].splitlines()]
        self.assertEqual(table[1], ["subscriber_v4", "3", "of", "3", "0", "0"])

    def test_what_some_messages_cannot_be_comes_behind(self):
        # A route response has no field 2 that is a fixed32.
        done = self.succeeds("guess", data=frames(V4, b"\x08\x01\x10\x02"))
        table = [line.split()[0:2] for line in done.output.split("\n\n")[1].splitlines()[1:]]
        self.assertIn(["subscriber_v4", "1"], table)
        counts = [int(count) for _, count in table]
        self.assertEqual(counts, sorted(counts, reverse=True))

    def test_json_has_the_candidates(self):
        document = json.loads(self.succeeds("guess", "--json", data=V4).output)
        self.assertEqual(document["candidates"][0], {"message": "subscriber_v4", "unknown_bytes": 0, "unknown_fields": 0,
                                                     "odd_forms": 0, "absent_fields": 0})
        self.assertEqual([line["number"] for line in lines_of(self.succeeds("guess", "-j", data=frames(V4, V4)))], [1, 2])


class DiffTest(InspectorTest):
    def diff(self, first, second, *options):
        return run("diff", *options, "subscriber_v4", self.file("a", first), self.file("b", second))

    def test_messages_are_compared_by_their_number(self):
        done = self.diff(frames(V4, V4, V4), frames(V4, OTHER_V4, V4))
        self.assertEqual((done.status, done.errors), (1, ""))
        self.assertEqual(done.output, "message 2, at byte 11 of A and byte 11 of B:\nfield_1: 1 -> 2\n"
                         "ipv4_address: c0000201 = 192.0.2.1 -> c0000202 = 192.0.2.2\n1 of 3 messages differ\n")

    def test_messages_without_a_partner_are_counted(self):
        done = self.diff(frames(V4, V4, V4), frames(V4))
        self.assertEqual((done.status, done.output), (1, "1 message: the same bytes; 2 more in A\n"))
        done = self.diff(frames(V4), frames(V4, V4))
        self.assertEqual((done.status, done.output), (1, "1 message: the same bytes; 1 more in B\n"))

    def test_equal_files_exit_with_0(self):
        done = self.diff(frames(V4, V4), frames(V4, V4))
        self.assertEqual((done.status, done.output), (0, "2 messages: the same bytes\n"))
        done = self.diff(frames(V4, V4), frames(V4, V4[2:] + V4[:2]))
        self.assertEqual((done.status, done.output), (0, "2 messages: the same fields, in other bytes\n"))

    def test_one_message_of_each_is_picked(self):
        done = self.diff(frames(V4, V4), frames(OTHER_V4, V4), "--message", "2")
        self.assertEqual((done.status, done.output), (0, "1 message: the same bytes\n"))

    def test_a_message_that_does_not_decode_is_a_difference(self):
        done = self.diff(frames(V4, V4, V4), frames(V4, CUT_V4, OTHER_V4))
        self.assertEqual(done.status, 1)
        self.assertIn("message 2, at byte 11 of A and byte 11 of B:\nB does not decode: ", done.output)
        self.assertIn("2 of 3 messages differ", done.output)
        self.assertIn("/b: frame 2 at byte 11: subscriber_v4 does not decode", done.errors)

    def test_json_has_the_values_of_both(self):
        done = self.diff(V4, OTHER_V4[:2], "--json")
        self.assertEqual(done.status, 1)
        self.assertEqual(json.loads(done.output), {"same_bytes": False, "differences": [
            {"path": "field_1", "a": "1", "b": "2"}, {"path": "ipv4_address", "a": "c0000201 = 192.0.2.1"}]})
        self.assertEqual(json.loads(self.diff(V4, V4, "--json").output), {"same_bytes": True, "differences": []})

    def test_json_of_many_messages_has_a_line_for_each_that_differs(self):
        done = self.diff(frames(V4, V4, V4), frames(V4, OTHER_V4, CUT_V4), "--json")
        self.assertEqual([(line["number"], line["offset_a"], "fault" in line) for line in lines_of(done)],
                         [(2, 11, False), (3, 22, True)])


class ReportTest(InspectorTest):
    def test_json_of_explain_has_every_byte(self):
        done = self.refused("explain", "--json", "subscriber_v4", "-f", "raw", data=CUT_V4, status=1, says="3 of its 4")
        document = json.loads(done.output)
        self.assertEqual("".join(line["bytes"] for line in document["lines"]), CUT_V4.hex())
        self.assertEqual((document["result"], document["fault"]["offset"]), (-1, 3))
        self.assertEqual([line["kind"] for line in document["lines"]], ["tag", "value", "tag", "value", "fault"])

    def test_json_of_check_has_the_findings(self):
        data = bytes.fromhex("0802188080044801")
        done = run("check", "--json", "session_delete", data=data)
        self.assertEqual(done.status, 1)
        document = json.loads(done.output)
        self.assertEqual([(each["kind"], each["path"], each["offset"]) for each in document["findings"]],
                         [("number_cut", "field_3", 2), ("unknown_field", "#9", 6)])
        self.assertEqual((document["adapter"], document["record_bytes"]), ("session_delete", 32))
        lines = lines_of(run("check", "--json", "session_delete", data=frames(data, b"\x08\x02")))
        self.assertEqual([(line["number"], len(line["findings"])) for line in lines], [(1, 2), (2, 0)])


if __name__ == "__main__":
    unittest.main()
