#include "model/library_calls.h"

#include "support/message_functions.h"

#include <type_traits>

namespace mava_tum_model
{

namespace
{

template <class record_type>
struct calls {
    using functions = mava_tum_test::message_functions<record_type>;

    static int32_t decode(
        void *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
    {
        record_type *own = static_cast<record_type *>(record);
        constexpr auto function = functions::decode;
        if constexpr (std::is_invocable_v<decltype(function), record_type *, const uint8_t *, uint64_t>)
            return function(own, data, length);
        else if constexpr (std::is_invocable_v<decltype(function), record_type *, const uint8_t *, uint64_t,
                               mava_tum_alloc_fn, void *>)
            return function(own, data, length, alloc_fn, alloc_ctx);
        else
            return function(own, data, length, alloc_fn, alloc_ctx, flags);
    }

    static uint64_t encode(const void *record, uint8_t *buffer, uint64_t length, mava_tum_segment *segments,
        uint32_t *segment_count, uint32_t flags)
    {
        const record_type *own = static_cast<const record_type *>(record);
        constexpr auto function = functions::encode;
        if constexpr (std::is_invocable_v<decltype(function), const record_type *, uint8_t *, uint64_t,
                          mava_tum_segment *, uint32_t *>)
            return function(own, buffer, length, segments, segment_count);
        else
            return function(own, buffer, length, segments, segment_count, flags);
    }

    static int32_t duplicate(void *destination, const void *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
    {
        record_type *own = static_cast<record_type *>(destination);
        const record_type *from = static_cast<const record_type *>(source);
        constexpr auto function = functions::duplicate;
        if constexpr (std::is_invocable_v<decltype(function), record_type *, const record_type *>)
            return function(own, from);
        else
            return function(own, from, alloc_fn, alloc_ctx);
    }

    static void free(void *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
    {
        record_type *own = static_cast<record_type *>(record);
        constexpr auto function = functions::release;
        if constexpr (std::is_invocable_v<decltype(function), record_type *>)
            function(own);
        else if constexpr (std::is_invocable_v<decltype(function), record_type *, mava_tum_release_fn, void *>)
            function(own, release_fn, release_ctx);
        else
            function(own, release_fn, release_ctx, flags);
    }

    static constexpr library_message named(const char *name)
    {
        return {name, sizeof(record_type), decode, encode, duplicate, free};
    }
};

constexpr library_message messages[] = {
    calls<mava_tum_subscriber_v4>::named("subscriber_v4"),
    calls<mava_tum_subscriber_v6>::named("subscriber_v6"),
    calls<mava_tum_ppp_data>::named("ppp_data"),
    calls<mava_tum_l2tp_data>::named("l2tp_data"),
    calls<mava_tum_vlan_info>::named("vlan_info"),
    calls<mava_tum_session_data>::named("session_data"),
    calls<mava_tum_subscriber_qos>::named("subscriber_qos"),
    calls<mava_tum_subscriber_acl>::named("subscriber_acl"),
    calls<mava_tum_subscriber_httpr>::named("subscriber_httpr"),
    calls<mava_tum_subscriber_li>::named("subscriber_li"),
    calls<mava_tum_subscriber_urpf>::named("subscriber_urpf"),
    calls<mava_tum_subscriber_icmp>::named("subscriber_icmp"),
    calls<mava_tum_subscriber_mtu>::named("subscriber_mtu"),
    calls<mava_tum_subscriber_acct>::named("subscriber_acct"),
    calls<mava_tum_subscriber_route_ipv4>::named("subscriber_route_ipv4"),
    calls<mava_tum_subscriber_route_ipv6>::named("subscriber_route_ipv6"),
    calls<mava_tum_session_context>::named("session_context"),
    calls<mava_tum_session_delete>::named("session_delete"),
    calls<mava_tum_stats>::named("stats"),
    calls<mava_tum_service_stats>::named("service_stats"),
    calls<mava_tum_subscriber_stats>::named("subscriber_stats"),
    calls<mava_tum_sess_oper_resp>::named("sess_oper_resp"),
    calls<mava_tum_sub_route>::named("sub_route"),
    calls<mava_tum_subscriber_route_resp>::named("subscriber_route_resp"),
    calls<mava_tum_rec_start_req>::named("rec_start_req"),
    calls<mava_tum_rec_complete_req>::named("rec_complete_req"),
    calls<mava_tum_rec_resp>::named("rec_resp"),
    calls<mava_tum_rec_session_state>::named("rec_session_state"),
    calls<mava_tum_rec_sess_req>::named("rec_sess_req"),
    calls<mava_tum_rec_sess_resp>::named("rec_sess_resp"),
    calls<mava_tum_rec_sess_replay_req>::named("rec_sess_replay_req"),
    calls<mava_tum_rec_sess_replay_fail>::named("rec_sess_replay_fail"),
    calls<mava_tum_sess_svc_start>::named("sess_svc_start"),
    calls<mava_tum_rec_sess_replay_resp>::named("rec_sess_replay_resp"),
    calls<mava_tum_srg_group_rec_start_req>::named("srg_group_rec_start_req"),
    calls<mava_tum_srg_group_rec_resp>::named("srg_group_rec_resp"),
    calls<mava_tum_srg_group_rec_complete_req>::named("srg_group_rec_complete_req"),
    calls<mava_tum_srg_group_data>::named("srg_group_data"),
    calls<mava_tum_srg_group_rec_replay_req>::named("srg_group_rec_replay_req"),
    calls<mava_tum_srg_group_rec_replay_resp>::named("srg_group_rec_replay_resp"),
};

} // namespace

const library_message &library_message_at(std::size_t index)
{
    return messages[index];
}

} // namespace mava_tum_model
