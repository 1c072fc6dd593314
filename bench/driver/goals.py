"""The project's goals for its speed, compared with the measurements. A missed goal is no failure.

Beside a missed goal stands its floor: how many times as fast as the named side the least work of the operation is.
"""

from dataclasses import dataclass

from plan import OPERATIONS, WORKLOAD_OF_NAME

# At least how many times as fast as the named side. W1 to W5.
AT_LEAST = {
    ("decode", "ours bump", "protobuf reused"): {
        "realistic": (2.8, 2.8, 2.8, 2.7, 2.3), "random": (2.0, 2.0, 2.5, 2.0, 2.2), "fixed": (2.4, 2.6, 3.0, 2.1, 2.2),
    },
    ("encode", "ours", "protobuf reused"): {
        "realistic": (2.5, 3.2, 2.6, 3.0, 2.8), "random": (1.8, 2.3, 1.9, 2.0, 2.4), "fixed": (2.2, 2.4, 2.9, 1.6, 2.0),
    },
    ("encode_adapter", "ours", "protobuf reused"): {
        "realistic": (4.5, 3.4, 4.4, 3.2, 3.0), "random": (2.8, 2.3, 4.4, 3.1, 2.8),
    },
    ("decode_adapter", "ours", "protobuf reused"): {
        "realistic": (2.9, 3.8, 4.5, 2.7, 2.5), "random": (2.3, 2.8, 4.1, 2.3, 2.2), "fixed": (2.8, 3.8, 4.6, 2.4, 2.0),
    },
}
# Bound by the heap: at most how many times as long as the heap calls alone. W1 to W3.
AT_MOST = {
    ("decode", "ours calloc", "heap calls"): {"realistic": (1.5, 1.5, 1.5), "random": (1.5, 1.5, 1.5)},
    ("duplicate", "ours", "heap calls"): {"realistic": (1.5, 1.5, 1.5), "random": (1.5, 1.5, 1.5)},
}
# The side that does only the least work (bench/README.md).
FLOOR = "memcpy"
WORKLOADS = tuple(name for name, workload in WORKLOAD_OF_NAME.items() if len(workload.sets) > 1)


@dataclass
class Verdict:
    title: str
    set: str
    workload: str
    bar: float
    measured: float = None  # None: not measured
    met: bool = False
    floor: float = None

    def __str__(self):
        if self.measured is None:
            return f"?/{self.bar:g}"
        if self.met:
            return f"{self.measured:.2f}/{self.bar:g}"
        floor = "" if self.floor is None else f", floor {self.floor:.1f}"
        return f"{self.measured:.2f}/{self.bar:g} not met{floor}"


def _ratio(results, content, workload, operation, ours, other):
    for result in results:
        if (*result.cell, result.operation, result.ours, result.other) == (workload, content, operation, ours, other):
            return result.ratio
    return None


def _verdict(results, goal, content, workload, bar, at_most):
    operation, ours, other = goal
    title = f"{OPERATIONS[operation].split(':')[0]}, {ours}, against {other}" + (", at most" if at_most else "")
    verdict = Verdict(title, content, workload, bar)
    ratio = _ratio(results, content, workload, *goal)
    if ratio is None:
        return verdict
    verdict.measured = 1 / ratio if at_most else ratio
    verdict.met = verdict.measured <= bar if at_most else verdict.measured >= bar
    floor = None if at_most else _ratio(results, content, workload, operation, ours, FLOOR)
    verdict.floor = 1 if at_most else floor and ratio / floor
    return verdict


def judge(results):
    """One verdict for each limit of each goal."""
    return [
        _verdict(results, goal, content, workload, bar, goals is AT_MOST)
        for goals in (AT_LEAST, AT_MOST)
        for goal, bars in goals.items()
        for content, row in bars.items()
        for workload, bar in zip(WORKLOADS, row)
    ]


def goal_rows(verdicts):
    """Title row and rows: measured/wanted."""
    rows = {}
    for verdict in verdicts:
        rows.setdefault((verdict.title, verdict.set), {})[verdict.workload] = str(verdict)
    title = ["goal", "set", *(WORKLOAD_OF_NAME[name].label for name in WORKLOADS)]
    return [title, *([*key, *(row.get(name, "") for name in WORKLOADS)] for key, row in rows.items())]


def count(verdicts):
    measured = [verdict for verdict in verdicts if verdict.measured is not None]
    return f"{sum(verdict.met for verdict in measured)} of {len(measured)} measured goals met"
