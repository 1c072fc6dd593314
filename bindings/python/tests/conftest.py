"""Shared by all tests of the module: paths and the number of examples."""

from __future__ import annotations

import os
from pathlib import Path
from typing import Any

import pytest
import strategies
from hypothesis import HealthCheck, settings

SOURCE = Path(os.environ["MAVA_TUM_SOURCE"])

# The ordinary run tries the same few examples each time, scripts/check/python many different ones.
EXAMPLES = os.environ.get("MAVA_TUM_EXAMPLES")
settings.register_profile("ordinary", max_examples=15, derandomize=True, deadline=None, database=None,
                          suppress_health_check=[HealthCheck.too_slow, HealthCheck.data_too_large])
settings.register_profile("long", settings.get_profile("ordinary"), max_examples=int(EXAMPLES or 1), derandomize=False)
settings.load_profile("long" if EXAMPLES else "ordinary")


@pytest.fixture(scope="session")
def source_folder() -> Path:
    return SOURCE


def pytest_terminal_summary(terminalreporter: Any) -> None:
    """scripts/check/python adds these up."""
    tried = strategies.examples_tried
    if tried:
        terminalreporter.write_line(f"tried {tried} examples")
