#include "adapters.h"

#include "check_adapter.h"
#include "mava_tum.h"

#include <cstring>

namespace mava_tum_fuzz
{

namespace
{

// A function with the record's own type, as one that takes any record.
template <auto function, class record_type>
uint64_t encode_any(const void *record, uint8_t *buffer, uint32_t capacity)
{
    return function(static_cast<const record_type *>(record), buffer, capacity);
}

template <auto function, class record_type>
void decode_any(const uint8_t *data, uint32_t length, void *record)
{
    function(data, length, static_cast<record_type *>(record));
}

template <class sent_type, class received_type, auto encode, auto decode>
constexpr adapter entry(const char *name, const char *message, void (*to_sent)(void *, const void *) = nullptr)
{
    return {name, message, sizeof(sent_type), sizeof(received_type), encode_any<encode, sent_type>,
        decode_any<decode, received_type>, to_sent};
}

// A replay request is received in another layout than it is sent from.
void replay_to_sent(void *sent, const void *received)
{
    using sent_type = tum_nal_data_rec_sess_replay_req_encode;
    const auto &from = *static_cast<const tum_nal_data_rec_sess_replay_req_decode *>(received);
    std::memset(sent, 0, sizeof(sent_type));
    sent_type &to = *static_cast<sent_type *>(sent);
    to.field_1 = from.field_1;
    to.field_2 = from.field_2;
    to.field_3 = from.field_3;
    to.field_4_count = from.field_4_count;
    std::memcpy(&to.field_4, &from.field_4, sizeof to.field_4);
    to.field_5 = from.field_5;
    std::memcpy(to.field_6, from.field_6, sizeof to.field_6);
}

constexpr adapter adapters[] = {
    entry<tum_nal_data_session_context, tum_nal_data_session_context, tum_nal_data_gpb_encode_tum_session_context,
        tum_nal_data_gpb_decode_tum_session_context>("session_context", "session_context"),
    entry<tum_nal_data_session_delete, tum_nal_data_session_delete, tum_nal_data_gpb_encode_tum_session_delete,
        tum_nal_data_gpb_decode_tum_session_delete>("session_delete", "session_delete"),
    entry<tum_nal_data_sess_oper_resp, tum_nal_data_sess_oper_resp, tum_nal_data_gpb_encode_tum_sess_oper_resp,
        tum_nal_data_gpb_decode_tum_sess_oper_resp>("sess_oper_resp", "sess_oper_resp"),
    entry<tum_nal_data_subscriber_stats, tum_nal_data_subscriber_stats, tum_nal_data_gpb_encode_tum_subscriber_stats,
        tum_nal_data_gpb_decode_tum_subscriber_stats>("subscriber_stats", "subscriber_stats"),
    entry<tum_nal_data_sub_route, tum_nal_data_sub_route, tum_nal_data_gpb_encode_tum_sub_route,
        tum_nal_data_gpb_decode_tum_sub_route>("sub_route", "sub_route"),
    entry<tum_nal_data_subscriber_route_resp, tum_nal_data_subscriber_route_resp,
        tum_nal_data_gpb_encode_tum_subscriber_route_resp, tum_nal_data_gpb_decode_tum_subscriber_route_resp>(
        "subscriber_route_resp", "subscriber_route_resp"),
    entry<tum_nal_data_rec_start_req, tum_nal_data_rec_start_req, tum_nal_data_gpb_encode_tum_rec_start_req,
        tum_nal_data_gpb_decode_tum_rec_start_req>("rec_start_req", "rec_start_req"),
    entry<tum_nal_data_rec_res, tum_nal_data_rec_res, tum_nal_data_gpb_encode_tum_rec_start_res,
        tum_nal_data_gpb_decode_tum_rec_start_res>("rec_start_res", "rec_resp"),
    entry<tum_nal_data_rec_complete_req, tum_nal_data_rec_complete_req, tum_nal_data_gpb_encode_tum_rec_complete_req,
        tum_nal_data_gpb_decode_tum_rec_complete_req>("rec_complete_req", "rec_complete_req"),
    entry<tum_nal_data_rec_res, tum_nal_data_rec_res, tum_nal_data_gpb_encode_tum_rec_complete_res,
        tum_nal_data_gpb_decode_tum_rec_complete_res>("rec_complete_res", "rec_resp"),
    entry<tum_nal_data_rec_sess_req, tum_nal_data_rec_sess_req, tum_nal_data_gpb_encode_tum_rec_sess_req,
        tum_nal_data_gpb_decode_tum_rec_sess_req>("rec_sess_req", "rec_sess_req"),
    entry<tum_nal_data_rec_sess_res, tum_nal_data_rec_sess_res, tum_nal_data_gpb_encode_tum_rec_sess_res,
        tum_nal_data_gpb_decode_tum_rec_sess_res>("rec_sess_res", "rec_sess_resp"),
    entry<tum_nal_data_rec_sess_replay_req_encode, tum_nal_data_rec_sess_replay_req_decode,
        tum_nal_data_gpb_encode_tum_rec_sess_replay_req, tum_nal_data_gpb_decode_tum_rec_sess_replay_req>(
        "rec_sess_replay_req", "rec_sess_replay_req", replay_to_sent),
    entry<tum_nal_data_rec_sess_replay_resp, tum_nal_data_rec_sess_replay_resp,
        tum_nal_data_gpb_encode_tum_rec_sess_replay_resp, tum_nal_data_gpb_decode_tum_rec_sess_replay_resp>(
        "rec_sess_replay_resp", "rec_sess_replay_resp"),
    entry<tum_nal_data_srg_group_rec_start_req, tum_nal_data_srg_group_rec_start_req,
        tum_nal_data_gpb_encode_tum_srg_group_rec_start_req, tum_nal_data_gpb_decode_tum_srg_group_rec_start_req>(
        "srg_group_rec_start_req", "srg_group_rec_start_req"),
    entry<tum_nal_data_srg_group_rec_resp, tum_nal_data_srg_group_rec_resp,
        tum_nal_data_gpb_encode_tum_srg_group_rec_resp, tum_nal_data_gpb_decode_tum_srg_group_rec_resp>(
        "srg_group_rec_resp", "srg_group_rec_resp"),
    entry<tum_nal_data_srg_group_rec_complete_req, tum_nal_data_srg_group_rec_complete_req,
        tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req, tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req>(
        "srg_group_rec_complete_req", "srg_group_rec_complete_req"),
    entry<tum_nal_data_srg_group_rec_replay_req, tum_nal_data_srg_group_rec_replay_req,
        tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req, tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req>(
        "srg_group_rec_replay_req", "srg_group_rec_replay_req"),
    entry<tum_nal_data_srg_group_rec_replay_resp, tum_nal_data_srg_group_rec_replay_resp,
        tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp, tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp>(
        "srg_group_rec_replay_resp", "srg_group_rec_replay_resp"),
};

static_assert(sizeof adapters / sizeof adapters[0] == adapter_count);

} // namespace

const adapter &adapter_at(std::size_t index)
{
    return adapters[index];
}

} // namespace mava_tum_fuzz
