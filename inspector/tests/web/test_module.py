"""The module of the web page against the program of this machine: the same answers to the same inputs, in Node."""
import base64
import json
import os
import struct
import subprocess
import tempfile
import unittest

from inspector import PROGRAM, SOURCES, frames
from random_messages import RandomMessages
from test_captures import ETHERNET, ethernet, packet, pcap, pcapng

MODULE = os.environ["MAVA_TUM_WASM"]
INPUTS = int(os.environ.get("MAVA_TUM_WEB_INPUTS", "400"))
SESSION = bytes.fromhex("08021807521010 2a2a05616c6963655205086410904e")
BROKEN = bytes.fromhex("52052a09616c69")
ROW = struct.Struct("<8i")
ABSENT, LAST_WITH_TAG = 6, 3

# Answers each line of JSON, {"files": {name: base64}, "request": text}, with a line.
HOST = """
const fs = require('fs');
const {InspectorModule} = require(process.argv[1]);
const inspector = new InspectorModule(new WebAssembly.Module(fs.readFileSync(process.argv[2])), () => {});
require('readline').createInterface({input: process.stdin}).on('line', (line) => {
    const {files, request} = JSON.parse(line);
    for (const [name, content] of Object.entries(files)) inspector.files.set(name, Buffer.from(content, 'base64'));
    const answer = inspector.run(request);
    answer.bytes = Buffer.from(answer.bytes).toString('base64');
    console.log(JSON.stringify(answer));
});
"""


class Module:
    """The module in a Node of its own."""

    def __init__(self):
        self.node = subprocess.Popen(
            ["node", "-e", HOST, os.path.join(SOURCES, "inspector/web/worker.js"), MODULE],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)

    def run(self, data=None, other=None, **request):
        files = {name: base64.b64encode(content).decode()
                 for name, content in (("standard input", data), ("b", other)) if content is not None}
        request.setdefault("input", "standard input")
        self.node.stdin.write(json.dumps({"files": files, "request": json.dumps(request)}) + "\n")
        self.node.stdin.flush()
        answer = json.loads(self.node.stdout.readline())
        answer["bytes"] = base64.b64decode(answer["bytes"])
        return answer

    def close(self):
        self.node.stdin.close()
        self.node.stdout.close()
        self.node.wait(10)


def native(*arguments, data=b""):
    return subprocess.run([PROGRAM, *arguments], input=data, capture_output=True, timeout=60, check=False)


def messages_of_this_release():
    listed = json.loads(native("list", "--json").stdout)
    return {message["name"]: message["fields"] for message in listed}


def forms_of(wire):
    """Texts that stand for a message."""
    hexed = wire.hex()
    return {
        "hex": hexed, "hex with colons": ":".join(f"{byte:02x}" for byte in wire),
        "base64": base64.b64encode(wire).decode(),
        "xxd": "\n".join(f"{at:08x}: {wire[at:at + 16].hex(' ', 2)}  " + "." * len(wire[at:at + 16])
                         for at in range(0, len(wire), 16)),
        "hexdump": "\n".join(f"{at:08x}  {wire[at:at + 16].hex(' ')}  |{'.' * len(wire[at:at + 16])}|"
                             for at in range(0, len(wire), 16)),
        "c": "uint8_t m[] = {" + ", ".join(f"0x{byte:02x}" for byte in wire) + "};",
        "escapes": '"' + "".join(f"\\x{byte:02x}" for byte in wire) + '"',
    }


class ModuleTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.module = Module()
        cls.catalogue = messages_of_this_release()
        print(f"the module has {os.path.getsize(MODULE)} bytes")

    @classmethod
    def tearDownClass(cls):
        cls.module.close()

    def same(self, arguments, data, **request):
        """The program and the module say the same, errors included."""
        expected = native(*arguments, data=data)
        answer = self.module.run(data, **request)
        self.assertEqual(answer["text"], expected.stdout.decode(), arguments)
        self.assertEqual(answer["status"], expected.returncode, (arguments, answer["errors"]))
        return expected, answer

    def test_has_the_messages_of_the_program(self):
        self.assertEqual(len(self.catalogue), 40)
        self.same(("list", "--json"), b"", command="list", json=True)

    def test_decodes_as_the_program(self):
        """Verdict, path, byte, values and places, of random and mutated inputs of all messages."""
        source = RandomMessages(17, self.catalogue)
        malformed = 0
        for name in self.catalogue:
            wire = frames(*source.several(name, INPUTS // 40))
            expected, _ = self.same(("decode", "--json", "--fields", "-f", "frames", name), wire,
                                    command="decode", name=name, json=True, fields=True, format="frames")
            malformed += expected.stdout.count(b'"fault":')
        self.assertGreater(malformed, INPUTS // 20)

    def test_its_rows_are_the_fields_that_the_program_names(self):
        source = RandomMessages(18, self.catalogue)
        for name in self.catalogue:
            for wire in source.several(name, max(1, INPUTS // 400)):
                shown = json.loads(native("decode", "--json", "--fields", "-f", "raw", name, data=wire).stdout)
                rows = [row for row in ROW.iter_unpack(self.module.run(wire, command="rows", name=name)["bytes"])
                        if row[0] & 255 <= LAST_WITH_TAG]
                places = [(row[1], row[3], row[4], row[6] & 0xFFFFFFFF) for row in rows]
                self.assertEqual(places, [
                    (field["offset"], field["value_offset"], field["value_bytes"], field["number"])
                    for field in shown["fields"] if field["present"]], wire.hex())

    def test_other_commands_answer_as_the_program(self):
        for wire in (SESSION, BROKEN, b"", bytes.fromhex("080115c0000201")):
            for command in ("explain", "check"):
                self.same((command, "--json", "-f", "raw", "session_context"), wire,
                          command=command, name="session_context", json=True, format="raw")
            self.same(("explain", "-f", "raw", "session_context"), wire,
                      command="explain", name="session_context", format="raw")
            self.same(("guess", "--json", "-f", "raw"), wire, command="guess", json=True, format="raw")
            self.same(("app", "session_context", "decode", "-f", "raw"), wire,
                      command="app", name="session_context", format="raw")

    def test_reads_every_form_of_input(self):
        for form, text in forms_of(SESSION).items():
            answer = self.module.run(text.encode(), command="message", name="session_context")
            self.assertEqual((form, answer["bytes"]), (form, SESSION), answer["errors"])
        self.assertEqual(self.module.run(SESSION, command="message", name="session_context")["bytes"], SESSION)
        several = self.module.run(frames(BROKEN, SESSION), command="message", name="session_context", number=2)
        self.assertEqual((several["bytes"], json.loads(several["text"])),
                         (SESSION, {"several": True, "capture": False, "found": True}))

    def test_refuses_input_as_the_program_does(self):
        for text in (b"", b"08 0g", b"hello, world", b"\x00\x00\x00\x09\x08"):
            expected = native("decode", "session_context", data=text)
            answer = self.module.run(text, command="message", name="session_context")
            self.assertEqual((answer["status"], expected.returncode), (2, 2))
            self.assertEqual(f"mava-tum decode: {answer['errors']}\n", expected.stderr.decode())

    def test_lists_messages_with_their_verdicts(self):
        answer = self.module.run(frames(SESSION, BROKEN, b""), command="frames", name="session_context")
        rows = list(struct.iter_unpack("<5d", answer["bytes"]))
        self.assertEqual(rows, [(0, len(SESSION), 0, 0, 0), (4 + len(SESSION), 7, -1, 3, 0),
                                (15 + len(SESSION), 0, 0, 0, 0)])

    def test_lists_messages_of_a_capture_with_packet_and_direction(self):
        capture = pcapng([packet(b"\x08\x01", source=53, destination=4000), packet(BROKEN),
                          packet(frames(SESSION, b""), "tcp")])
        shown = []
        for choice in ({}, {"ports": [6000]}, {"ports": [53], "side": "from"}, {"transport": "tcp"}):
            answer = self.module.run(capture, command="frames", name="session_context", **choice)
            directions = json.loads(answer["text"])
            shown.append([(*row[:4], directions[int(row[4])]) for row in struct.iter_unpack("<5d", answer["bytes"])])
            first = self.module.run(capture, command="message", number=1, **choice)
            self.assertEqual((len(first["bytes"]), json.loads(first["text"])["capture"]), (shown[-1][0][1], True))
        other, ours = "192.0.2.1:53 > 192.0.2.2:4000", "192.0.2.1:5000 > 192.0.2.2:6000"
        stream = [(3, len(SESSION), 0, 0, ours), (3, 0, 0, 0, ours)]
        broken, foreign = (2, len(BROKEN), -1, 3, ours), (1, 2, 0, 0, other)
        self.assertEqual(shown, [[foreign, broken, *stream], [broken, *stream], [foreign], stream])

    def test_a_capture_without_messages_says_what_it_has(self):
        answer = self.module.run(pcap([packet(BROKEN, fragment=3), packet(SESSION)]), command="message", ports=[1])
        self.assertEqual((answer["status"], json.loads(answer["text"])["found"]), (0, False))
        fragment, nothing = answer["errors"].split("\n")
        self.assertIn("packet 1 is a fragment", fragment)
        self.assertIn("no message in 2 packets;", nothing)

    def test_an_edit_is_what_the_program_encodes(self):
        name = "session_context"
        for path, value in (("/session_data/field_2", 4294967295), ("/session_data/field_5", "<b>bob</b>"),
                            ("/qos", [{"field_1": 3}, {}])):
            answer = self.module.run(SESSION, command="edit", name=name, path=path, value=value)
            record = json.loads(native("decode", "--json", name, data=SESSION).stdout)["record"]
            *above, last = path[1:].split("/")
            place = record
            for step in above:
                place = place[step]
            place[last] = value
            expected = native("encode", name, data=json.dumps(record).encode()).stdout
            self.assertEqual((path, answer["bytes"]), (path, expected), answer["errors"])
            self.assertNotEqual(answer["bytes"], SESSION)

    def test_an_edit_that_changes_nothing_is_the_message_as_the_program_encodes_it(self):
        """Of every message: the bytes of a random one, with one of its fields set to the value that it has."""
        source = RandomMessages(20, self.catalogue)
        edits = 0
        for name in self.catalogue:
            wire = source.message(name)
            shown = json.loads(native("decode", "--json", "-f", "raw", name, data=wire).stdout)
            if not shown["record"] or "fault" in shown:
                continue
            path = source.random.choice(list(shown["record"]))
            expected = native("encode", name, data=json.dumps(shown["record"]).encode()).stdout
            answer = self.module.run(wire, command="edit", name=name, path=f"/{path}", value=shown["record"][path])
            self.assertEqual((name, answer["bytes"]), (name, expected), answer["errors"])
            edits += 1
        self.assertGreater(edits, 20)

    def test_an_edit_that_removes_all_fields_leaves_an_empty_message(self):
        wire = SESSION
        for path in list(json.loads(native("decode", "--json", "session_context", data=wire).stdout)["record"]):
            wire = self.module.run(wire, command="edit", name="session_context", path=f"/{path}")["bytes"]
        self.assertEqual(wire, b"")

    def test_a_wrong_edit_is_refused_with_its_place(self):
        answer = self.module.run(SESSION, command="edit", name="session_context", path="/qos", value=[{"field_2": -1}])
        self.assertEqual((answer["status"], answer["bytes"]), (2, b""))
        self.assertIn("/qos/0/field_2: expected a number", answer["errors"])

    def test_a_report_without_values_holds_none(self):
        plain = self.module.run(SESSION, command="report", name="session_context")["text"]
        redacted = self.module.run(SESSION, command="report", name="session_context", redacted=True)["text"]
        self.assertIn("alice", plain)
        self.assertIn("61 6C 69", plain)
        for value in ("alice", "61 6C 69"):
            self.assertNotIn(value, redacted)
        self.assertIn("field_5", redacted)

    def test_compares_as_the_program(self):
        other = SESSION.replace(b"alice", b"carol")
        with tempfile.TemporaryDirectory() as folder:
            paths = [os.path.join(folder, name) for name in ("a", "b")]
            for path, content in zip(paths, (SESSION, other)):
                with open(path, "wb") as file:
                    file.write(content)
            expected = native("diff", "--json", "-f", "raw", "session_context", *paths)
        answer = self.module.run(SESSION, other, command="diff", name="session_context", second="b", json=True,
                                 format="raw")
        self.assertEqual((answer["text"], answer["status"]), (expected.stdout.decode(), 1))

    def test_survives_hostile_input(self):
        for name, wire in (("sub_route", b"\x22\x00" * 500_000), ("session_context", b"\x5a\x00" * 500_000),
                           ("rec_sess_replay_req", b"\x0a\x80" * 1000), ("session_context", b"\xff" * 100_000)):
            for command in ("look", "rows", "guess"):
                answer = self.module.run(wire, command=command, name=name, format="raw")
                self.assertFalse(answer["crashed"], (name, command, answer["errors"]))

    def test_a_request_that_is_none_is_refused(self):
        self.assertEqual(self.module.run(b"", command="no_such")["status"], 2)
        self.assertIn("there is no message", self.module.run(b"", command="look", name="sesion")["errors"])

    def test_reads_captures_as_the_program(self):
        packets = [ethernet(packet(wire)) for wire in (SESSION, BROKEN)] + [ethernet(packet(frames(SESSION), "tcp"))]
        for capture in (pcap(packets, ETHERNET), pcapng(packets, ETHERNET), pcapng(packets, ETHERNET, ">"),
                        pcapng(packets, ETHERNET) + pcap(packets, ETHERNET)):
            self.same(("decode", "--json", "session_context"), capture,
                      command="decode", name="session_context", json=True)
        for cut in range(len(packets[0])):
            self.same(("guess", "--json"), capture[:-cut], command="guess", json=True)


if __name__ == "__main__":
    unittest.main()
