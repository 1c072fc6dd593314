"""Do the tables of the module agree with the library?"""

from __future__ import annotations

from pathlib import Path

from mava_tum.library import library
from mava_tum.schema import ADAPTERS, APPLICATION_RECORDS, CONSTANTS, MESSAGES, RESULTS


def test_every_exported_function_can_be_called(source_folder: Path) -> None:
    exported = (source_folder / "src/exports.txt").read_text(encoding="utf-8").split()
    assert all(callable(getattr(library, name)) for name in exported)


def test_the_tables_hold_all_messages_adapters_and_results() -> None:
    assert len(MESSAGES) == 40
    assert len(ADAPTERS) == 19
    assert sorted(RESULTS) == [-4, -3, -2, -1, 0]
    assert all(result.text for code, result in RESULTS.items() if code)
    assert {each for adapter in ADAPTERS.values() for each in adapter} <= set(APPLICATION_RECORDS)


def test_addresses_are_known_as_addresses() -> None:
    codec = {(name, field.name) for name, message in MESSAGES.items() for field in message.fields.values()
             if field.address == "ipv4"}
    assert codec == {("subscriber_v4", "ipv4_address"), ("l2tp_data", "field_2"), ("l2tp_data", "field_3"),
                     ("subscriber_li", "field_7"), ("subscriber_route_ipv4", "field_3"),
                     ("subscriber_route_ipv4", "field_5")}
    assert all(field.kind == {"ipv4": "fixed32", "ipv6": "bytes"}[field.address] for message in MESSAGES.values()
               for field in message.fields.values() if field.address)
    application = {member.name for members in APPLICATION_RECORDS.values() for member in members.values()
                   if member.address == "ipv4"}
    assert application == {"ipv4_address", "l2tp_ipv4_2", "l2tp_ipv4_3", "intercept_ipv4_address", "field_3", "field_5"}


def test_constants_have_the_values_that_the_compiler_gives_them() -> None:
    assert CONSTANTS["TUM_NAL_FEATURE_IPV6_PART_6"] == 1 << 26
    assert len(CONSTANTS) > 30
    for name, value in CONSTANTS.items():
        assert getattr(library, name) == value
