#!/usr/bin/env python3
"""Runs the ordinary test programs against every mutant of a mutated build and prints the score.

    run_mutants.py <build folder> <mutants.json> <survivors.md> <fuzz corpus> <results.json> [--again]

First each program runs once with nothing mutated and notes which mutants it reaches. Then each mutant is run through
the programs that reach it, the fastest first, until one fails: it is killed. A program that takes much longer than it
should counts as failed. What no program fails for has survived, and has to be listed with a reason. A listed survivor
is not run through the slow programs again: that could only raise the score.

With --again, what an earlier run killed counts as killed if the function that it is in has not changed since: to try
a new test, or to go on after MUTATION_MINUTES, after which no further mutant is begun.
"""
import argparse
import json
import os
import re
import resource
import subprocess
import sys
import time
from concurrent.futures import ThreadPoolExecutor

# A part of a program is named by its filter.
PROGRAMS = ["tests/test_codec", "tests/test_messages", "tests/test_leniency", "tests/nal/test_nal nal_queue.*",
            "tests/nal/test_nal -nal_queue.*", "tests/model/test_model", "fuzz/replay_messages", "fuzz/replay_adapters",
            "tests/interop/test_interop", "tests/sweeps/test_sweeps"]
LEAST_SHARE = 0.95
SLOW_SECONDS = 3
MEMORY_BYTES = 8 << 30
NOT_RUN = "not run"
# Run by the compiler alone; the tool stops when a program reaches one of them after all.
COMPILE_TIME_FUNCTIONS = {
    "all_scalar", "any_asks_for_room", "asks_for_room", "is_well_formed", "make_varint_shapes", "max_head_bytes",
    "max_put_bytes", "presence_bits_up_to", "sum_of_head_bytes", "sum_of_put_bytes", "tag_of"}


class Program:
    """A test program of the mutated build."""

    def __init__(self, build, name, corpus):
        path, _, selected = name.partition(" ")
        self.name = os.path.basename(name)
        if self.name.startswith("replay_"):
            arguments = [os.path.join(corpus, self.name[len("replay_"):] + ".packed")]
        else:
            arguments = ["--gtest_fail_fast", "--gtest_brief=1", f"--gtest_filter={selected or '*'}"]
        self.command = [os.path.join(build, path), *arguments]
        self.seconds = 0.0
        self.reached = set()

    def run(self, variables, cpu_seconds):
        """The exit code; not 0 as well when the time is up."""
        def limit():
            resource.setrlimit(resource.RLIMIT_CPU, (cpu_seconds, cpu_seconds))
            resource.setrlimit(resource.RLIMIT_AS, (MEMORY_BYTES, MEMORY_BYTES))
            resource.setrlimit(resource.RLIMIT_CORE, (0, 0))
        try:
            return subprocess.run(self.command, env={**os.environ, **variables}, preexec_fn=limit, check=False,
                                  stdin=subprocess.DEVNULL, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                  timeout=60 + 40 * cpu_seconds).returncode
        except subprocess.TimeoutExpired:
            return 1

    def trace(self, folder):
        """What it reaches, and how long it takes."""
        file = os.path.join(folder, f"{self.name.replace('*', 'all')}.trace")
        if os.path.exists(file):
            os.remove(file)
        before = resource.getrusage(resource.RUSAGE_CHILDREN)
        code = self.run({"MUTANT_TRACE": file}, 600)
        after = resource.getrusage(resource.RUSAGE_CHILDREN)
        if code != 0:
            raise SystemExit(f"{self.name} fails with nothing mutated, exit code {code}")
        self.seconds = after.ru_utime + after.ru_stime - before.ru_utime - before.ru_stime
        with open(file, "rb") as stream:
            self.reached = {number for number, byte in enumerate(stream.read()) if byte}
        print(f"{self.name}: reaches {len(self.reached)} mutants in {self.seconds:.1f} s of processor time", flush=True)

    def kills(self, number):
        return self.run({"MUTANT": str(number)}, int(3 * self.seconds) + 3) != 0


def try_mutant(number, programs, is_listed):
    """The name of the program that killed it, or None."""
    for program in programs:
        if number in program.reached and not (is_listed and program.seconds > SLOW_SECONDS):
            if program.kills(number):
                return program.name
    return None


def read_survivors(path):
    """The keys in the list: each in a line of its own, as an item in backquotes."""
    with open(path, encoding="utf-8") as stream:
        return set(re.findall(r"^- `(.*)`$", stream.read(), re.M))


