// Rules for sent sessions: conditions between members, counts, short buffers.
#include "nal/adapter_calls.h"
#include "nal/sample_session.h"
#include "nal/session_rows.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using session = tum_nal_data_session_context;

void expect_sent_as_row(const session_row &row)
{
    EXPECT_EQ(sent_hex(record_of(row)), hex_of(wire_of(row))) << row.what;
}

TEST(nal_session_context_sending, an_ipv4_address_of_zero_sends_no_ipv4_at_all)
{
    expect_sent_as_row(
        {.what = "a value alone", .fill = [](session &s) { s.ipv4_value_1 = 7; }, .features = TUM_NAL_FEATURE_IPV4});
}

TEST(nal_session_context_sending, l2tp_end_points_of_the_other_kind_stay_behind)
{
    const auto fill_both = [](session &s) {
        s.l2tp_ipv4_2 = 2;
        s.l2tp_ipv4_3 = 3;
        s.l2tp_ipv6_4[0] = 4;
        s.l2tp_ipv6_5[15] = 5;
    };
    session record = zero_record<session>();
    fill_both(record);
    record.feature_mask = TUM_NAL_FEATURE_L2TP;
    const std::string head = "08 00 10 00 18 00 20 00 28 80 80 80 10 38 00 ";
    record.l2tp_kind = 1;
    EXPECT_EQ(sent_hex(record), head + "52 10 1A 00 22 0C 08 01 15 00 00 00 02 1D 00 00 00 03");
    record.l2tp_kind = 2;
    EXPECT_EQ(sent_hex(record), head + "52 2A 1A 00 22 26 08 02 22 10 04 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 "
                                       "2A 10 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 05");
    record.l2tp_kind = 3;
    EXPECT_EQ(sent_hex(record), head + "52 06 1A 00 22 02 08 03");
    record.l2tp_kind = 0x101; // all of its 32 bits are compared
    EXPECT_EQ(sent_hex(record), head + "52 07 1A 00 22 03 08 81 02");
}

TEST(nal_session_context_sending, one_byte_that_is_not_zero_is_enough_to_send_an_ipv6_address)
{
    for (std::size_t byte = 0; byte < 16; ++byte) {
        session record = zero_record<session>();
        record.feature_mask = TUM_NAL_FEATURE_L2TP | TUM_NAL_FEATURE_INTERCEPT | TUM_NAL_FEATURE_IPV6_ROUTES;
        record.l2tp_kind = TUM_NAL_L2TP_IPV6;
        record.ipv6_route_count = 1;
        tum_nal_data_ipv6_route &route = record.ipv6_routes[0];
        for (uint8_t *address :
            {record.l2tp_ipv6_4, record.l2tp_ipv6_5, record.intercept_ipv6_address, route.field_3, route.field_5})
            address[byte] = 1;
        decoded<mava_tum_session_context> got(sent(record), {.flags = MAVA_TUM_ALIAS});
        EXPECT_EQ(own_bits(got.record.session_data.l2tp), fields(1, 4, 5)) << byte;
        EXPECT_EQ(own_bits(got.record.li), fields(1, 2, 3, 4, 5, 6, 8)) << byte;
        EXPECT_EQ(own_bits(got.record.route_ipv6[0]), fields(1, 3, 5)) << byte;
    }
}

TEST(nal_session_context_sending, l2tp_values_16_and_18_need_15_and_17)
{
    expect_sent_as_row({.what = "16 and 18 alone",
        .fill =
            [](session &s) {
                s.l2tp_value_16 = 16;
                s.l2tp_value_18 = 18;
            },
        .features = TUM_NAL_FEATURE_L2TP,
        .data = "1A 00 22 02 08 00"});
    expect_sent_as_row({.what = "each with the wrong partner",
        .fill =
            [](session &s) {
                s.l2tp_value_15 = 15;
                s.l2tp_value_18 = 18;
            },
        .features = TUM_NAL_FEATURE_L2TP,
        .data = "1A 00 22 04 08 00 78 0F"});
}

TEST(nal_session_context_sending, the_identifier_goes_out_for_session_kinds_1_and_4_only)
{
    for (uint32_t kind : {0u, 1u, 2u, 3u, 4u, 5u, 0x101u, 0x10004u}) {
        session record = zero_record<session>();
        record.session_value_1 = kind;
        record.session_identifier[0] = 0xEE;
        record.session_value_9 = 9;
        decoded<mava_tum_session_context> got(sent(record), {.flags = MAVA_TUM_ALIAS});
        const mava_tum_session_data &data = got.record.session_data;
        EXPECT_EQ(content_of(data.field_6).size(), kind == 1 || kind == 4 ? 7u : 0u) << kind;
        EXPECT_EQ(data.field_9, kind == 4 ? 9u : 0u) << kind;
        EXPECT_EQ(own_bits(data), kind == 4 ? fields(3, 6, 9) : kind == 1 ? fields(3, 6) : fields(3)) << kind;
    }
}

