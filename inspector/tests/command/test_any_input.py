"""Whatever the bytes are: every command ends as it says, and they agree."""
import json
import os
import re
import unittest

from inspector import InspectorTest, frames, run
from random_messages import RandomMessages

MESSAGES_OF_A_RUN = 60


class AnyInputTest(InspectorTest):
    def setUp(self):
        super().setUp()
        described = json.loads(self.succeeds("list", "--json").output)
        self.schema = {message["name"]: message["fields"] for message in described}
        # A program under the sanitizers takes long to start: a quarter of the messages.
        self.messages = list(self.schema)[::4 if os.environ.get("MAVA_TUM_IS_INSTRUMENTED") == "1" else 1]
        # By adapter, the message that carries its record.
        self.adapters = {adapter: line.split()[0] for line in self.succeeds("list").output.splitlines()[1:]
                         for adapter in line.replace(",", "").split()[2:]}

    def inputs(self, name):
        return frames(*RandomMessages(name, self.schema).several(name, MESSAGES_OF_A_RUN))

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
        source = RandomMessages("bytes", self.schema)
        for name in self.messages:
            message = source.maybe_damaged(name)
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
        for name, message in self.adapters.items():
            data = self.inputs(message)
            printed = run("app", name, "decode", data=data)
            self.assertIn(printed.status, (0, 1))
            self.assertEqual(len([json.loads(line) for line in printed.output.splitlines()]), MESSAGES_OF_A_RUN)
            checked = run("check", name, data=data)
            self.assertIn(checked.status, (0, 1))
            self.assertEqual(checked.errors, "")
            if printed.status == 1:
                self.assertEqual(checked.status, 1)

    def test_guess_and_diff_take_anything(self):
        done = run("guess", data=self.inputs("session_context"))
        self.assertIn(done.status, (0, 1))
        self.assertEqual(len(re.findall("(?m)^frame ", done.output)), MESSAGES_OF_A_RUN)
        source = RandomMessages("diff", self.schema)
        for name in self.messages:
            pair = [self.file(side, frames(source.maybe_damaged(name))) for side in ("a", "b")]
            done = run("diff", name, *pair)
            self.assertIn(done.status, (0, 1))
            self.assertLessEqual(done.errors.count("\n"), done.status)


if __name__ == "__main__":
    unittest.main()
