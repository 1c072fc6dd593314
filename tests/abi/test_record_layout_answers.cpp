// The codec records of answers, statistics and deletions, member by member; see test_record_layout.cpp.
#include "abi/test_record_layout.h"

#include "mava_tum.h"

#include <gtest/gtest.h>

namespace
{

TEST(record_layout, of_session_delete_is_fixed)
{
    using record = mava_tum_session_delete;
    expect_layout(sizeof(record), alignof(record), 32, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 16, 8),
            MEMBER(field_5, 24, 4),
            MEMBER(presence_mask, 28, 1),
        });
}

TEST(record_layout, of_sess_oper_resp_is_fixed)
{
    using record = mava_tum_sess_oper_resp;
    expect_layout(sizeof(record), alignof(record), 360, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 16, 8),
            MEMBER(field_5, 24, 4),
            MEMBER(field_6, 32, 8),
            MEMBER(field_7, 40, 8),
            MEMBER(field_8, 48, 8),
            MEMBER(field_9, 56, 280),
            MEMBER(field_10, 336, 16),
            MEMBER(presence_mask, 352, 2),
        });
}

TEST(record_layout, of_stats_is_fixed)
{
    using record = mava_tum_stats;
    expect_layout(sizeof(record), alignof(record), 76, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 12, 4),
            MEMBER(field_5, 16, 4),
            MEMBER(field_6, 20, 4),
            MEMBER(field_7, 24, 4),
            MEMBER(field_8, 28, 4),
            MEMBER(field_9, 32, 4),
            MEMBER(field_10, 36, 4),
            MEMBER(field_11, 40, 4),
            MEMBER(field_12, 44, 4),
            MEMBER(field_13, 48, 4),
            MEMBER(field_14, 52, 4),
            MEMBER(field_15, 56, 4),
            MEMBER(field_16, 60, 4),
            MEMBER(field_17, 64, 4),
            MEMBER(field_18, 68, 4),
            MEMBER(presence_mask, 72, 4),
        });
}

TEST(record_layout, of_service_stats_is_fixed)
{
    using record = mava_tum_service_stats;
    expect_layout(sizeof(record), alignof(record), 88, 8,
        {
            MEMBER(field_1, 0, 8),
            MEMBER(field_2, 8, 76),
            MEMBER(presence_mask, 84, 1),
        });
}

TEST(record_layout, of_subscriber_stats_is_fixed)
{
    using record = mava_tum_subscriber_stats;
    expect_layout(sizeof(record), alignof(record), 280, 8,
        {
            MEMBER(field_1, 0, 8),
            MEMBER(field_2, 8, 4),
            MEMBER(field_3, 12, 4),
            MEMBER(field_4, 16, 4),
            MEMBER(field_5, 20, 4),
            MEMBER(field_6, 24, 4),
            MEMBER(field_7, 28, 76),
            MEMBER(field_8, 104, 8),
            MEMBER(field_8_count, 112, 4),
            MEMBER(field_9, 116, 4),
            MEMBER(field_10, 120, 76),
            MEMBER(field_11, 196, 4),
            MEMBER(field_12, 200, 76),
            MEMBER(presence_mask, 276, 2),
        });
}

TEST(record_layout, of_subscriber_route_resp_is_fixed)
{
    using record = mava_tum_subscriber_route_resp;
    expect_layout(sizeof(record), alignof(record), 32, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 8),
            MEMBER(field_4, 16, 8),
            MEMBER(presence_mask, 24, 1),
        });
}

} // namespace
