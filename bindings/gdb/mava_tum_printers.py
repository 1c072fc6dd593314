"""For gdb: `source <this file>` installs the printers for the records of libmava_tum in any program, also with the
static library. For the installed shared library, gdb loads them itself."""

import sys
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent))

# A session as root would leave compiled files beside the installed ones.
wrote_none, sys.dont_write_bytecode = sys.dont_write_bytecode, True
import mava_tum_gdb  # noqa: E402  (found by the lines above)

sys.dont_write_bytecode = wrote_none

mava_tum_gdb.register(None)
