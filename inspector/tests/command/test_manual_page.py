"""The manual page: well-formed, and about the program as it is."""
import os
import re
import shutil
import subprocess
import unittest

from inspector import SOURCES, InspectorTest, run

PAGE = os.path.join(SOURCES, "inspector", "command", "mava-tum.1")


def part_of(text, heading):
    """The part of a help below a heading, up to the example."""
    return text.split(heading)[1].split("Example")[0]


class ManualPageTest(InspectorTest):
    @unittest.skipUnless(shutil.which("mandoc"), "mandoc is not installed")
    def test_mandoc_has_nothing_to_say(self):
        done = subprocess.run(["mandoc", "-Tlint", "-Wwarning", PAGE], capture_output=True, text=True, check=False)
        self.assertEqual((done.returncode, done.stdout + done.stderr), (0, ""))

    @unittest.skipUnless(shutil.which("mandoc"), "mandoc is not installed")
    def test_it_names_every_command_and_every_option(self):
        shown = subprocess.run(["mandoc", "-Tutf8", PAGE], capture_output=True, text=True, check=True).stdout
        shown = re.sub(r".\x08", "", shown)
        commands = re.findall(r"(?m)^  ([a-z]+) ", part_of(run("--help").output, "Subcommands:"))
        self.assertEqual(len(commands), 9)
        for command in commands:
            self.assertIn(f"mava-tum {command}", shown)
            for option in re.findall(r"--[a-z-]+", part_of(run(command, "--help").output, "Options:")):
                self.assertIn(option, shown, command)


if __name__ == "__main__":
    unittest.main()
