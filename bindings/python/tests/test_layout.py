"""Do the records have the layout of the C compiler?"""

from __future__ import annotations

import os
import subprocess

import pytest

from mava_tum.library import ffi
from mava_tum.schema import APPLICATION_RECORDS, MESSAGES

# A program of the build has its own sanitizer, not the one that this interpreter has preloaded.
LAYOUT = subprocess.run(["env", "-u", "LD_PRELOAD", os.environ["MAVA_TUM_LAYOUT"]], capture_output=True, text=True,
                        check=True).stdout.split("\n")
ROWS = {name: (int(first), int(second)) for name, first, second in (line.split() for line in LAYOUT if line)}
SIZES = {name: size for name, (size, _) in ROWS.items() if "." not in name}
MEMBERS = {tuple(name.split(".")): place for name, place in ROWS.items() if "." in name}


@pytest.mark.parametrize("record", SIZES)
def test_a_record_has_the_size_that_the_compiler_gives_it(record: str) -> None:
    assert ffi.sizeof(record) == SIZES[record]


@pytest.mark.parametrize("record", SIZES)
def test_every_member_lies_where_the_compiler_puts_it(record: str) -> None:
    declared = dict(ffi.typeof(record).fields)
    assert {name: (field.offset, ffi.sizeof(field.type)) for name, field in declared.items()} == {
        name: place for (owner, name), place in MEMBERS.items() if owner == record}


def test_every_record_of_the_tables_was_compared() -> None:
    used = {message.c_type for message in MESSAGES.values()} | set(APPLICATION_RECORDS)
    assert used <= set(SIZES)
    assert len(MESSAGES) == 40
    assert sum(owner in used for owner, _ in MEMBERS) > 500
