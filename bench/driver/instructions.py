#!/usr/bin/env python3
"""Counts the instructions of each operation with callgrind and compares them with bench/instructions.tsv.

Exit code 1 if the instructions in our library, or the calls of the heap, are more than 3 % above the kept count. If
compiler, flags, C library or processor are not those of the kept counts, it judges nothing: exit code 77, which test
runners count as skipped. The instructions in the C library (copies, string lengths, heap) are shown only: the cost of a
heap call depends on the calls before it. The bench's own instructions are not counted.
"""

import argparse
import collections
import itertools
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from tables import print_aligned

KEPT = pathlib.Path(__file__).resolve().parents[1] / "instructions.tsv"
MOST = 1.03  # counts repeat exactly; the margin is for changes that are worth it
NOT_JUDGED = 77
HEAP_FUNCTIONS = ("calloc", "malloc", "realloc", "free")
Counts = collections.namedtuple("Counts", "library heap_calls c_library")
NOTHING = Counts(0, 0, 0)
# The plainest copies and string functions: otherwise the C library chooses them by processor.
NOT_USED = "AVX512F AVX512VL AVX512BW AVX2 AVX BMI1 BMI2 ERMS FSRM SSSE3 SSE4_1 SSE4_2".split()
PLAIN_C_LIBRARY = "glibc.cpu.hwcaps=" + ",".join("-" + feature for feature in NOT_USED)


def environment_of(program):
    return subprocess.run([program, "--environment"], capture_output=True, text=True, check=True).stdout.strip()


class Dump:
    """The parts of a callgrind dump that are used here. A name is written at its first occurrence; later, its
    number."""

    def __init__(self, text):
        self.costs = collections.Counter()  # instructions by object file, callees not included
        self.functions = collections.Counter()  # the same by function
        self.calls = collections.Counter()  # calls by name of the callee
        self._objects, self._functions = {}, {}
        self._object = self._function = self._callee = None
        self._callee_cost_follows = False
        for line in text.splitlines():
            self._read(line)

    def _read(self, line):
        if found := re.match(r"c?ob=\((\d+)\)(?: (.*))?", line):
            name = self._name(self._objects, *found.groups())
            if line.startswith("ob="):
                self._object = name
        elif found := re.match(r"c?fn=\((\d+)\)(?: (.*))?", line):
            name = self._name(self._functions, *found.groups())
            if line.startswith("cfn="):
                self._callee = name
            else:
                self._function = name
        elif found := re.match(r"calls=(\d+)", line):
            self.calls[self._callee] += int(found.group(1))
            self._callee_cost_follows = True
        elif found := re.match(r"[+\-*\d]+ (\d+)$", line):
            if not self._callee_cost_follows:
                self.costs[self._object] += int(found.group(1))
                self.functions[self._object, self._function] += int(found.group(1))
            self._callee_cost_follows = False

    @staticmethod
    def _name(names, number, name):
        if name:
            names[number] = name
        return names[number]

    def counts(self):
        return Counts(
            library=sum(cost for name, cost in self.costs.items() if "/libmava_tum" in name),
            heap_calls=sum(self.calls[name] for name in HEAP_FUNCTIONS),
            c_library=sum(cost for name, cost in self.costs.items() if "/libc.so" in name),
        )


def dumps_of(program):
    """{(workload, operation, side): Dump}"""
    with tempfile.TemporaryDirectory(prefix="mava_tum_bench_") as directory:
        command = ["valgrind", "--tool=callgrind", "--quiet", "--callgrind-out-file=" + directory + "/dump", program]
        # An empty environment otherwise: its size moves the stack, and with it the alignment of copies.
        clean = {"PATH": os.environ["PATH"], "GLIBC_TUNABLES": PLAIN_C_LIBRARY, "LC_ALL": "C"}
        subprocess.run(command, env=clean, check=True)
        dumps = {}
        in_order = sorted(pathlib.Path(directory).glob("dump.*"), key=lambda file: int(file.suffix[1:]))
        for file in in_order:
            dump = file.read_text(encoding="utf-8")
            trigger = re.search(r"^desc: Trigger: Client Request: (.*)$", dump, re.MULTILINE)
            if not trigger:
                continue
            dumps[tuple(trigger.group(1).split("/"))] = Dump(dump)
    return dumps


def count(program):
    """{(workload, operation, side): Counts}"""
    return {key: dump.counts() for key, dump in dumps_of(program).items()}


def read_kept():
    """(environment, counts)"""
    lines = KEPT.read_text(encoding="utf-8").splitlines()
    rows = [line.split("\t") for line in lines if not line.startswith("#")][1:]
    counts = {tuple(row[:3]): Counts(*map(int, row[3:])) for row in rows}
    return lines[0].removeprefix("# "), counts


def write_kept(environment, counts):
    rows = ["# " + environment, "workload\toperation\tside\tlibrary\theap calls\tC library"]
    rows += ["\t".join((*key, *map(str, values))) for key, values in counts.items()]
    KEPT.write_text("\n".join(rows) + "\n", encoding="utf-8")


def change(new, old):
    return "" if new == old else f"{new / old - 1:+.1%}" if old else "new"


def is_dearer(new, old):
    return new.library > old.library * MOST or new.heap_calls > old.heap_calls * MOST


def compare(counts, kept):
    """Rows of the table, and the operations above the limit."""
    rows = [["operation", "library", "was", "", "heap calls", "was", "", "C library", "was", ""]]
    dearer = []
    for key in [*counts, *(key for key in kept if key not in counts)]:
        new, old = counts.get(key, NOTHING), kept.get(key, NOTHING)
        columns = ((str(now), str(was), change(now, was)) for now, was in zip(new, old))
        rows.append(["/".join(key), *itertools.chain(*columns)])
        if key in kept and is_dearer(new, old):
            dearer.append("/".join(key))
    return rows, dearer


def check(environment, counts):
    kept_environment, kept = read_kept()
    rows, dearer = compare(counts, kept)
    print_aligned(rows)
    unknown = sorted("/".join(key) for key in counts.keys() ^ kept.keys())
    if unknown:
        print(f"\nOnly here or only in bench/{KEPT.name}: {', '.join(unknown)}")
    if environment != kept_environment:
        print(f"\nNot judged: bench/{KEPT.name} was made with {kept_environment}; this is {environment}")
        return NOT_JUDGED
    if dearer:
        print(f"\nMore than {MOST - 1:.0%} dearer: {', '.join(dearer)}")
    print(f"\n{len(counts)} operations counted, {len(dearer)} more than {MOST - 1:.0%} dearer")
    return 1 if dearer or unknown else 0


def main():
    parser = argparse.ArgumentParser(prog="scripts/check/instructions")
    parser.add_argument("program", help=argparse.SUPPRESS)  # scripts/check/instructions gives it
    parser.add_argument("--update", action="store_true", help="keep the new counts")
    arguments = parser.parse_args()
    environment = environment_of(arguments.program)
    counts = count(arguments.program)
    if not counts:
        sys.exit("scripts/check/instructions: callgrind counted nothing")
    if arguments.update:
        write_kept(environment, counts)
    sys.exit(check(environment, counts))


if __name__ == "__main__":
    main()
