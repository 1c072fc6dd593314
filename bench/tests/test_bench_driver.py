#!/usr/bin/env python3
"""The verdicts of bench/driver on made-up counts and times."""

import contextlib
import io
import pathlib
import sys
import unittest
from unittest import mock

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "driver"))

import instructions  # noqa: E402

HERE = "GNU 12.2.0 -O2, C library 2.36, x86_64"
DECODE = ("typical_session", "decode", "ours")


class InstructionsVerdict(unittest.TestCase):
    def verdict(self, counted, kept, environment=HERE):
        """Exit code and output for {operation: (library, heap calls, C library)}."""
        counted, kept = ({key: instructions.Counts(*row) for key, row in rows.items()} for rows in (counted, kept))
        output = io.StringIO()
        with mock.patch.object(instructions, "read_kept", return_value=(HERE, kept)):
            with contextlib.redirect_stdout(output):
                return instructions.check(environment, counted), output.getvalue()

    def test_equal_counts_pass(self):
        self.assertEqual(self.verdict({DECODE: (1000, 10, 500)}, {DECODE: (1000, 10, 500)})[0], 0)

    def test_three_percent_more_pass_and_more_than_that_fails(self):
        self.assertEqual(self.verdict({DECODE: (1030, 10, 500)}, {DECODE: (1000, 10, 500)})[0], 0)
        code, output = self.verdict({DECODE: (1031, 10, 500)}, {DECODE: (1000, 10, 500)})
        self.assertEqual(code, 1)
        self.assertIn("typical_session/decode/ours", output)

    def test_one_more_heap_call_of_ten_fails(self):
        self.assertEqual(self.verdict({DECODE: (1000, 11, 500)}, {DECODE: (1000, 10, 500)})[0], 1)

    def test_the_c_library_is_not_judged(self):
        self.assertEqual(self.verdict({DECODE: (1000, 10, 5000)}, {DECODE: (1000, 10, 500)})[0], 0)

    def test_an_operation_that_is_not_kept_fails(self):
        encode = ("typical_session", "encode", "ours")
        self.assertEqual(self.verdict({DECODE: (1, 0, 0), encode: (1, 0, 0)}, {DECODE: (1, 0, 0)})[0], 1)

    def test_another_environment_is_skipped_not_passed(self):
        code, output = self.verdict({DECODE: (9000, 10, 500)}, {DECODE: (1000, 10, 500)}, HERE + ", another")
        self.assertEqual(code, 77)
        self.assertIn("Not judged", output)


if __name__ == "__main__":
    unittest.main()
