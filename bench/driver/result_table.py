"""The measurements as tables of text, one per operation."""

import statistics

from measurements import spread
from plan import OPERATIONS, SIDES


def print_aligned(rows):
    """The first column to the left, all others to the right."""
    widths = [max(len(row[column]) for row in rows) for column in range(len(rows[0]))]
    for row in rows:
        others = (text.rjust(width) for text, width in zip(row[1:], widths[1:]))
        print("  ".join((row[0].ljust(widths[0]), *others)).rstrip())


def _nanoseconds(time):
    return f"{time:,.0f}" if time >= 100 else f"{time:.1f}"


def _sides_of(measurements, operation):
    present = {key[3] for key in measurements.keys() if key[2] == operation}
    return [side for side in SIDES if side in present]


def _time(measurements, key, baseline):
    if not measurements.has(key):
        return "-"
    time = _nanoseconds(measurements.median(key))
    if key == baseline or not measurements.has(baseline):
        return time
    ratio = statistics.median(measurements.times_as_fast(baseline, [key]))
    return f"{time} ({ratio:.2f})"


def _row(measurements, cell, operation, sides):
    keys = [(cell.workload.name, cell.set, operation, side) for side in sides]
    baseline = (cell.workload.name, cell.set, operation, OPERATIONS[operation][1])
    measured = [key for key in keys if measurements.has(key)]
    if not measured:
        return None
    worst = max(spread(measurements.values(key)) for key in measured)
    size = measurements.wire_bytes[cell] / cell.workload.sessions
    times = [_time(measurements, key, baseline) for key in keys]
    return [cell.title, f"{size:,.0f}", *times, f"{worst:.0%}"]


def result_rows(measurements, cells, operation):
    """Title row and rows; empty if nothing was measured."""
    sides = _sides_of(measurements, operation)
    rows = [row for row in (_row(measurements, cell, operation, sides) for cell in cells) if row]
    return [["workload", "bytes", *sides, "spread"], *rows] if rows else []


def print_results(measurements, cells):
    for operation, (title, baseline) in OPERATIONS.items():
        rows = result_rows(measurements, cells, operation)
        if rows:
            print(f"\n{title}: nanoseconds per session (in brackets: times as long as {baseline})")
            print_aligned(rows)
