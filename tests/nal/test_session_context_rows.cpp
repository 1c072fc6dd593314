// Which records of a session are sent.
#include "nal/adapter_calls.h"
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

// The session as a receiver decodes it.
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

TEST(session_context_rows, every_record_of_a_full_session_is_sent)
{
    const converted full(full_session());
    EXPECT_EQ(full.context.presence_mask, 0xFFFFFFu & ~fields(6));
    EXPECT_EQ(full.context.session_data.presence_mask, 0x7FFu);
    EXPECT_EQ(full.context.subscriber_v6.presence_mask, 0x7Fu);
    EXPECT_EQ(full.context.li.presence_mask, 0xFFu);
}

TEST(session_context_rows, an_all_zero_record_sends_its_values_the_session_data_and_an_empty_ppp)
{
    const converted empty(zero_record<session>());
    EXPECT_EQ(empty.context.presence_mask, fields(1, 2, 3, 4, 5, 7, 10));
    EXPECT_EQ(empty.context.session_data.presence_mask, fields(3));
    EXPECT_EQ(empty.context.session_data.ppp.presence_mask, 0u);
    EXPECT_EQ(empty.context.qos, nullptr);
    EXPECT_EQ(empty.context.route_ipv4, nullptr);
    EXPECT_EQ(empty.context.route_ipv6, nullptr);
}

TEST(session_context_rows, each_feature_sends_its_record_even_without_content)
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

TEST(session_context_rows, a_list_without_elements_is_not_sent_although_its_feature_is_set)
{
    session record = zero_record<session>();
    record.feature_mask = TUM_NAL_FEATURE_QOS | TUM_NAL_FEATURE_IPV4_ROUTES | TUM_NAL_FEATURE_IPV6_ROUTES;
    const converted got(record);
    EXPECT_EQ(got.context.presence_mask, fields(1, 2, 3, 4, 5, 7, 10));
    EXPECT_EQ(got.context.qos, nullptr);
}

} // namespace
} // namespace mava_tum_test
