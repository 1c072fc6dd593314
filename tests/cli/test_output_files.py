"""A file appears when it is complete, or not at all."""
import os
import subprocess
import unittest

from inspector import PROGRAM, V4, InspectorTest, frames, run


class OutputFileTest(InspectorTest):
    def setUp(self):
        super().setUp()
        self.target = os.path.join(self.folder, "out")

    def contents(self):
        with open(self.target, "rb") as file:
            return file.read()

    def test_what_is_written_to_a_file_is_what_would_be_printed(self):
        for command in [("decode", "subscriber_v4"), ("explain", "subscriber_v4"), ("guess",), ("list",)]:
            data = b"" if command == ("list",) else V4
            printed = self.succeeds(*command, data=data)
            self.assertEqual(self.succeeds(*command, "-o", self.target, data=data).output, "")
            self.assertEqual(self.contents(), printed.raw, command)
        self.assertEqual(os.listdir(self.folder), ["out"])

    def test_nothing_is_left_when_the_input_breaks_halfway(self):
        self.refused("decode", "subscriber_v4", "-f", "frames", "-o", self.target, data=frames(V4) * 50000 + b"\0",
                     says="frame 50001")
        self.assertEqual(os.listdir(self.folder), [])

    def test_the_old_file_stays_when_the_input_breaks_halfway(self):
        self.file("out", "old")
        self.refused("app", "session_delete", "decode", "-f", "frames", "-o", self.target, data=frames(b"") + b"\0",
                     says="frame 2")
        self.assertEqual(self.contents(), b"old")
        self.assertEqual(os.listdir(self.folder), ["out"])

    def test_a_message_that_does_not_decode_is_written_as_far_as_it_goes(self):
        self.refused("decode", "subscriber_v4", "-o", self.target, data=V4[:-1], status=1, says="result -1")
        self.assertIn(b"fault", self.contents())

    def test_the_mode_is_that_of_a_new_file(self):
        self.succeeds("list", "-o", self.target)
        self.file("other", "")
        self.assertEqual(os.stat(self.target).st_mode, os.stat(os.path.join(self.folder, "other")).st_mode)

    def test_a_link_stays_a_link(self):
        real = self.file("real", "old")
        os.symlink(real, self.target)
        self.succeeds("encode", "subscriber_v4", "-o", self.target, data=b'{"field_1": 1}')
        self.assertTrue(os.path.islink(self.target))
        with open(real, "rb") as file:
            self.assertEqual(file.read(), b"\x08\x01")

    def test_a_device_is_written_to_and_not_replaced(self):
        self.succeeds("list", "-o", "/dev/null")
        self.assertFalse(os.path.isfile("/dev/null"))

    def test_a_folder_that_is_not_there_is_told(self):
        self.refused("list", "-o", os.path.join(self.folder, "none", "out"), says=["none/out: cannot write", "-o"])
        self.refused("list", "-o", self.folder, says="cannot write")

    def test_a_full_disk_is_told(self):
        for chosen in (["-o", "/dev/full"], []):
            with open("/dev/full", "wb") as full:
                done = subprocess.run([PROGRAM, "list", *chosen], stdout=full, stderr=subprocess.PIPE, check=False,
                                      timeout=60)
            self.assertEqual(done.returncode, 2)
            self.assertEqual(done.stderr.count(b"\n"), 1)
            self.assertIn(b"cannot write: No space left on device", done.stderr)

    def test_input_and_output_may_be_the_same_file(self):
        path = self.file("out", V4)
        self.succeeds("explain", "subscriber_v4", path, "-o", path)
        self.assertIn(b"7 bytes decode: result 0", self.contents())

    def test_a_reader_that_goes_away_ends_the_program_quietly(self):
        done = subprocess.run(["bash", "-c", f"'{PROGRAM}' list --json | head -1"], capture_output=True, check=False,
                              timeout=60)
        self.assertEqual((done.stdout, done.stderr), (b"[\n", b""))

    def test_only_the_output_that_was_asked_for_is_there(self):
        self.assertEqual(run("encode", "subscriber_v4", "-o", self.target, data=b"[]").status, 2)
        self.assertFalse(os.path.exists(self.target))


if __name__ == "__main__":
    unittest.main()
