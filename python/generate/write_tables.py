"""Writes what the public headers say as JSON, for the Python module and for the printers of gdb.

    write_tables.py <include folder> <file to write>"""

from __future__ import annotations

import json
import sys
from pathlib import Path
from typing import Any

from application_tables import adapter_tables, application_tables
from codec_tables import codec_tables, constant_table, result_table
from read_headers import HeaderError, Headers, read_headers


def all_tables(headers: Headers) -> dict[str, Any]:
    return {
        "messages": codec_tables(headers),
        "application_records": application_tables(headers),
        "adapters": adapter_tables(headers),
        "results": result_table(headers),
        "constants": constant_table(headers),
    }


def main(arguments: list[str]) -> int:
    include_folder, output = (Path(each) for each in arguments)
    try:
        tables = all_tables(read_headers(include_folder))
    except HeaderError as error:
        print(error, file=sys.stderr)
        return 1
    output.write_text(json.dumps(tables, indent=1) + "\n", encoding="utf-8")
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
