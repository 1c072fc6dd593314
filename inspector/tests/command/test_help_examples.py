"""Every help ends with an example, which works as it is shown."""
import os
import re
import subprocess
import unittest

from inspector import PROGRAM, InspectorTest, run

COMMANDS = ["decode", "explain", "encode", "app", "check", "guess", "diff", "list", "web"]
PROMPT = "  $ "


def examples_of(text):
    """Commands and what they print, from a help: lines behind a prompt, and those below them."""
    examples = []
    for line in text.split("\nExample", 1)[1].splitlines()[1:]:
        if line.startswith(PROMPT):
            examples.append((line[len(PROMPT):], []))
        elif line.strip():
            examples[-1][1].append(line[2:])
    return examples


class HelpTest(InspectorTest):
    def setUp(self):
        super().setUp()
        os.symlink(PROGRAM, os.path.join(self.folder, "mava-tum"))
        self.environment = {"PATH": f"{self.folder}:{os.environ['PATH']}", "LC_ALL": "C"}

    def shell(self, command):
        done = subprocess.run(["bash", "-c", command], cwd=self.folder, env=self.environment, check=False, text=True,
                              stdout=subprocess.PIPE, stderr=subprocess.STDOUT, timeout=60)
        return [line.rstrip() for line in done.stdout.splitlines()]

    def test_every_example_prints_what_is_shown(self):
        shown = 0
        for words in [[], *([command] for command in COMMANDS)]:
            examples = examples_of(run(*words, "--help").output)
            self.assertTrue(examples, words)
            for command, expected in examples:
                self.assertEqual(self.shell(command), expected, command)
                shown += 1
        self.assertGreaterEqual(shown, len(COMMANDS) + 1)

    def test_the_help_names_every_command(self):
        overview = run("--help").output
        for command in COMMANDS:
            self.assertRegex(overview, rf"(?m)^  {command} ")

    def test_help_and_version_exit_with_0(self):
        for words in [["--help"], ["-h"], ["--version"], *([command, "--help"] for command in COMMANDS)]:
            done = run(*words)
            self.assertEqual((done.status, done.errors), (0, ""), words)

    def test_the_help_fits_a_terminal(self):
        for words in [[], *([command] for command in COMMANDS)]:
            for line in run(*words, "--help").output.splitlines():
                if not re.match(r"^ *\$|^  ", line):
                    self.assertLessEqual(len(line), 100, line)


if __name__ == "__main__":
    unittest.main()
