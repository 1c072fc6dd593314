// The messages that the bench measures: for each, its types and functions on both sides, under names they share.
#ifndef MAVA_TUM_BENCH_MESSAGE_KINDS_H
#define MAVA_TUM_BENCH_MESSAGE_KINDS_H

#include "mava_tum.h"
#include "peers/protobuf/routes_peer.h"
#include "peers/protobuf/session_peer.h"

namespace bench
{

struct session_kind {
    using record = mava_tum_session_context;
    using application = tum_nal_data_session_context;
    using message = peer::SessionContext;

    static constexpr auto decode = mava_tum_session_context_decode_ext;
    static constexpr auto encode = mava_tum_session_context_encode_ext;
    static constexpr auto duplicate = mava_tum_session_context_duplicate;
    static constexpr auto free = mava_tum_session_context_free_ext;
    static constexpr auto encode_adapter = tum_nal_data_gpb_encode_tum_session_context;
    static constexpr auto decode_adapter = tum_nal_data_gpb_decode_tum_session_context;
};

struct route_kind {
    using record = mava_tum_sub_route;
    using application = tum_nal_data_sub_route;
    using message = peer::SubRoute;

    static constexpr auto decode = mava_tum_sub_route_decode_ext;
    static constexpr auto encode = mava_tum_sub_route_encode_ext;
    static constexpr auto duplicate = mava_tum_sub_route_duplicate;
    static constexpr auto free = mava_tum_sub_route_free_ext;
    static constexpr auto encode_adapter = tum_nal_data_gpb_encode_tum_sub_route;
    static constexpr auto decode_adapter = tum_nal_data_gpb_decode_tum_sub_route;
};

} // namespace bench

#endif
