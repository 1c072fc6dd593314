#!/usr/bin/env python3
"""Measures the library beside other implementations, on messages that do not repeat.

A process measures one corpus: realistic and random messages are each used once per comparison, and the next process has
other messages. In a process all implementations take turns (bench/peers/harness/stopwatch.h). Half of the processes
load a build of the library whose objects are linked in another order.
"""

import argparse
import os
import pathlib
import random
import sys

import machine
from goals import count, goal_rows, judge
from measurements import Measurements, write_run
from plan import OPERATIONS, PEERS, SUMMARY, cells
from programs import Disagreement, Programs
from svg_plot import write_plots
from tables import operation_rows, print_aligned, summary_rows

SLICE_MICROSECONDS = 200
ROUNDS, QUICK_ROUNDS = 6, 2


def parse_arguments():
    parser = argparse.ArgumentParser(prog="bench/run", description="Measures the library beside other implementations.")
    parser.add_argument("--build", required=True, help=argparse.SUPPRESS)  # bench/run gives it
    parser.add_argument("--quick", action="store_true", help="the five rows alone, in some two minutes")
    parser.add_argument("--json", type=pathlib.Path, help="write machine and results to this file")
    parser.add_argument("--plots", type=pathlib.Path, help="write SVG plots into this directory")
    parser.add_argument("--only", action="append", default=[], help="a workload by name or label; may be repeated")
    parser.add_argument("--set", action="append", default=[], help="realistic, random or fixed; may be repeated")
    parser.add_argument("--operation", action="append", default=[], choices=OPERATIONS, help="may be repeated")
    parser.add_argument("--peer", action="append", default=[], choices=PEERS, help="may be repeated; beside ours")
    parser.add_argument("--rounds", type=int, help=f"processes per corpus; default {ROUNDS}, quick {QUICK_ROUNDS}")
    parser.add_argument("--seed", type=int, default=1, help="of the messages and of the order of everything")
    arguments = parser.parse_args()
    quick = arguments.quick
    arguments.rounds = arguments.rounds or (QUICK_ROUNDS if quick else ROUNDS)
    arguments.operation = arguments.operation or list(SUMMARY if quick else OPERATIONS)
    arguments.peer = arguments.peer or (["protobuf"] if quick else list(PEERS))
    arguments.set = arguments.set or (["realistic", "random"] if quick else ["realistic", "random", "fixed"])
    return arguments


class Run:
    def __init__(self, arguments):
        self.arguments = arguments
        self.programs = Programs(arguments.build)
        self.cells = [cell for cell in cells(arguments.only) if cell.set in arguments.set]
        wanted = [peer for peer in PEERS if peer in arguments.peer or peer == "ours"]
        self.peers = self.programs.present(wanted)
        self.missing = [peer for peer in wanted if peer not in self.peers]
        self.measurements = Measurements()
        self.sizes = {}
        self._orders = self.programs.link_orders()
        self._random = random.Random(arguments.seed)

    def measure_round(self, number):
        order = number % len(self._orders)
        for cell in self._random.sample(self.cells, len(self.cells)):
            size, rows = self.programs.measure(
                "pairs", cell, self.arguments.operation, self.peers, amount=SLICE_MICROSECONDS,
                first=2 * cell.workload.messages * (number + self.arguments.seed * 1000),
                seed=self._random.randrange(1 << 30), order=self._orders[order])
            self.sizes.setdefault((cell.workload.name, cell.set), size)
            for operation, ours, other, ours_time, other_time in rows:
                self.measurements.add(cell, order, operation, ours, other, float(ours_time), float(other_time))


def report(results, quick):
    if not quick:
        for operation, title in OPERATIONS.items():
            rows = operation_rows(results, operation)
            if rows:
                print(f"\n{title}: nanoseconds per session, and how many times as fast ours is")
                print_aligned(rows)
        verdicts = judge(results)
        print("\nGoals: measured/wanted (? where it was not measured)")
        print_aligned(goal_rows(verdicts))
        print(count(verdicts))
    summary = summary_rows(results)
    if len(summary) > 1:
        print("\nTime on realistic messages, and times as fast as a reused protobuf message: realistic / random")
        print_aligned(summary)


def main():
    arguments = parse_arguments()
    run = Run(arguments)
    if not run.cells:
        sys.exit("bench/run: no workload of that name and set")
    description = machine.describe("bench/run", arguments.build, run.programs.versions(run.peers))
    for name, text in description.items():
        print(f"{name + ':':<14} {text}")
    for peer in run.missing:
        print(f"{peer}: was not built, is missing below")
    try:
        for number in range(arguments.rounds):
            print(f"round {number + 1} of {arguments.rounds}", file=sys.stderr)
            run.measure_round(number)
    except Disagreement as disagreement:
        sys.exit(f"bench/run: an implementation does not agree, so nothing is reported: {disagreement}")
    description["load"] += f", {os.getloadavg()[0]:.2f} after it"
    results = run.measurements.results()
    report(results, arguments.quick)
    if arguments.json:
        write_run(arguments.json, description, run.sizes, results)
    if arguments.plots:
        write_plots(results, arguments.plots)


if __name__ == "__main__":
    main()
