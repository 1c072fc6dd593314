"""Runs mava-tum as its users do, and says what it must not do."""
import os
import subprocess
import tempfile
import unittest

PROGRAM = os.environ["MAVA_TUM"]
SOURCES = os.environ["MAVA_TUM_SOURCES"]
SECONDS = 60
EXTRA_ENVIRONMENT = {}  # of all runs; a test may add to it

# A subscriber_v4 of 7 bytes: field_1 is 1, the address 192.0.2.1.
V4 = bytes.fromhex("080115c0000201")


def frames(*messages):
    return b"".join(len(message).to_bytes(4, "big") + message for message in messages)


class Done:
    """What a run left."""

    def __init__(self, completed):
        self.status = completed.returncode
        self.raw = completed.stdout
        self.output = completed.stdout.decode(errors="replace")
        self.errors = completed.stderr.decode(errors="replace")


def run(*arguments, data=b"", environment=None, folder=None):
    settings = {"PATH": os.environ["PATH"], "LC_ALL": "C", **EXTRA_ENVIRONMENT, **(environment or {})}
    return Done(subprocess.run([PROGRAM, *arguments], input=data, capture_output=True, timeout=SECONDS, check=False,
                               env=settings, cwd=folder))


class InspectorTest(unittest.TestCase):
    """A test with a folder of its own."""

    def setUp(self):
        scratch = tempfile.TemporaryDirectory()
        self.addCleanup(scratch.cleanup)
        self.folder = scratch.name

    def file(self, name, content):
        path = os.path.join(self.folder, name)
        with open(path, "wb") as file:
            file.write(content if isinstance(content, bytes) else content.encode())
        return path

    def refused(self, *arguments, says, data=b"", status=2):
        """Ends with the status, one line on standard error with these words, nothing on standard output if it is 2."""
        done = run(*arguments, data=data)
        shown = f"{arguments}: {done.errors!r}"
        self.assertEqual(done.status, status, shown)
        self.assertEqual(done.errors.count("\n"), 1, shown)
        self.assertTrue(done.errors.endswith("\n"), shown)
        self.assertTrue(done.errors.startswith("mava-tum"), shown)
        for words in [says] if isinstance(says, str) else says:
            self.assertIn(words, done.errors, shown)
        if status == 2:
            self.assertEqual(done.output, "", shown)
        return done

    def succeeds(self, *arguments, data=b""):
        done = run(*arguments, data=data)
        self.assertEqual((done.status, done.errors), (0, ""), f"{arguments}")
        return done
