// The measured messages: types and functions of each under common names, so that the operations are written once.
#ifndef MAVA_TUM_BENCH_OUR_MESSAGES_H
#define MAVA_TUM_BENCH_OUR_MESSAGES_H

#include "catalogue.h"
#include "mava_tum/cpp/codec_calls.hpp"

namespace bench
{

using mava_tum::cpp::call_codec;

struct our_allocator {
    mava_tum_alloc_fn allocate;
    mava_tum_release_fn release;
    void *context;
};

template <class Record>
struct our_codec {
    using record = Record;
    using row = mava_tum_catalogue::message_row<Record>;

    static int32_t decode(
        Record &record, const uint8_t *data, uint64_t length, const our_allocator &allocator, uint32_t flags)
    {
        return call_codec(row::decode, &record, data, length, allocator.allocate, allocator.context, flags);
    }

    static uint64_t encode(const Record &record, uint8_t *buffer, uint64_t capacity)
    {
        return call_codec(row::encode, &record, buffer, capacity, nullptr, nullptr, uint32_t{0});
    }

    static int32_t duplicate(Record &copy, const Record &record, const our_allocator &allocator)
    {
        return call_codec(row::duplicate, &copy, &record, allocator.allocate, allocator.context);
    }

    static void free(Record &record, const our_allocator &allocator, uint32_t flags)
    {
        call_codec(row::release, &record, allocator.release, allocator.context, flags);
    }
};

using session_codec = our_codec<mava_tum_session_context>;
using routes_codec = our_codec<mava_tum_sub_route>;
using stats_codec = our_codec<mava_tum_subscriber_stats>;
using states_codec = our_codec<mava_tum_rec_sess_req>;
using replay_codec = our_codec<mava_tum_rec_sess_replay_req>;
using group_start_codec = our_codec<mava_tum_srg_group_rec_start_req>;

using session_adapter = mava_tum_catalogue::session_context_adapter;
using routes_adapter = mava_tum_catalogue::sub_route_adapter;
using stats_adapter = mava_tum_catalogue::subscriber_stats_adapter;
using states_adapter = mava_tum_catalogue::rec_sess_req_adapter;
using group_start_adapter = mava_tum_catalogue::srg_group_rec_start_req_adapter;

} // namespace bench

#endif
