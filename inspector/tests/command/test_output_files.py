"""A file appears when it is complete, or not at all; what was there before keeps its mode, its owner and its links."""
import os
import signal
import stat
import subprocess
import threading
import unittest

import inspector
from inspector import PROGRAM, SECONDS, V4, InspectorTest, frames, run

IS_ROOT = os.geteuid() == 0
NOBODY = 65534


class OutputFileTest(InspectorTest):
    def setUp(self):
        super().setUp()
        os.umask(0o022)
        self.target = os.path.join(self.folder, "out")

    def contents(self, path=None):
        with open(path or self.target, "rb") as file:
            return file.read()

    def listed(self):
        """What `list` prints."""
        return self.succeeds("list").raw

    def mode(self):
        return stat.S_IMODE(os.stat(self.target).st_mode)


class WrittenFileTest(OutputFileTest):
    def test_what_is_written_to_a_file_is_what_would_be_printed(self):
        for command in [("decode", "subscriber_v4"), ("explain", "subscriber_v4"), ("guess",), ("list",)]:
            data = b"" if command == ("list",) else V4
            printed = self.succeeds(*command, data=data)
            self.assertEqual(self.succeeds(*command, "-o", self.target, data=data).output, "")
            self.assertEqual(self.contents(), printed.raw, command)
        self.assertEqual(os.listdir(self.folder), ["out"])

    def test_a_name_without_a_folder_is_in_the_folder_that_the_program_runs_in(self):
        self.assertEqual(run("list", "-o", "out", folder=self.folder).status, 0)
        self.assertEqual(self.contents(), self.listed())

    def test_a_shorter_output_leaves_nothing_of_a_longer_file(self):
        self.file("out", b"x" * 100000)
        self.succeeds("list", "-o", self.target)
        self.assertEqual(self.contents(), self.listed())

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

    def test_a_link_stays_a_link(self):
        real = self.file("real", "old")
        os.symlink(real, self.target)
        self.succeeds("encode", "subscriber_v4", "-o", self.target, data=b'{"field_1": 1}')
        self.assertTrue(os.path.islink(self.target))
        self.assertEqual(self.contents(real), b"\x08\x01")

    def test_a_link_that_leads_to_no_file_makes_that_file(self):
        os.mkdir(os.path.join(self.folder, "below"))
        os.symlink("below/second", self.target)
        os.symlink("real", os.path.join(self.folder, "below", "second"))
        self.succeeds("encode", "subscriber_v4", "-o", self.target, data=b'{"field_1": 1}')
        self.assertTrue(os.path.islink(self.target))
        self.assertEqual(self.contents(os.path.join(self.folder, "below", "real")), b"\x08\x01")

    def test_links_in_a_circle_are_told(self):
        os.symlink("out", self.target)
        self.refused("list", "-o", self.target, says="cannot write")

    def test_every_name_of_a_file_shows_what_was_written(self):
        other = self.file("other", "old and longer than two bytes")
        os.link(other, self.target)
        self.succeeds("encode", "subscriber_v4", "-o", self.target, data=b'{"field_1": 1}')
        self.assertEqual((self.contents(), self.contents(other)), (b"\x08\x01", b"\x08\x01"))

    def test_a_folder_that_is_not_there_is_told(self):
        self.refused("list", "-o", os.path.join(self.folder, "none", "out"), says=["none/out: cannot write", "-o"])
        self.refused("list", "-o", self.folder, says="cannot write")

    def test_input_and_output_may_be_the_same_file(self):
        path = self.file("out", V4)
        self.succeeds("explain", "subscriber_v4", path, "-o", path)
        self.assertIn(b"7 bytes decode: result 0", self.contents())

    def test_only_the_output_that_was_asked_for_is_there(self):
        self.assertEqual(run("encode", "subscriber_v4", "-o", self.target, data=b"[]").status, 2)
        self.assertFalse(os.path.exists(self.target))


