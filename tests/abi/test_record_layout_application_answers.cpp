// The application records of answers, statistics and deletions, and the queue, member by member; see
// test_record_layout_application.cpp.
#include "abi/test_record_layout.h"

#include "mava_tum.h"

#include <gtest/gtest.h>

namespace
{

TEST(record_layout, of_application_session_delete_is_fixed)
{
    using record = tum_nal_data_session_delete;
    expect_layout(sizeof(record), alignof(record), 32, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 2),
            MEMBER(field_4, 16, 8),
            MEMBER(field_5, 24, 4),
        });
}

TEST(record_layout, of_application_stats_block_is_fixed)
{
    using record = tum_nal_data_stats_block;
    expect_layout(sizeof(record), alignof(record), 72, 4,
        {
            MEMBER(counter, 0, 72),
        });
}

TEST(record_layout, of_application_service_entry_is_fixed)
{
    using record = tum_nal_data_service_entry;
    expect_layout(sizeof(record), alignof(record), 140, 4,
        {
            MEMBER(name, 0, 65),
            MEMBER(stats, 68, 72),
        });
}

TEST(record_layout, of_application_subscriber_stats_is_fixed)
{
    using record = tum_nal_data_subscriber_stats;
    expect_layout(sizeof(record), alignof(record), 1376, 8,
        {
            MEMBER(value_1, 0, 8),
            MEMBER(value_2, 8, 4),
            MEMBER(value_3, 12, 4),
            MEMBER(value_4, 16, 4),
            MEMBER(value_5, 20, 4),
            MEMBER(value_6, 24, 4),
            MEMBER(block_7, 28, 72),
            MEMBER(service_count, 100, 1),
            MEMBER(services, 104, 1120),
            MEMBER(block_10_switch, 1224, 4),
            MEMBER(block_10, 1228, 72),
            MEMBER(block_12_switch, 1300, 4),
            MEMBER(block_12, 1304, 72),
        });
}

TEST(record_layout, of_application_sess_oper_resp_is_fixed)
{
    using record = tum_nal_data_sess_oper_resp;
    expect_layout(sizeof(record), alignof(record), 1600, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 16, 8),
            MEMBER(field_5, 24, 4),
            MEMBER(field_6, 28, 65),
            MEMBER(field_7, 93, 65),
            MEMBER(field_8, 158, 65),
            MEMBER(field_9, 224, 1376),
        });
}

TEST(record_layout, of_application_subscriber_route_resp_is_fixed)
{
    using record = tum_nal_data_subscriber_route_resp;
    expect_layout(sizeof(record), alignof(record), 140, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 65),
            MEMBER(field_4, 73, 65),
        });
}

TEST(record_layout, of_nal_queue_node_is_fixed)
{
    using record = nal_queue_node_t;
    expect_layout(sizeof(record), alignof(record), 16, 8,
        {
            MEMBER(prev, 0, 8),
            MEMBER(next, 8, 8),
        });
}

TEST(record_layout, of_nal_queue_is_fixed)
{
    using record = nal_queue_t;
    expect_layout(sizeof(record), alignof(record), 24, 8,
        {
            MEMBER(head, 0, 8),
            MEMBER(tail, 8, 8),
            MEMBER(count, 16, 4),
        });
}

} // namespace
