// The sizes that the headers give for buffers, TUM_NAL_..._MAX_SIZE: the largest record of each adapter, made from the
// model's tables, has a message of just that size.
#include "mava_tum.h"
#include "model/application_layout.h"
#include "model/raw_memory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <initializer_list>
#include <vector>

namespace mava_tum_model
{

namespace
{

// ---- the adapters ----

template <class record_type>
uint64_t size_by(uint64_t (*encode)(const record_type *, uint8_t *, uint32_t), const uint8_t *record)
{
    return encode(reinterpret_cast<const record_type *>(record), nullptr, 0);
}

template <auto encode>
uint64_t size_of(const uint8_t *record)
{
    return size_by(encode, record);
}

struct sized_adapter {
    const char *name;
    uint64_t (*size)(const uint8_t *record);
    uint64_t max_size;
};

constexpr sized_adapter adapters[] = {
    {"session_context", size_of<tum_nal_data_gpb_encode_tum_session_context>, TUM_NAL_SESSION_CONTEXT_MAX_SIZE},
    {"session_delete", size_of<tum_nal_data_gpb_encode_tum_session_delete>, TUM_NAL_SESSION_DELETE_MAX_SIZE},
    {"sess_oper_resp", size_of<tum_nal_data_gpb_encode_tum_sess_oper_resp>, TUM_NAL_SESS_OPER_RESP_MAX_SIZE},
    {"subscriber_stats", size_of<tum_nal_data_gpb_encode_tum_subscriber_stats>, TUM_NAL_SUBSCRIBER_STATS_MAX_SIZE},
    {"sub_route", size_of<tum_nal_data_gpb_encode_tum_sub_route>, TUM_NAL_SUB_ROUTE_MAX_SIZE},
    {"subscriber_route_resp", size_of<tum_nal_data_gpb_encode_tum_subscriber_route_resp>,
        TUM_NAL_SUBSCRIBER_ROUTE_RESP_MAX_SIZE},
    {"rec_start_req", size_of<tum_nal_data_gpb_encode_tum_rec_start_req>, TUM_NAL_REC_START_REQ_MAX_SIZE},
    {"rec_start_res", size_of<tum_nal_data_gpb_encode_tum_rec_start_res>, TUM_NAL_REC_START_RES_MAX_SIZE},
    {"rec_complete_req", size_of<tum_nal_data_gpb_encode_tum_rec_complete_req>, TUM_NAL_REC_COMPLETE_REQ_MAX_SIZE},
    {"rec_complete_res", size_of<tum_nal_data_gpb_encode_tum_rec_complete_res>, TUM_NAL_REC_COMPLETE_RES_MAX_SIZE},
    {"rec_sess_req", size_of<tum_nal_data_gpb_encode_tum_rec_sess_req>, TUM_NAL_REC_SESS_REQ_MAX_SIZE},
    {"rec_sess_res", size_of<tum_nal_data_gpb_encode_tum_rec_sess_res>, TUM_NAL_REC_SESS_RES_MAX_SIZE},
    {"rec_sess_replay_req", size_of<tum_nal_data_gpb_encode_tum_rec_sess_replay_req>,
        TUM_NAL_REC_SESS_REPLAY_REQ_MAX_SIZE},
    {"rec_sess_replay_resp", size_of<tum_nal_data_gpb_encode_tum_rec_sess_replay_resp>,
        TUM_NAL_REC_SESS_REPLAY_RESP_MAX_SIZE},
    {"srg_group_rec_start_req", size_of<tum_nal_data_gpb_encode_tum_srg_group_rec_start_req>,
        TUM_NAL_SRG_GROUP_REC_START_REQ_MAX_SIZE},
    {"srg_group_rec_resp", size_of<tum_nal_data_gpb_encode_tum_srg_group_rec_resp>,
        TUM_NAL_SRG_GROUP_REC_RESP_MAX_SIZE},
    {"srg_group_rec_complete_req", size_of<tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req>,
        TUM_NAL_SRG_GROUP_REC_COMPLETE_REQ_MAX_SIZE},
    {"srg_group_rec_replay_req", size_of<tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req>,
        TUM_NAL_SRG_GROUP_REC_REPLAY_REQ_MAX_SIZE},
    {"srg_group_rec_replay_resp", size_of<tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp>,
        TUM_NAL_SRG_GROUP_REC_REPLAY_RESP_MAX_SIZE},
};

// ---- records ----

// Calls `visit` with each member that has a content of its own and the place where it stands, those of parts and of all
// elements of lists too. A list of texts is as many texts.
template <class visitor>
void for_each_leaf(const application_layout &layout, uint8_t *record, const visitor &visit)
{
    for_each_slot(layout, [&](const slot &member, uint32_t offset) {
        const uint32_t elements = member.kind == slot_kind::list ? member.slots : 1;
        const uint32_t stride = extent_of(member).bytes / elements;
        for (uint32_t index = 0; index < elements; ++index) {
            uint8_t *const at = record + offset + index * stride;
            if (member.element == nullptr)
                visit(member, at);
            else
                for_each_leaf(*member.element, at, visit);
        }
        return true;
    });
}

// All bits of every number, all slots of every list, texts that leave room for nothing but their NUL.
void fill(const slot &member, uint8_t *at)
{
    switch (member.kind) {
    case slot_kind::text:
    case slot_kind::list: // of texts
        std::memset(at, 'x', member.bytes - 1);
        break;
    case slot_kind::count:
        store_number(at, member.slots, member.bytes);
        break;
    default:
        std::memset(at, 0xFF, member.bytes);
    }
}

// What a number selects by its value, as the kind of a session does, may be worth more than its own bytes.
uint64_t try_small_numbers(const sized_adapter &tested, const uint8_t *record, const slot &member, uint8_t *at)
{
    uint64_t largest = tested.size(record);
    for (uint64_t number = 0; number < 16; ++number) {
        const uint64_t before = load_number(at, member.bytes);
        store_number(at, number, member.bytes);
        const uint64_t size = tested.size(record);
        if (size > largest)
            largest = size;
        else
            store_number(at, before, member.bytes);
    }
    return largest;
}

uint64_t largest_size(const sized_adapter &tested)
{
    const application_layout &layout = *sent_layout(tested.name);
    std::vector<uint64_t> memory(layout.extent.bytes / sizeof(uint64_t) + 1);
    auto *const record = reinterpret_cast<uint8_t *>(memory.data());
    for_each_leaf(layout, record, fill);
    uint64_t largest = tested.size(record);
    for_each_leaf(layout, record, [&](const slot &member, uint8_t *at) {
        if (member.kind == slot_kind::number)
            largest = try_small_numbers(tested, record, member, at);
    });
    return largest;
}

TEST(adapter_sizes, the_largest_message_has_the_size_that_its_header_gives)
{
    for (const sized_adapter &tested : adapters)
        EXPECT_EQ(largest_size(tested), tested.max_size) << tested.name;
}

} // namespace

} // namespace mava_tum_model