class ModeTest(OutputFileTest):
    def test_a_new_file_is_for_its_owner_alone(self):
        self.succeeds("list", "-o", self.target)
        self.assertEqual(self.mode(), 0o600)

    def test_the_umask_takes_from_the_mode_of_a_new_file(self):
        os.umask(0o277)
        self.succeeds("list", "-o", self.target)
        self.assertEqual(self.mode(), 0o400)

    def test_a_file_that_is_replaced_keeps_its_mode(self):
        for mode in (0o600, 0o640, 0o666, 0o755):
            self.file("out", "old")
            os.chmod(self.target, mode)
            self.succeeds("list", "-o", self.target)
            self.assertEqual((self.contents(), self.mode()), (self.listed(), mode))

    @unittest.skipUnless(IS_ROOT, "only root may give a file away")
    def test_a_file_that_is_replaced_keeps_its_owner_and_group(self):
        self.file("out", "old")
        os.chown(self.target, 12345, 54321)
        os.chmod(self.target, 0o640)
        self.succeeds("list", "-o", self.target)
        status = os.stat(self.target)
        self.assertEqual((status.st_uid, status.st_gid, self.mode()), (12345, 54321, 0o640))
        self.assertEqual(self.contents(), self.listed())

    def as_nobody(self, *arguments):
        os.chmod(self.folder, 0o777)
        return subprocess.run([PROGRAM, *arguments], user=NOBODY, group=NOBODY, extra_groups=[], capture_output=True,
                              check=False, timeout=SECONDS, env={"LC_ALL": "C", **inspector.EXTRA_ENVIRONMENT})

    @unittest.skipUnless(IS_ROOT, "only root may run a program as somebody else")
    def test_a_file_of_somebody_else_stays_theirs(self):
        self.file("out", "old")
        os.chmod(self.target, 0o666)
        self.assertEqual(self.as_nobody("list", "-o", self.target).returncode, 0)
        status = os.stat(self.target)
        self.assertEqual((status.st_uid, status.st_gid, self.mode()), (0, 0, 0o666))
        self.assertEqual(self.contents(), self.listed())
        self.assertEqual(os.listdir(self.folder), ["out"])

    @unittest.skipUnless(IS_ROOT, "only root may run a program as somebody else")
    def test_a_file_that_may_not_be_written_is_not_replaced(self):
        self.file("out", "old")
        os.chmod(self.target, 0o444)
        done = self.as_nobody("list", "-o", self.target)
        self.assertEqual(done.returncode, 2)
        self.assertIn(b"cannot write: Permission denied", done.stderr)
        self.assertEqual(self.contents(), b"old")


class PlaceTest(OutputFileTest):
    """What is no regular file, or is open already, is written to where it is."""

    def test_a_device_is_written_to_and_not_replaced(self):
        self.succeeds("list", "-o", "/dev/null")
        self.assertFalse(os.path.isfile("/dev/null"))

    def test_a_named_pipe_is_written_to_and_not_replaced(self):
        os.mkfifo(self.target)
        found = []
        reader = threading.Thread(target=lambda: found.append(self.contents()))
        reader.start()
        self.succeeds("list", "-o", self.target)
        reader.join(SECONDS)
        self.assertEqual(found, [self.listed()])
        self.assertTrue(stat.S_ISFIFO(os.stat(self.target).st_mode))

    def test_what_others_write_to_standard_output_stays(self):
        log = os.path.join(self.folder, "log")
        os.symlink("/dev/stdout", os.path.join(self.folder, "link"))
        for name in ("/dev/stdout", "/dev/fd/1", "/proc/self/fd/1", "/dev/fd/3", "link"):
            for redirection in (">", ">>"):
                self.file("log", "old\n")
                done = subprocess.run(
                    ["bash", "-c", f"{{ echo before; '{PROGRAM}' list -o {name} 3>&1; echo after; }} {redirection} log"],
                    check=False, timeout=SECONDS, cwd=self.folder, env={**os.environ, **inspector.EXTRA_ENVIRONMENT})
                self.assertEqual(done.returncode, 0)
                kept = b"old\n" if redirection == ">>" else b""
                self.assertEqual(self.contents(log), kept + b"before\n" + self.listed() + b"after\n", name)

    def test_a_descriptor_that_is_not_open_is_told(self):
        self.refused("list", "-o", "/dev/fd/77", says="cannot write")

    def test_a_full_disk_is_told(self):
        for chosen in (["-o", "/dev/full"], []):
            with open("/dev/full", "wb") as full:
                done = subprocess.run([PROGRAM, "list", *chosen], stdout=full, stderr=subprocess.PIPE, check=False,
                                      timeout=60)
            self.assertEqual(done.returncode, 2)
            self.assertEqual(done.stderr.count(b"\n"), 1)
            self.assertIn(b"cannot write: No space left on device", done.stderr)

    def test_a_reader_that_goes_away_ends_the_program_quietly(self):
        done = subprocess.run(["bash", "-c", f"'{PROGRAM}' list --json | head -1"], capture_output=True, check=False,
                              timeout=60)
        self.assertEqual((done.stdout, done.stderr), (b"[\n", b""))


