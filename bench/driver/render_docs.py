#!/usr/bin/env python3
"""Writes what was measured into docs/benchmarks.md and its plots: no figure there is typed by hand.

Reads bench/results/*.json, the texts beside them, and bench/instructions.tsv.
"""

import json
import pathlib
import re
import statistics

import markdown
from cold_table import cold_table
from instructions import read_kept
from plan import OPERATIONS, WORKLOAD_OF_NAME
from result_table import result_rows
from run_file import read_run
from scale_plot import write_scale_plots
from scale_table import GROWING, growth_rows, replay_rows, verdict_rows
from svg_plot import write_plots
from target_table import goal_table, judge, ratios_to_proto2

ROOT = pathlib.Path(__file__).resolve().parents[2]
RESULTS = ROOT / "bench" / "results"
PAGE = ROOT / "docs" / "benchmarks.md"
PLOTS = ROOT / "docs" / "benchmarks"
PUBLISHED_OPERATIONS = ("decode", "encode", "duplicate", "encode_adapter", "decode_adapter")
SHOWN_MESSAGES = 10
COLD_SIDES = ("ours", "ours bump", "ours calloc", "protobuf reused", "protobuf new", "protozero")


def _machine(description):
    lines = [f"- {name}: {text}" for name, text in description.items()]
    if "--quick" in description["command"]:
        lines.append("- **a quick run: to look at, not to quote**")
    return "\n".join(lines)


def _contract_rows(measurements, cells):
    """What the heap costs a decode adapter, and what is left of it with an arena."""
    rows = [["workload", "decode adapter", "of it heap calls", "decode into an arena", "times as fast"]]
    for cell in cells:
        name = (cell.workload.name, cell.set)
        keys = [(*name, "decode_adapter", "ours"), (*name, "decode_adapter", "heap calls"),
                (*name, "decode", "ours arena")]
        if not all(measurements.has(key) for key in keys):
            continue
        ratio = statistics.median(measurements.times_as_fast(keys[2], [keys[0]]))
        rows.append([cell.title, *(f"{measurements.median(key):,.0f}" for key in keys), f"{ratio:.1f}"])
    return rows


def _not_met_rows(verdicts):
    rows = [["goal", "set", "workload", "measured", "wanted", "short by"]]
    for verdict in verdicts:
        if verdict["verdict"] == "met":
            continue
        short = f"{1 - verdict['measured'] / verdict['bar']:.0%}" if "measured" in verdict else "not measured"
        measured = f"{verdict['measured']:.2f}" if "measured" in verdict else "-"
        title = WORKLOAD_OF_NAME[verdict["workload"]].title
        rows.append([verdict["goal"], verdict["set"], title, measured, f"{verdict['bar']:g}", short])
    return rows


def _run_blocks():
    description, measurements, cells = read_run(RESULTS / "run.json")
    for operation in PUBLISHED_OPERATIONS:
        yield operation.replace("_", "-"), markdown.table(result_rows(measurements, cells, operation))
    verdicts = judge(measurements)
    met = sum(verdict["verdict"] == "met" for verdict in verdicts)
    yield "machine", _machine(description)
    yield "goals", f"{met} of {len(verdicts)} met.\n\n" + markdown.text_table(goal_table(verdicts))
    yield "goals-not-met", markdown.text_table(_not_met_rows(verdicts))
    yield "goals-proto2", markdown.text_table(goal_table(ratios_to_proto2(measurements)))
    yield "contract", markdown.table(_contract_rows(measurements, cells))
    write_plots(measurements, cells, PLOTS)


def dearest(rows):
    """Of a table of messages those that cost most for a byte; all are in scale.json."""
    title, *messages = rows
    return [title, *sorted(messages, key=lambda row: -float(row[title.index("ns/byte")]))[:SHOWN_MESSAGES]]


def largest(sizes):
    """Of a table of sizes the title, the largest messages and the sums; scripts/message_sizes prints all."""
    lines = [line for line in sizes.splitlines() if not line.startswith("#")]
    sums = next(number for number, line in enumerate(lines) if re.match(r"\d+ messages ", line))
    return "\n".join([*lines[:1 + SHOWN_MESSAGES], "...", *lines[sums:]])


def _scale_blocks():
    document = json.loads((RESULTS / "scale.json").read_text(encoding="utf-8"))
    replay = {}
    for entry in document["replay"]:
        replay.setdefault(entry["sessions"], {})[entry["operation"], entry["side"]] = entry["rounds"]
    yield "scale-machine", _machine(document["machine"])
    yield "scale-verdicts", markdown.text_table(verdict_rows(document["verdicts"]))
    yield "scale-replay", markdown.table(replay_rows(replay))
    for operation in GROWING:
        name = f"scale-{operation.replace(' ', '-')}"
        yield name, markdown.text_table(dearest(growth_rows(document["growth"], operation)))
    write_scale_plots(replay, document["growth"], PLOTS)


def _cold_blocks():
    document = json.loads((RESULTS / "cold.json").read_text(encoding="utf-8"))
    times = {
        (row["workload"], row["operation"], row["side"]): row["warm_and_cold"] for row in document["results"]
    }
    tables = [
        f"{OPERATIONS[operation][0]}:\n\n" + markdown.table(cold_table(times, operation, COLD_SIDES))
        for operation in PUBLISHED_OPERATIONS
    ]
    yield "cold", _machine(document["machine"]) + "\n\n" + "\n\n".join(tables)


def _instruction_blocks():
    environment, counts = read_kept()
    workloads = dict.fromkeys(key[0] for key in counts)
    operations = dict.fromkeys(key[1:] for key in counts)
    rows = [["operation", *(WORKLOAD_OF_NAME[name].title for name in workloads)]]
    for operation in operations:
        cells = (counts.get((workload, *operation)) for workload in workloads)
        rows.append([", ".join(operation), *(f"{cell.library:,} + {cell.c_library:,}" if cell else "-" for cell in cells)])
    yield "instructions", f"{environment}:\n\n" + markdown.table(rows)


def main():
    sizes = (RESULTS / "sizes.txt").read_text(encoding="utf-8")
    blocks = dict([*_run_blocks(), *_scale_blocks(), *_cold_blocks(), *_instruction_blocks()])
    blocks["sizes"] = markdown.fenced(largest(sizes))
    blocks["profile"] = markdown.fenced((RESULTS / "profile.txt").read_text(encoding="utf-8"))
    PAGE.write_text(markdown.fill(PAGE.read_text(encoding="utf-8"), blocks), encoding="utf-8")
    print(f"{len(blocks)} tables in {PAGE.relative_to(ROOT)}, {len(list(PLOTS.glob('*.svg')))} plots beside it")


if __name__ == "__main__":
    main()
