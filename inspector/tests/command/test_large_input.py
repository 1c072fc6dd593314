"""Frame files of any size are read in the memory of one message."""
import os
import subprocess
import unittest

from inspector import PROGRAM, InspectorTest, frames

# A session_delete without findings; scripts/check/inspector_memory gives more of it.
MESSAGE = bytes.fromhex("08021007") + b"\x20" + b"\xff" * 9 + b"\x01"
MEBIBYTES = int(os.environ.get("MAVA_TUM_FRAME_MEBIBYTES", "16"))
LIMIT_KIB = 24 * 1024
# What the sanitizers add is not the program's.
IS_INSTRUMENTED = os.environ.get("MAVA_TUM_IS_INSTRUMENTED") == "1"


def most_memory(pid):
    """The most memory that a process had so far, in KiB."""
    with open(f"/proc/{pid}/status", encoding="ascii") as status:
        return next(int(line.split()[1]) for line in status if line.startswith("VmHWM:"))


def feed_and_measure(arguments, block, blocks):
    """The exit code and the most memory that the program had, in KiB."""
    with subprocess.Popen([PROGRAM, *arguments], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL) as process:
        for _ in range(blocks):
            process.stdin.write(block)
        process.stdin.flush()
        # All of it has been read by now, but for what the pipe holds.
        kibibytes = most_memory(process.pid)
        process.stdin.close()
        process.wait()
    return process.returncode, kibibytes


class LargeInputTest(InspectorTest):
    @unittest.skipIf(IS_INSTRUMENTED, "sanitizers take memory of their own")
    def test_the_memory_does_not_grow_with_the_number_of_frames(self):
        block = frames(MESSAGE) * ((1 << 20) // (len(MESSAGE) + 4))
        # What is decoded becomes ten times as many bytes of text.
        for command, mebibytes in (("check", MEBIBYTES), ("decode", MEBIBYTES // 8)):
            status, kibibytes = feed_and_measure([command, "session_delete", "-f", "frames"], block, mebibytes)
            print(f"{command}: {mebibytes} MiB of frames in {kibibytes} KiB of memory")
            self.assertEqual(status, 0)
            self.assertLess(kibibytes, LIMIT_KIB)

    def test_a_length_alone_takes_no_memory(self):
        done = self.refused("decode", "subscriber_v4", "-f", "frames", data=b"\x00\xff\xff\xff", says="after 0 of its")
        self.assertEqual(done.output, "")


if __name__ == "__main__":
    unittest.main()
