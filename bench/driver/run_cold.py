#!/usr/bin/env python3
"""Measures single calls with warm and with cold caches, ours beside those of protobuf and protozero."""

import argparse
import collections
import json
import pathlib
import random
import sys
import tempfile

import machine
from cold_table import print_cold
from plan import cells
from programs import Disagreement, Programs

PEERS = ("ours", "protobuf", "protobuf_proto2", "protozero", "copy")
LABELS = ("W1", "W2", "W3", "W4", "W5", "W6")


def parse_arguments():
    parser = argparse.ArgumentParser(prog="bench/cold", description="Measures calls with warm and with cold caches.")
    parser.add_argument("--build", required=True, help=argparse.SUPPRESS)  # bench/cold gives it
    parser.add_argument("--quick", action="store_true", help="some ten seconds instead of two minutes")
    parser.add_argument("--json", type=pathlib.Path, help="write machine and all rounds to this file")
    arguments = parser.parse_args()
    arguments.rounds, arguments.calls = (2, 30) if arguments.quick else (7, 100)
    return arguments


def measure(programs, arguments, directory):
    """{(workload, operation, side): [(nanoseconds warm, nanoseconds cold)]}, one pair per round."""
    times = collections.defaultdict(list)
    fixed = [cell for cell in cells(LABELS) if cell.set == "fixed"]
    peers = programs.present(PEERS)
    corpora = {cell: pathlib.Path(directory) / cell.workload.name for cell in fixed}
    for cell, corpus in corpora.items():
        programs.write_corpus(corpus, cell, 0, 1)
    order = random.Random(1)
    for number in range(arguments.rounds):
        print(f"round {number + 1} of {arguments.rounds}", file=sys.stderr)
        for cell in order.sample(fixed, len(fixed)):
            for peer in order.sample(peers, len(peers)):
                seed = order.randrange(1 << 30)
                for operation, side, warm, cold in programs.time_cold(peer, corpora[cell], arguments.calls, seed):
                    times[cell.workload.name, operation, side].append((warm, cold))
    return times


def as_json(description, times):
    rows = [
        {"workload": workload, "operation": operation, "side": side, "warm_and_cold": rounds}
        for (workload, operation, side), rounds in sorted(times.items())
    ]
    results = ",\n".join(json.dumps(row) for row in rows)
    return f'{{\n"machine": {json.dumps(description, indent=1)},\n"results": [\n{results}\n]\n}}\n'


def main():
    arguments = parse_arguments()
    programs = Programs(arguments.build)
    versions = [programs.version(peer) for peer in programs.present(PEERS)]
    description = machine.describe("bench/cold", arguments.build, versions)
    for name, text in description.items():
        print(f"{name + ':':<14} {text}")
    with tempfile.TemporaryDirectory(prefix="mava_tum_bench_") as directory:
        try:
            times = measure(programs, arguments, directory)
        except Disagreement as disagreement:
            sys.exit(f"bench/cold: a peer does not agree, so nothing is reported: {disagreement}")
    print_cold(times)
    if arguments.json:
        arguments.json.write_text(as_json(description, times), encoding="utf-8")


if __name__ == "__main__":
    main()
