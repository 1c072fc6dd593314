#!/usr/bin/env python3
"""Measures single calls with warm and with cold caches, ours beside those of protobuf and protozero."""

import argparse
import collections
import json
import pathlib
import random
import statistics
import sys

import machine
from plan import OPERATIONS, SIDES, WORKLOAD_OF_NAME, cells
from programs import Disagreement, Programs
from tables import print_aligned

PEERS = ("ours", "protobuf", "protozero")
LABELS = ("W1", "W2", "W3", "W4", "W5", "W6")
SHOWN = ("ours", "ours bump", "ours calloc", *SIDES[:2], "protozero")


def parse_arguments():
    parser = argparse.ArgumentParser(prog="bench/cold", description="Measures calls with warm and with cold caches.")
    parser.add_argument("--build", required=True, help=argparse.SUPPRESS)  # bench/cold gives it
    parser.add_argument("--quick", action="store_true", help="some ten seconds instead of two minutes")
    parser.add_argument("--json", type=pathlib.Path, help="write machine and medians to this file")
    arguments = parser.parse_args()
    arguments.rounds, arguments.calls = (2, 30) if arguments.quick else (7, 100)
    return arguments


def measure(programs, arguments):
    """{(workload, operation, side): (nanoseconds warm, nanoseconds cold)}: medians over the rounds."""
    times = collections.defaultdict(list)
    fixed = [cell for cell in cells(LABELS) if cell.set == "fixed"]
    operations = [operation for operation in OPERATIONS if operation != "read"]
    peers = programs.present(PEERS)
    order = random.Random(1)
    for number in range(arguments.rounds):
        print(f"round {number + 1} of {arguments.rounds}", file=sys.stderr)
        for cell in order.sample(fixed, len(fixed)):
            _, rows = programs.measure("cold", cell, operations, peers, amount=arguments.calls, messages=1,
                                       seed=order.randrange(1 << 30))
            for operation, side, warm, cold in rows:
                times[cell.workload.name, operation, side].append((float(warm), float(cold)))
    return {key: tuple(map(statistics.median, zip(*pairs))) for key, pairs in times.items()}


def cold_table(times, operation):
    """Title row and rows, one per workload: warm / cold of each side that has the operation."""
    sides = [side for side in SHOWN if any(key[1:] == (operation, side) for key in times)]
    rows = [["message", *sides]]
    for name in dict.fromkeys(key[0] for key in times):
        found = [times.get((name, operation, side)) for side in sides]
        pairs = (f"{pair[0]:,.0f} / {pair[1]:,.0f}" if pair else "-" for pair in found)
        rows.append([WORKLOAD_OF_NAME[name].title, *pairs])
    return [rows[0], *sorted(rows[1:])]


def main():
    arguments = parse_arguments()
    programs = Programs(arguments.build)
    description = machine.describe("bench/cold", arguments.build, programs.versions(programs.present(PEERS)))
    for name, text in description.items():
        print(f"{name + ':':<14} {text}")
    try:
        times = measure(programs, arguments)
    except Disagreement as disagreement:
        sys.exit(f"bench/cold: an implementation does not agree, so nothing is reported: {disagreement}")
    for operation in dict.fromkeys(key[1] for key in times):
        print(f"\n{OPERATIONS[operation]}: nanoseconds of a call with warm / with cold caches")
        print_aligned(cold_table(times, operation))
    if arguments.json:
        rows = [[*key, *pair] for key, pair in sorted(times.items())]
        arguments.json.write_text(json.dumps({"machine": description, "results": rows}, indent=0), encoding="utf-8")


if __name__ == "__main__":
    main()