TEST(nal_session_context_sending, accounting_values_without_their_flag_stay_behind)
{
    expect_sent_as_row({.what = "values without flags",
        .fill =
            [](session &s) {
                s.accounting_value_2 = 2;
                s.accounting_value_3 = 3;
            },
        // Bit 0 of the feature mask is not bit 0 of the flags.
        .features = TUM_NAL_FEATURE_ACCOUNTING | TUM_NAL_FEATURE_QOS,
        .after_data = "B2 01 02 08 00"});
}

TEST(nal_session_context_sending, a_count_of_0_sends_no_entry)
{
    expect_sent_as_row({.what = "entries beyond a count of 0",
        .fill =
            [](session &s) {
                s.qos[0].value_1 = 1;
                s.ipv4_routes[0].field_1 = 1;
                s.ipv6_routes[0].field_1 = 1;
            },
        .features = TUM_NAL_FEATURE_QOS | TUM_NAL_FEATURE_IPV4_ROUTES | TUM_NAL_FEATURE_IPV6_ROUTES});
}

TEST(nal_session_context_sending, counts_above_the_slots_send_the_slots)
{
    const session all_slots = full_session();
    for (int count : {9, 100, 255}) {
        session record = all_slots;
        record.qos_count = static_cast<uint8_t>(count);
        record.ipv4_route_count = static_cast<uint8_t>(count);
        record.ipv6_route_count = static_cast<uint8_t>(count);
        EXPECT_EQ(sent(record), sent(all_slots)) << count;
    }
}

TEST(nal_session_context_sending, slots_beyond_the_count_are_not_read)
{
    session record = full_session();
    record.qos_count = 2;
    record.ipv4_route_count = 1;
    record.ipv6_route_count = 3;
    const byte_vector wire = sent(record);
    std::memset(&record.qos[2], 'x', sizeof record.qos[0]); // texts without a NUL
    std::memset(&record.ipv4_routes[1], 'x', sizeof record.ipv4_routes[0]);
    std::memset(&record.ipv6_routes[3], 'x', sizeof record.ipv6_routes[0]);
    EXPECT_EQ(sent(record), wire);
    decoded<mava_tum_session_context> got(wire, {.flags = MAVA_TUM_ALIAS});
    EXPECT_EQ(got.record.qos_count, 2u);
    EXPECT_EQ(got.record.route_ipv4_count, 1u);
    EXPECT_EQ(got.record.route_ipv6_count, 3u);
}

TEST(nal_session_context_sending, a_text_whose_first_byte_is_0_is_absent_whatever_follows)
{
    session record = full_session();
    for (char *text : {record.l2tp_name, record.session_name, record.session_label, record.session_text,
             record.acl_text_2, record.acl_text_3, record.acl_text_4, record.acl_text_5, record.redirect_text_2,
             record.qos[0].text_3, record.qos[0].text_4, record.qos[0].text_5, record.qos[0].text_10,
             record.qos[0].text_11, record.qos[0].text_12, record.ipv4_routes[0].field_2, record.ipv4_routes[0].field_6,
             record.ipv4_routes[0].field_9, record.ipv6_routes[0].field_2, record.ipv6_routes[0].field_6,
             record.ipv6_routes[0].field_9})
        text[0] = '\0';
    decoded<mava_tum_session_context> got(sent(record), {.flags = MAVA_TUM_ALIAS});
    const mava_tum_session_context &context = got.record;
    EXPECT_EQ(own_bits(context.session_data.l2tp) & fields(19), 0u);
    EXPECT_EQ(own_bits(context.session_data) & fields(5, 7, 8), 0u);
    EXPECT_EQ(own_bits(context.acl), fields(1));
    EXPECT_EQ(own_bits(context.httpr), fields(1));
    EXPECT_EQ(own_bits(context.qos[0]), fields(1, 2, 6, 7, 8));
    EXPECT_EQ(own_bits(context.qos[1]), fields(1, 2, 3, 4, 5, 6, 7, 8, 10, 11, 12));
    EXPECT_EQ(own_bits(context.route_ipv4[0]), fields(1, 3, 4, 5, 7));
    EXPECT_EQ(own_bits(context.route_ipv6[0]), fields(1, 3, 4, 5, 7, 8));
}

TEST(nal_session_context_sending, fields_without_a_member_are_never_sent)
{
    decoded<mava_tum_session_context> got(sent(full_session()), {.flags = MAVA_TUM_ALIAS});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(own_bits(got.record), 0xFFFFFFu & ~fields(6));
    for (uint32_t i = 0; i < got.record.qos_count; ++i)
        EXPECT_EQ(own_bits(got.record.qos[i]), 0xFFFu & ~fields(9));
}

