"""The claims about growth and their measurements: tables, exponents and verdicts."""

import collections
import math
import statistics

from measurements import significant, spread

REPLAY_SIDES = {
    ("decode", "ours bump"): "decode, bump", ("decode", "ours calloc"): "decode, calloc",
    ("decode", "heap calls"): "heap calls", ("encode", "ours"): "encode",
    ("encode", "size request"): "size request", ("encode", "memcpy"): "memcpy",
}
FLAT = (("decode", "ours bump"), ("encode", "ours"))
FLAT_UP_TO = 1.10
TWO_THREADS_FROM = 1.9
GROWING = {
    "decode": "decoders", "decode adapter": "decode adapters", "encode": "encoders of the deepest nesting",
}

# The exponent is fitted over the largest sizes: in small inputs, the fixed cost of a call matters.
FITTED_SIZES = 6
# Data that leave a cache make the slope steeper, too. The next worse growth, n times its root, would have 1.5.
LINEAR_UP_TO = 1.25


class Growth:
    """The shortest time of all rounds for each point: other processes can only add time."""

    def __init__(self):
        self._points = collections.defaultdict(dict)

    def add(self, operation, message, kind, size, nanoseconds):
        points = self._points[operation, message, kind]
        points[size] = min(nanoseconds, points.get(size, math.inf))

    def series(self):
        """[((operation, message, kind), [(bytes, nanoseconds)])]"""
        return [(key, sorted(points.items())) for key, points in self._points.items()]


def exponent(points):
    """1 if the time is proportional to the size, 2 if to its square."""
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
    """A row per message: the highest exponent of all kinds of input, and the most expensive byte."""
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


def replay_rows(replay):
    """`replay`: {sessions: {(operation, side): [nanoseconds per session]}}"""
    rows = [["sessions", *REPLAY_SIDES.values(), "spread"]]
    for sessions, times in sorted(replay.items()):
        medians = [f"{statistics.median(times[key]):,.1f}" for key in REPLAY_SIDES]
        widest = max(spread(times[key]) for key in REPLAY_SIDES)
        rows.append([f"{sessions:,}", *medians, f"{widest:.0%}"])
    return rows


def _flat_verdicts(replay):
    for key in FLAT:
        medians = {sessions: statistics.median(times[key]) for sessions, times in replay.items()}
        ratios = {sessions: time / medians[1] for sessions, time in medians.items()}
        worst = max(ratios, key=ratios.get)
        yield {
            "claim": f"{REPLAY_SIDES[key]}: a session in a message of up to {max(replay):,} costs what one alone costs",
            "measured": f"at most {ratios[worst]:.2f} times ({worst:,} sessions)",
            "bar": f"{FLAT_UP_TO:.2f}",
            "met": ratios[worst] <= FLAT_UP_TO,
        }


def _thread_verdicts(threads):
    for entry in threads:
        if entry["side"] in ("heap calls", "memcpy", "size request", "ours exact"):
            continue
        yield {
            "claim": f"two threads, {entry['operation']} ({entry['side']})",
            "measured": f"{entry['by_clock']:.2f} times one thread ({entry['by_processor']:.2f} by processor time)",
            "bar": f"{TWO_THREADS_FROM}",
            "met": entry["by_clock"] >= TWO_THREADS_FROM,
        }


def _growth_verdicts(series):
    for operation, what in GROWING.items():
        entries = [entry for entry in series if entry["operation"] == operation]
        worst = max(entries, key=lambda entry: entry["exponent"])
        messages = len({entry["message"] for entry in entries})
        yield {
            "claim": f"time of {messages} {what} is linear in the input, {len(entries)} worst inputs",
            "measured": f"exponent at most {worst['exponent']:.2f} ({worst['message']}, {worst['kind']})",
            "bar": f"{LINEAR_UP_TO}",
            "met": worst["linear"],
        }


def verdicts(replay, threads, series):
    return [*_flat_verdicts(replay), *_thread_verdicts(threads), *_growth_verdicts(series)]


def verdict_rows(judgements):
    rows = [["claim", "measured", "bar", ""]]
    for verdict in judgements:
        rows.append([verdict["claim"], verdict["measured"], verdict["bar"], "met" if verdict["met"] else "not met"])
    return rows


def growth_rows(series, operation):
    title = ["message", "inputs", "exponent", "steepest input", "ns/byte", "dearest input"]
    return [title, *worst_by_message(series, operation)]
