"""Writes the module `mava_tum._declarations`: the declarations of the public headers in a form that cffi loads without
a compiler and without parsing C.

    write_declarations.py <include folder> <file to write> [<further header>...]"""

from __future__ import annotations

import sys
from pathlib import Path

import cffi

sys.path.insert(0, str(Path(__file__).resolve().parents[2] / "catalogue"))

from header_reader import HeaderReader, read_headers, without_comments  # noqa: E402  (found by the line above)


def main(arguments: list[str]) -> int:
    include_folder, output, *others = (Path(each) for each in arguments)
    headers = [*read_headers(include_folder),
               *(HeaderReader().read(each.name, each.read_text(encoding="utf-8")) for each in others)]
    texts = [each.text for header in headers for each in header.declarations]
    builder = cffi.FFI()
    builder.cdef(without_comments("\n".join(texts)).replace("MAVA_TUM_API ", ""))
    builder.set_source("mava_tum._declarations", None)
    builder.emit_python_code(str(output))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
