"""Collects the pairs of slices of all processes: medians and quartiles of their ratios."""

import collections
import json
import statistics
from dataclasses import asdict, dataclass


def significant(value):
    """Four digits; more are noise."""
    rounded = float(f"{value:.4g}")
    return int(rounded) if rounded >= 1000 else rounded


def quartiles(values):
    """(lower, median, upper)"""
    if len(values) < 2:
        return values[0], values[0], values[0]
    return tuple(statistics.quantiles(values, n=4, method="inclusive"))


def spread(values):
    """The distance of the quartiles, as a share of the median."""
    lower, middle, upper = quartiles(values)
    return (upper - lower) / middle


@dataclass
class Result:
    """One of our sides beside another side, in one operation on one corpus."""

    workload: str
    set: str
    operation: str
    ours: str
    other: str
    ours_nanoseconds: float  # per session, the median of all pairs; the next, too
    other_nanoseconds: float
    lower: float  # quartile; how many times as fast ours is, by pairs
    ratio: float  # median
    upper: float  # quartile
    by_order: list  # the median in each order of our objects
    pairs: int

    @property
    def cell(self):
        return self.workload, self.set


class Measurements:
    def __init__(self):
        self._pairs = collections.defaultdict(list)

    def add(self, cell, order, operation, ours, other, ours_time, other_time):
        sessions = cell.workload.sessions
        key = (cell.workload.name, cell.set, operation, ours, other)
        self._pairs[key].append((order, ours_time / sessions, other_time / sessions))

    def results(self):
        return [self._result(key, pairs) for key, pairs in self._pairs.items()]

    @staticmethod
    def _result(key, pairs):
        by_order = collections.defaultdict(list)
        for order, ours, other in pairs:
            by_order[order].append(other / ours)
        ratios = quartiles([other / ours for _, ours, other in pairs])
        return Result(
            *key,
            significant(statistics.median(ours for _, ours, _ in pairs)),
            significant(statistics.median(other for _, _, other in pairs)),
            *map(significant, ratios),
            [significant(statistics.median(values)) for _, values in sorted(by_order.items())],
            len(pairs),
        )


def write_run(path, description, sizes, results):
    """A run as JSON, one result a line. `sizes`: {(workload, set): bytes of a message}"""
    lines = ",\n".join(json.dumps(asdict(result)) for result in results)
    messages = [{"workload": workload, "set": content, "bytes": size} for (workload, content), size in sizes.items()]
    head = f'"machine": {json.dumps(description, indent=1)},\n"messages": {json.dumps(messages)}'
    path.write_text(f'{{\n{head},\n"results": [\n{lines}\n]\n}}\n', encoding="utf-8")


def read_run(path):
    """(description, sizes, results)"""
    document = json.loads(path.read_text(encoding="utf-8"))
    sizes = {(entry["workload"], entry["set"]): entry["bytes"] for entry in document["messages"]}
    return document["machine"], sizes, [Result(**entry) for entry in document["results"]]
