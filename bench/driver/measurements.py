"""Collects the times of all rounds; medians, spreads, and ratios within the rounds."""

import collections
import statistics


def significant(value):
    """Four digits: more is noise, and makes files long."""
    rounded = float(f"{value:.4g}")
    return int(rounded) if rounded >= 1000 else rounded


def spread(values):
    """How far the middle half of the values lies apart, as a share of their median."""
    if len(values) < 2:
        return 0.0
    lower, _, upper = statistics.quantiles(values, n=4, method="inclusive")
    return (upper - lower) / statistics.median(values)


class Measurements:
    """Nanoseconds per session, by (workload name, set, operation, side), one value per round."""

    def __init__(self):
        self._rounds = collections.defaultdict(dict)
        self.wire_bytes = {}

    def add(self, round_number, cell, operation, side, nanoseconds):
        key = (cell.workload.name, cell.set, operation, side)
        self._rounds[key][round_number] = nanoseconds / cell.workload.sessions

    def restore(self, key, values):
        """`values` as `values(key)` gave them. Every peer runs in every round, so their order is that of the rounds."""
        self._rounds[key].update(enumerate(values))

    def has(self, key):
        return key in self._rounds

    def keys(self):
        return self._rounds.keys()

    def values(self, key):
        return list(self._rounds[key].values())

    def median(self, key):
        return statistics.median(self.values(key))

    def times_as_fast(self, key, against):
        """The ratios round by round: time of `against` (several keys: their sum) over time of `key`."""
        rounds = set(self._rounds[key]).intersection(*(self._rounds[other] for other in against))
        return [
            sum(self._rounds[other][number] for other in against) / self._rounds[key][number]
            for number in sorted(rounds)
        ]
