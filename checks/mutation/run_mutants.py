#!/usr/bin/env python3
"""Runs the ordinary test programs against every mutant and prints the score.

    run_mutants.py run <work folder> [--again] [--only <pattern>]
    run_mutants.py sanitize <work folder>
    run_mutants.py report <work folder> <survivors.md>

The work folder has the files of scripts/check/mutation_score: mutants.json, and two copies of the project: `source`,
with the switched mutants, and `plain`, without mutants, built in `build`.

run: each program runs once without a mutant, and records which mutants it reaches. For each mutant, the programs that
reach it run, the fast ones first, until one fails: the mutant is killed. A mutant of compile-time code is built
(mutant_builder.py) and all programs run; what does not compile is no mutant. A program that takes much longer than
usual counts as failed. A mutant for which no program fails is a survivor.

sanitize: for every survivor, the same programs run once more under the address sanitizer. If one fails, the mutant
needs a test.

report: every other survivor must be listed with a reason.

--again keeps results of earlier runs: all results for the same sources and tests, and from other sources the killed
mutants whose function has not changed. No mutant is started after MUTATION_END (seconds since 1970); continue with
--again. --only tries the mutants whose description contains the pattern.
"""
import argparse
import hashlib
import json
import os
import re
import sys
import threading
import time
from concurrent.futures import ThreadPoolExecutor

from mutant_builder import DOES_NOT_COMPILE, Builder, sources_of

LEAST_SHARE = 0.95


class Switched:
    """The mutants of one build, selected by the environment."""

    def __init__(self, builder):
        builder.prepare()
        self.programs = builder.programs

    def killer_among(self, programs, mutant):
        number = mutant["number"]
        for program in programs:
            if program.reaches(number) and program.fails({"MUTANT": str(number)}):
                return program.name
        return None

    def killer(self, mutant):
        return self.killer_among(self.programs, mutant)


class Results:
    """The results so far, saved after each mutant. The key is the mutant's description with the text of its function,
    so that a later run can detect a change."""

    def __init__(self, path, mutants, version):
        self.path, self.mutants, self.version = path, mutants, version
        self.known, self.left_over = {}, {}
        self.end = float(os.environ.get("MUTATION_END", "inf"))
        self.lock = threading.Lock()

    def take_over(self):
        if not os.path.exists(self.path):
            return
        with open(self.path, encoding="utf-8") as stream:
            self.left_over = json.load(stream)
        for number, mutant in self.mutants.items():
            earlier = self.left_over.get(mutant["key"], {})
            is_of_now = earlier.get("version") == self.version
            if earlier.get("within") == mutant["within"] and (is_of_now or earlier["killer"]):
                self.known[number] = earlier

    def add(self, number, killer):
        mutant = self.mutants[number]
        with self.lock:
            self.known[number] = {"killer": killer, "within": mutant["within"], "version": self.version}
        if len(self.known) % 20 == 0:
            self.save()
            print(f"{len(self.known)} of {len(self.mutants)}", flush=True)

    def add_sanitized(self, number, killer):
        with self.lock:
            self.known[number]["unsafe"] = killer
        self.save()

    def save(self):
        with self.lock:
            known = {self.mutants[number]["key"]: result for number, result in self.known.items()}
            with open(f"{self.path}.new", "w", encoding="utf-8") as stream:
                json.dump({**self.left_over, **known}, stream, indent=1)
            os.replace(f"{self.path}.new", self.path)

    def is_over(self):
        return time.time() > self.end

    def survivors(self):
        return [number for number, result in self.known.items() if result["killer"] is None]

    def compiled(self):
        return {number: result for number, result in self.known.items() if result["killer"] != DOES_NOT_COMPILE}


def run_all(killer, numbers, add, results):
    """Calls `killer` with each mutant, and `add` with its result, until the time is over."""
    def run_one(number):
        if not results.is_over():
            add(number, killer(results.mutants[number]))

    with ThreadPoolExecutor(int(os.environ.get("MUTATION_JOBS", os.cpu_count()))) as pool:
        for _ in pool.map(run_one, numbers):
            pass
    results.save()


def read_survivors(path):
    """The descriptions in the list: each in its own line, as an item in backquotes."""
    with open(path, encoding="utf-8") as stream:
        return set(re.findall(r"^- `(.*)`$", stream.read(), re.M))


