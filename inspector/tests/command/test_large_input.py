"""Files of frames of any size are read in the memory of one message, captures in that of their open connections."""
import os
import subprocess
import unittest

from inspector import PROGRAM, InspectorTest, frames
from test_captures import SYN, packet, pcap

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

    @unittest.skipIf(IS_INSTRUMENTED, "sanitizers take memory of their own")
    def test_the_memory_does_not_grow_with_the_connections_of_a_capture(self):
        # Each sends a message, and after a gap what waits for the missing bytes; none of them ends.
        count = 60000
        packets = []
        for number in range(count):
            ends = {"source": 1024 + number % 60000, "ends": (f"10.{number // 60000}.0.1", "192.0.2.2")}
            packets.append(packet(b"", "tcp", flags=SYN, **ends))
            packets.append(packet(frames(MESSAGE), "tcp", sequence=1, **ends))
            packets.append(packet(bytes(1000), "tcp", sequence=500, **ends))
        whole = pcap(packets)
        status, kibibytes = feed_and_measure(["check", "session_delete", "-f", "capture"], whole, 1)
        print(f"{len(whole) >> 20} MiB of a capture with {count} connections in {kibibytes} KiB of memory")
        self.assertEqual(status, 0)
        self.assertLess(kibibytes, LIMIT_KIB)

    def test_a_length_alone_takes_no_memory(self):
        done = self.refused("decode", "subscriber_v4", "-f", "frames", data=b"\x00\xff\xff\xff", says="after 0 of its")
        self.assertEqual(done.output, "")


if __name__ == "__main__":
    unittest.main()
