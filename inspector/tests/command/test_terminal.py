"""What is different on a terminal: colours, the progress line, raw bytes that are not written."""
import os
import pty
import select
import subprocess
import time
import unittest

from inspector import PROGRAM, SECONDS, V4, InspectorTest, frames, run

ESCAPE = b"\x1b["


def read_until_end(terminal):
    content = b""
    while True:
        try:
            part = os.read(terminal, 65536)
        except OSError: # the other end is closed
            return content
        if not part:
            return content
        content += part


class TerminalTest(InspectorTest):
    def on_terminal(self, *arguments, data, environment=None):
        """The status, and what appeared on a terminal that is standard output."""
        terminal, other_end = pty.openpty()
        settings = {"PATH": os.environ["PATH"], "TERM": "xterm", **(environment or {})}
        with subprocess.Popen([PROGRAM, *arguments], stdin=subprocess.PIPE, stdout=other_end, stderr=other_end,
                              env=settings) as process:
            os.close(other_end)
            process.stdin.write(data)
            process.stdin.close()
            content = read_until_end(terminal)
        os.close(terminal)
        return process.returncode, content

    def test_colours_are_on_a_terminal_only(self):
        for command in [("decode", "subscriber_v4"), ("explain", "subscriber_v4")]:
            self.assertIn(ESCAPE, self.on_terminal(*command, data=V4)[1])
            self.assertNotIn(ESCAPE, run(*command, data=V4).raw)

    def test_no_color_and_a_dumb_terminal_are_heeded(self):
        for environment in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertNotIn(ESCAPE, self.on_terminal("decode", "subscriber_v4", data=V4, environment=environment)[1])
        self.assertIn(ESCAPE, self.on_terminal("decode", "subscriber_v4", data=V4, environment={"NO_COLOR": ""})[1])

    def test_colours_can_be_chosen(self):
        self.assertIn(ESCAPE, run("decode", "subscriber_v4", "--color", "always", data=V4).raw)
        self.assertNotIn(ESCAPE, self.on_terminal("decode", "subscriber_v4", "--color=never", data=V4)[1])

    def test_a_file_has_no_colours(self):
        path = os.path.join(self.folder, "out")
        self.on_terminal("decode", "subscriber_v4", "-o", path, data=V4)
        with open(path, "rb") as file:
            self.assertNotIn(ESCAPE, file.read())

    def test_the_lines_are_the_same_but_for_the_colours(self):
        plain = run("explain", "subscriber_v4", data=V4).raw
        coloured = run("explain", "subscriber_v4", "--color", "always", data=V4).raw
        for code in (b"\x1b[0m", b"\x1b[1m", b"\x1b[2m", b"\x1b[36m"):
            coloured = coloured.replace(code, b"")
        self.assertEqual(coloured, plain)

    def test_raw_bytes_do_not_go_to_a_terminal(self):
        status, content = self.on_terminal("encode", "subscriber_v4", data=b'{"field_1": 1}')
        self.assertEqual(status, 2)
        self.assertIn(b"--to hex", content)
        self.assertEqual(content.count(b"\n"), 1)
        status, content = self.on_terminal("encode", "subscriber_v4", "--to", "hex", data=b'{"field_1": 1}')
        self.assertEqual((status, content), (0, b"0801\r\n"))


class ProgressTest(InspectorTest):
    command = ("check", "session_delete", "-f", "frames")
    block = frames(b"\x08\x01") * 1000

    def feed(self, process, is_enough):
        """Feeds frames with pauses, so that it takes long, until it is enough."""
        start = time.monotonic()
        while not is_enough(time.monotonic() - start):
            process.stdin.write(self.block)
            process.stdin.flush()
            time.sleep(0.05)
        process.stdin.close()

    def test_a_long_input_shows_how_far_it_is_and_takes_the_line_away(self):
        terminal, other_end = pty.openpty()
        with subprocess.Popen([PROGRAM, *self.command], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                              stderr=other_end) as process:
            os.close(other_end)
            self.feed(process, lambda seconds: seconds > SECONDS or select.select([terminal], [], [], 0)[0])
            content = read_until_end(terminal)
        os.close(terminal)
        self.assertIn(b"\r\x1b[Kmava-tum: read ", content)
        self.assertTrue(content.endswith(b"\r\x1b[K"), content)
        self.assertNotIn(b"\n", content)

    def test_an_output_file_leaves_the_terminal_to_it(self):
        terminal, other_end = pty.openpty()
        with subprocess.Popen([PROGRAM, *self.command, "-o", os.path.join(self.folder, "out")], stdin=subprocess.PIPE,
                              stdout=other_end, stderr=other_end) as process:
            os.close(other_end)
            self.feed(process, lambda seconds: seconds > SECONDS or select.select([terminal], [], [], 0)[0])
            self.assertIn(b"mava-tum: read ", read_until_end(terminal))
        os.close(terminal)

    def test_an_output_on_the_terminal_is_not_disturbed(self):
        terminal, other_end = pty.openpty()
        with subprocess.Popen([PROGRAM, *self.command], stdin=subprocess.PIPE, stdout=other_end,
                              stderr=other_end) as process:
            os.close(other_end)
            self.feed(process, lambda seconds: seconds > 1.6)
            self.assertNotIn(b"mava-tum: read ", read_until_end(terminal))
        os.close(terminal)

    def test_a_short_input_shows_nothing(self):
        terminal, other_end = pty.openpty()
        with open(self.file("short", self.block), "rb") as data:
            subprocess.run([PROGRAM, *self.command], stdin=data, stdout=subprocess.DEVNULL, stderr=other_end,
                           check=True, timeout=SECONDS)
        os.close(other_end)
        self.assertEqual(read_until_end(terminal), b"")
        os.close(terminal)

    def test_no_progress_is_shown_where_nobody_looks(self):
        with subprocess.Popen([PROGRAM, *self.command], stdin=subprocess.PIPE, stdout=subprocess.DEVNULL,
                              stderr=subprocess.PIPE) as process:
            self.feed(process, lambda seconds: seconds > 1.6)
            self.assertEqual(process.stderr.read(), b"")


if __name__ == "__main__":
    unittest.main()