class SignalTest(OutputFileTest):
    signals = (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGPIPE, signal.SIGKILL)

    def end_halfway(self, number):
        """Ends the program when it has written, and waits for more input."""
        with subprocess.Popen([PROGRAM, "decode", "subscriber_v4", "-f", "frames", "-o", self.target],
                              stdin=subprocess.PIPE, stderr=subprocess.PIPE,
                              env={"LC_ALL": "C", **inspector.EXTRA_ENVIRONMENT}) as process:
            process.stdin.write(frames(V4) * 50000)
            process.stdin.flush()
            process.send_signal(number)
            process.wait(SECONDS)
            self.assertEqual((process.returncode, process.stderr.read()), (-number, b""))

    def test_nothing_is_left_whatever_signal_ends_the_program(self):
        for number in self.signals:
            self.end_halfway(number)
            self.assertEqual(os.listdir(self.folder), [], number)

    def test_the_old_file_stays_whatever_signal_ends_the_program(self):
        self.file("out", "old")
        for number in self.signals:
            self.end_halfway(number)
            self.assertEqual(os.listdir(self.folder), ["out"], number)
            self.assertEqual(self.contents(), b"old")

    def test_a_signal_that_is_ignored_stays_ignored(self):
        done = subprocess.run(["bash", "-c", f"trap '' HUP; exec '{PROGRAM}' decode subscriber_v4 -f raw -o out < <("
                               "sleep 0.3; kill -HUP $$; printf '\\010\\001')"], check=False, timeout=SECONDS,
                              cwd=self.folder, env={**os.environ, **inspector.EXTRA_ENVIRONMENT})
        self.assertEqual(done.returncode, 0)
        self.assertIn(b"field_1", self.contents())


class WithoutTmpfile:
    """The same where the file system knows no files without a name."""

    def setUp(self):
        super().setUp()
        inspector.EXTRA_ENVIRONMENT["LD_PRELOAD"] = os.environ["MAVA_TUM_NO_TMPFILE"]
        self.addCleanup(inspector.EXTRA_ENVIRONMENT.clear)


NO_PRELOAD = unittest.skipIf(os.environ.get("MAVA_TUM_IS_INSTRUMENTED") == "1",
                             "the library of a sanitizer has to be loaded before all others")


@NO_PRELOAD
class WrittenFileWithoutTmpfileTest(WithoutTmpfile, WrittenFileTest):
    pass


@NO_PRELOAD
class ModeWithoutTmpfileTest(WithoutTmpfile, ModeTest):
    pass


@NO_PRELOAD
class SignalWithoutTmpfileTest(WithoutTmpfile, SignalTest):
    signals = SignalTest.signals[:-1]  # nobody can do anything before SIGKILL


if __name__ == "__main__":
    unittest.main()