def save(mutants, results, path):
    """By key, with the function's text, so that a later run can tell whether it still holds."""
    with open(path, "w", encoding="utf-8") as stream:
        json.dump({mutants[number]["key"]: {"killer": killer, "within": mutants[number]["within"]}
                   for number, killer in results.items()}, stream, indent=1)


def killed_before(mutants, path):
    """number -> the program that killed it in an earlier run."""
    with open(path, encoding="utf-8") as stream:
        earlier = json.load(stream)
    killers = {number: earlier[mutant["key"]]["killer"] for number, mutant in mutants.items()
               if earlier.get(mutant["key"], {}).get("within") == mutant["within"]}
    known = {number: killer for number, killer in killers.items() if killer}
    print(f"{len(known)} of {len(mutants)} mutants taken over as killed", flush=True)
    return known


def run_all(mutants, programs, listed, known, path):
    """number -> the program that killed it, or None, of all that the time was enough for. Saves them, also on the
    way."""
    results, started = dict(known), time.time()
    last = started + 60 * float(os.environ.get("MUTATION_MINUTES", "inf"))

    def run(number):
        if time.time() > last:
            return number, NOT_RUN
        return number, try_mutant(number, programs, mutants[number]["key"] in listed)

    with ThreadPoolExecutor(int(os.environ.get("MUTATION_JOBS", os.cpu_count()))) as pool:
        for number, killer in pool.map(run, sorted(set(mutants) - set(known))):
            if killer == NOT_RUN:
                continue
            results[number] = killer
            if len(results) % 100 == 0:
                save(mutants, results, path)
                print(f"{len(results)} of {len(mutants)} in {time.time() - started:.0f} s", flush=True)
    save(mutants, results, path)
    return results


def report(mutants, programs, results, listed):
    """Prints what survived and the score. Returns whether the list says the same."""
    if len(results) < len(mutants):
        print(f"{len(results)} of {len(mutants)} mutants were run; --again goes on")
        return False
    reached = set().union(*(program.reached for program in programs))
    survivors = {mutants[number]["key"]: number for number, killer in results.items() if killer is None}
    unlisted, stale = sorted(set(survivors) - listed), sorted(listed - set(survivors))
    for key in unlisted:
        where = mutants[survivors[key]]
        note = "" if survivors[key] in reached else " (reached by no test)"
        print(f"survived, not listed: {where['file']}:{where['line']}{note}\n- `{key}`")
    for key in stale:
        print(f"listed, but killed or gone:\n- `{key}`")
    for name in sorted({killer for killer in results.values() if killer}):
        print(f"killed by {name}: {sum(killer == name for killer in results.values())}")
    killed, count = len(results) - len(survivors), len(results)
    print(f"mutation score: {killed} of {count} killed, {100 * killed / count:.2f} %; {len(survivors)} survivors, "
          f"{len(unlisted)} of them not listed")
    return not unlisted and not stale and killed >= LEAST_SHARE * count


def run_by_the_compiler(mutants, programs):
    """Takes out what only the compiler evaluates. Stops when a program evaluates it after all."""
    reached = set().union(*(program.reached for program in programs))
    left_out = {n for n, mutant in mutants.items() if mutant["function"].split("::")[-1] in COMPILE_TIME_FUNCTIONS}
    if left_out & reached:
        raise SystemExit(f"runs after all: {[mutants[n]['function'] for n in left_out & reached][0]}")
    print(f"{len(left_out)} mutants left out: only the compiler runs {', '.join(sorted(COMPILE_TIME_FUNCTIONS))}")
    return {n: mutant for n, mutant in mutants.items() if n not in left_out}


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    for name in ("build", "mutants", "survivors", "corpus", "results"):
        parser.add_argument(name)
    parser.add_argument("--again", action="store_true")
    options = parser.parse_args()
    with open(options.mutants, encoding="utf-8") as stream:
        mutants = {int(number): mutant for number, mutant in json.load(stream).items() if mutant["compiles"]}
    programs = [Program(options.build, name, options.corpus) for name in PROGRAMS]
    for program in programs:
        program.trace(options.build)
    programs.sort(key=lambda program: program.seconds)
    mutants = run_by_the_compiler(mutants, programs)
    listed = read_survivors(options.survivors)
    known = killed_before(mutants, options.results) if options.again and os.path.exists(options.results) else {}
    results = run_all(mutants, programs, listed, known, options.results)
    sys.exit(0 if report(mutants, programs, results, listed) else 1)


if __name__ == "__main__":
    main()
