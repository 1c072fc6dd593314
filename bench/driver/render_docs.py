#!/usr/bin/env python3
"""Writes the measured tables into README.md, docs/benchmarks.md and bench/README.md, and the plot.

  render_docs.py <folder of the results>    the files that bench/publish wrote, and bench/instructions.tsv
"""

import json
import pathlib
import re
import sys

from goals import count, goal_rows, judge
from instructions import read_kept
from measurements import read_run
from plan import OPERATIONS, SIDES, SUMMARY, WORKLOAD_OF_NAME
from run_cold import cold_table
from scale_table import replay_rows, verdict_rows
from svg_plot import write_plots
from tables import fenced, fill, markdown, markdown_of_words, page_rows, spread_sentence, summary_rows

ROOT = pathlib.Path(__file__).resolve().parents[2]
PAGES = (ROOT / "README.md", ROOT / "docs" / "benchmarks.md", ROOT / "bench" / "README.md")
PLOTS = ROOT / "docs" / "benchmarks"
SHOWN_MESSAGES = 5
# Without proto2 with a new message: it differs from proto3 as the reused ones do.
OTHERS = [side for side in SIDES if side.startswith(("proto", "nanopb")) and side != "proto2 new"]


def _machine(description):
    lines = [f"- {name}: {text}" for name, text in description.items()]
    if "--quick" in description["command"]:
        lines.append("- **a quick run: to look at, not to quote**")
    return "\n".join(lines)


def _run_blocks(results_folder):
    description, _, results = read_run(results_folder / "run.json")
    yield "machine", _machine(description)
    yield "summary", markdown(summary_rows(results))
    yield "spread", spread_sentence(results)
    for operation in (*SUMMARY, "duplicate"):
        yield operation.replace("_", "-"), markdown(page_rows(results, operation, OTHERS))
    verdicts = judge(results)
    yield "goals", f"{count(verdicts)}.\n\n" + markdown(goal_rows(verdicts))
    write_plots(results, PLOTS)


def _scale_blocks(results_folder):
    document = json.loads((results_folder / "scale.json").read_text(encoding="utf-8"))
    replay = {}
    for entry in document["replay"]:
        if entry["sessions"] in (1, 10, 100, 1000, 10_000):
            replay.setdefault(entry["sessions"], {})[entry["operation"], entry["side"]] = entry["rounds"]
    yield "scale-machine", _machine(document["machine"])
    yield "scale-verdicts", markdown_of_words(verdict_rows(document["verdicts"]))
    yield "scale-replay", markdown(replay_rows(replay))


def _cold_block(results_folder):
    document = json.loads((results_folder / "cold.json").read_text(encoding="utf-8"))
    times = {tuple(row[:3]): tuple(row[3:]) for row in document["results"]}
    tables = [f"{OPERATIONS[operation]}:\n\n" + markdown(cold_table(times, operation)) for operation in SUMMARY]
    return _machine(document["machine"]) + "\n\n" + "\n\n".join(tables)


def _instruction_block():
    environment, counts = read_kept()
    workloads = dict.fromkeys(key[0] for key in counts)
    operations = dict.fromkeys(key[1:] for key in counts)
    rows = [["operation", *(WORKLOAD_OF_NAME[name].label for name in workloads)]]
    for operation in operations:
        found = [counts.get((workload, *operation)) for workload in workloads]
        rows.append([", ".join(operation), *(f"{each.library:,} + {each.c_library:,}" if each else "-" for each in found)])
    return f"{environment}:\n\n" + markdown(rows)


def largest(sizes):
    """The title, the largest messages and the sums of a table of sizes; scripts/message_sizes prints all rows."""
    lines = sizes.splitlines()
    sums = next(number for number, line in enumerate(lines) if re.match(r"\d+ messages ", line))
    return "\n".join([*lines[:1 + SHOWN_MESSAGES], "...", *lines[sums:]])


def main():
    results_folder = pathlib.Path(sys.argv[1])
    blocks = dict([*_run_blocks(results_folder), *_scale_blocks(results_folder)])
    blocks["cold"] = _cold_block(results_folder)
    blocks["instructions"] = _instruction_block()
    blocks["sizes"] = fenced(largest((results_folder / "sizes.txt").read_text(encoding="utf-8")))
    blocks["profile"] = fenced((results_folder / "profile.txt").read_text(encoding="utf-8"))
    for page in PAGES:
        page.write_text(fill(page.read_text(encoding="utf-8"), blocks), encoding="utf-8")
    print(f"written: {', '.join(str(page.relative_to(ROOT)) for page in (*PAGES, PLOTS))}")


if __name__ == "__main__":
    main()
