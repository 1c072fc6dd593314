"""Calls the programs of the bench."""

import os
import pathlib
import subprocess
import sys


class Disagreement(Exception):
    """Bytes or records of an implementation differ from ours: no comparison is possible."""


class Programs:
    def __init__(self, build):
        self._directory = pathlib.Path(build).absolute() / "bench"

    def present(self, peers):
        return [peer for peer in peers if peer == "ours" or (self._directory / f"mava_tum_bench_{peer}.so").exists()]

    def link_orders(self):
        """The folders of the builds of the library with different link orders."""
        orders = [self._directory.parent / "src", self._directory / "other_order"]
        for order in orders:
            loaded = self._output(["mava_tum_bench", "--versions", "ours"], order).splitlines()[0]
            if pathlib.Path(loaded).parent != order:
                sys.exit(f"the library of {order} was to be measured, and {loaded} is loaded")
        return orders

    def versions(self, peers):
        return self._output(["mava_tum_bench", "--versions", *peers]).splitlines()[1:]

    def measure(self, task, cell, operations, peers, *, amount, first=0, messages=None, seed=1, order=None):
        """(bytes of a message on average, rows as mava_tum_bench prints them)"""
        messages = messages or cell.workload.messages
        command = ["mava_tum_bench", task, cell.workload.name, cell.set, first, messages, seed, amount,
                   ",".join(operations), *peers]
        size, *rows = self._rows(command, order)
        return float(size[1]), rows

    def rows(self, program, arguments):
        """The output of one of the other programs."""
        return self._rows([f"mava_tum_bench_{program}", *arguments])

    def _rows(self, command, order=None):
        return [line.split("\t") for line in self._output(command, order).splitlines()]

    def _output(self, command, order=None):
        program, *arguments = command
        command = [str(self._directory / program), *map(str, arguments)]
        environment = os.environ | ({"LD_LIBRARY_PATH": str(order)} if order else {})
        done = subprocess.run(command, capture_output=True, text=True, check=False, env=environment)
        if done.returncode == 1:
            raise Disagreement(done.stderr.strip())
        if done.returncode != 0:
            sys.exit(f"{' '.join(command)}: exit {done.returncode}\n{done.stderr}")
        return done.stdout
