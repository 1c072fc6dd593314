// Application records to and from wire bytes, with the adapters of tum_nal/; generated from their headers by
// bindings/cpp/make_cpp_layer.
//
//     tum_nal_data_session_context session{};
//     const std::vector<std::uint8_t> wire = tum::encode(session);
//     const auto received = tum::decode<tum_nal_data_session_context>(wire);
//
// An adapter reports no fault: adapter_contract.h. Change the headers or the generator, not this file.
#ifndef MAVA_TUM_CPP_ADAPTERS_HPP
#define MAVA_TUM_CPP_ADAPTERS_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/encoding.hpp"
#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"
#include "tum_nal/nal_routes.h"
#include "tum_nal/nal_session.h"
#include "tum_nal/nal_session_context.h"
#include "tum_nal/nal_statistics.h"

#include <algorithm>
#include <cstring>

namespace mava_tum::cpp
{

// What the layer knows of an application record: its adapters, and the bytes of the largest message. A record with the
// adapters of two messages has those of one: they do the same.
template <class Record>
struct adapter_of;

template <>
struct adapter_of<tum_nal_data_session_context> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_session_context;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_session_context;
    static constexpr std::size_t max_size = TUM_NAL_SESSION_CONTEXT_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_session_delete> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_session_delete;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_session_delete;
    static constexpr std::size_t max_size = TUM_NAL_SESSION_DELETE_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_sess_oper_resp> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_sess_oper_resp;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_sess_oper_resp;
    static constexpr std::size_t max_size = TUM_NAL_SESS_OPER_RESP_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_subscriber_stats> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_subscriber_stats;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_subscriber_stats;
    static constexpr std::size_t max_size = TUM_NAL_SUBSCRIBER_STATS_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_sub_route> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_sub_route;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_sub_route;
    static constexpr std::size_t max_size = TUM_NAL_SUB_ROUTE_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_subscriber_route_resp> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_subscriber_route_resp;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_subscriber_route_resp;
    static constexpr std::size_t max_size = TUM_NAL_SUBSCRIBER_ROUTE_RESP_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_rec_start_req> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_start_req;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_start_req;
    static constexpr std::size_t max_size = TUM_NAL_REC_START_REQ_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_rec_complete_req> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_complete_req;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_complete_req;
    static constexpr std::size_t max_size = TUM_NAL_REC_COMPLETE_REQ_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_rec_res> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_start_res;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_start_res;
    static constexpr std::size_t max_size = TUM_NAL_REC_START_RES_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_rec_sess_req> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_sess_req;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_sess_req;
    static constexpr std::size_t max_size = TUM_NAL_REC_SESS_REQ_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_rec_sess_res> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_sess_res;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_sess_res;
    static constexpr std::size_t max_size = TUM_NAL_REC_SESS_RES_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_rec_sess_replay_req_decode> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_sess_replay_req;
};

template <>
struct adapter_of<tum_nal_data_rec_sess_replay_req_encode> {
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_sess_replay_req;
    static constexpr std::size_t max_size = TUM_NAL_REC_SESS_REPLAY_REQ_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_rec_sess_replay_resp> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_rec_sess_replay_resp;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_rec_sess_replay_resp;
    static constexpr std::size_t max_size = TUM_NAL_REC_SESS_REPLAY_RESP_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_srg_group_rec_start_req> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_start_req;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_start_req;
    static constexpr std::size_t max_size = TUM_NAL_SRG_GROUP_REC_START_REQ_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_srg_group_rec_resp> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_resp;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_resp;
    static constexpr std::size_t max_size = TUM_NAL_SRG_GROUP_REC_RESP_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_srg_group_rec_complete_req> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_complete_req;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_complete_req;
    static constexpr std::size_t max_size = TUM_NAL_SRG_GROUP_REC_COMPLETE_REQ_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_srg_group_rec_replay_req> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req;
    static constexpr std::size_t max_size = TUM_NAL_SRG_GROUP_REC_REPLAY_REQ_MAX_SIZE;
};

template <>
struct adapter_of<tum_nal_data_srg_group_rec_replay_resp> {
    static constexpr auto decode = tum_nal_data_gpb_decode_tum_srg_group_rec_replay_resp;
    static constexpr auto encode = tum_nal_data_gpb_encode_tum_srg_group_rec_replay_resp;
    static constexpr std::size_t max_size = TUM_NAL_SRG_GROUP_REC_REPLAY_RESP_MAX_SIZE;
};

// As much of `size` as an adapter can be told of.
inline std::uint32_t within_32_bits(std::size_t size) noexcept
{
    return static_cast<std::uint32_t>(std::min<std::uint64_t>(size, UINT32_MAX));
}

// Allocates nothing. `buffer` must not overlap `record`.
template <class Record, auto adapter = adapter_of<Record>::encode>
encoded encode(const Record &record, span<std::uint8_t> buffer) noexcept
{
    const std::uint64_t size = adapter(&record, buffer.data(), within_32_bits(buffer.size()));
    return {size, size <= buffer.size()};
}

// Gives `container`, of bytes of any type, exactly the message; what it held before is gone. Needs a stack for the
// largest message.
template <class Record, class Container, auto adapter = adapter_of<Record>::encode>
void encode_to(const Record &record, Container &container)
{
    std::array<std::uint8_t, adapter_of<Record>::max_size> buffer;
    const auto size = static_cast<std::size_t>(encode(record, buffer).size);
    container.resize(size);
    if (size != 0)
        std::memcpy(container.data(), buffer.data(), size);
}

// The message in a vector of its own.
template <class Record, auto adapter = adapter_of<Record>::encode>
std::vector<std::uint8_t> encode(const Record &record)
{
    std::vector<std::uint8_t> wire;
    encode_to(record, wire);
    return wire;
}

// Overwrites `record` completely.
template <class Record, auto adapter = adapter_of<Record>::decode>
void decode(bytes_argument wire, Record &record) noexcept
{
    adapter(wire.data(), within_32_bits(wire.size()), &record);
}

// The same, for a record that is named by its type alone.
template <class Record, auto adapter = adapter_of<Record>::decode>
Record decode(bytes_argument wire) noexcept
{
    Record record;
    adapter(wire.data(), within_32_bits(wire.size()), &record);
    return record;
}

} // namespace mava_tum::cpp

#endif
