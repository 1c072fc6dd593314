"""A run as a JSON file, and back: tables and plots can be made again from the file."""

import json

from measurements import Measurements, significant, spread
from plan import cells
from target_table import judge, ratios_to_proto2


def _results(measurements):
    return [
        {
            "workload": key[0], "set": key[1], "operation": key[2], "side": key[3],
            "nanoseconds": significant(measurements.median(key)),
            "spread": round(spread(measurements.values(key)), 4),
            "rounds": [significant(time) for time in measurements.values(key)],
        }
        for key in sorted(measurements.keys())
    ]


def _lines(entries):
    """One entry a line: a change of a run shows as the lines that changed."""
    return "[\n" + ",\n".join(json.dumps(entry) for entry in entries) + "\n]"


def write_run(path, description, measurements):
    sizes = [
        {"workload": cell.workload.name, "set": cell.set, "bytes": size}
        for cell, size in measurements.wire_bytes.items()
    ]
    parts = {
        "machine": json.dumps(description, indent=1),
        "messages": _lines(sizes),
        "results": _lines(_results(measurements)),
        "goals": _lines(judge(measurements)),
        "goals_with_proto2": _lines(ratios_to_proto2(measurements)),
    }
    text = ",\n".join(f'"{name}": {content}' for name, content in parts.items())
    path.write_text("{\n" + text + "\n}\n", encoding="utf-8")


def read_run(path):
    """(description, measurements, cells)"""
    document = json.loads(path.read_text(encoding="utf-8"))
    measurements = Measurements()
    cell_of = {(cell.workload.name, cell.set): cell for cell in cells()}
    for entry in document["messages"]:
        measurements.wire_bytes[cell_of[entry["workload"], entry["set"]]] = entry["bytes"]
    for entry in document["results"]:
        key = (entry["workload"], entry["set"], entry["operation"], entry["side"])
        measurements.restore(key, entry["rounds"])
    measured = [cell for cell in cells() if cell in measurements.wire_bytes]
    return document["machine"], measurements, measured
