// The presence mask: which bits an operation may change, at every depth.
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

template <class record_type>
class presence_of_every_message : public testing::Test
{
};

using every_message = testing::Types<mava_tum_subscriber_v4, mava_tum_subscriber_v6, mava_tum_ppp_data,
    mava_tum_l2tp_data, mava_tum_vlan_info, mava_tum_session_data, mava_tum_subscriber_qos, mava_tum_subscriber_acl,
    mava_tum_subscriber_httpr, mava_tum_subscriber_li, mava_tum_subscriber_urpf, mava_tum_subscriber_icmp,
    mava_tum_subscriber_mtu, mava_tum_subscriber_acct, mava_tum_subscriber_route_ipv4, mava_tum_subscriber_route_ipv6,
    mava_tum_session_context, mava_tum_sub_route>;

TYPED_TEST_SUITE(presence_of_every_message, every_message);

TYPED_TEST(presence_of_every_message, decode_of_an_empty_span_clears_own_bits_and_keeps_set_spare_bits)
{
    decoded<TypeParam> got("");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), 0u);
    EXPECT_EQ(spare_bits(got.record), all_spare_bits<TypeParam>());
}

TYPED_TEST(presence_of_every_message, decode_keeps_clear_spare_bits_clear)
{
    TypeParam record{};
    EXPECT_EQ(call_decode(record, nullptr, 0, nullptr, nullptr, 0), MAVA_TUM_OK);
    EXPECT_EQ(record.presence_mask, 0u);
}

TYPED_TEST(presence_of_every_message, encode_ignores_spare_bits)
{
    TypeParam record{};
    record.presence_mask = static_cast<decltype(record.presence_mask)>(all_spare_bits<TypeParam>());
    EXPECT_EQ(call_encode(record, nullptr, 0), 0u);
}

TYPED_TEST(presence_of_every_message, a_record_without_presence_encodes_to_nothing_and_writes_nothing)
{
    const TypeParam record{};
    EXPECT_EQ(hex_of(encode_trace(record, 3, 0)), "-- -- --");
}

TYPED_TEST(presence_of_every_message, duplicate_copies_own_bits_only)
{
    TypeParam source{};
    source.presence_mask = static_cast<decltype(source.presence_mask)>(all_spare_bits<TypeParam>());
    TypeParam destination{};
    EXPECT_EQ(call_duplicate(destination, source, nullptr, nullptr), MAVA_TUM_OK);
    EXPECT_EQ(destination.presence_mask, 0u) << "reserved bits of the source";

    source.presence_mask = static_cast<decltype(source.presence_mask)>(all_own_bits<TypeParam>);
    duplicated<TypeParam> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.present(), all_own_bits<TypeParam>);
    EXPECT_EQ(spare_bits(copy.record), all_spare_bits<TypeParam>());
}

TYPED_TEST(presence_of_every_message, free_leaves_the_mask_alone)
{
    TypeParam record{};
    record.presence_mask = static_cast<decltype(record.presence_mask)>(~0u);
    const auto before = record.presence_mask;
    recording_allocator allocator;
    free_record(record, allocator);
    EXPECT_EQ(record.presence_mask, before);
    EXPECT_TRUE(allocator.released().empty());
}

// The masks of every record inside a session context, with own and reserved bits separate.
struct nested_masks {
    const char *name;
    uint32_t own;
    uint32_t spare;
    uint32_t all_spare;
};

template <class record_type>
nested_masks masks_of(const char *name, const record_type &record)
{
    return {name, own_bits(record), spare_bits(record), all_spare_bits<record_type>()};
}

std::vector<nested_masks> every_mask(const mava_tum_session_context &context)
{
    return {masks_of("session_context", context), masks_of("subscriber_v4", context.subscriber_v4),
        masks_of("subscriber_v6", context.subscriber_v6), masks_of("session_data", context.session_data),
        masks_of("ppp", context.session_data.ppp), masks_of("l2tp", context.session_data.l2tp),
        masks_of("vlan", context.session_data.vlan), masks_of("acl", context.acl), masks_of("httpr", context.httpr),
        masks_of("li", context.li), masks_of("urpf_1", context.urpf_1), masks_of("urpf_2", context.urpf_2),
        masks_of("icmp_1", context.icmp_1), masks_of("icmp_2", context.icmp_2), masks_of("mtu_1", context.mtu_1),
        masks_of("mtu_2", context.mtu_2), masks_of("mtu_3", context.mtu_3), masks_of("acct", context.acct)};
}

