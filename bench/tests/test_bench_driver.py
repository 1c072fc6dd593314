#!/usr/bin/env python3
"""The verdicts of bench/driver on made-up counts and times."""

import contextlib
import io
import pathlib
import subprocess
import sys
import tempfile
import unittest
from unittest import mock

DRIVER = pathlib.Path(__file__).resolve().parents[1] / "driver"
sys.path.insert(0, str(DRIVER))

import goals  # noqa: E402
import instructions  # noqa: E402
import tables  # noqa: E402
from measurements import Measurements, read_run, write_run  # noqa: E402
from plan import Cell, Workload, cells  # noqa: E402

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


TYPICAL = Workload("W1", "typical_session")
REPLAY = Workload("W7", "replay_100", sessions=100)


def results_of(pairs, workload=TYPICAL, content="realistic", sides=("decode", "ours bump", "protobuf reused")):
    """The results of [(order, our time, other time)]."""
    measurements = Measurements()
    for order, ours, other in pairs:
        measurements.add(Cell(workload, content), order, *sides, ours, other)
    return measurements.results()


class PairsOfSlices(unittest.TestCase):
    def test_the_ratio_is_the_median_of_the_ratios_of_pairs(self):
        # A slow moment affected both sides of the last pair; the ratio of the median times would be 1.5.
        (result,) = results_of([(0, 100, 200), (0, 200, 300), (0, 1000, 3000)])
        self.assertEqual((result.ratio, result.ours_nanoseconds, result.other_nanoseconds), (2, 200, 300))

    def test_quartiles_are_those_of_the_pairs(self):
        (result,) = results_of([(0, 100, 100 * ratio) for ratio in (1, 2, 3, 4, 5)])
        self.assertEqual((result.lower, result.ratio, result.upper, result.pairs), (2, 3, 4, 5))

    def test_each_link_order_has_its_own_median(self):
        (result,) = results_of([(0, 100, 200), (1, 100, 400), (0, 100, 200), (1, 100, 400)])
        self.assertEqual((result.by_order, result.ratio), ([2, 4], 3))

    def test_times_of_a_replay_are_per_session(self):
        (result,) = results_of([(0, 1000, 3000)], REPLAY, "fixed")
        self.assertEqual((result.ours_nanoseconds, result.ratio), (10, 3))

    def test_a_run_is_read_as_it_was_written(self):
        results = results_of([(0, 100, 250), (1, 100, 300)])
        with tempfile.TemporaryDirectory() as folder:
            path = pathlib.Path(folder) / "run.json"
            write_run(path, {"load": "0.1"}, {("typical_session", "realistic"): 350.5}, results)
            self.assertEqual(read_run(path), ({"load": "0.1"}, {("typical_session", "realistic"): 350.5}, results))


class Regime(unittest.TestCase):
    def test_content_that_varies_has_enough_messages_for_the_branch_predictor(self):
        varying = [cell for cell in cells() if cell.set != "fixed"]
        self.assertEqual(len(varying), 10)
        for cell in varying:
            self.assertGreaterEqual(cell.workload.messages, 4_000 if cell.workload.label in ("W2", "W3") else 20_000)

    def test_a_machine_that_stays_busy_is_refused(self):
        wait = [sys.executable, "-B", str(DRIVER / "machine.py")]
        self.assertEqual(subprocess.run([*wait, "1e9", "0"], check=False).returncode, 0)
        refused = subprocess.run([*wait, "0", "0"], capture_output=True, text=True, check=False)
        self.assertEqual(refused.returncode, 1)
        self.assertIn("not published", refused.stderr)


class Goals(unittest.TestCase):
    def verdict(self, pairs, sides, content="realistic"):
        verdicts = goals.judge(results_of(pairs, content=content, sides=sides))
        (measured,) = [verdict for verdict in verdicts if verdict.measured is not None]
        return measured

    def test_a_goal_is_met_from_its_bar_on(self):
        sides = ("decode", "ours bump", "protobuf reused")
        self.assertTrue(self.verdict([(0, 100, 280)], sides).met)
        self.assertFalse(self.verdict([(0, 100, 279)], sides).met)

    def test_a_floor_is_a_limit_from_above(self):
        sides = ("duplicate", "ours", "heap calls")
        self.assertTrue(self.verdict([(0, 149, 100)], sides).met)
        self.assertFalse(self.verdict([(0, 160, 100)], sides).met)

    def test_beside_a_missed_goal_is_how_fast_the_least_work_is(self):
        results = (results_of([(0, 100, 200)], sides=("decode", "ours bump", "protobuf reused")) +
                   results_of([(0, 100, 40)], sides=("decode", "ours bump", "memcpy")))
        missed = [str(verdict) for verdict in goals.judge(results) if verdict.measured is not None]
        self.assertEqual(missed, ["2.00/2.8 not met, floor 5.0"])

    def test_what_was_not_measured_is_neither_met_nor_failed(self):
        self.assertEqual(goals.count(goals.judge([])), "0 of 0 measured goals met")
        self.assertEqual(str(goals.judge([])[0]), "?/2.8")


class Tables(unittest.TestCase):
    def test_a_row_of_the_summary_has_the_time_and_both_ratios(self):
        results = []
        for operation, ours in (("decode", "ours bump"), ("encode", "ours"), ("encode_adapter", "ours"),
                                ("decode_adapter", "ours")):
            for content, ratio in (("realistic", 2.5), ("random", 1.75)):
                results += results_of([(0, 1500, 1500 * ratio)], content=content,
                                      sides=(operation, ours, "protobuf reused"))
        _, row = tables.summary_rows(results)
        self.assertEqual(row, ["W1 typical_session", *["1.50 µs, 2.50 / 1.75"] * 4])

    def test_a_page_gets_its_blocks_and_keeps_the_rest(self):
        page = "before\n<!-- bench: sum -->\n\nold\n\n<!-- bench end -->\nafter\n"
        filled = tables.fill(page, {"sum": "new", "of_another_page": "x"})
        self.assertEqual(filled, "before\n<!-- bench: sum -->\n\nnew\n\n<!-- bench end -->\nafter\n")

    def test_a_place_without_a_block_or_an_end_is_refused(self):
        for page in ("<!-- bench: sum -->\n<!-- bench end -->", "<!-- bench: other -->\nno end"):
            with self.assertRaises(ValueError):
                tables.fill(page, {"other": "new"})


if __name__ == "__main__":
    unittest.main()
