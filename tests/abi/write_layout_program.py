"""Writes a C program that prints the layout of the public headers' records: for each record a line with name, size and
alignment, then one for each member with name, offset and size.

    write_layout_program.py <include folder> <file to write>"""

from __future__ import annotations

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "catalogue"))

from header_reader import read_headers  # noqa: E402  (found by the line above)

PROGRAM = """#include "mava_tum.h"

#include <stddef.h>
#include <stdio.h>

#define RECORD(record) printf("%s %zu %zu\\n", #record, sizeof(record), _Alignof(record))
#define MEMBER(record, member) \\
    printf("%s.%s %zu %zu\\n", #record, #member, offsetof(record, member), sizeof(((record *)0)->member))

int main(void)
{{
{lines}
    return 0;
}}
"""

include_folder, output = (Path(each) for each in sys.argv[1:])
lines = []
for record in (each for header in read_headers(include_folder) for each in header.records):
    lines.append(f"    RECORD({record.name});")
    lines += [f"    MEMBER({record.name}, {member.name});" for member in record.members]
output.write_text(PROGRAM.format(lines="\n".join(lines)), encoding="utf-8")
