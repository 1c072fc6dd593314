#!/usr/bin/env python3
"""Measures the library beside its peers: checks that all agree, then times them in turns, round by round.

Each round has a window of messages of its own; in it, for each workload in random order, all peers run one after the
other in random order, each in a new process. A ratio is taken within its round.
"""

import argparse
import pathlib
import random
import sys
import tempfile

import machine
from measurements import Measurements
from plan import PEERS, cells
from programs import Disagreement, Programs
from result_table import print_results
from run_file import write_run
from svg_plot import write_plots
from target_table import judge, print_targets, ratios_to_proto2


def parse_arguments():
    parser = argparse.ArgumentParser(prog="bench/run", description="Measures the library beside its peers.")
    parser.add_argument("--build", required=True, help=argparse.SUPPRESS)  # bench/run gives it
    parser.add_argument("--quick", action="store_true", help="some two minutes instead of ten to fifteen")
    parser.add_argument("--json", type=pathlib.Path, help="write machine, all rounds and goals to this file")
    parser.add_argument("--plots", type=pathlib.Path, help="write SVG plots into this directory")
    parser.add_argument("--only", action="append", default=[], help="a workload by name or label; may be repeated")
    parser.add_argument("--peer", action="append", default=[], help="a peer; may be repeated; ours is always there")
    parser.add_argument("--rounds", type=int, help="default 20, quick 4")
    parser.add_argument("--messages", type=int, help="in a round's window; default 1000, quick 400")
    parser.add_argument("--samples", type=int, default=3, help="of each operation in a process")
    parser.add_argument("--milliseconds", type=float, help="of a sample; default 5, quick 2")
    parser.add_argument("--seed", type=int, default=1, help="of the order of everything")
    arguments = parser.parse_args()
    arguments.rounds = arguments.rounds or (4 if arguments.quick else 20)
    arguments.messages = arguments.messages or (400 if arguments.quick else 1000)
    arguments.milliseconds = arguments.milliseconds or (2 if arguments.quick else 5)
    return arguments


class Run:
    def __init__(self, arguments, directory):
        self.arguments = arguments
        self.programs = Programs(arguments.build)
        self.cells = cells(arguments.only)
        wanted = [peer for peer in PEERS if not arguments.peer or peer in arguments.peer or peer == "ours"]
        self.peers = self.programs.present(wanted)
        self.missing = [peer for peer in wanted if peer not in self.peers]
        self.measurements = Measurements()
        self._directory = pathlib.Path(directory)
        self._order = random.Random(arguments.seed)

    def check(self):
        """Raises Disagreement before anything is timed. Every timed process checks its own window once more."""
        for cell in self.cells:
            corpus = self._write_corpus(cell, 0)
            for peer in self.peers:
                self.programs.check(peer, corpus)

    def measure_round(self, round_number):
        for cell in self._shuffled(self.cells):
            corpus = self._write_corpus(cell, round_number)
            for peer in self._shuffled(self.peers):
                self._measure(round_number, cell, peer, corpus)

    def _measure(self, round_number, cell, peer, corpus):
        how = self.arguments
        seed = self._order.randrange(1 << 30)
        for operation, side, time in self.programs.time(peer, corpus, how.samples, how.milliseconds, seed):
            self.measurements.add(round_number, cell, operation, side, time)

    def _write_corpus(self, cell, round_number):
        corpus = self._directory / "corpus"
        count = self.arguments.messages
        size = self.programs.write_corpus(corpus, cell, round_number * count, count)
        self.measurements.wire_bytes.setdefault(cell, size)
        return corpus

    def _shuffled(self, items):
        return self._order.sample(items, len(items))


def report(run, description):
    print_results(run.measurements, run.cells)
    print_targets(judge(run.measurements), ratios_to_proto2(run.measurements))
    if run.arguments.json:
        write_run(run.arguments.json, description, run.measurements)
    if run.arguments.plots:
        write_plots(run.measurements, run.cells, run.arguments.plots)


def main():
    with tempfile.TemporaryDirectory(prefix="mava_tum_bench_") as directory:
        run = Run(parse_arguments(), directory)
        if not run.cells:
            sys.exit("bench/run: no workload of that name")
        versions = [run.programs.version(peer) for peer in run.peers]
        description = machine.describe("bench/run", run.arguments.build, versions)
        for name, text in description.items():
            print(f"{name + ':':<14} {text}")
        for peer in run.missing:
            print(f"{peer}: was not built, is missing below")
        try:
            run.check()
            for round_number in range(run.arguments.rounds):
                print(f"round {round_number + 1} of {run.arguments.rounds}", file=sys.stderr)
                run.measure_round(round_number)
        except Disagreement as disagreement:
            sys.exit(f"bench/run: a peer does not agree, so nothing is reported: {disagreement}")
        report(run, description)


if __name__ == "__main__":
    main()
