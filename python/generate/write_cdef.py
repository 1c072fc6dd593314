"""Writes the module `mava_tum._declarations`: the declarations of the public headers in the form that cffi loads
without a compiler and without parsing C again.

    write_cdef.py <include folder> <file to write>"""

from __future__ import annotations

import sys
from pathlib import Path

import cffi

from read_headers import read_headers


def main(arguments: list[str]) -> int:
    include_folder, output = (Path(each) for each in arguments)
    builder = cffi.FFI()
    builder.cdef(read_headers(include_folder).declarations)
    builder.set_source("mava_tum._declarations", None)
    builder.emit_python_code(str(output))
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
