"""How calls grow with their input: the exponent of the time, by operation, message and kind of input."""

import collections
import math

from measurements import significant

# The exponent is fitted over the largest sizes: in small inputs the fixed cost of a call still shows.
FITTED_SIZES = 6
# Data that leave a cache on the way make the slope steeper, too; the next worse law, n times its root, would show 1.5.
LINEAR_UP_TO = 1.25


class Growth:
    """The shortest time of all rounds for each point: what others on the machine add is no growth."""

    def __init__(self):
        self._points = collections.defaultdict(dict)

    def add(self, operation, message, kind, size, nanoseconds):
        points = self._points[operation, message, kind]
        points[size] = min(nanoseconds, points.get(size, math.inf))

    def series(self):
        """[((operation, message, kind), [(bytes, nanoseconds)])]"""
        return [(key, sorted(points.items())) for key, points in self._points.items()]


def exponent(points):
    """1 where the time is proportional to the size, 2 where it is to the square."""
    fitted = points[-FITTED_SIZES:]
    sizes = [math.log(size) for size, _ in fitted]
    times = [math.log(time) for _, time in fitted]
    middle_size, middle_time = sum(sizes) / len(sizes), sum(times) / len(times)
    rise = sum((size - middle_size) * (time - middle_time) for size, time in zip(sizes, times))
    return rise / sum((size - middle_size) ** 2 for size in sizes)


def nanoseconds_per_byte(points):
    size, time = points[-1]
    return time / size


def judged(growth):
    """A dictionary for each series, by operation and message."""
    return [
        {
            "operation": operation, "message": message, "kind": kind,
            "exponent": round(exponent(points), 3),
            "nanoseconds_per_byte": round(nanoseconds_per_byte(points), 3),
            "linear": exponent(points) <= LINEAR_UP_TO,
            "points": [(size, significant(time)) for size, time in points],
        }
        for (operation, message, kind), points in growth.series()
    ]


def worst_by_message(series, operation):
    """A row per message: of all its kinds of input the highest exponent, and the dearest byte."""
    messages = {}
    for entry in series:
        if entry["operation"] == operation:
            messages.setdefault(entry["message"], []).append(entry)
    rows = []
    for message, entries in messages.items():
        steepest = max(entries, key=lambda entry: entry["exponent"])
        dearest = max(entries, key=lambda entry: entry["nanoseconds_per_byte"])
        rows.append([
            message, str(len(entries)), f"{steepest['exponent']:.2f}", steepest["kind"],
            f"{dearest['nanoseconds_per_byte']:.2f}", dearest["kind"],
        ])
    return rows
