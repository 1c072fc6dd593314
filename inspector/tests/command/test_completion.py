"""What bash offers after the words of a command line."""
import os
import re
import subprocess
import unittest

from inspector import PROGRAM, SOURCES, InspectorTest, run

SCRIPT = os.path.join(SOURCES, "inspector", "command", "mava-tum.bash")
COMMANDS = ["app", "check", "decode", "diff", "encode", "explain", "guess", "list"]


def offered(*words):
    """The completions of the last word."""
    lines = f'. "{SCRIPT}"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _mava_tum; printf "%s\\n" "${{COMPREPLY[@]}}"'
    done = subprocess.run(["bash", "-c", lines, "bash", PROGRAM, *words], capture_output=True, text=True, check=True,
                          timeout=60)
    assert done.stderr == "", done.stderr
    return done.stdout.split()


class CompletionTest(InspectorTest):
    def test_it_is_declared_for_the_program(self):
        done = subprocess.run(["bash", "-c", f'. "{SCRIPT}"; complete -p mava-tum'], capture_output=True, text=True,
                              check=True, timeout=60)
        self.assertEqual(done.stdout, "complete -o default -F _mava_tum mava-tum\n")

    def test_the_first_word_is_a_command(self):
        self.assertEqual(sorted(offered("")), sorted(COMMANDS + ["--help", "--version"]))
        self.assertEqual(offered("de"), ["decode"])

    def test_a_message_follows_where_one_is_expected(self):
        for command in ("decode", "explain", "encode", "diff", "list"):
            self.assertEqual(offered(command, "subscriber_v"), ["subscriber_v4", "subscriber_v6"])
        self.assertEqual(len(offered("decode", "")), 40)

    def test_an_adapter_follows_where_one_is_expected(self):
        for command in ("app", "check"):
            self.assertEqual(offered(command, "rec_start_"), ["rec_start_req", "rec_start_res"])
        self.assertEqual(len(offered("app", "")), 19)
        self.assertEqual(offered("app", "sub_route", ""), ["encode", "decode"])

    def test_options_and_their_values_do_not_count_as_arguments(self):
        self.assertEqual(offered("decode", "--json", "--format", "hex", "subscriber_v4"), ["subscriber_v4"])

    def test_files_are_left_to_bash(self):
        self.assertEqual(offered("decode", "subscriber_v4", ""), [])
        self.assertEqual(offered("list", "-o", ""), [])

    def test_values_of_options_are_offered(self):
        self.assertEqual(offered("decode", "-f", ""), ["auto", "raw", "hex", "base64", "frames"])
        self.assertEqual(offered("encode", "--to", "b"), ["base64"])
        self.assertEqual(offered("decode", "--color", ""), ["auto", "always", "never"])

    def test_the_options_offered_are_those_of_the_help(self):
        for command in COMMANDS:
            in_help = set(re.findall(r"(?m)^  (?:-\w,)?(--[\w-]+)", run(command, "--help").output))
            self.assertEqual(set(offered(command, "-")), in_help, command)


if __name__ == "__main__":
    unittest.main()
