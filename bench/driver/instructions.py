#!/usr/bin/env python3
"""Counts the instructions of each operation with callgrind and compares them with those kept in the tree.

Counted are the instructions in our library, and those in the C library (copies, string lengths, heap), which it calls:
the bench's own, such as its bump allocator, are not. Exit code 1: an operation takes more than a tenth more than kept.
"""

import argparse
import os
import pathlib
import re
import subprocess
import sys
import tempfile

from result_table import print_aligned

KEPT = pathlib.Path(__file__).resolve().parents[1] / "instructions.tsv"
MOST = 1.10
# The plainest copies and string functions: otherwise the C library chooses them by processor.
PLAIN_C_LIBRARY = "glibc.cpu.hwcaps=-AVX512F,-AVX512VL,-AVX512BW,-AVX2,-AVX,-BMI1,-BMI2,-ERMS,-FSRM,-SSSE3,-SSE4_1,-SSE4_2"


def environment_of(program):
    return subprocess.run([program, "--environment"], capture_output=True, text=True, check=True).stdout.strip()


def costs_by_object(dump):
    """Instructions by object file, callees not included."""
    names, costs, current, skip = {}, {}, None, False
    for line in dump.splitlines():
        if found := re.match(r"ob=\((\d+)\)(?: (.*))?", line):
            number, name = found.groups()
            names.setdefault(number, name)
            current = names[number]
        elif found := re.match(r"cob=\((\d+)\) (.*)", line):
            names.setdefault(*found.groups())
        elif line.startswith("calls="):
            skip = True  # the next line is what the callee took
        elif found := re.match(r"[+\-*\d]+ (\d+)$", line):
            if not skip:
                costs[current] = costs.get(current, 0) + int(found.group(1))
            skip = False
    return costs


def count(program):
    """{(workload, operation, side): (instructions in our library, in the C library)}"""
    with tempfile.TemporaryDirectory(prefix="mava_tum_bench_") as directory:
        command = ["valgrind", "--tool=callgrind", "--quiet", "--callgrind-out-file=" + directory + "/dump", program]
        # Nothing else from outside: the environment moves the stack, and with it the alignment of copies.
        clean = {"PATH": os.environ["PATH"], "GLIBC_TUNABLES": PLAIN_C_LIBRARY, "LC_ALL": "C"}
        subprocess.run(command, env=clean, check=True)
        counts = {}
        in_order = sorted(pathlib.Path(directory).glob("dump.*"), key=lambda file: int(file.suffix[1:]))
        for file in in_order:
            dump = file.read_text(encoding="utf-8")
            trigger = re.search(r"^desc: Trigger: Client Request: (.*)$", dump, re.MULTILINE)
            if not trigger:
                continue
            costs = costs_by_object(dump)
            key = tuple(trigger.group(1).split("/"))
            counts[key] = tuple(
                sum(cost for name, cost in costs.items() if part in name) for part in ("/libmava_tum", "/libc.so")
            )
    return counts


def read_kept():
    """(environment, counts)"""
    lines = KEPT.read_text(encoding="utf-8").splitlines()
    rows = [line.split("\t") for line in lines if not line.startswith("#")][1:]
    counts = {tuple(row[:3]): (int(row[3]), int(row[4])) for row in rows}
    return lines[0].removeprefix("# "), counts


def write_kept(environment, counts):
    rows = ["# " + environment, "workload\toperation\tside\tlibrary\tC library"]
    rows += ["\t".join((*key, *map(str, values))) for key, values in counts.items()]
    KEPT.write_text("\n".join(rows) + "\n", encoding="utf-8")


def change(new, old):
    return "" if new == old else f"{new / old - 1:+.1%}" if old else "new"


def exceeds(new, old):
    return new > old * MOST


def compare(counts, kept):
    """Rows of the table, and the operations that are too dear."""
    rows = [["operation", "library", "was", "", "with C library", "was", ""]]
    dearer = []
    for key in [*counts, *(key for key in kept if key not in counts)]:
        (library, c_library), (old_library, old_c_library) = counts.get(key, (0, 0)), kept.get(key, (0, 0))
        both, old_both = library + c_library, old_library + old_c_library
        rows.append([
            "/".join(key), str(library), str(old_library), change(library, old_library),
            str(both), str(old_both), change(both, old_both),
        ])
        if key in kept and (exceeds(library, old_library) or exceeds(both, old_both)):
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
        return 0
    if dearer:
        print(f"\nMore than {MOST - 1:.0%} dearer: {', '.join(dearer)}")
    print(f"\n{len(counts)} operations counted, {len(dearer)} more than {MOST - 1:.0%} dearer")
    return 1 if dearer or unknown else 0


def main():
    parser = argparse.ArgumentParser(prog="tools/check/instructions")
    parser.add_argument("program", help=argparse.SUPPRESS)  # tools/check/instructions gives it
    parser.add_argument("--update", action="store_true", help="keep the new counts")
    arguments = parser.parse_args()
    environment = environment_of(arguments.program)
    counts = count(arguments.program)
    if not counts:
        sys.exit("tools/check/instructions: callgrind counted nothing")
    if arguments.update:
        write_kept(environment, counts)
    sys.exit(check(environment, counts))


if __name__ == "__main__":
    main()
