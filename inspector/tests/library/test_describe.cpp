#include "mava_tum.h"
#include "mava_tum_inspect.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace
{

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

} // namespace
