"""Writes the messages, adapters and application records of the public headers as tables for programs in C++
(catalogue_rows.h) and in Python (header_tables.json).

    write_catalogue.py <include folder> <output folder>"""

from __future__ import annotations

import json
import sys
from pathlib import Path

from cpp_tables import cpp_tables
from header_reader import HeaderError
from json_tables import json_tables
from library_tables import read_library


def main(arguments: list[str]) -> int:
    include_folder, output_folder = (Path(each) for each in arguments)
    try:
        library = read_library(include_folder)
        rows, tables = cpp_tables(library), json_tables(library)
    except HeaderError as error:
        print(error, file=sys.stderr)
        return 1
    (output_folder / "catalogue_rows.h").write_text(rows, encoding="utf-8")
    (output_folder / "header_tables.json").write_text(json.dumps(tables, indent=1) + "\n", encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
