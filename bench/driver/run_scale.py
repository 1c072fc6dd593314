#!/usr/bin/env python3
"""Measures growth: with the number of sessions in a message, with a second thread, with the worst inputs."""

import argparse
import collections
import json
import pathlib
import random
import sys

import machine
from measurements import significant
from plan import Cell, Workload
from programs import Disagreement, Programs
from scale_table import GROWING, Growth, growth_rows, judged, replay_rows, verdict_rows, verdicts
from svg_plot import write_scale_plots
from tables import print_aligned

SESSIONS = (1, 2, 5, 10, 20, 50, 100, 200, 500, 1000, 2000, 5000, 10_000)


def parse_arguments():
    parser = argparse.ArgumentParser(prog="bench/scale", description="Shows how the library's cost grows.")
    parser.add_argument("--build", required=True, help=argparse.SUPPRESS)  # bench/scale gives it
    parser.add_argument("--quick", action="store_true", help="half a minute instead of three")
    parser.add_argument("--json", type=pathlib.Path, help="write machine, all series and verdicts to this file")
    parser.add_argument("--plots", type=pathlib.Path, help="write SVG plots into this directory")
    arguments = parser.parse_args()
    arguments.rounds = 1 if arguments.quick else 7
    arguments.growth_rounds = 2 if arguments.quick else 3
    arguments.milliseconds = 2 if arguments.quick else 8
    return arguments


def measure_replay(programs, arguments):
    """{sessions: {(operation, side): [nanoseconds per session]}}"""
    times = {sessions: collections.defaultdict(list) for sessions in SESSIONS}
    order = random.Random(1)
    for _ in range(arguments.rounds):
        for sessions in order.sample(SESSIONS, len(SESSIONS)):
            cell = Cell(Workload("W7", f"replay_{sessions}", sessions=sessions), "fixed")
            _, rows = programs.measure("time", cell, ("decode", "encode"), ["ours"], amount=arguments.milliseconds,
                                       messages=1, seed=order.randrange(1 << 30))
            for operation, side, time in rows:
                times[sessions][operation, side].append(float(time) / sessions)
    return times


def measure_threads(programs, arguments):
    rows = programs.rows("threads", [5 * arguments.milliseconds, 3 * arguments.rounds])
    return [
        {"operation": operation, "side": side, "calls_per_microsecond": float(rate), "by_clock": float(by_clock),
         "by_processor": float(by_processor)}
        for operation, side, rate, by_clock, by_processor in rows
    ]


def measure_growth(programs, arguments):
    growth = Growth()
    for _ in range(arguments.growth_rounds):
        for operation, message, kind, size, time in programs.rows("growth", [2 << 20, arguments.milliseconds / 8]):
            growth.add(operation, message, kind, int(size), float(time))
    return judged(growth)


def print_scale(replay, threads, series):
    print("\nA replay: nanoseconds per session by sessions in the message")
    print_aligned(replay_rows(replay))
    for operation, what in GROWING.items():
        print(f"\n{what}: time by length of input, as an exponent (1 is linear); ns/byte of the longest input")
        print_aligned(growth_rows(series, operation))
    print("\nClaims")
    judgements = verdicts(replay, threads, series)
    print_aligned(verdict_rows(judgements))
    return judgements


def as_json(description, replay, threads, series, judgements):
    document = {
        "machine": description,
        "verdicts": judgements,
        "threads": threads,
        "replay": [
            {"sessions": sessions, "operation": operation, "side": side,
             "rounds": [significant(time) for time in values]}
            for sessions, times in sorted(replay.items())
            for (operation, side), values in sorted(times.items())
        ],
        "growth": series,
    }
    parts = [f'"machine": {json.dumps(description, indent=1)}']
    for name in ("verdicts", "threads", "replay", "growth"):
        parts.append(f'"{name}": [\n' + ",\n".join(json.dumps(entry) for entry in document[name]) + "\n]")
    return '{"generated": "by bench/scale",\n' + ",\n".join(parts) + "\n}\n"


def main():
    arguments = parse_arguments()
    programs = Programs(arguments.build)
    description = machine.describe("bench/scale", arguments.build, programs.versions(["ours"]))
    for name, text in description.items():
        print(f"{name + ':':<14} {text}")
    try:
        replay = measure_replay(programs, arguments)
        threads = measure_threads(programs, arguments)
        series = measure_growth(programs, arguments)
    except Disagreement as disagreement:
        sys.exit(f"bench/scale: nothing is reported: {disagreement}")
    judgements = print_scale(replay, threads, series)
    if arguments.json:
        arguments.json.write_text(as_json(description, replay, threads, series, judgements), encoding="utf-8")
    if arguments.plots:
        write_scale_plots(series, arguments.plots)


if __name__ == "__main__":
    main()
