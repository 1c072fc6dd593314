"""The same message in every format, named and recognised."""
import base64
import json
import unittest

from inspector import V4, InspectorTest, frames, run

SESSION_DELETE = ("app", "session_delete")


class InputTest(InspectorTest):
    def setUp(self):
        super().setUp()
        self.written = {"raw": V4, "hex": V4.hex().encode(), "base64": base64.b64encode(V4)}
        self.expected = self.succeeds("decode", "subscriber_v4", "-f", "raw", data=V4).output

    def test_every_format_is_read_by_its_name(self):
        for name, data in self.written.items():
            self.assertEqual(self.succeeds("decode", "subscriber_v4", "-f", name, data=data).output, self.expected)

    def test_every_format_is_recognised(self):
        for name, data in self.written.items():
            self.assertEqual(self.succeeds("decode", "subscriber_v4", data=data).output, self.expected, name)

    def test_hex_is_read_as_other_tools_write_it(self):
        for data in (b"08 01 15 C0 00 02 01\n", b"0x08, 0x01, 0x15, 0xc0, 0x00, 0x02, 0x01", b"08:01:15:c0:00:02:01\n"):
            self.assertEqual(self.succeeds("decode", "subscriber_v4", data=data).output, self.expected)

    def test_broken_hex_stays_hex(self):
        self.refused("decode", "subscriber_v4", data=b"080115c00002\n", status=1, says="has 3 of its 4 bytes")

    def test_a_file_and_standard_input_are_the_same(self):
        path = self.file("message", V4)
        for arguments in ([path], ["-"], []):
            self.assertEqual(self.succeeds("decode", "subscriber_v4", *arguments, data=V4).output, self.expected)

    def test_frames_are_read_one_after_the_other(self):
        for chosen in ([], ["-f", "frames"]):
            done = self.succeeds("decode", "subscriber_v4", *chosen, data=frames(V4, b"", V4))
            headings = [line for line in done.output.splitlines() if line.startswith("frame ")]
            self.assertEqual(headings, ["frame 1 at byte 0: subscriber_v4, 7 bytes",
                                        "frame 2 at byte 11: subscriber_v4, 0 bytes",
                                        "frame 3 at byte 15: subscriber_v4, 7 bytes"])

    def test_frames_become_one_json_document_a_line(self):
        done = self.succeeds("decode", "-j", "subscriber_v4", data=frames(V4, b""))
        documents = [json.loads(line) for line in done.output.splitlines()]
        self.assertEqual([document["bytes"] for document in documents], [7, 0])

    def test_guess_reads_frames_too(self):
        done = self.succeeds("guess", data=frames(V4))
        self.assertTrue(done.output.startswith("frame 1 at byte 0, 7 bytes: subscriber_v4, "), done.output)


class OutputTest(InspectorTest):
    document = b'{"field_1": 1, "ipv4_address": "192.0.2.1"}'

    def test_a_message_is_written_in_every_format(self):
        for name, expected in [("raw", V4), ("hex", V4.hex().encode() + b"\n"),
                               ("base64", base64.b64encode(V4) + b"\n"), ("frames", frames(V4))]:
            done = self.succeeds("encode", "subscriber_v4", "--to", name, data=self.document)
            self.assertEqual(done.raw, expected, name)

    def test_raw_is_what_is_written_unless_another_is_named(self):
        self.assertEqual(self.succeeds("encode", "subscriber_v4", data=self.document).raw, V4)

    def test_an_address_may_be_a_number_too(self):
        data = b'{"field_1": 1, "ipv4_address": 3221225985}'
        self.assertEqual(self.succeeds("encode", "subscriber_v4", data=data).raw, V4)

    def test_an_empty_record_is_present_and_an_empty_list_is_not(self):
        done = self.succeeds("encode", "session_context", "-t", "hex", data=b'{"acl": {}, "qos": []}')
        self.assertEqual(done.output, "6200\n")