def print_survivors(results, listed):
    """Returns whether the list has the same survivors; compares only mutants that have run."""
    survivors = {results.mutants[number]["key"]: number for number in results.survivors()}
    unsafe = {key for key, number in survivors.items() if results.known[number].get("unsafe")}
    unlisted = sorted(set(survivors) - listed - unsafe)
    stale = sorted(key for key in listed - set(survivors) if len(results.known) == len(results.mutants)
                   or key in {results.mutants[number]["key"] for number in results.known})
    for key in unlisted + sorted(unsafe):
        where, sanitized = results.mutants[survivors[key]], results.known[survivors[key]].get("unsafe")
        what = f"unsafe ({sanitized}), needs a test" if sanitized else "survived, not listed"
        print(f"{what}: {where['file']}:{where['line']}\n- `{key}`")
    for key in stale:
        print(f"listed, but killed or gone:\n- `{key}`")
    print(f"{len(survivors)} survivors, {len(unlisted)} of them not listed, {len(unsafe)} unsafe; {len(stale)} listed "
          "that are none")
    return not unlisted and not stale and not unsafe


def report(results, listed):
    """Prints the survivors and the score. Returns whether the check passes."""
    counted = results.compiled()
    killers = [result["killer"] for result in counted.values() if result["killer"]]
    for name in sorted(set(killers)):
        print(f"killed by {name}: {killers.count(name)}")
    is_listed = print_survivors(results, listed)
    not_sanitized = sum("unsafe" not in results.known[number] for number in results.survivors())
    missing = len(results.mutants) - len(results.known)
    if missing or not_sanitized:
        print(f"{missing} of {len(results.mutants)} mutants were not run, and {not_sanitized} survivors not under the "
              "sanitizer; --again goes on")
    of_what = "" if missing == 0 else " that were run"
    share = len(killers) / max(len(counted), 1)
    print(f"mutation score: {len(killers)} of {len(counted)} mutants{of_what} killed, {100 * share:.2f} %")
    return is_listed and missing == 0 and not_sanitized == 0 and share >= LEAST_SHARE


def run_switched(switched, numbers, results):
    """Fast programs kill most mutants: only the others need the slow programs."""
    quick = [program for program in switched.programs if not program.is_slow]
    slow = [program for program in switched.programs if program.is_slow]
    left = []

    def add(number, killer):
        if killer:
            results.add(number, killer)
        else:
            left.append(number)

    run_all(lambda mutant: switched.killer_among(quick, mutant), numbers, add, results)
    print(f"{len(left)} left for {', '.join(program.name for program in slow)}", flush=True)
    run_all(lambda mutant: switched.killer_among(slow, mutant), left, results.add, results)


def split(results, numbers):
    """The switched mutants, and those to be built."""
    return ([number for number in numbers if "edit" not in results.mutants[number]],
            [number for number in numbers if "edit" in results.mutants[number]])


def run(options, results):
    left = [number for number, mutant in results.mutants.items()
            if number not in results.known and re.search(options.only, mutant["key"])]
    print(f"{len(results.known)} of {len(results.mutants)} mutants taken over, {len(left)} to run", flush=True)
    chosen, built = split(results, left)
    if chosen and not results.is_over():
        switched = Switched(Builder(options.work, "source", options.corpus, results.version))
        run_switched(switched, chosen, results)
    if built and not results.is_over():
        builder = Builder(options.work, "plain", options.corpus, results.version)
        builder.prepare()
        run_all(builder.killer, built, results.add, results)


def sanitize(options, results):
    """Every survivor that has not run on these sources."""
    chosen, built = split(results, [n for n in results.survivors() if "unsafe" not in results.known[n]])
    if chosen and not results.is_over():
        switched = Switched(Builder(options.work, "source", options.corpus, results.version, sanitized=True))
        run_all(switched.killer, chosen, results.add_sanitized, results)
    if built and not results.is_over():
        builder = Builder(options.work, "plain", options.corpus, results.version, sanitized=True)
        builder.prepare()
        run_all(builder.killer, built, results.add_sanitized, results)


def read_results(options):
    with open(os.path.join(options.work, "mutants.json"), encoding="utf-8") as stream:
        mutants = {int(number): {**mutant, "number": int(number)} for number, mutant in json.load(stream).items()}
    version = hashlib.sha1((sources_of(options.plain) + json.dumps(list(mutants.values()))).encode()).hexdigest()
    results = Results(os.path.join(options.work, "results.json"), mutants, version)
    if options.again:
        results.take_over()
    return results


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("what", choices=["run", "sanitize", "report"])
    parser.add_argument("work")
    parser.add_argument("survivors", nargs="?")
    parser.add_argument("--again", action="store_true")
    parser.add_argument("--only", default="")
    options = parser.parse_args()
    options.again |= options.what != "run"
    options.plain = os.path.join(options.work, "plain")
    options.corpus = os.path.join(options.plain, "fuzz", "corpus")
    results = read_results(options)
    if options.what == "run":
        run(options, results)
    elif options.what == "sanitize":
        sanitize(options, results)
    elif not report(results, read_survivors(options.survivors)):
        sys.exit(1)


if __name__ == "__main__":
    main()
