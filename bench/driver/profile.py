#!/usr/bin/env python3
"""Shows where the instructions of an operation go: a table for each workload, a row for each function.

A row does not include callees. Functions of the bench are left out, as in instructions.py. The rows beyond nine tenths
of the sum are added up in one row.
"""

import re
import sys

from instructions import dumps_of

SHOWN_SHARE = 0.9


def short_name(function):
    """The name without result, parameters and namespace."""
    name = re.sub(r"\bmava_tum::", "", function)
    depth = 0
    for position, letter in enumerate(name):
        depth += {"<": 1, ">": -1}.get(letter, 0)
        if letter == "(" and depth == 0:
            name = name[:position]
            break
    # The result ends at the last space outside of brackets; the name follows.
    depth = 0
    for position in range(len(name) - 1, -1, -1):
        depth += {">": 1, "<": -1}.get(name[position], 0)
        if name[position] == " " and depth == 0:
            return name[position + 1:]
    return name


def rows_of(dump):
    """[(instructions, calls, name)], most expensive first."""
    rows = [
        (cost, dump.calls[function], short_name(function))
        for (owner, function), cost in dump.functions.items()
        if "/libmava_tum" in owner or "/libc.so" in owner
    ]
    return sorted(rows, reverse=True)


def table_of(rows):
    total = sum(row[0] for row in rows)
    lines = [f"{'share':>6} {'instructions':>13} {'calls':>6}  function"]
    shown = 0
    for cost, calls, name in rows:
        if shown >= SHOWN_SHARE * total:
            break
        lines.append(f"{cost / total:6.1%} {cost:13,} {calls or '':>6}  {name}")
        shown += cost
    lines.append(f"{1 - shown / total:6.1%} {total - shown:13,} {'':>6}  others")
    lines.append(f"{'':6} {total:13,} {'':>6}  in all")
    return "\n".join(lines)


def main():
    program, wanted = sys.argv[1], sys.argv[2:]
    dumps = dumps_of(program)
    known = ["/".join(key) for key in dumps]
    for name in wanted:
        if name not in known:
            sys.exit(f'bench/profile: there is no "{name}"; there are:\n  ' + "\n  ".join(known))
    tables = [f"{name}\n{table_of(rows_of(dumps[tuple(name.split('/'))]))}" for name in wanted]
    print("\n\n".join(tables))


if __name__ == "__main__":
    main()
