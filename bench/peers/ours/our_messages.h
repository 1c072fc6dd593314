// The library's messages that are measured: for each, its types and functions under names they share, so that the
// operations are written once.
#ifndef MAVA_TUM_BENCH_OUR_MESSAGES_H
#define MAVA_TUM_BENCH_OUR_MESSAGES_H

#include "mava_tum.h"

namespace bench
{

struct our_allocator {
    mava_tum_alloc_fn allocate;
    mava_tum_release_fn release;
    void *context;
};

// Messages without bytes fields have no flags, messages without texts and arrays no allocator: what a function does not
// take is left out.
template <class Record, auto Decode, auto Encode, auto Duplicate, auto Free>
struct our_codec {
    using record = Record;

    static int32_t decode(
        Record &record, const uint8_t *data, uint64_t length, const our_allocator &allocator, uint32_t flags)
    {
        if constexpr (requires { Decode(&record, data, length, allocator.allocate, allocator.context, flags); })
            return Decode(&record, data, length, allocator.allocate, allocator.context, flags);
        else if constexpr (requires { Decode(&record, data, length, allocator.allocate, allocator.context); })
            return Decode(&record, data, length, allocator.allocate, allocator.context);
        else
            return Decode(&record, data, length);
    }

    static uint64_t encode(const Record &record, uint8_t *buffer, uint64_t capacity)
    {
        if constexpr (requires { Encode(&record, buffer, capacity, nullptr, nullptr, 0); })
            return Encode(&record, buffer, capacity, nullptr, nullptr, 0);
        else
            return Encode(&record, buffer, capacity, nullptr, nullptr);
    }

    static int32_t duplicate(Record &copy, const Record &record, const our_allocator &allocator)
    {
        if constexpr (requires { Duplicate(&copy, &record, allocator.allocate, allocator.context); })
            return Duplicate(&copy, &record, allocator.allocate, allocator.context);
        else
            return Duplicate(&copy, &record);
    }

    static void free(Record &record, const our_allocator &allocator, uint32_t flags)
    {
        if constexpr (requires { Free(&record, allocator.release, allocator.context, flags); })
            Free(&record, allocator.release, allocator.context, flags);
        else if constexpr (requires { Free(&record, allocator.release, allocator.context); })
            Free(&record, allocator.release, allocator.context);
        else
            Free(&record);
    }
};

using session_codec = our_codec<mava_tum_session_context, mava_tum_session_context_decode_ext,
    mava_tum_session_context_encode_ext, mava_tum_session_context_duplicate, mava_tum_session_context_free_ext>;
using routes_codec = our_codec<mava_tum_sub_route, mava_tum_sub_route_decode_ext, mava_tum_sub_route_encode_ext,
    mava_tum_sub_route_duplicate, mava_tum_sub_route_free_ext>;
using stats_codec = our_codec<mava_tum_subscriber_stats, mava_tum_subscriber_stats_decode_ext,
    mava_tum_subscriber_stats_encode_ext, mava_tum_subscriber_stats_duplicate, mava_tum_subscriber_stats_free_ext>;
using states_codec = our_codec<mava_tum_rec_sess_req, mava_tum_rec_sess_req_decode_ext,
    mava_tum_rec_sess_req_encode_ext, mava_tum_rec_sess_req_duplicate, mava_tum_rec_sess_req_free_ext>;
using replay_codec = our_codec<mava_tum_rec_sess_replay_req, mava_tum_rec_sess_replay_req_decode_ext,
    mava_tum_rec_sess_replay_req_encode_ext, mava_tum_rec_sess_replay_req_duplicate,
    mava_tum_rec_sess_replay_req_free_ext>;
using group_start_codec = our_codec<mava_tum_srg_group_rec_start_req, mava_tum_srg_group_rec_start_req_decode_ext,
    mava_tum_srg_group_rec_start_req_encode_ext, mava_tum_srg_group_rec_start_req_duplicate,
    mava_tum_srg_group_rec_start_req_free_ext>;

template <class Application, auto Encode, auto Decode>
struct our_adapter {
    using application = Application;
    static constexpr auto encode = Encode;
    static constexpr auto decode = Decode;
};

using session_adapter = our_adapter<tum_nal_data_session_context, tum_nal_data_gpb_encode_tum_session_context,
    tum_nal_data_gpb_decode_tum_session_context>;
using routes_adapter =
    our_adapter<tum_nal_data_sub_route, tum_nal_data_gpb_encode_tum_sub_route, tum_nal_data_gpb_decode_tum_sub_route>;
using stats_adapter = our_adapter<tum_nal_data_subscriber_stats, tum_nal_data_gpb_encode_tum_subscriber_stats,
    tum_nal_data_gpb_decode_tum_subscriber_stats>;
using states_adapter = our_adapter<tum_nal_data_rec_sess_req, tum_nal_data_gpb_encode_tum_rec_sess_req,
    tum_nal_data_gpb_decode_tum_rec_sess_req>;
using group_start_adapter = our_adapter<tum_nal_data_srg_group_rec_start_req,
    tum_nal_data_gpb_encode_tum_srg_group_rec_start_req, tum_nal_data_gpb_decode_tum_srg_group_rec_start_req>;

} // namespace bench

#endif
