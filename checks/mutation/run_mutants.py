#!/usr/bin/env python3
"""Runs the ordinary test programs against every mutant and prints the score.

    run_mutants.py run <work folder> [--again] [--only <pattern>]
    run_mutants.py report <work folder> <survivors.md>

The work folder has the files of scripts/check/mutation_score: mutants.json, and two copies of the project: `source`,
with the switched mutants, and `plain`, without mutants, built in `build`.

run: each program runs once without a mutant, and records which mutants it reaches. For each mutant, the programs that
reach it run until one fails: the mutant is killed. They run in three stages: first the fast programs, for what is left
the slow ones, and then some under the address sanitizer (test_programs.py). A mutant of compile-time code is built
(mutant_builder.py); what does not compile is no mutant. A program that takes much longer than usual counts as failed. A
mutant for which no program fails is a survivor.

report: every survivor must be listed with a reason.

--again keeps results of earlier runs: all results for the same sources and tests, and from other sources the killed
mutants whose function has not changed. No mutant is started after MUTATION_END (seconds since 1970); continue with
--again. --only tries the mutants whose description contains the pattern.
"""
import argparse
import hashlib
import itertools
import json
import os
import re
import sys
import threading
import time
from collections import Counter
from concurrent.futures import ThreadPoolExecutor

from mutant_builder import DOES_NOT_COMPILE, Builder, sources_of
from test_programs import STAGES

LEAST_SHARE = 0.95


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

    def add(self, number, killer, stage):
        """`stage`: the last one that the mutant went through."""
        with self.lock:
            self.known[number] = {"killer": killer, "stage": stage,
                                  "within": self.mutants[number]["within"], "version": self.version}
            known = {self.mutants[number]["key"]: result for number, result in self.known.items()}
            with open(f"{self.path}.new", "w", encoding="utf-8") as stream:
                json.dump({**self.left_over, **known}, stream, indent=1)
            os.replace(f"{self.path}.new", self.path)

    def is_over(self):
        return time.time() > self.end

    def alive_after(self, stage):
        """None: before the first stage."""
        def is_alive(result):
            return result["killer"] is None and result["stage"] == stage

        return [number for number in self.mutants if is_alive(self.known.get(number, {"killer": None, "stage": None}))]

    def survivors(self):
        return self.alive_after(list(STAGES)[-1])

    def undecided(self):
        return [number for stage in [None, *STAGES][:-1] for number in self.alive_after(stage)]


def run_all(builder, numbers, results, stage):
    """Saves the killer of each mutant, until the time is over."""
    def run_one(number):
        if not results.is_over():
            results.add(number, builder.killer(results.mutants[number]), stage)

    with ThreadPoolExecutor(int(os.environ.get("MUTATION_JOBS", os.cpu_count()))) as pool:
        for done, _ in enumerate(pool.map(run_one, numbers), 1):
            if done % 20 == 0:
                print(f"{done} of {len(numbers)}", flush=True)


def alternatives(text):
    """a{b,c}d -> abd, acd"""
    braces = re.search(r"\{([^{}]*,[^{}]*)\}", text)
    if not braces:
        return {text}
    return {each for choice in braces.group(1).split(",")
            for each in alternatives(text[:braces.start()] + choice + text[braces.end():])}


def read_survivors(path):
    """The descriptions in the list: each in its own line, as an item in backquotes. {a,b} stands for a and for b."""
    with open(path, encoding="utf-8") as stream:
        return {each for line in re.findall(r"^- `(.*)`$", stream.read(), re.M) for each in alternatives(line)}


def print_survivors(results, listed):
    """Returns whether the list has the same survivors; compares only mutants that have run."""
    survivors = {results.mutants[number]["key"]: results.mutants[number] for number in results.survivors()}
    undecided = {results.mutants[number]["key"] for number in results.undecided()}
    unlisted = sorted(set(survivors) - listed)
    stale = sorted(listed - set(survivors) - undecided)
    for key in unlisted:
        print(f"survived, not listed: {survivors[key]['file']}:{survivors[key]['line']}\n- `{key}`")
    for key in stale:
        print(f"listed, but killed or gone:\n- `{key}`")
    print(f"{len(survivors)} survivors, {len(unlisted)} of them not listed; {len(stale)} listed that are none")
    return not unlisted and not stale


def report(results, listed):
    """Prints the survivors and the score. Returns whether the check passes."""
    ends = Counter(result["killer"] for result in results.known.values() if result["killer"])
    print(f"do not compile: {ends.pop(DOES_NOT_COMPILE, 0)}")
    for name, count in sorted(ends.items()):
        print(f"killed by {name}: {count}")
    is_listed = print_survivors(results, listed)
    undecided = results.undecided()
    if undecided:
        print(f"{len(undecided)} of {len(results.mutants)} mutants are not decided; --again goes on")
    of_what = " that were decided" if undecided else ""
    killed = sum(ends.values())
    counted = killed + len(results.survivors())
    share = killed / max(counted, 1)
    print(f"mutation score: {killed} of {counted} mutants{of_what} killed, {100 * share:.2f} %")
    return is_listed and not undecided and share >= LEAST_SHARE


def run(options, results):
    print(f"{len(results.mutants)} mutants, {len(results.undecided())} to decide", flush=True)
    for before, stage in itertools.pairwise([None, *STAGES]):
        for name in ("source", "plain"):
            numbers = [number for number in results.alive_after(before)
                       if ("edit" in results.mutants[number]) == (name == "plain")
                       and re.search(options.only, results.mutants[number]["key"])]
            if numbers and not results.is_over():
                print(f"{len(numbers)} of {name}, {stage} programs", flush=True)
                builder = Builder(options.work, name, options.corpus, results.version, stage)
                run_all(builder, numbers, results, stage)


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
    parser.add_argument("what", choices=["run", "report"])
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
    elif not report(results, read_survivors(options.survivors)):
        sys.exit(1)


if __name__ == "__main__":
    main()
