"""Whatever the bytes are: every command ends as it says, and they agree."""
import json
import random
import re
import unittest

from inspector import InspectorTest, frames, run

MESSAGES_OF_A_RUN = 60
LARGEST_FIELD = 24


def varint(value):
    content = bytearray()
    while value > 0x7F:
        content.append(value & 0x7F | 0x80)
        value >>= 7
    content.append(value)
    return bytes(content)


def random_fields(source, depth):
    """Fields as they stand on the wire, most of them well-formed; what is length-delimited often holds fields."""
    content = b""
    for _ in range(source.randrange(5)):
        wire_type = source.choice([0, 0, 0, 2, 2, 2, 5, 1, 3])
        content += varint(source.randint(1, LARGEST_FIELD) << 3 | wire_type)
        if wire_type == 0:
            content += varint(source.getrandbits(source.choice([3, 7, 31, 64])))
        elif wire_type == 2:
            inner = random_fields(source, depth - 1) if depth and source.random() < 0.7 else b"text\0\xff"
            content += varint(len(inner) + source.choice([0, 0, 0, 0, 0, 0, 1])) + inner
        elif wire_type != 3:
            content += source.randbytes(4 if wire_type == 5 else 8)
    return content if source.random() < 0.9 else content[:source.randrange(len(content) + 1)]


class AnyInputTest(InspectorTest):
    def setUp(self):
        super().setUp()
        lines = self.succeeds("list").output.splitlines()[1:]
        self.messages = [line.split()[0] for line in lines]
        self.adapters = [name for line in lines for name in line.replace(",", "").split()[2:]]

    def inputs(self, name):
        source = random.Random(name)
        return frames(*(random_fields(source, 4) for _ in range(MESSAGES_OF_A_RUN)))

    def ends_as_it_says(self, done, is_broken):
        self.assertEqual(done.status, 1 if is_broken else 0, done.errors)
        self.assertEqual(done.errors.count("\n"), 1 if is_broken else 0, done.errors)

    def test_decode_and_explain_agree_on_every_message(self):
        for name in self.messages:
            data = self.inputs(name)
            printed = run("decode", "--json", name, data=data)
            results = [json.loads(line)["result"] for line in printed.output.splitlines()]
            self.assertEqual(len(results), MESSAGES_OF_A_RUN)
            self.ends_as_it_says(printed, any(results))
            explained = run("explain", name, data=data)
            self.assertEqual([int(result) for result in re.findall(r"(?m): result (-?\d)$", explained.output)], results)
            self.ends_as_it_says(explained, any(results))
            self.ends_as_it_says(run("decode", name, data=data), any(results))

    def test_explain_shows_every_byte_once(self):
        source = random.Random("bytes")
        for name in self.messages:
            message = random_fields(source, 4)
            output = run("explain", name, data=frames(message)).output
            shown = re.findall(r"(?m)^ *(\d+) ((?: [0-9A-F]{2}){1,8})(?= |$)", output)
            self.assertEqual(bytes.fromhex("".join(line for _, line in shown)), message, output)

    def test_what_decodes_is_encoded_from_its_json(self):
        for name in self.messages:
            for line in run("decode", "--json", name, data=self.inputs(name)).output.splitlines()[:8]:
                document = json.loads(line)
                again = run("encode", name, data=json.dumps(document).encode())
                # A text with a zero byte is printed up to there, as the library takes it.
                self.assertEqual((again.status, again.errors), (0, ""), line)
                back = run("decode", "--json", name, "--format", "frames", data=frames(again.raw))
                self.assertEqual(json.loads(back.output)["record"], document["record"])

    def test_adapters_take_anything(self):
        for name in self.adapters:
            data = self.inputs(name)
            printed = run("app", name, "decode", data=data)
            self.assertIn(printed.status, (0, 1))
            self.assertEqual(len([json.loads(line) for line in printed.output.splitlines()]), MESSAGES_OF_A_RUN)
            checked = run("check", name, data=data)
            self.assertIn(checked.status, (0, 1))
            self.assertEqual(checked.errors, "")
            if printed.status == 1:
                self.assertEqual(checked.status, 1)

    def test_guess_and_diff_take_anything(self):
        done = run("guess", data=self.inputs("guess"))
        self.assertIn(done.status, (0, 1))
        self.assertEqual(done.output.count("\n"), MESSAGES_OF_A_RUN)
        source = random.Random("diff")
        for name in self.messages:
            pair = [self.file(side, random_fields(source, 2)) for side in ("a", "b")]
            done = run("diff", name, "--format", "raw", *pair)
            self.assertIn(done.status, (0, 1, 2))
            self.assertLessEqual(done.errors.count("\n"), 1)


if __name__ == "__main__":
    unittest.main()
