// The application records of the reconciliation and of the redundancy groups, member by member; see
// test_record_layout_application.cpp.
#include "abi/test_record_layout.h"

#include "mava_tum.h"

#include <gtest/gtest.h>

namespace
{

TEST(record_layout, of_application_rec_start_req_is_fixed)
{
    using record = tum_nal_data_rec_start_req;
    expect_layout(sizeof(record), alignof(record), 80, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 2),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 12, 65),
        });
}

TEST(record_layout, of_application_rec_complete_req_is_fixed)
{
    using record = tum_nal_data_rec_complete_req;
    expect_layout(sizeof(record), alignof(record), 76, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 2),
            MEMBER(field_4, 10, 65),
        });
}

TEST(record_layout, of_application_rec_res_is_fixed)
{
    using record = tum_nal_data_rec_res;
    expect_layout(sizeof(record), alignof(record), 76, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 65),
            MEMBER(field_3, 72, 4),
        });
}

TEST(record_layout, of_application_session_state_is_fixed)
{
    using record = tum_nal_data_session_state;
    expect_layout(sizeof(record), alignof(record), 24, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 8, 8),
            MEMBER(field_3, 16, 4),
        });
}

TEST(record_layout, of_application_rec_sess_req_is_fixed)
{
    using record = tum_nal_data_rec_sess_req;
    expect_layout(sizeof(record), alignof(record), 872, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 2),
            MEMBER(field_3_count, 8, 4),
            MEMBER(field_3, 16, 720),
            MEMBER(field_4, 736, 65),
            MEMBER(field_5, 801, 65),
            MEMBER(field_6, 866, 1),
        });
}

TEST(record_layout, of_application_rec_sess_res_is_fixed)
{
    using record = tum_nal_data_rec_sess_res;
    expect_layout(sizeof(record), alignof(record), 736, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2_count, 4, 4),
            MEMBER(field_2, 8, 720),
            MEMBER(field_3, 728, 1),
            MEMBER(field_4, 732, 4),
        });
}

TEST(record_layout, of_application_rec_sess_replay_req_encode_is_fixed)
{
    using record = tum_nal_data_rec_sess_replay_req_encode;
    expect_layout(sizeof(record), alignof(record), 8936, 8,
        {
            MEMBER(field_6, 0, 65),
            MEMBER(field_3, 68, 4),
            MEMBER(field_4_count, 72, 4),
            MEMBER(field_1, 76, 4),
            MEMBER(field_2, 80, 2),
            MEMBER(field_5, 82, 1),
            MEMBER(field_4, 88, 8848),
        });
}

TEST(record_layout, of_application_rec_sess_replay_req_decode_is_fixed)
{
    using record = tum_nal_data_rec_sess_replay_req_decode;
    expect_layout(sizeof(record), alignof(record), 8936, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 2),
            MEMBER(field_4_count, 8, 4),
            MEMBER(field_3, 12, 4),
            MEMBER(field_4, 16, 8848),
            MEMBER(field_5, 8864, 1),
            MEMBER(field_6, 8865, 65),
        });
}

TEST(record_layout, of_application_replay_failure_is_fixed)
{
    using record = tum_nal_data_replay_failure;
    expect_layout(sizeof(record), alignof(record), 1392, 8,
        {
            MEMBER(field_1, 0, 8),
            MEMBER(field_2, 8, 4),
            MEMBER(field_3, 16, 1376),
        });
}

TEST(record_layout, of_application_service_start_is_fixed)
{
    using record = tum_nal_data_service_start;
    expect_layout(sizeof(record), alignof(record), 544, 8,
        {
            MEMBER(field_1, 0, 8),
            MEMBER(field_2, 8, 4),
            MEMBER(field_3, 12, 4),
            MEMBER(field_4, 16, 4),
            MEMBER(field_5_count, 20, 1),
            MEMBER(field_5, 21, 520),
        });
}

TEST(record_layout, of_application_rec_sess_replay_resp_is_fixed)
{
    using record = tum_nal_data_rec_sess_replay_resp;
    expect_layout(sizeof(record), alignof(record), 2024, 8,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2_count, 4, 4),
            MEMBER(field_3_count, 8, 4),
            MEMBER(field_2, 16, 1392),
            MEMBER(field_3, 1408, 544),
            MEMBER(field_4, 1952, 65),
            MEMBER(field_5, 2020, 4),
        });
}

TEST(record_layout, of_application_srg_group_rec_start_req_is_fixed)
{
    using record = tum_nal_data_srg_group_rec_start_req;
    expect_layout(sizeof(record), alignof(record), 12, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 2),
            MEMBER(field_3, 8, 4),
        });
}

TEST(record_layout, of_application_srg_group_rec_resp_is_fixed)
{
    using record = tum_nal_data_srg_group_rec_resp;
    expect_layout(sizeof(record), alignof(record), 8, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
        });
}

TEST(record_layout, of_application_srg_group_rec_complete_req_is_fixed)
{
    using record = tum_nal_data_srg_group_rec_complete_req;
    expect_layout(sizeof(record), alignof(record), 12, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 2),
        });
}

TEST(record_layout, of_application_group_data_is_fixed)
{
    using record = tum_nal_data_group_data;
    expect_layout(sizeof(record), alignof(record), 84, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 4),
            MEMBER(field_3, 8, 4),
            MEMBER(field_4, 12, 4),
            MEMBER(field_5, 16, 65),
        });
}

TEST(record_layout, of_application_srg_group_rec_replay_req_is_fixed)
{
    using record = tum_nal_data_srg_group_rec_replay_req;
    expect_layout(sizeof(record), alignof(record), 1276, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2, 4, 2),
            MEMBER(field_3_count, 8, 4),
            MEMBER(field_3, 12, 1260),
            MEMBER(field_4, 1272, 1),
        });
}

TEST(record_layout, of_application_srg_group_rec_replay_resp_is_fixed)
{
    using record = tum_nal_data_srg_group_rec_replay_resp;
    expect_layout(sizeof(record), alignof(record), 2536, 4,
        {
            MEMBER(field_1, 0, 4),
            MEMBER(field_2_count, 4, 4),
            MEMBER(field_2, 8, 1260),
            MEMBER(field_3_count, 1268, 4),
            MEMBER(field_3, 1272, 1260),
            MEMBER(field_4, 2532, 4),
        });
}

} // namespace
