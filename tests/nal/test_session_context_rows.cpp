// Which records of a session are sent, and which of its fields are taken from a codec record.
#include "nal/adapter_calls.h"
#include "nal/convert_session_context.h"
#include "nal/sample_session.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>
#include <vector>

namespace mava_tum_test
{
namespace
{

using session = tum_nal_data_session_context;

void *calloc_any(uint64_t bytes, void *)
{
    return std::calloc(1, bytes);
}

void free_any(void *block, void *)
{
    std::free(block);
}

// What a receiver decodes of the session.
struct converted {
    std::vector<uint8_t> wire;
    mava_tum_session_context context = {};

    explicit converted(const session &record) : wire(tum_nal_data_gpb_encode_tum_session_context(&record, nullptr, 0))
    {
        tum_nal_data_gpb_encode_tum_session_context(&record, wire.data(), static_cast<uint32_t>(wire.size()));
        EXPECT_EQ(mava_tum_session_context_decode_ext(
                      &context, wire.data(), wire.size(), calloc_any, nullptr, MAVA_TUM_ALIAS),
            MAVA_TUM_OK);
    }
    converted(const converted &) = delete;
    converted &operator=(const converted &) = delete;
    ~converted()
    {
        mava_tum_session_context_free_ext(&context, free_any, nullptr, MAVA_TUM_ALIAS);
    }
};

TEST(convert_session_context, every_record_of_a_full_session_is_sent)
{
    const converted full(full_session());
    EXPECT_EQ(full.context.presence_mask, 0xFFFFFFu & ~fields(6));
    EXPECT_EQ(full.context.session_data.presence_mask, 0x7FFu);
    EXPECT_EQ(full.context.subscriber_v6.presence_mask, 0x7Fu);
    EXPECT_EQ(full.context.li.presence_mask, 0xFFu);
}

TEST(convert_session_context, an_all_zero_record_sends_its_values_the_session_data_and_an_empty_ppp)
{
    const converted empty(zero_record<session>());
    EXPECT_EQ(empty.context.presence_mask, fields(1, 2, 3, 4, 5, 7, 10));
    EXPECT_EQ(empty.context.session_data.presence_mask, fields(3));
    EXPECT_EQ(empty.context.session_data.ppp.presence_mask, 0u);
    EXPECT_EQ(empty.context.qos, nullptr);
    EXPECT_EQ(empty.context.route_ipv4, nullptr);
    EXPECT_EQ(empty.context.route_ipv6, nullptr);
}

TEST(convert_session_context, each_feature_sends_its_record_even_without_content)
{
    const struct {
        int feature;
        uint32_t field;
    } rows[] = {{TUM_NAL_FEATURE_IPV6_PART_2, 9}, {TUM_NAL_FEATURE_IPV6_PART_3, 9}, {TUM_NAL_FEATURE_IPV6_PART_4, 9},
        {TUM_NAL_FEATURE_IPV6_PART_6, 9}, {TUM_NAL_FEATURE_ACL, 12}, {TUM_NAL_FEATURE_REDIRECT, 13},
        {TUM_NAL_FEATURE_INTERCEPT, 14}, {TUM_NAL_FEATURE_URPF_1, 15}, {TUM_NAL_FEATURE_URPF_2, 16},
        {TUM_NAL_FEATURE_ICMP_1, 17}, {TUM_NAL_FEATURE_ICMP_2, 18}, {TUM_NAL_FEATURE_MTU_1, 19},
        {TUM_NAL_FEATURE_MTU_2, 20}, {TUM_NAL_FEATURE_MTU_3, 21}, {TUM_NAL_FEATURE_ACCOUNTING, 22}};
    for (const auto &row : rows) {
        session record = zero_record<session>();
        record.feature_mask = static_cast<uint32_t>(row.feature);
        const converted got(record);
        EXPECT_EQ(got.context.presence_mask, fields(1, 2, 3, 4, 5, 7, 10) | fields(row.field)) << row.feature;
    }
}

TEST(convert_session_context, a_list_without_elements_is_not_sent_although_its_feature_is_set)
{
    session record = zero_record<session>();
    record.feature_mask = TUM_NAL_FEATURE_QOS | TUM_NAL_FEATURE_IPV4_ROUTES | TUM_NAL_FEATURE_IPV6_ROUTES;
    const converted got(record);
    EXPECT_EQ(got.context.presence_mask, fields(1, 2, 3, 4, 5, 7, 10));
    EXPECT_EQ(got.context.qos, nullptr);
}

// The bit decides over what a pointer stands for, and over the values that arrive with another field. Any other scalar
// is copied as it is: a decoder leaves an absent one zero.
TEST(convert_session_context, texts_bytes_and_lists_are_taken_by_their_bit_and_scalars_as_they_are)
{
    const converted full(full_session());
    mava_tum_session_context context = full.context;
    context.presence_mask = 0; // the bits of the nested records stay: these are taken
    context.session_data.presence_mask = 0;
    context.subscriber_v6.presence_mask = 0;
    session record = zero_record<session>();
    mava_tum::session_context_from_codec(record, context);

    session expected = zero_record<session>();
    const session source = full_session();
    EXPECT_EQ(record.qos_count, 0u);
    EXPECT_STREQ(record.session_name, "");
    EXPECT_EQ(std::memcmp(record.session_identifier, expected.session_identifier, 7), 0);
    EXPECT_EQ(std::memcmp(record.ipv6_part_2, expected.ipv6_part_2, 16), 0);
    EXPECT_EQ(record.ipv6_value_5, 0u);
    EXPECT_EQ(record.session_value_1, source.session_value_1);
    EXPECT_EQ(record.ipv4_address, source.ipv4_address);
    EXPECT_EQ(record.ppp_value_1, source.ppp_value_1);
    EXPECT_STREQ(record.l2tp_name, source.l2tp_name);
    EXPECT_EQ(record.mtu_3_value, source.mtu_3_value);
}

} // namespace
} // namespace mava_tum_test