TEST(presence, decode_keeps_the_spare_bits_of_inline_records_at_every_depth)
{
    decoded<mava_tum_session_context> got("");
    for (const nested_masks &masks : every_mask(got.record)) {
        EXPECT_EQ(masks.own, 0u) << masks.name;
        EXPECT_EQ(masks.spare, masks.all_spare) << masks.name;
    }

    mava_tum_session_context zeroed{};
    EXPECT_EQ(call_decode(zeroed, nullptr, 0, nullptr, nullptr, 0), MAVA_TUM_OK);
    for (const nested_masks &masks : every_mask(zeroed))
        EXPECT_EQ(masks.own | masks.spare, 0u) << masks.name;
}

TEST(presence, decode_of_a_present_inline_record_keeps_its_spare_bits)
{
    // Each inline record arrives, also the three records of the session data.
    decoded<mava_tum_session_context> got(
        "42 00 4A 00 52 06 1A 00 22 00 52 00 62 00 6A 00 72 00 7A 00 82 01 00 8A 01 00"
        "92 01 00 9A 01 00 A2 01 00 AA 01 00 B2 01 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    for (const nested_masks &masks : every_mask(got.record))
        EXPECT_EQ(masks.spare, masks.all_spare) << masks.name;
    EXPECT_EQ(got.present(), fields(8, 9, 10, 12, 13, 14, 15, 16, 17, 18, 19, 20, 21, 22));
    EXPECT_EQ(own_bits(got.record.session_data), fields(3, 4, 10));
}

TEST(presence, decode_keeps_the_spare_bits_of_a_record_that_occurs_twice_and_then_fails)
{
    decoded<mava_tum_session_context> got("42 02 08 01 42 01 0D");
    EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE);
    EXPECT_EQ(own_bits(got.record.subscriber_v4), 0u);
    EXPECT_EQ(spare_bits(got.record.subscriber_v4), all_spare_bits<mava_tum_subscriber_v4>());
}

TEST(presence, duplicate_keeps_the_spare_bits_of_inline_records_at_every_depth)
{
    duplicated<mava_tum_session_context> copy(mava_tum_session_context{});
    for (const nested_masks &masks : every_mask(copy.record)) {
        EXPECT_EQ(masks.own, 0u) << masks.name;
        EXPECT_EQ(masks.spare, masks.all_spare) << masks.name;
    }

    mava_tum_session_context ones;
    fill_with_ones(ones);
    // A source filled with ones has invalid pointers: an empty decode clears all of it except the reserved bits.
    EXPECT_EQ(call_decode(ones, nullptr, 0, nullptr, nullptr, 0), MAVA_TUM_OK);
    mava_tum_session_context zeroed{};
    EXPECT_EQ(call_duplicate(zeroed, ones, nullptr, nullptr), MAVA_TUM_OK);
    for (const nested_masks &masks : every_mask(zeroed))
        EXPECT_EQ(masks.own | masks.spare, 0u) << masks.name;
}

TEST(presence, elements_of_a_decoded_array_start_with_clear_spare_bits)
{
    decoded<mava_tum_session_context> got("5A 00 BA 01 00 C2 01 00");
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.record.qos[0].presence_mask, 0u);
    EXPECT_EQ(got.record.route_ipv4[0].presence_mask, 0u);
    EXPECT_EQ(got.record.route_ipv6[0].presence_mask, 0u);
}

TEST(presence, elements_of_a_duplicated_array_have_own_bits_only)
{
    mava_tum_subscriber_route_ipv4 element{};
    element.presence_mask = 0xFFFF;
    mava_tum_sub_route source{};
    source.ipv4_routes = &element;
    source.ipv4_route_count = 1;
    duplicated<mava_tum_sub_route> copy(source);
    EXPECT_EQ(copy.result, MAVA_TUM_OK);
    EXPECT_EQ(copy.record.ipv4_routes[0].presence_mask, 0x1FFu);
}

} // namespace
} // namespace mava_tum_test
