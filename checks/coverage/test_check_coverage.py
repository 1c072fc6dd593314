"""Small reports that the check must accept, and others that it must reject."""

import contextlib
import io
import tempfile
import unittest
from pathlib import Path

import check_coverage
from coverage_report import Reader

SOURCE = """int choose(int a, int b)
{
    if (a > 0 && b > 0)
        return 1;
    return 0;
}
"""

LINES = """    2|      4|{{
    3|      4|    if (a > 0 && b > 0)
    4|      {taken}|        return 1;
    5|      3|    return 0;
"""

CONDITIONS = """  ------------------
  |  Branch (3:9): [True: 2, False: 2]
  |  Branch (3:18): [{second}]
  ------------------
  |---> MC/DC Decision Region (3:9) to (3:23)
  |
  |  Number of Conditions: 2
  |     Condition C1 --> (3:9)
  |     Condition C2 --> (3:18)
  |
  |  C1-Pair: covered: (1,3)
  |  C2-Pair: {pair}
  |  MC/DC Coverage for Decision: 100.00%
  ------------------
"""

COVERED = "covered: (2,3)"


def instance(taken=1, second="True: 1, False: 1", pair=COVERED):
    return LINES.format(taken=taken) + CONDITIONS.format(second=second, pair=pair)


class CheckCoverage(unittest.TestCase):
    def setUp(self):
        self.folder = tempfile.TemporaryDirectory()
        self.addCleanup(self.folder.cleanup)
        self.root = Path(self.folder.name)
        Path(self.root, "src").mkdir()
        Path(self.root, "src/choose.cpp").write_text(SOURCE)

    def check(self, report, exceptions=""):
        Path(self.root, "report").write_text(f"{self.root}/src/choose.cpp:\n{report}")
        Path(self.root, "list").write_text(exceptions)
        self.output = io.StringIO()
        with contextlib.redirect_stdout(self.output):
            return check_coverage.main(str(self.root / "report"), str(self.root), str(self.root / "list"))

    def last_line(self):
        return self.output.getvalue().splitlines()[-1]

    def test_accepts_what_is_covered(self):
        self.assertEqual(self.check(instance()), 0)
        self.assertEqual(self.last_line(), "lines 100.00 % (4 of 4), branches 100.00 % (4 of 4), "
                                           "conditions (MC/DC) 100.00 % (2 of 2); 0 places listed, 0 wrong")

    def test_refuses_a_line_that_is_not_listed(self):
        self.assertEqual(self.check(instance(taken=0)), 1)
        self.assertIn("src/choose.cpp:4: line return 1;", self.output.getvalue())
        self.assertIn("lines 75.00 % (3 of 4)", self.last_line())

    def test_refuses_a_way_that_is_not_listed(self):
        self.assertEqual(self.check(instance(second="True: 0, False: 2")), 1)
        self.assertIn("branch b > 0) [never true]", self.output.getvalue())

    def test_refuses_a_condition_that_is_not_listed(self):
        self.assertEqual(self.check(instance(pair="not covered")), 1)
        self.assertIn("condition b > 0)", self.output.getvalue())

    def test_accepts_what_is_listed(self):
        rows = "# why\nline\tsrc/choose.cpp\treturn 1;\t-\tnobody asks\n"
        self.assertEqual(self.check(instance(taken=0), rows), 0)

    def test_refuses_a_listed_place_that_is_covered(self):
        self.assertEqual(self.check(instance(), "line\tsrc/choose.cpp\treturn 1;\t-\tnobody asks\n"), 1)
        self.assertIn("listed, and covered or gone: src/choose.cpp: line return 1;", self.output.getvalue())

    def test_a_row_stands_for_one_place(self):
        row = "line\tsrc/choose.cpp\treturn 1;\t-\tnobody asks\n"
        self.assertEqual(self.check(instance(taken=0), row + row), 1)

    def test_a_function_that_never_ran_is_one_place(self):
        never = "".join(f"    {line}|      0|text\n" for line in range(2, 7))
        self.assertEqual(self.check(never), 1)
        self.assertIn("src/choose.cpp:1: function int choose(int a, int b)", self.output.getvalue())
        self.assertIn("; 0 places listed, 1 wrong", self.last_line())
        self.assertEqual(self.check(never, "function\tsrc/choose.cpp\tint choose(int a, int b)\t-\tnobody asks\n"), 0)
        self.assertIn("lines 0.00 % (0 of 5)", self.last_line())

    def test_refuses_a_row_without_a_reason(self):
        with self.assertRaises(SystemExit):
            self.check(instance(taken=0), "line\tsrc/choose.cpp\treturn 1;\t-\t\n")

    def test_refuses_a_report_without_the_library(self):
        with self.assertRaises(SystemExit):
            self.check("")

    def test_instances_of_a_template_cover_together(self):
        first = instance(taken=0, second="True: 0, False: 2", pair="not covered")
        second = instance(taken=3, second="True: 3, False: 0")
        self.assertEqual(self.check(first + second), 0)

    def test_a_line_that_one_instance_discards_and_another_executes_is_covered(self):
        merged = instance(taken=0)
        alone = "".join(f"  |  {line}\n" for line in instance(taken=3).splitlines())
        self.assertEqual(self.check(merged + "  | int choose<1>(int, int):\n" + alone), 0)

    def test_what_is_constant_is_no_branch_and_no_condition(self):
        self.assertEqual(self.check(instance(second="Folded - Ignored", pair="constant folded")), 0)
        self.assertIn("branches 100.00 % (2 of 2), conditions (MC/DC) 100.00 % (1 of 1)", self.last_line())

    def test_large_counts_are_not_zero(self):
        files = Reader().read(["/a.cpp:", "    7|  1.20M|text", "    8|      0|text", "    9|       |text"])
        self.assertEqual(files["/a.cpp"].lines, {7: True, 8: False})


if __name__ == "__main__":
    unittest.main()