class AdapterTest(InspectorTest):
    def test_a_record_comes_back_through_its_adapter(self):
        record = {"field_1": 2, "field_2": 7, "field_3": 65535, "field_4": 2**64 - 1, "field_5": 9}
        wire = self.succeeds(*SESSION_DELETE, "encode", data=json.dumps(record).encode()).raw
        self.assertEqual(json.loads(self.succeeds(*SESSION_DELETE, "decode", data=wire).output), record)

    def test_a_whole_session_comes_back(self):
        record = {"session_value_1": 4, "feature_mask": 1 << 9 | 1 << 10 | 1, "ipv4_address": "192.0.2.1",
                  "ipv6_part_2": "2001:db8::1", "session_name": "user@example.com",
                  "session_identifier": "00112233445566",
                  "qos": [{"value_1": 1, "text_3": "gold"}, {"value_1": 2, "text_12": "\u00e9"}]}
        wire = self.succeeds("app", "session_context", "encode", data=json.dumps(record).encode()).raw
        arrived = json.loads(self.succeeds("app", "session_context", "decode", "-f", "raw", data=wire).output)
        for name in set(record) - {"qos"}:
            self.assertEqual(arrived[name], record[name], name)
        self.assertEqual([entry["value_1"] for entry in arrived["qos"]], [1, 2])
        self.assertEqual([entry["text_12"] for entry in arrived["qos"]], ["", "\u00e9"])

    def test_every_adapter_takes_an_empty_object_and_gives_every_member(self):
        names = [line.split(None, 2)[2].split(", ") for line in self.succeeds("list").output.splitlines()[1:]
                 if len(line.split(None, 2)) == 3]
        adapters = [name for several in names for name in several]
        self.assertEqual(len(adapters), 19)
        for name in adapters:
            wire = self.succeeds("app", name, "encode", "--to", "frames", data=b"{}").raw
            self.assertTrue(json.loads(self.succeeds("app", name, "decode", data=wire).output), name)

    def test_members_that_are_not_sent_are_told_with_their_bit(self):
        record = {"feature_mask": 1 << 8, "qos": [{"value_1": 1}], "acl_text_2": "in", "ipv6_part_2": "2001:db8::1",
                  "urpf_2_value_1": 0, "icmp_1_value": 7}
        done = run("app", "session_context", "encode", data=json.dumps(record).encode())
        self.assertEqual((done.status, done.errors), (0, "mava-tum app: these members are not sent: "
                         "qos (bit 0 of feature_mask is not set), ipv6_part_2 (bit 10 of feature_mask is not set), "
                         "icmp_1_value (bit 5 of feature_mask is not set)\n"))
        record["feature_mask"] |= 1 | 1 << 10 | 1 << 5
        self.succeeds("app", "session_context", "encode", data=json.dumps(record).encode())

    def test_frames_become_one_record_a_line(self):
        done = self.succeeds(*SESSION_DELETE, "decode", data=frames(b"\x08\x01", b"\x08\x02"))
        self.assertEqual([json.loads(line)["field_1"] for line in done.output.splitlines()], [1, 2])


class ListTest(InspectorTest):
    def test_there_are_40_messages(self):
        self.assertEqual(self.succeeds("list").output.count("\n"), 41)
        self.assertEqual(len(json.loads(self.succeeds("list", "-j").output)), 40)

    def test_a_message_has_its_fields(self):
        fields = json.loads(self.succeeds("list", "--json", "session_context").output)["fields"]
        self.assertEqual(len(fields), 24)
        self.assertEqual(fields[10], {"number": 11, "name": "qos", "kind": "array of records",
                                      "message": "subscriber_qos"})

    def test_the_version_is_that_of_the_project(self):
        self.assertRegex(run("--version").output, r"^mava-tum \d+\.\d+\.\d+\n$")


if __name__ == "__main__":
    unittest.main()
