// The sentence and the data of each kind of finding.
#include "inspect_calls.h"
#include "mava_tum.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

using namespace mava_tum_test;

struct found_once {
    const char *adapter;
    byte_vector input;
    int32_t kind;
    const char *path;
    uint64_t offset;
    uint64_t found;
    uint64_t allowed;
    const char *text;
};

void PrintTo(const found_once &value, std::ostream *stream)
{
    *stream << value.text;
}

class every_finding : public testing::TestWithParam<found_once>
{
};

TEST_P(every_finding, is_told_with_its_path_its_byte_and_its_numbers)
{
    const found_once &expected = GetParam();
    const checked all = check(expected.adapter, expected.input);
    ASSERT_EQ(all.findings.size(), 1u) << all.texts();
    const finding &told = all.findings[0];
    EXPECT_EQ(told.text, expected.text);
    EXPECT_EQ(told.kind, expected.kind);
    EXPECT_EQ(told.path, expected.path);
    EXPECT_EQ(told.offset, expected.offset);
    EXPECT_EQ(told.found, expected.found);
    EXPECT_EQ(told.allowed, expected.allowed);
}

byte_vector empty_qos(uint32_t elements)
{
    wire_builder wire;
    for (uint32_t i = 0; i < elements; ++i)
        wire.raw("5A 00");
    return wire;
}

INSTANTIATE_TEST_SUITE_P(inspect_check, every_finding,
    testing::Values(
        found_once{"session_context", bytes_of("08 07 10 08 1D"), MAVA_TUM_INSPECT_FAULT, "field_3", 4, 0, 0,
            "`field_3` is fixed32 instead of varint at byte 4: result -3; the fields after it do not arrive (L15)"},
        found_once{"session_context", empty_qos(9), MAVA_TUM_INSPECT_LIST_CUT, "qos", 0, 9, 8,
            "`qos` has 9 elements at byte 0, of which 8 arrive in `qos` (L17)"},
        found_once{"session_context", empty_qos(257), MAVA_TUM_INSPECT_LIST_CUT, "qos", 0, 257, 1,
            "`qos` has 257 elements at byte 0, of which 1 arrives in `qos`: its count is taken modulo 256 (L17)"},
        found_once{"session_context", wire_builder().length_delimited(10, wire_builder().text(5, std::string(70, 'x'))),
            MAVA_TUM_INSPECT_TEXT_CUT, "session_data.field_5", 2, 70, 64,
            "`session_data.field_5` has 70 characters at byte 2, of which 64 arrive in `session_name` (L21)"},
        found_once{"sub_route", wire_builder().length_delimited(4, wire_builder().text(2, std::string(35, 'x'))),
            MAVA_TUM_INSPECT_TEXT_CUT, "ipv4_routes[0].field_2", 2, 35, 32,
            "`ipv4_routes[0].field_2` has 35 characters at byte 2, of which 32 arrive in `field_2` (L22)"},
        found_once{"session_context", bytes_of("52 07 2A 05 61 62 00 63 64"), MAVA_TUM_INSPECT_TEXT_ENDS,
            "session_data.field_5", 2, 5, 2,
            "`session_data.field_5` has a NUL at byte 6: 2 of 5 characters arrive in `session_name` (L21)"},
        found_once{"session_context", wire_builder().length_delimited(9, wire_builder().text(3, std::string(17, 'x'))),
            MAVA_TUM_INSPECT_BYTES_CUT, "subscriber_v6.field_3", 2, 17, 16,
            "`subscriber_v6.field_3` has 17 bytes at byte 2, of which 16 arrive in `ipv6_part_3` (L19)"},
        found_once{"session_context", bytes_of("4A 05 1A 03 AA BB CC"), MAVA_TUM_INSPECT_BYTES_PADDED,
            "subscriber_v6.field_3", 2, 3, 16,
            "`subscriber_v6.field_3` has 3 bytes at byte 2: in `ipv6_part_3`, of 16 bytes, zeros follow them (L19)"},
        found_once{"session_delete", bytes_of("18 F0 A2 04"), MAVA_TUM_INSPECT_NUMBER_CUT, "field_3", 0, 70000, 16,
            "`field_3` is 70000 at byte 0: `field_3` has 16 bits and keeps 4464 (L20)"},
        found_once{"session_context", bytes_of("32 02 AA BB"), MAVA_TUM_INSPECT_NO_MEMBER, "field_6", 0, 0, 0,
            "`field_6` at byte 0 does not arrive: the record has no member for it"},
        found_once{"session_context", bytes_of("4A 04 28 05 38 00"), MAVA_TUM_INSPECT_PART_MISSING,
            "subscriber_v6.field_5", 0, 0, 0,
            "`subscriber_v6.field_5` does not arrive in `ipv6_value_5`: it goes with `field_3`, which is absent (L24)"},
        found_once{"session_delete", bytes_of("08 05 08 06"), MAVA_TUM_INSPECT_REPLACED, "field_1", 2, 0, 0,
            "`field_1` occurs again at byte 2: what it held before is lost"},
        found_once{"session_context", bytes_of("42 02 08 01 42 00"), MAVA_TUM_INSPECT_REPLACED, "subscriber_v4", 4, 0,
            0, "`subscriber_v4` occurs again at byte 4: what it held before is lost (L11)"},
        found_once{"session_delete", bytes_of("98 06 00"), MAVA_TUM_INSPECT_UNKNOWN_FIELD, "#99", 0, 0, 0,
            "`#99` at byte 0 does not arrive: session_delete does not know it"}));

