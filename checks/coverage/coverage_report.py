"""Reads the output of `llvm-cov show -show-branches=count -show-mcdc`, by place in the source.

A template counts once: its instantiations are copies of one place, and so are the copies that a fold expression makes
of its pattern. A line or branch is covered if it is covered in one copy. A condition is covered if one copy has a pair
of executions in which it alone decided; a pair from two copies does not count. A constant in every copy is no branch
and no condition.

The report must show each instantiation, too: if they differ in shape, the merged view shows a line that one of them
discards as never executed."""

import re
from dataclasses import dataclass, field

LINE = re.compile(r"^ *(?:\| +)?(\d+)\| *([0-9.]+[kMGTPEZY]?)\|")  # also inside the view of one instantiation
BRANCH = re.compile(r"Branch \((\d+):(\d+)\): \[(.*)\]$")
COUNTS = re.compile(r"True: ([^,]+), False: (.+)$")
DECISION = re.compile(r"---> MC/DC Decision Region")
CONDITION = re.compile(r"Condition C(\d+) --> \((\d+):(\d+)\)")
PAIR = re.compile(r"C(\d+)-Pair: (.*)$")
FOLDED = ("Folded - Ignored", "constant folded")


@dataclass
class FileCoverage:
    """Places are (line, column); lines are numbers. The values say whether it is covered."""

    lines: dict = field(default_factory=dict)
    branches: dict = field(default_factory=dict)  # (line, column, "true" or "false")
    conditions: dict = field(default_factory=dict)


def add(places, place, covered):
    places[place] = places.get(place, False) or covered


class Reader:
    def __init__(self):
        self.files = {}
        self.current = None
        self.places_of_conditions = {}

    def read(self, text):
        for line in text:
            self.read_line(line.rstrip("\n"))
        return self.files

    def read_line(self, line):
        if line.startswith("/") and line.endswith(":"):
            self.current = self.files.setdefault(line[:-1], FileCoverage())
        elif match := LINE.match(line):
            add(self.current.lines, int(match[1]), match[2] != "0")
        elif match := BRANCH.search(line):
            self.read_branch(match)
        elif DECISION.search(line):
            self.places_of_conditions = {}
        elif match := CONDITION.search(line):
            self.places_of_conditions[match[1]] = (int(match[2]), int(match[3]))
        elif match := PAIR.search(line):
            if match[2] not in FOLDED:
                add(self.current.conditions, self.places_of_conditions[match[1]], match[2].startswith("covered"))

    def read_branch(self, match):
        if match[3] in FOLDED:
            return
        counts = COUNTS.match(match[3])
        for way, count in (("true", counts[1]), ("false", counts[2])):
            add(self.current.branches, (int(match[1]), int(match[2]), way), count != "0")
