"""Single calls with warm and with cold caches, as tables."""

import statistics

from plan import OPERATIONS, SIDES, WORKLOADS
from result_table import print_aligned


def _median(rounds, which):
    return statistics.median(pair[which] for pair in rounds)


def _cell(times, key):
    if key not in times:
        return "-"
    warm, cold = (_median(times[key], which) for which in (0, 1))
    return f"{warm:,.0f} / {cold:,.0f}"


def cold_table(times, operation, sides=SIDES):
    """Title row and rows, one per workload: warm / cold of each side that has the operation."""
    present = [side for side in sides if any(key[1:] == (operation, side) for key in times)]
    rows = [["workload", *present]]
    for workload in WORKLOADS:
        keys = [(workload.name, operation, side) for side in present]
        if any(key in times for key in keys):
            rows.append([workload.title, *(_cell(times, key) for key in keys)])
    return rows


def print_cold(times):
    for operation, (title, _) in OPERATIONS.items():
        rows = cold_table(times, operation)
        if len(rows) > 1:
            print(f"\n{title}: nanoseconds of a call with warm / with cold caches")
            print_aligned(rows)
