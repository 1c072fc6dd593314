#include "inspect/limits/adapter_limits.h"

#include "inspect/limits/limits_reconciliation.h"
#include "inspect/limits/limits_redundancy_group.h"
#include "inspect/limits/limits_routes.h"
#include "inspect/limits/limits_session.h"
#include "inspect/limits/limits_session_context.h"
#include "inspect/limits/limits_statistics.h"

namespace mava_tum_inspect
{

namespace
{

template <auto Decode>
constexpr std::string_view adapter_name_view = text_behind(argument_text<Decode>(), "decode_tum_");

template <auto Decode>
constexpr auto adapter_name = terminated<adapter_name_view<Decode>.size()>(adapter_name_view<Decode>);

// Of a decode adapter, the record that it writes.
template <auto Decode>
struct decoded_by;

template <class Record, void (*Decode)(const uint8_t *, uint32_t, Record *)>
struct decoded_by<Decode> {
    using record = Record;
};

template <auto Decode, class Limits>
adapter_description adapter()
{
    using record = typename decoded_by<Decode>::record;
    using wire = typename Limits::wire;
    return {adapter_name<Decode>.data(), find_message(message_name<wire>::name), sizeof(record), limits_of<Limits>(),
        [](const uint8_t *data, uint32_t length, void *decoded) {
            Decode(data, length, static_cast<record *>(decoded));
        }};
}

bool carries_alone(const adapter_description &adapter)
{
    std::size_t carriers = 0;
    for (const adapter_description &other : all_adapters())
        carriers += other.message == adapter.message ? 1 : 0;
    return carriers == 1;
}

} // namespace

std::span<const adapter_description> all_adapters()
{
    static const adapter_description adapters[] = {
        adapter<tum_nal_data_gpb_decode_tum_session_context, session_context_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_session_delete, session_delete_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_sess_oper_resp, sess_oper_resp_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_subscriber_stats, subscriber_stats_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_sub_route, sub_route_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_subscriber_route_resp, subscriber_route_resp_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_rec_start_req, rec_start_req_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_rec_start_res, rec_res_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_rec_complete_req, rec_complete_req_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_rec_complete_res, rec_res_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_rec_sess_req, rec_sess_req_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_rec_sess_res, rec_sess_res_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_rec_sess_replay_req, rec_sess_replay_req_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_rec_sess_replay_resp, rec_sess_replay_resp_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_srg_group_rec_start_req, srg_group_rec_start_req_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_srg_group_rec_resp, srg_group_rec_resp_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req, srg_group_rec_complete_req_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req, srg_group_rec_replay_req_limits>(),
        adapter<tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp, srg_group_rec_replay_resp_limits>(),
    };
    return adapters;
}

const adapter_description *find_adapter(std::string_view name)
{
    for (const adapter_description &adapter : all_adapters())
        if (adapter.name == name)
            return &adapter;
    for (const adapter_description &adapter : all_adapters())
        if (adapter.message->name == name && carries_alone(adapter))
            return &adapter;
    return nullptr;
}

const member_limit *find_limit(std::span<const member_limit> members, uint32_t number)
{
    for (const member_limit &member : members)
        if (member.number == number)
            return &member;
    return nullptr;
}

} // namespace mava_tum_inspect
