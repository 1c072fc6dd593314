#!/usr/bin/env python3
"""Compares a coverage report with the list of allowed uncovered places.

    check_coverage.py <report of llvm-cov show> <project root> <exceptions.tsv>

Prints the figures of each file below src/ and include/, every uncovered place, and as the last line the totals. Exits
with 1 if an uncovered place is not listed, or a listed one is covered or does not exist.

A row of the list: kind (function, line, branch or condition), file, the source from the place to the end of its line,
the way that a branch never goes (or -), and the reason. Source text, not line numbers, so that the list survives edits;
a row is one place. A function without an executed line is one place, named by its last line before the brace."""

import sys
from collections import Counter
from pathlib import Path

from coverage_report import Reader

KINDS = ("function", "line", "branch", "condition")


def source_from(lines, line, column):
    return lines[line - 1][column - 1 :].strip()


def lines_of_block(source, first):
    """The numbers from the line of an opening brace to that of the brace which closes it."""
    close = source[first - 1].replace("{", "}").rstrip()
    last = next(line for line in range(first + 1, len(source) + 1) if source[line - 1].rstrip() in (close, close + ";"))
    return range(first, last + 1)


def untouched_functions(coverage, source):
    """The lines of each function that never ran: they count as one place."""
    for line, covered in sorted(coverage.lines.items()):
        if covered or source_from(source, line, 1) != "{":
            continue
        block = lines_of_block(source, line)
        if not any(coverage.lines.get(inside, False) for inside in block):
            yield block


def uncovered_places(name, coverage, source):
    """(kind, file, source, way) of each, with its line."""
    told = set()
    for block in untouched_functions(coverage, source):
        told.update(block)
        yield ("function", name, source_from(source, block[0] - 1, 1), "-"), block[0] - 1
    for line, covered in sorted(coverage.lines.items()):
        if not covered and line not in told:
            yield ("line", name, source_from(source, line, 1), "-"), line
    for (line, column, way), covered in sorted(coverage.branches.items()):
        if not covered and line not in told:
            yield ("branch", name, source_from(source, line, column), way), line
    for (line, column), covered in sorted(coverage.conditions.items()):
        if not covered and line not in told:
            yield ("condition", name, source_from(source, line, column), "-"), line


def read_exceptions(path):
    listed = Counter()
    for number, row in enumerate(Path(path).read_text().splitlines(), 1):
        if not row or row.startswith("#"):
            continue
        cells = row.split("\t")
        if len(cells) != 5 or cells[0] not in KINDS or not cells[4].strip():
            sys.exit(f"{path}:{number}: not kind, file, source, way and reason, with tabs between them")
        listed[tuple(cells[:4])] += 1
    return listed


def figure(places):
    covered, count = sum(places), len(places)
    return covered, count


def percent(covered, count):
    # Truncated, not rounded: 100.00 means all.
    hundredths = 10000 * covered // count if count else 10000
    return f"{hundredths // 100}.{hundredths % 100:02d} % ({covered} of {count})"


def print_row(name, cells):
    print(f"{name:<48} {cells[0]:>11} {cells[1]:>11} {cells[2]:>11}")


def measured(files, root):
    """Path below the root and coverage of each file of the library."""
    for path, coverage in sorted(files.items()):
        name = path.removeprefix(f"{root}/")
        if name.startswith(("src/", "include/")):
            yield name, coverage


def gather(files, root):
    totals = [[0, 0], [0, 0], [0, 0]]
    uncovered = []
    print_row("", ("lines", "branches", "conditions"))
    for name, coverage in measured(files, root):
        source = Path(root, name).read_text().splitlines()
        figures = [figure(places.values()) for places in (coverage.lines, coverage.branches, coverage.conditions)]
        print_row(name, [f"{covered}/{count}" for covered, count in figures])
        for total, (covered, count) in zip(totals, figures):
            total[0] += covered
            total[1] += count
        uncovered += uncovered_places(name, coverage, source)
    return totals, uncovered


def compare(uncovered, listed):
    """Prints the places that only one side has; returns their number."""
    left = listed.copy()
    unlisted = 0
    for key, line in uncovered:
        if left[key] > 0:
            left[key] -= 1
            continue
        unlisted += 1
        print(f"not covered and not listed: {key[1]}:{line}: {key[0]} {key[2]}" + way_of(key))
    stale = list(left.elements())
    for key in stale:
        print(f"listed, and covered or gone: {key[1]}: {key[0]} {key[2]}" + way_of(key))
    return unlisted + len(stale)


def way_of(key):
    return "" if key[3] == "-" else f" [never {key[3]}]"


def main(report, root, exceptions):
    with open(report, errors="replace") as text:
        files = Reader().read(text)
    totals, uncovered = gather(files, root)
    if not totals[0][1]:
        sys.exit("the report holds no line of the library")
    listed = read_exceptions(exceptions)
    wrong = compare(uncovered, listed)
    names = ("lines", "branches", "conditions (MC/DC)")
    figures = ", ".join(f"{name} {percent(*total)}" for name, total in zip(names, totals))
    print(f"{figures}; {listed.total()} places listed, {wrong} wrong")
    return 1 if wrong else 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    sys.exit(main(*sys.argv[1:]))
