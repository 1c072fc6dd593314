"""The claims about scale, with what was measured: tables and verdicts."""

import statistics

from growth import LINEAR_UP_TO, worst_by_message
from measurements import spread

REPLAY_SIDES = {
    ("decode", "ours bump"): "decode, bump", ("decode", "ours calloc"): "decode, calloc",
    ("decode", "heap calls"): "heap calls", ("encode", "ours"): "encode",
    ("size_request", "ours"): "size request", ("copy", "memcpy"): "memcpy",
}
FLAT = (("decode", "ours bump"), ("encode", "ours"))
FLAT_UP_TO = 1.15
TWO_THREADS_FROM = 1.9
GROWING = {
    "decode": "decoders", "decode adapter": "decode adapters", "encode": "encoders of the deepest nesting",
}


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
        if entry["side"] == "heap calls":
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
