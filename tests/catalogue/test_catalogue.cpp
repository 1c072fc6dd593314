// The tables for programs in C++: what connects them, and the calls in one shape.
#include "catalogue.h"

#include <gtest/gtest.h>

#include <cstring>
#include <set>
#include <string>
#include <vector>

namespace mava_tum_catalogue
{
namespace
{

TEST(catalogue, nested_records_point_at_their_own_description)
{
    EXPECT_EQ(message_of<mava_tum_sub_route>().fields[3].nested, find_message("subscriber_route_ipv4"));
    EXPECT_EQ(layout_of<tum_nal_data_sess_oper_resp>().members.back().layout, find_adapter("subscriber_stats")->sent);
    EXPECT_EQ(find_adapter("rec_start_res")->carried, find_adapter("rec_complete_res")->carried);
}

TEST(catalogue, finds_nothing_under_a_wrong_name)
{
    for (const char *name : {"", "session_contex", "mava_tum_session_context"}) {
        EXPECT_EQ(find_message(name), nullptr) << name;
        EXPECT_EQ(find_adapter(name), nullptr) << name;
    }
    EXPECT_EQ(find_adapter("subscriber_v4"), nullptr) << "a message without an adapter";
}

TEST(catalogue, a_message_that_allocates_has_a_text_bytes_or_an_array_somewhere)
{
    EXPECT_FALSE(find_message("subscriber_v4")->allocates);
    EXPECT_TRUE(find_message("subscriber_v6")->allocates);
    EXPECT_TRUE(find_message("rec_sess_replay_fail")->allocates);
    EXPECT_TRUE(find_message("rec_sess_replay_req")->holds_bytes);
    EXPECT_FALSE(find_message("rec_sess_replay_fail")->holds_bytes);
}

// Each shape once: scalars only, texts, bytes.
TEST(catalogue, the_four_functions_of_a_message_drop_the_arguments_that_it_does_not_take)
{
    static int blocks;
    const auto give = [](uint64_t size, void *) { return ++blocks, ::operator new(size); };
    const auto take_back = [](void *block, void *) { --blocks, ::operator delete(block); };
    const std::vector<uint8_t> wire = {0x2A, 0x01, 0x61}; // field 5, one byte
    struct shape {
        const char *name;
        int blocks;
        int blocks_of_alias;
    };
    for (const shape &tested : {shape{"vlan_info", 0, 0}, shape{"subscriber_acl", 1, 1}, shape{"ppp_data", 1, 0}}) {
        const message &of = *find_message(tested.name);
        std::vector<uint64_t> record(of.record_bytes / 8 + 1), copy(record.size());
        EXPECT_EQ(of.decode(record.data(), wire.data(), wire.size(), give, nullptr, MAVA_TUM_ALIAS), MAVA_TUM_OK);
        EXPECT_EQ(blocks, tested.blocks_of_alias) << tested.name;
        of.free(record.data(), take_back, nullptr, MAVA_TUM_ALIAS);
        EXPECT_EQ(of.decode(record.data(), wire.data(), wire.size(), give, nullptr, 0), MAVA_TUM_OK);
        EXPECT_EQ(of.duplicate(copy.data(), record.data(), give, nullptr), MAVA_TUM_OK);
        EXPECT_EQ(blocks, 2 * tested.blocks) << tested.name;
        std::vector<uint8_t> again(wire.size());
        const uint64_t size = of.encode(copy.data(), again.data(), again.size(), nullptr, nullptr, 0);
        EXPECT_EQ(size, tested.blocks * wire.size()) << tested.name;
        EXPECT_EQ(again == wire, tested.blocks == 1) << tested.name;
        of.free(record.data(), take_back, nullptr, 0);
        of.free(copy.data(), take_back, nullptr, 0);
        EXPECT_EQ(blocks, 0) << tested.name;
    }
}

TEST(catalogue, an_adapter_converts_through_the_table_what_it_converts_by_name)
{
    tum_nal_data_rec_res sent = {7, "a", 9}, received;
    uint8_t wire[TUM_NAL_REC_START_RES_MAX_SIZE];
    const adapter &of = *find_adapter("rec_start_res");
    const uint64_t size = of.encode(&sent, wire, sizeof wire);
    EXPECT_EQ(size, tum_nal_data_gpb_encode_tum_rec_start_res(&sent, nullptr, 0));
    of.decode(wire, static_cast<uint32_t>(size), &received);
    EXPECT_EQ(std::memcmp(&received, &sent, sizeof sent), 0);
    EXPECT_EQ(of.max_size, TUM_NAL_REC_START_RES_MAX_SIZE);
    EXPECT_EQ(of.received, &layout_of<tum_nal_data_rec_res>());
}

} // namespace
} // namespace mava_tum_catalogue
