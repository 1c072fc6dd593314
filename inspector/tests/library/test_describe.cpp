// Descriptions, and the pointers that may be null.
#include "inspect_calls.h"
#include "mava_tum.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace
{

using namespace mava_tum_test;

TEST(inspect_describe, tells_what_a_message_is)
{
    mava_tum_inspect_message message;
    ASSERT_EQ(mava_tum_inspect_describe("session_context", &message), MAVA_TUM_OK);
    EXPECT_STREQ(message.name, "session_context");
    EXPECT_EQ(message.field_count, 24u);
    EXPECT_EQ(message.record_bytes, sizeof(mava_tum_session_context));
    EXPECT_EQ(message.mask_offset, offsetof(mava_tum_session_context, presence_mask));
    EXPECT_EQ(message.mask_bytes, 4u);
    EXPECT_EQ(message.has_alias_bit, 1u);
    ASSERT_EQ(mava_tum_inspect_describe("stats", &message), MAVA_TUM_OK);
    EXPECT_EQ(message.has_alias_bit, 0u);
}

TEST(inspect_describe, tells_what_a_field_is)
{
    mava_tum_inspect_field field;
    ASSERT_EQ(mava_tum_inspect_describe_field("session_context", 23, &field), MAVA_TUM_OK);
    EXPECT_STREQ(field.name, "route_ipv4");
    EXPECT_EQ(field.kind, MAVA_TUM_INSPECT_RECORD_ARRAY);
    EXPECT_EQ(field.member_offset, offsetof(mava_tum_session_context, route_ipv4));
    EXPECT_EQ(field.count_offset, offsetof(mava_tum_session_context, route_ipv4_count));
    EXPECT_STREQ(field.nested, "subscriber_route_ipv4");
    ASSERT_EQ(mava_tum_inspect_describe_field("subscriber_route_ipv4", 3, &field), MAVA_TUM_OK);
    EXPECT_EQ(field.address, MAVA_TUM_INSPECT_IPV4);
    EXPECT_EQ(field.value_bits, 32u);
    EXPECT_EQ(field.nested, nullptr);
}

TEST(inspect_describe, enumerates_messages_and_adapters)
{
    ASSERT_EQ(mava_tum_inspect_message_count(), 40u);
    EXPECT_STREQ(mava_tum_inspect_message_name(0), "subscriber_v4");
    EXPECT_STREQ(mava_tum_inspect_message_name(39), "srg_group_rec_replay_resp");
    EXPECT_EQ(mava_tum_inspect_message_name(40), nullptr);
    ASSERT_EQ(mava_tum_inspect_adapter_count(), 19u);
    EXPECT_STREQ(mava_tum_inspect_adapter_name(18), "srg_group_rec_replay_resp");
    EXPECT_EQ(mava_tum_inspect_adapter_name(19), nullptr);
}

TEST(inspect_describe, knows_no_other_names_and_numbers)
{
    mava_tum_inspect_message message;
    mava_tum_inspect_field field;
    EXPECT_EQ(mava_tum_inspect_describe("mava_tum_stats", &message), MAVA_TUM_INSPECT_NO_SUCH_NAME);
    EXPECT_EQ(mava_tum_inspect_describe_field("stats", 0, &field), MAVA_TUM_INSPECT_NO_SUCH_NAME);
    EXPECT_EQ(mava_tum_inspect_describe_field("stats", 19, &field), MAVA_TUM_INSPECT_NO_SUCH_NAME);
    EXPECT_EQ(mava_tum_inspect_describe_field("stat", 1, &field), MAVA_TUM_INSPECT_NO_SUCH_NAME);
}

// ---- arguments ----

const byte_vector input = bytes_of("08 07");

int32_t no_line(const mava_tum_inspect_line *, void *)
{
    return 0;
}

TEST(inspect_arguments, a_null_name_is_refused)
{
    mava_tum_inspect_message message;
    mava_tum_inspect_field field;
    mava_tum_inspect_verdict verdict;
    mava_tum_inspect_check_result result;
    uint64_t blocks = 0;
    uint64_t bytes = 0;
    const int32_t refused = MAVA_TUM_INSPECT_NULL_ARGUMENT;
    EXPECT_EQ(mava_tum_inspect_describe(nullptr, &message), refused);
    EXPECT_EQ(mava_tum_inspect_describe_field(nullptr, 1, &field), refused);
    EXPECT_EQ(mava_tum_inspect_judge(nullptr, input.data(), 2, &verdict), refused);
    EXPECT_EQ(mava_tum_inspect_explain(nullptr, input.data(), 2, no_line, nullptr, &verdict), refused);
    EXPECT_EQ(mava_tum_inspect_memory(nullptr, input.data(), 2, 0, &blocks, &bytes), refused);
    EXPECT_EQ(mava_tum_inspect_check(nullptr, input.data(), 2, 0, nullptr, nullptr, &result), refused);
    char line[80];
    EXPECT_EQ(mava_tum_inspect_print(nullptr, input.data(), 2, 0, nullptr, nullptr, line, sizeof line), refused);
    EXPECT_EQ(mava_tum_inspect_compare(nullptr, input.data(), 2, input.data(), 2, nullptr, nullptr, nullptr), refused);
    const char *name = nullptr;
    EXPECT_EQ(mava_tum_inspect_similar_messages(nullptr, &name, 1), 0u);
    EXPECT_EQ(mava_tum_inspect_similar_adapters(nullptr, &name, 1), 0u);
}

TEST(inspect_arguments, data_may_be_null_only_without_a_length)
{
    mava_tum_inspect_verdict verdict;
    mava_tum_inspect_check_result result;
    mava_tum_inspect_candidate candidate;
    uint64_t blocks = 0;
    uint64_t bytes = 0;
    for (const uint64_t length : {0, 1}) {
        const int32_t expected = length == 0 ? int32_t{MAVA_TUM_OK} : int32_t{MAVA_TUM_INSPECT_NULL_ARGUMENT};
        EXPECT_EQ(mava_tum_inspect_judge("vlan_info", nullptr, length, &verdict), expected);
        EXPECT_EQ(mava_tum_inspect_explain("vlan_info", nullptr, length, no_line, nullptr, nullptr), expected);
        EXPECT_EQ(mava_tum_inspect_memory("vlan_info", nullptr, length, 0, &blocks, &bytes), expected);
        EXPECT_EQ(mava_tum_inspect_check("sub_route", nullptr, length, 0, nullptr, nullptr, &result), expected);
        EXPECT_EQ(mava_tum_inspect_guess(nullptr, length, &candidate, 1), length == 0 ? 40u : 0u);
        char line[80];
        EXPECT_EQ(
            mava_tum_inspect_print("vlan_info", nullptr, length, 0, nullptr, nullptr, line, sizeof line), expected);
        EXPECT_EQ(mava_tum_inspect_compare("vlan_info", nullptr, length, nullptr, length, nullptr, nullptr, nullptr),
            expected);
    }
}

TEST(inspect_arguments, a_null_place_for_a_result_is_refused)
{
    uint64_t number = 0;
    const int32_t refused = MAVA_TUM_INSPECT_NULL_ARGUMENT;
    EXPECT_EQ(mava_tum_inspect_describe("vlan_info", nullptr), refused);
    EXPECT_EQ(mava_tum_inspect_describe_field("vlan_info", 1, nullptr), refused);
    EXPECT_EQ(mava_tum_inspect_judge("vlan_info", input.data(), 2, nullptr), refused);
    EXPECT_EQ(mava_tum_inspect_explain("vlan_info", input.data(), 2, nullptr, nullptr, nullptr), refused);
    EXPECT_EQ(mava_tum_inspect_memory("vlan_info", input.data(), 2, 0, nullptr, &number), refused);
    EXPECT_EQ(mava_tum_inspect_memory("vlan_info", input.data(), 2, 0, &number, nullptr), refused);
    EXPECT_EQ(mava_tum_inspect_check("sub_route", input.data(), 2, 0, nullptr, nullptr, nullptr), refused);
}

TEST(inspect_arguments, an_array_may_be_null_only_without_a_capacity)
{
    EXPECT_EQ(mava_tum_inspect_similar_messages("vlan_inf", nullptr, 1), 0u);
    EXPECT_EQ(mava_tum_inspect_similar_adapters("sub_rout", nullptr, 1), 0u);
    EXPECT_EQ(mava_tum_inspect_guess(input.data(), 2, nullptr, 1), 0u);
    EXPECT_EQ(mava_tum_inspect_print("vlan_info", input.data(), 2, 0, nullptr, nullptr, nullptr, 1),
        MAVA_TUM_INSPECT_NULL_ARGUMENT);
    EXPECT_EQ(
        mava_tum_inspect_print("vlan_info", input.data(), 2, 0, nullptr, nullptr, nullptr, 0), MAVA_TUM_INSPECT_CUT);
    EXPECT_GT(mava_tum_inspect_guess(input.data(), 2, nullptr, 0), 1u);
    mava_tum_inspect_line line{MAVA_TUM_INSPECT_LINE_TAG, 0, 0, 1, "", "a tag"};
    char text[80] = "";
    EXPECT_EQ(mava_tum_inspect_format_line(nullptr, input.data(), text, sizeof(text)), 0u);
    EXPECT_EQ(mava_tum_inspect_format_line(&line, nullptr, text, sizeof(text)), 0u);
    EXPECT_EQ(mava_tum_inspect_format_line(&line, input.data(), nullptr, 1), 0u);
    EXPECT_GT(mava_tum_inspect_format_line(&line, input.data(), nullptr, 0), 8u);
}

} // namespace
