#include "inspect/message_table.h"

#include "inspect/describe_record.h"
#include "messages/feature_records_schema.h"
#include "messages/reconciliation_schema.h"
#include "messages/redundancy_group_schema.h"
#include "messages/routes_schema.h"
#include "messages/session_messages_schema.h"
#include "messages/statistics_schema.h"
#include "messages/subscriber_records_schema.h"

#include <array>
#include <type_traits>

namespace mava_tum_inspect
{

namespace
{

// Which functions belong to which record: the one thing that the field lists do not say.
template <class Record, auto Decode, auto Encode, auto Duplicate, auto Free>
struct message_row {
    using record = Record;

    static message_description describe()
    {
        return describe_record<Record, Decode, Encode, Duplicate, Free>();
    }
};

template <class... Row>
struct message_rows {
};

using all_rows = message_rows<
    message_row<mava_tum_subscriber_v4, mava_tum_subscriber_v4_decode_ext, mava_tum_subscriber_v4_encode_ext,
        mava_tum_subscriber_v4_duplicate, mava_tum_subscriber_v4_free_ext>,
    message_row<mava_tum_subscriber_v6, mava_tum_subscriber_v6_decode_ext, mava_tum_subscriber_v6_encode_ext,
        mava_tum_subscriber_v6_duplicate, mava_tum_subscriber_v6_free_ext>,
    message_row<mava_tum_ppp_data, mava_tum_ppp_data_decode_ext, mava_tum_ppp_data_encode_ext,
        mava_tum_ppp_data_duplicate, mava_tum_ppp_data_free_ext>,
    message_row<mava_tum_l2tp_data, mava_tum_l2tp_data_decode_ext, mava_tum_l2tp_data_encode_ext,
        mava_tum_l2tp_data_duplicate, mava_tum_l2tp_data_free_ext>,
    message_row<mava_tum_vlan_info, mava_tum_vlan_info_decode_ext, mava_tum_vlan_info_encode_ext,
        mava_tum_vlan_info_duplicate, mava_tum_vlan_info_free_ext>,
    message_row<mava_tum_session_data, mava_tum_session_data_decode_ext, mava_tum_session_data_encode_ext,
        mava_tum_session_data_duplicate, mava_tum_session_data_free_ext>,
    message_row<mava_tum_subscriber_qos, mava_tum_subscriber_qos_decode_ext, mava_tum_subscriber_qos_encode_ext,
        mava_tum_subscriber_qos_duplicate, mava_tum_subscriber_qos_free_ext>,
    message_row<mava_tum_subscriber_acl, mava_tum_subscriber_acl_decode_ext, mava_tum_subscriber_acl_encode_ext,
        mava_tum_subscriber_acl_duplicate, mava_tum_subscriber_acl_free_ext>,
    message_row<mava_tum_subscriber_httpr, mava_tum_subscriber_httpr_decode_ext, mava_tum_subscriber_httpr_encode_ext,
        mava_tum_subscriber_httpr_duplicate, mava_tum_subscriber_httpr_free_ext>,
    message_row<mava_tum_subscriber_li, mava_tum_subscriber_li_decode_ext, mava_tum_subscriber_li_encode_ext,
        mava_tum_subscriber_li_duplicate, mava_tum_subscriber_li_free_ext>,
    message_row<mava_tum_subscriber_urpf, mava_tum_subscriber_urpf_decode_ext, mava_tum_subscriber_urpf_encode_ext,
        mava_tum_subscriber_urpf_duplicate, mava_tum_subscriber_urpf_free_ext>,
    message_row<mava_tum_subscriber_icmp, mava_tum_subscriber_icmp_decode_ext, mava_tum_subscriber_icmp_encode_ext,
        mava_tum_subscriber_icmp_duplicate, mava_tum_subscriber_icmp_free_ext>,
    message_row<mava_tum_subscriber_mtu, mava_tum_subscriber_mtu_decode_ext, mava_tum_subscriber_mtu_encode_ext,
        mava_tum_subscriber_mtu_duplicate, mava_tum_subscriber_mtu_free_ext>,
    message_row<mava_tum_subscriber_acct, mava_tum_subscriber_acct_decode_ext, mava_tum_subscriber_acct_encode_ext,
        mava_tum_subscriber_acct_duplicate, mava_tum_subscriber_acct_free_ext>,
    message_row<mava_tum_subscriber_route_ipv4, mava_tum_subscriber_route_ipv4_decode_ext,
        mava_tum_subscriber_route_ipv4_encode_ext, mava_tum_subscriber_route_ipv4_duplicate,
        mava_tum_subscriber_route_ipv4_free_ext>,
    message_row<mava_tum_subscriber_route_ipv6, mava_tum_subscriber_route_ipv6_decode_ext,
        mava_tum_subscriber_route_ipv6_encode_ext, mava_tum_subscriber_route_ipv6_duplicate,
        mava_tum_subscriber_route_ipv6_free_ext>,
    message_row<mava_tum_session_context, mava_tum_session_context_decode_ext, mava_tum_session_context_encode_ext,
        mava_tum_session_context_duplicate, mava_tum_session_context_free_ext>,
    message_row<mava_tum_session_delete, mava_tum_session_delete_decode_ext, mava_tum_session_delete_encode_ext,
        mava_tum_session_delete_duplicate, mava_tum_session_delete_free_ext>,
    message_row<mava_tum_sess_oper_resp, mava_tum_sess_oper_resp_decode_ext, mava_tum_sess_oper_resp_encode_ext,
        mava_tum_sess_oper_resp_duplicate, mava_tum_sess_oper_resp_free_ext>,
    message_row<mava_tum_stats, mava_tum_stats_decode_ext, mava_tum_stats_encode_ext, mava_tum_stats_duplicate,
        mava_tum_stats_free_ext>,
    message_row<mava_tum_service_stats, mava_tum_service_stats_decode_ext, mava_tum_service_stats_encode_ext,
        mava_tum_service_stats_duplicate, mava_tum_service_stats_free_ext>,
    message_row<mava_tum_subscriber_stats, mava_tum_subscriber_stats_decode_ext, mava_tum_subscriber_stats_encode_ext,
        mava_tum_subscriber_stats_duplicate, mava_tum_subscriber_stats_free_ext>,
    message_row<mava_tum_sub_route, mava_tum_sub_route_decode_ext, mava_tum_sub_route_encode_ext,
        mava_tum_sub_route_duplicate, mava_tum_sub_route_free_ext>,
    message_row<mava_tum_subscriber_route_resp, mava_tum_subscriber_route_resp_decode_ext,
        mava_tum_subscriber_route_resp_encode_ext, mava_tum_subscriber_route_resp_duplicate,
        mava_tum_subscriber_route_resp_free_ext>,
    message_row<mava_tum_rec_start_req, mava_tum_rec_start_req_decode_ext, mava_tum_rec_start_req_encode_ext,
        mava_tum_rec_start_req_duplicate, mava_tum_rec_start_req_free_ext>,
    message_row<mava_tum_rec_complete_req, mava_tum_rec_complete_req_decode_ext, mava_tum_rec_complete_req_encode_ext,
        mava_tum_rec_complete_req_duplicate, mava_tum_rec_complete_req_free_ext>,
    message_row<mava_tum_rec_resp, mava_tum_rec_resp_decode_ext, mava_tum_rec_resp_encode_ext,
        mava_tum_rec_resp_duplicate, mava_tum_rec_resp_free_ext>,
    message_row<mava_tum_rec_session_state, mava_tum_rec_session_state_decode_ext,
        mava_tum_rec_session_state_encode_ext, mava_tum_rec_session_state_duplicate,
        mava_tum_rec_session_state_free_ext>,
    message_row<mava_tum_rec_sess_req, mava_tum_rec_sess_req_decode_ext, mava_tum_rec_sess_req_encode_ext,
        mava_tum_rec_sess_req_duplicate, mava_tum_rec_sess_req_free_ext>,
    message_row<mava_tum_rec_sess_resp, mava_tum_rec_sess_resp_decode_ext, mava_tum_rec_sess_resp_encode_ext,
        mava_tum_rec_sess_resp_duplicate, mava_tum_rec_sess_resp_free_ext>,
    message_row<mava_tum_rec_sess_replay_req, mava_tum_rec_sess_replay_req_decode_ext,
        mava_tum_rec_sess_replay_req_encode_ext, mava_tum_rec_sess_replay_req_duplicate,
        mava_tum_rec_sess_replay_req_free_ext>,
    message_row<mava_tum_rec_sess_replay_fail, mava_tum_rec_sess_replay_fail_decode_ext,
        mava_tum_rec_sess_replay_fail_encode_ext, mava_tum_rec_sess_replay_fail_duplicate,
        mava_tum_rec_sess_replay_fail_free_ext>,
    message_row<mava_tum_rec_sess_replay_resp, mava_tum_rec_sess_replay_resp_decode_ext,
        mava_tum_rec_sess_replay_resp_encode_ext, mava_tum_rec_sess_replay_resp_duplicate,
        mava_tum_rec_sess_replay_resp_free_ext>,
    message_row<mava_tum_sess_svc_start, mava_tum_sess_svc_start_decode_ext, mava_tum_sess_svc_start_encode_ext,
        mava_tum_sess_svc_start_duplicate, mava_tum_sess_svc_start_free_ext>,
    message_row<mava_tum_srg_group_rec_start_req, mava_tum_srg_group_rec_start_req_decode_ext,
        mava_tum_srg_group_rec_start_req_encode_ext, mava_tum_srg_group_rec_start_req_duplicate,
        mava_tum_srg_group_rec_start_req_free_ext>,
    message_row<mava_tum_srg_group_rec_resp, mava_tum_srg_group_rec_resp_decode_ext,
        mava_tum_srg_group_rec_resp_encode_ext, mava_tum_srg_group_rec_resp_duplicate,
        mava_tum_srg_group_rec_resp_free_ext>,
    message_row<mava_tum_srg_group_rec_complete_req, mava_tum_srg_group_rec_complete_req_decode_ext,
        mava_tum_srg_group_rec_complete_req_encode_ext, mava_tum_srg_group_rec_complete_req_duplicate,
        mava_tum_srg_group_rec_complete_req_free_ext>,
    message_row<mava_tum_srg_group_data, mava_tum_srg_group_data_decode_ext, mava_tum_srg_group_data_encode_ext,
        mava_tum_srg_group_data_duplicate, mava_tum_srg_group_data_free_ext>,
    message_row<mava_tum_srg_group_rec_replay_req, mava_tum_srg_group_rec_replay_req_decode_ext,
        mava_tum_srg_group_rec_replay_req_encode_ext, mava_tum_srg_group_rec_replay_req_duplicate,
        mava_tum_srg_group_rec_replay_req_free_ext>,
    message_row<mava_tum_srg_group_rec_replay_resp, mava_tum_srg_group_rec_replay_resp_decode_ext,
        mava_tum_srg_group_rec_replay_resp_encode_ext, mava_tum_srg_group_rec_replay_resp_duplicate,
        mava_tum_srg_group_rec_replay_resp_free_ext>>;

template <class... Row>
constexpr std::size_t count_rows(message_rows<Row...>)
{
    return sizeof...(Row);
}

template <class Record, class... Row>
constexpr std::size_t row_of(message_rows<Row...>)
{
    std::size_t before = 0;
    const bool is_found = ((std::is_same_v<Record, typename Row::record> || (++before, false)) || ...);
    return is_found ? before : sizeof...(Row);
}

constexpr std::size_t message_count = count_rows(all_rows{});

// Descriptions point at each other, so all have their place before the first is filled.
constinit std::array<message_description, message_count> table{};

template <class... Row>
bool fill_table(message_rows<Row...>)
{
    std::size_t next = 0;
    ((table[next++] = Row::describe()), ...);
    return true;
}

} // namespace

template <class Record>
const message_description *description_of()
{
    constexpr std::size_t row = row_of<Record>(all_rows{});
    static_assert(row < message_count, "every nested record is a message of its own");
    return &table[row];
}

std::span<const message_description> all_messages()
{
    [[maybe_unused]] static const bool is_filled = fill_table(all_rows{});
    return table;
}

const message_description *find_message(std::string_view name)
{
    for (const message_description &message : all_messages())
        if (message.name == name)
            return &message;
    return nullptr;
}

const field_description *find_field(const message_description &message, uint32_t number)
{
    return number >= 1 && number <= message.fields.size() ? &message.fields[number - 1] : nullptr;
}

const field_description *find_field(const message_description &message, std::string_view name)
{
    for (const field_description &field : message.fields)
        if (field.name == name)
            return &field;
    return nullptr;
}

const char *kind_name(field_kind kind)
{
    switch (kind) {
    case field_kind::varint:
        return "varint";
    case field_kind::fixed32:
        return "fixed32";
    case field_kind::bytes:
        return "bytes";
    case field_kind::text:
        return "text";
    case field_kind::record:
        return "record";
    case field_kind::record_array:
        return "array of records";
    case field_kind::text_array:
        return "array of texts";
    }
    return "";
}

uint32_t wire_type_number(field_kind kind)
{
    if (kind == field_kind::varint)
        return static_cast<uint32_t>(mava_tum::wire_type::varint);
    if (kind == field_kind::fixed32)
        return static_cast<uint32_t>(mava_tum::wire_type::fixed32);
    return static_cast<uint32_t>(mava_tum::wire_type::length_delimited);
}

} // namespace mava_tum_inspect
