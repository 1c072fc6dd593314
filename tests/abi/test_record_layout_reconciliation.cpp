// The codec records of the reconciliation and of the redundancy groups, member by member; see test_record_layout.cpp.
#include "abi/test_record_layout.h"

#include "mava_tum.h"

#include <gtest/gtest.h>

namespace
{

TEST(record_layout, of_rec_start_req_is_fixed)
{
    using record = mava_tum_rec_start_req;
    expect_layout(sizeof(record), alignof(record), 32, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 16, 8),
            MEMBER(presence_mask, 24, 1),
        });
}

TEST(record_layout, of_rec_complete_req_is_fixed)
{
    using record = mava_tum_rec_complete_req;
    expect_layout(sizeof(record), alignof(record), 32, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 16, 8),
            MEMBER(presence_mask, 24, 1),
        });
}

TEST(record_layout, of_rec_resp_is_fixed)
{
    using record = mava_tum_rec_resp;
    expect_layout(sizeof(record), alignof(record), 24, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_3, 16, 4),
            MEMBER(presence_mask, 20, 1),
        });
}

TEST(record_layout, of_rec_session_state_is_fixed)
{
    using record = mava_tum_rec_session_state;
    expect_layout(sizeof(record), alignof(record), 24, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_3, 16, 4),
            MEMBER(presence_mask, 20, 1),
        });
}

TEST(record_layout, of_rec_sess_req_is_fixed)
{
    using record = mava_tum_rec_sess_req;
    expect_layout(sizeof(record), alignof(record), 48, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 8),
            MEMBER(field_3_count, 16, 4),
            MEMBER(field_4, 24, 8),
            MEMBER(field_5, 32, 8),
            MEMBER(field_6, 40, 4),
            MEMBER(presence_mask, 44, 1),
        });
}

TEST(record_layout, of_rec_sess_resp_is_fixed)
{
    using record = mava_tum_rec_sess_resp;
    expect_layout(sizeof(record), alignof(record), 32, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_2_count, 16, 4),
            MEMBER(field_3, 20, 4),
            MEMBER(field_4, 24, 4),
            MEMBER(presence_mask, 28, 1),
        });
}

TEST(record_layout, of_rec_sess_replay_req_is_fixed)
{
    using record = mava_tum_rec_sess_replay_req;
    expect_layout(sizeof(record), alignof(record), 48, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 16, 8),
            MEMBER(field_4_count, 24, 4),
            MEMBER(field_5, 28, 4),
            MEMBER(field_6, 32, 8),
            MEMBER(presence_mask, 40, 1),
        });
}

TEST(record_layout, of_rec_sess_replay_fail_is_fixed)
{
    using record = mava_tum_rec_sess_replay_fail;
    expect_layout(sizeof(record), alignof(record), 304, 8,
        {
            MEMBER(field_1, 0, 8),
            MEMBER(field_2, 8, 4),
            MEMBER(field_3, 16, 280),
            MEMBER(presence_mask, 296, 1),
        });
}

TEST(record_layout, of_sess_svc_start_is_fixed)
{
    using record = mava_tum_sess_svc_start;
    expect_layout(sizeof(record), alignof(record), 40, 8,
        {
            MEMBER(field_1, 0, 8),
            MEMBER(field_2, 8, 4),
            MEMBER(field_3, 12, 4),
            MEMBER(field_4, 16, 4),
            MEMBER(field_5, 24, 8),
            MEMBER(field_5_count, 32, 4),
            MEMBER(presence_mask, 36, 1),
        });
}

TEST(record_layout, of_rec_sess_replay_resp_is_fixed)
{
    using record = mava_tum_rec_sess_replay_resp;
    expect_layout(sizeof(record), alignof(record), 56, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_2_count, 16, 4),
            MEMBER(field_3, 24, 8),
            MEMBER(field_3_count, 32, 4),
            MEMBER(field_4, 40, 8),
            MEMBER(field_5, 48, 4),
            MEMBER(presence_mask, 52, 1),
        });
}

TEST(record_layout, of_srg_group_rec_start_req_is_fixed)
{
    using record = mava_tum_srg_group_rec_start_req;
    expect_layout(sizeof(record), alignof(record), 16, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(presence_mask, 12, 1),
        });
}

TEST(record_layout, of_srg_group_rec_resp_is_fixed)
{
    using record = mava_tum_srg_group_rec_resp;
    expect_layout(sizeof(record), alignof(record), 12, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(presence_mask, 8, 1),
        });
}

TEST(record_layout, of_srg_group_rec_complete_req_is_fixed)
{
    using record = mava_tum_srg_group_rec_complete_req;
    expect_layout(sizeof(record), alignof(record), 16, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(presence_mask, 12, 1),
        });
}

TEST(record_layout, of_srg_group_data_is_fixed)
{
    using record = mava_tum_srg_group_data;
    expect_layout(sizeof(record), alignof(record), 32, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 12, 4),
            MEMBER(field_5, 16, 8),
            MEMBER(presence_mask, 24, 1),
        });
}

TEST(record_layout, of_srg_group_rec_replay_req_is_fixed)
{
    using record = mava_tum_srg_group_rec_replay_req;
    expect_layout(sizeof(record), alignof(record), 32, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 8),
            MEMBER(field_3_count, 16, 4),
            MEMBER(field_4, 20, 4),
            MEMBER(presence_mask, 24, 1),
        });
}

TEST(record_layout, of_srg_group_rec_replay_resp_is_fixed)
{
    using record = mava_tum_srg_group_rec_replay_resp;
    expect_layout(sizeof(record), alignof(record), 48, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_2_count, 16, 4),
            MEMBER(field_3, 24, 8),
            MEMBER(field_3_count, 32, 4),
            MEMBER(field_4, 36, 4),
            MEMBER(presence_mask, 40, 1),
        });
}

} // namespace
