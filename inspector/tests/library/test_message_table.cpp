#include "inspector/library/message_table.h"

#include <gtest/gtest.h>

namespace
{

using namespace mava_tum_inspect;

TEST(message_table, finds_nothing_under_a_wrong_name_or_number)
{
    EXPECT_EQ(find_message("session_contex"), nullptr);
    EXPECT_EQ(find_message(""), nullptr);
    EXPECT_EQ(find_field(*find_message("subscriber_v4"), 0u), nullptr);
    EXPECT_EQ(find_field(*find_message("subscriber_v4"), 3u), nullptr);
    EXPECT_EQ(find_field(*find_message("subscriber_v4"), "field_2"), nullptr);
}

TEST(message_table, knows_the_wire_type_and_the_name_of_every_kind)
{
    const field_description &varint = *find_field(*find_message("stats"), "field_18");
    EXPECT_EQ(wire_type_number(varint.kind), 0u);
    EXPECT_STREQ(kind_name(varint.kind), "varint");
    const field_description &address = *find_field(*find_message("subscriber_v4"), "ipv4_address");
    EXPECT_EQ(wire_type_number(address.kind), 5u);
    const field_description &routes = *find_field(*find_message("sub_route"), 5u);
    EXPECT_EQ(wire_type_number(routes.kind), 2u);
    EXPECT_STREQ(kind_name(routes.kind), "array of records");
}

} // namespace