TEST(inspect_check, says_nothing_about_elements_beyond_the_slots)
{
    wire_builder wire;
    for (int i = 0; i < 3; ++i)
        wire.length_delimited(2, wire_builder().text(4, std::string(80, 'x')).varint(99, 1));
    const checked all = check("rec_sess_replay_resp", wire);
    EXPECT_EQ(all.findings.size(), 3u) << all.texts(); // the list, and two in the one element that arrives
}

TEST(inspect_check, tells_the_size_of_the_record_and_the_verdict)
{
    const byte_vector input = bytes_of("52 05 2A 03 61 62 63 5A 00 5A 03 1A 01 78");
    const checked all = check("session_context", input);
    EXPECT_EQ(all.result.record_bytes, 8848u);
    EXPECT_STREQ(all.result.verdict.text, "14 bytes decode: result 0");
}

int32_t stop_at_third(const mava_tum_inspect_finding *, void *context)
{
    return ++*static_cast<uint64_t *>(context) == 3;
}

TEST(inspect_check, ends_when_the_callback_stops)
{
    const byte_vector zeros(16 << 20); // 8,388,608 unknown fields
    mava_tum_inspect_check_result result;
    uint64_t seen = 0;
    EXPECT_EQ(mava_tum_inspect_check(
                  "session_context", zeros.data(), zeros.size(), UINT64_MAX, stop_at_third, &seen, &result),
        MAVA_TUM_INSPECT_STOPPED);
    EXPECT_EQ(seen, 3u);
    EXPECT_EQ(result.finding_count, 3u);
    EXPECT_STREQ(result.verdict.text, "");
}

TEST(inspect_check, reports_findings_up_to_the_limit_and_counts_all)
{
    const byte_vector zeros(64);
    for (const uint64_t limit : {0, 1, 2, 32, 33}) {
        mava_tum_inspect_check_result result;
        uint64_t seen = 100; // stop_at_third never stops
        EXPECT_EQ(
            mava_tum_inspect_check("session_context", zeros.data(), zeros.size(), limit, stop_at_third, &seen, &result),
            MAVA_TUM_OK);
        EXPECT_EQ(seen, 100 + (limit < 32 ? limit : 32));
        EXPECT_EQ(result.finding_count, 32u);
        EXPECT_STREQ(result.verdict.text, "64 bytes decode: result 0");
    }
}

TEST(inspect_check, works_without_a_callback_and_knows_its_adapters)
{
    mava_tum_inspect_check_result result;
    const byte_vector input = bytes_of("98 06 00");
    ASSERT_EQ(mava_tum_inspect_check("rec_sess_resp", input.data(), input.size(), 0, nullptr, nullptr, &result), 0);
    EXPECT_EQ(result.finding_count, 1u);
    EXPECT_EQ(mava_tum_inspect_check("stats", nullptr, 0, 0, nullptr, nullptr, &result), MAVA_TUM_INSPECT_NO_SUCH_NAME);
    EXPECT_EQ(
        mava_tum_inspect_check("rec_resp", nullptr, 0, 0, nullptr, nullptr, &result), MAVA_TUM_INSPECT_NO_SUCH_NAME);
}

TEST(inspect_memory, counts_bytes_fields_only_when_they_are_copied)
{
    const byte_vector input = bytes_of("12 03 AA BB CC 1A 00");
    uint64_t blocks = 0, bytes = 0;
    ASSERT_EQ(mava_tum_inspect_memory("subscriber_v6", input.data(), input.size(), 0, &blocks, &bytes), MAVA_TUM_OK);
    EXPECT_EQ(blocks, 2u);
    EXPECT_EQ(bytes, 3u);
    mava_tum_inspect_memory("subscriber_v6", input.data(), input.size(), MAVA_TUM_ALIAS, &blocks, &bytes);
    EXPECT_EQ(blocks, 0u);
    EXPECT_EQ(mava_tum_inspect_memory("v6", nullptr, 0, 0, &blocks, &bytes), MAVA_TUM_INSPECT_NO_SUCH_NAME);
}

} // namespace
