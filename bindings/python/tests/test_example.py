"""Does the example print the expected output?"""

from __future__ import annotations

import re
import subprocess
import sys
from pathlib import Path


def test_the_example_prints_what_is_expected(source_folder: Path) -> None:
    run = subprocess.run([sys.executable, source_folder / "examples/python_round_trip.py"], capture_output=True,
                         text=True, check=True)
    expected = (source_folder / "bindings/python/tests/expected_round_trip.txt").read_text(encoding="utf-8")
    # The place of a fault is known if the inspector's library is installed.
    assert re.sub(r" \(at byte [^)]*\)", "", run.stdout) == expected
    assert not run.stderr
