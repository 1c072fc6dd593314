"""The project's goals for its speed beside what was measured. Goals, not assertions: nothing fails over them."""

import json
import pathlib
import statistics

from measurements import spread
from plan import PROTO2_SIDE, WORKLOAD_OF_NAME, WORKLOADS
from result_table import print_aligned

TARGETS_FILE = pathlib.Path(__file__).parent.parent / "peers" / "targets.json"


def _verdict(measurements, goal, content_set, workload, bar):
    key = (workload, content_set, goal["operation"], goal["side"])
    against = [
        (other.get("workload", workload), content_set, other.get("operation", goal["operation"]), other["side"])
        for other in goal["against"]
    ]
    verdict = {"goal": goal["title"], "workload": workload, "set": content_set, "bar": bar}
    if not all(measurements.has(each) for each in (key, *against)):
        return verdict | {"verdict": "not measured"}
    ratios = measurements.times_as_fast(key, against)
    measured = statistics.median(ratios)
    return verdict | {
        "measured": round(measured, 3),
        "spread": round(spread(ratios), 3),
        "verdict": "met" if measured >= bar else "not met",
    }


def _goals():
    return json.loads(TARGETS_FILE.read_text(encoding="utf-8"))["goals"]


def _verdicts(measurements, goals):
    return [
        _verdict(measurements, goal, content_set, workload, bar)
        for goal in goals
        for content_set, bars in goal["bars"].items()
        for workload, bar in bars.items()
    ]


def judge(measurements):
    """One verdict for each bar of each goal."""
    return _verdicts(measurements, _goals())


def ratios_to_proto2(measurements):
    """The goals that name protobuf, with proto2 in its place: to be known, not to be judged."""
    goals = []
    for goal in _goals():
        sides = [PROTO2_SIDE.get(other["side"]) for other in goal["against"]]
        if all(sides):
            title = goal["title"].replace("protobuf", "proto2")
            goals.append(goal | {"title": title, "against": [{"side": side} for side in sides]})
    return [verdict | {"verdict": ""} for verdict in _verdicts(measurements, goals)]


def _cell_text(verdict):
    if verdict is None:
        return ""
    if "measured" not in verdict:
        return f"?/{verdict['bar']:g}"
    return f"{verdict['measured']:.2f}/{verdict['bar']:g} {verdict['verdict']}".rstrip()


def goal_rows(verdicts, workloads):
    rows = {}
    for verdict in verdicts:
        row = rows.setdefault((verdict["goal"], verdict["set"]), {})
        row[verdict["workload"]] = verdict
    for (goal, content_set), row in rows.items():
        yield [goal, content_set, *(_cell_text(row.get(workload)) for workload in workloads)]


def goal_table(verdicts):
    """Title row and rows."""
    named = {verdict["workload"] for verdict in verdicts}
    workloads = [workload.name for workload in WORKLOADS if workload.name in named]
    labels = [WORKLOAD_OF_NAME[name].title for name in workloads]
    return [["goal", "set", *labels], *goal_rows(verdicts, workloads)]


def print_targets(verdicts, to_proto2):
    print("\nGoals: measured / wanted, as times as fast as what the row names (? where it was not measured)")
    print_aligned(goal_table(verdicts))
    counts = {word: sum(v["verdict"] == word for v in verdicts) for word in ("met", "not met", "not measured")}
    print("\n" + ", ".join(f"{count} {word}" for word, count in counts.items()))
    print("\nFor information: the same against proto2, which does not check texts for UTF-8 and so is the stricter")
    print_aligned(goal_table(to_proto2))
