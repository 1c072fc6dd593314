"""What the shells offer after the words of a command line."""
import os
import re
import shutil
import subprocess
import unittest

from inspector import PROGRAM, SOURCES, InspectorTest, run

FOLDER = os.path.join(SOURCES, "inspector", "command")
TESTS = os.path.dirname(os.path.abspath(__file__))
COMMANDS = ["app", "check", "decode", "diff", "encode", "explain", "guess", "list", "web"]


def lines_of(*command, **settings):
    done = subprocess.run(command, capture_output=True, text=True, check=True, timeout=120, **settings)
    assert done.stderr == "", done.stderr
    return done.stdout.splitlines()


class CompletionTests:
    """The same for every shell: offered() returns the completions of the last word, sorted."""

    def test_the_first_word_is_a_command(self):
        self.assertEqual(set(self.offered("")) - {"--help", "--version"}, set(COMMANDS))
        self.assertEqual(self.offered("de"), ["decode"])

    def test_a_message_follows_where_one_is_expected(self):
        for command in ("decode", "explain", "encode", "diff", "list"):
            self.assertEqual(self.offered(command, "subscriber_v"), ["subscriber_v4", "subscriber_v6"])
        self.assertEqual(len(self.offered("decode", "")), 40)

    def test_an_adapter_follows_where_one_is_expected(self):
        for command in ("app", "check"):
            self.assertEqual(self.offered(command, "rec_start_"), ["rec_start_req", "rec_start_res"])
        self.assertEqual(len(self.offered("app", "")), 19)
        self.assertEqual(self.offered("app", "sub_route", ""), ["decode", "encode"])

    def test_options_and_their_values_do_not_count_as_arguments(self):
        words = ["decode", "--json", "--format", "hex", "--message", "2", "subscriber_v4"]
        self.assertEqual(self.offered(*words), ["subscriber_v4"])

    def test_values_of_options_are_offered(self):
        self.assertEqual(self.offered("decode", "-f", ""),
                         ["auto", "base64", "c", "capture", "dump", "frames", "hex", "raw"])
        self.assertEqual(self.offered("encode", "--to", "b"), ["base64"])
        self.assertEqual(self.offered("decode", "--color", ""), ["always", "auto", "never"])

    def test_the_options_offered_are_those_of_the_help(self):
        for command in COMMANDS:
            in_help = set(re.findall(r"(?m)^  (?:-\w,)?(--[\w-]+)", run(command, "--help").output))
            self.assertEqual(set(self.offered(command, "--")), in_help, command)


class BashTest(CompletionTests, InspectorTest):
    script = os.path.join(FOLDER, "mava-tum.bash")

    def offered(self, *words):
        lines = (f'. "{self.script}"; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _mava_tum; '
                 'printf "%s\\n" "${COMPREPLY[@]}"')
        return sorted(line for line in lines_of("bash", "-c", lines, "bash", PROGRAM, *words) if line)

    def test_it_is_declared_for_the_program(self):
        self.assertEqual(lines_of("bash", "-c", f'. "{self.script}"; complete -p mava-tum'),
                         ["complete -o default -F _mava_tum mava-tum"])

    def test_files_are_left_to_bash(self):
        self.assertEqual(self.offered("decode", "subscriber_v4", ""), [])
        self.assertEqual(self.offered("list", "-o", ""), [])


@unittest.skipUnless(shutil.which("zsh"), "zsh is not installed")
class ZshTest(CompletionTests, InspectorTest):
    def offered(self, *words):
        for name in ("offered", "ready", "done"):
            if os.path.exists(os.path.join(self.folder, name)):
                os.remove(os.path.join(self.folder, name))
        return sorted(lines_of(os.path.join(TESTS, "zsh_completions"), self.folder,
                               os.path.join(FOLDER, "mava-tum.zsh"), " ".join([PROGRAM, *words])))

    def test_it_is_declared_for_the_program(self):
        with open(os.path.join(FOLDER, "mava-tum.zsh"), encoding="utf-8") as script:
            self.assertEqual(script.readline(), "#compdef mava-tum\n")


@unittest.skipUnless(shutil.which("fish"), "fish is not installed")
class FishTest(CompletionTests, InspectorTest):
    def offered(self, *words):
        lines = f'source "{os.path.join(FOLDER, "mava-tum.fish")}"; complete -C "$argv"'
        settings = {"env": {**os.environ, "HOME": self.folder}}
        found = lines_of("fish", "--no-config", "-c", lines, " ".join([PROGRAM, *words]), **settings)
        return sorted(line.split("\t")[0] for line in found)


if __name__ == "__main__":
    unittest.main()
