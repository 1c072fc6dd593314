"""Do the tables say what the headers say, and is a header that says something else refused?"""

from __future__ import annotations

from pathlib import Path

import pytest
from application_tables import adapter_tables, application_tables
from codec_tables import codec_tables, result_table
from read_headers import HeaderError, Headers, read_header, read_headers

from mava_tum.library import library
from mava_tum.schema import ADAPTERS, APPLICATION_RECORDS, CONSTANTS, MESSAGES, RESULTS

FUNCTIONS = """
MAVA_TUM_API int32_t mava_tum_mark_decode_ext(mava_tum_mark *record, const uint8_t *data, uint64_t length);
MAVA_TUM_API uint64_t mava_tum_mark_encode_ext(const mava_tum_mark *record, uint8_t *buffer, uint64_t length);
MAVA_TUM_API int32_t mava_tum_mark_duplicate(mava_tum_mark *destination, const mava_tum_mark *source);
MAVA_TUM_API void mava_tum_mark_free_ext(mava_tum_mark *record);
"""


def message_of(*members: str, functions: str = FUNCTIONS) -> Headers:
    headers = Headers()
    read_header("typedef struct mava_tum_mark {\n" + "\n".join(members) + "\n} mava_tum_mark;\n" + functions, headers)
    return headers


def record_of(*members: str) -> Headers:
    headers = Headers()
    read_header("typedef struct tum_nal_data_mark {\n" + "\n".join(members) + "\n} tum_nal_data_mark;\n", headers)
    return headers


MASK = "uint8_t presence_mask; /* bits 1-7 spare */"


def test_a_message_is_read_from_its_comments() -> None:
    headers = message_of("uint32_t field_1; /* 1: varint, bit 0 */",
                         "uint32_t field_2; /* 2: fixed32, bit 1; IPv4 address, network byte order */",
                         "char **texts;     /* 3: array of texts, bit 2 */",
                         "uint32_t text_count; /* texts in the array */", MASK)
    assert codec_tables(headers)["mark"]["fields"] == [
        {"name": "field_1", "number": 1, "kind": "varint", "bit": 0, "bits": 32},
        {"name": "field_2", "number": 2, "kind": "fixed32", "bit": 1, "bits": 32, "address": "ipv4"},
        {"name": "texts", "number": 3, "kind": "text_array", "bit": 2, "count": "text_count"}]
    assert codec_tables(headers)["mark"]["functions"]["free_ext"] == ["record"]


@pytest.mark.parametrize(("members", "complaint"), [
    (["uint32_t field_1; /* 1: varint, bit 1 */", MASK], "number 1 and bit 1, in the place of field 1"),
    (["uint32_t field_1; /* 2: varint, bit 1 */", MASK], "number 2 and bit 1, in the place of field 1"),
    (["uint32_t field_1; /* 1: zigzag, bit 0 */", MASK], "is not 'number: kind, bit n'"),
    (["uint32_t field_1;", MASK], "is not 'number: kind, bit n'"),
    (["uint64_t field_1; /* 1: varint, bit 0 */", MASK], "not declared as its kind says"),
    (["char *field_1; /* 1: bytes, bit 0 */", MASK], "not declared as its kind says"),
    (["uint32_t field_1[2]; /* 1: varint, bit 0 */", MASK], "not declared as its kind says"),
    (["char **field_1; /* 1: array of texts, bit 0 */", MASK], "not followed by its count"),
    (["char **field_1; /* 1: array of texts, bit 0 */", "uint32_t other_count;", MASK], "not followed by its count"),
    ([f"uint32_t field_{n}; /* {n}: varint, bit {n - 1} */" for n in range(1, 10)] + [MASK], "do not fit the 8 bits"),
    (["int (*field_1)(void); /* 1: varint, bit 0 */", MASK], "not understood"),
])
def test_a_message_that_breaks_the_pattern_is_refused(members: list[str], complaint: str) -> None:
    with pytest.raises(HeaderError, match=complaint.replace("(", r"\(")):
        codec_tables(message_of(*members))


def test_a_message_without_one_of_its_functions_is_refused() -> None:
    with pytest.raises(HeaderError, match="mava_tum_mark_free_ext"):
        codec_tables(message_of("uint32_t field_1; /* 1: varint, bit 0 */", MASK,
                                functions=FUNCTIONS.replace("_free_ext", "_release")))


@pytest.mark.parametrize(("members", "complaint"), [
    (["char *text;"], "is a pointer"),
    (["float number;"], "no kind stands for"),
    (["char texts[2][65];", "uint8_t other_count;"], "nothing counts the elements of texts"),
])
def test_a_record_that_breaks_the_pattern_is_refused(members: list[str], complaint: str) -> None:
    with pytest.raises(HeaderError, match=complaint):
        application_tables(record_of(*members))


def test_a_comment_with_a_semicolon_is_no_declaration() -> None:
    headers = record_of("/* Two; of them. */", "uint32_t value_1; /* sent; received */", "uint32_t value_2;")
    assert [member.name for member in headers.records["tum_nal_data_mark"]] == ["value_1", "value_2"]


def test_an_adapter_with_one_direction_is_refused() -> None:
    headers = Headers()
    read_header("MAVA_TUM_API uint64_t tum_nal_data_gpb_encode_tum_mark(const tum_nal_data_mark *record);", headers)
    with pytest.raises(HeaderError, match="one direction only: mark"):
        adapter_tables(headers)


def test_the_headers_declare_every_exported_function(source_folder: Path) -> None:
    exported = (source_folder / "src/exports.txt").read_text(encoding="utf-8").split()
    declared = read_headers(source_folder / "include").functions
    assert sorted(declared) == sorted(exported)
    assert all(callable(getattr(library, name)) for name in exported)


def test_the_tables_hold_all_messages_adapters_and_results() -> None:
    assert len(MESSAGES) == 40
    assert len(ADAPTERS) == 19
    assert sorted(RESULTS) == [-4, -3, -2, -1, 0]
    assert all(result.text for code, result in RESULTS.items() if code)
    assert {each for adapter in ADAPTERS.values() for each in adapter} <= set(APPLICATION_RECORDS)


def test_result_texts_are_those_before_the_codes(source_folder: Path) -> None:
    results = result_table(read_headers(source_folder / "include"))
    assert results["MAVA_TUM_WRONG_WIRE_TYPE"]["text"].startswith("A known field arrives with another wire type")


def test_addresses_are_known_as_addresses() -> None:
    codec = {(name, field.name) for name, message in MESSAGES.items() for field in message.fields.values()
             if field.address}
    assert codec == {("subscriber_v4", "ipv4_address"), ("l2tp_data", "field_2"), ("l2tp_data", "field_3"),
                     ("subscriber_li", "field_7"), ("subscriber_route_ipv4", "field_3"),
                     ("subscriber_route_ipv4", "field_5")}
    application = {member.name for members in APPLICATION_RECORDS.values() for member in members.values()
                   if member.address == "ipv4"}
    assert application == {"ipv4_address", "l2tp_ipv4_2", "l2tp_ipv4_3", "intercept_ipv4_address", "field_3", "field_5"}


def test_constants_have_the_values_that_the_compiler_gives_them() -> None:
    assert CONSTANTS["TUM_NAL_FEATURE_IPV6_PART_6"] == 1 << 26
    assert len(CONSTANTS) > 30
    for name, value in CONSTANTS.items():
        assert getattr(library, name) == value