// ---- each bit of the feature mask ----

struct selection {
    uint32_t context; // the fields of the session that appear beside the values and the session data
    uint32_t v6 = 0;
    uint32_t data = 0;
    uint32_t ppp = 0;
    uint32_t vlan = 0;
};

selection selected_by(unsigned mask_bit)
{
    switch (1u << mask_bit) {
    case TUM_NAL_FEATURE_QOS:
        return {.context = fields(11)};
    case TUM_NAL_FEATURE_REDIRECT:
        return {.context = fields(13)};
    case TUM_NAL_FEATURE_INTERCEPT:
        return {.context = fields(14)};
    case TUM_NAL_FEATURE_URPF_1:
        return {.context = fields(15)};
    case TUM_NAL_FEATURE_URPF_2:
        return {.context = fields(16)};
    case TUM_NAL_FEATURE_ICMP_1:
        return {.context = fields(17)};
    case TUM_NAL_FEATURE_ICMP_2:
        return {.context = fields(18)};
    case TUM_NAL_FEATURE_ACCOUNTING:
        return {.context = fields(22)};
    case TUM_NAL_FEATURE_ACL:
        return {.context = fields(12)};
    case TUM_NAL_FEATURE_IPV4:
        return {.context = fields(8)};
    case TUM_NAL_FEATURE_IPV6_PART_2:
        return {.context = fields(9), .v6 = fields(1, 2)};
    case TUM_NAL_FEATURE_IPV6_PART_3:
        return {.context = fields(9), .v6 = fields(1, 3, 5)};
    case TUM_NAL_FEATURE_IPV6_PART_4:
        return {.context = fields(9), .v6 = fields(1, 4)};
    case TUM_NAL_FEATURE_IPV6_PART_6:
        return {.context = fields(9), .v6 = fields(1, 6, 7)};
    case TUM_NAL_FEATURE_IPV4_ROUTES:
        return {.context = fields(23)};
    case TUM_NAL_FEATURE_IPV6_ROUTES:
        return {.context = fields(24)};
    case TUM_NAL_FEATURE_VLAN_1:
        return {.context = 0, .data = fields(10), .vlan = fields(1)};
    case TUM_NAL_FEATURE_VLAN_2:
        return {.context = 0, .data = fields(10), .vlan = fields(2)};
    case TUM_NAL_FEATURE_PPP_1_4:
        return {.context = 0, .ppp = fields(1, 4)};
    case TUM_NAL_FEATURE_PPP_2_3:
        return {.context = 0, .ppp = fields(2, 3)};
    case TUM_NAL_FEATURE_PPP_IDENTIFIER:
        return {.context = 0, .ppp = fields(5)};
    case TUM_NAL_FEATURE_MTU_1:
        return {.context = fields(19)};
    case TUM_NAL_FEATURE_MTU_2:
        return {.context = fields(20)};
    case TUM_NAL_FEATURE_MTU_3:
        return {.context = fields(21)};
    case TUM_NAL_FEATURE_L2TP:
        return {.context = 0, .data = fields(4)};
    default:
        return {.context = 0};
    }
}

TEST(nal_session_context_sending, each_feature_bit_of_a_full_record_selects_its_own_records_and_no_others)
{
    for (unsigned mask_bit = 0; mask_bit < 32; ++mask_bit) {
        session record = full_session();
        record.feature_mask = 1u << mask_bit;
        const selection expected = selected_by(mask_bit);
        decoded<mava_tum_session_context> got(sent(record), {.flags = MAVA_TUM_ALIAS});
        const mava_tum_session_data &data = got.record.session_data;
        EXPECT_EQ(own_bits(got.record), fields(1, 2, 3, 4, 5, 7, 10) | expected.context) << mask_bit;
        EXPECT_EQ(own_bits(got.record.subscriber_v6), expected.v6) << mask_bit;
        EXPECT_EQ(own_bits(data), fields(1, 2, 3, 5, 6, 7, 8, 9, 11) | expected.data) << mask_bit;
        EXPECT_EQ(own_bits(data.ppp), fields(6) | expected.ppp) << mask_bit;
        EXPECT_EQ(own_bits(data.vlan), expected.vlan) << mask_bit;
        EXPECT_EQ(got.record.feature_mask, record.feature_mask) << mask_bit;
    }
}

TEST(nal_session_context_sending, every_capacity_gives_the_size_and_a_prefix)
{
    session record = full_session();
    record.qos_count = 1; // the rest repeats
    expect_every_capacity_gives_a_prefix(record, 255);
}

} // namespace
} // namespace mava_tum_test
