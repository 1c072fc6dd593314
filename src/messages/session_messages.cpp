// The session messages: field lists and exported functions.
#include "mava_tum/session_messages.h"
#include "codec/message.h"
#include "messages/feature_records_schema.h"
#include "messages/owned_decode.h"
#include "messages/subscriber_records_schema.h"

namespace mava_tum
{

template <>
struct schema<mava_tum_session_context> {
    using self = mava_tum_session_context;
    using fields = field_list<varint<1, &self::field_1>, varint<2, &self::field_2>, varint<3, &self::field_3>,
        varint<4, &self::field_4>, varint<5, &self::feature_mask>, bytes<6, &self::field_6>, varint<7, &self::field_7>,
        record<8, &self::subscriber_v4>, record<9, &self::subscriber_v6>, record<10, &self::session_data>,
        record_array<11, &self::qos, &self::qos_count>, record<12, &self::acl>, record<13, &self::httpr>,
        record<14, &self::li>, record<15, &self::urpf_1>, record<16, &self::urpf_2>, record<17, &self::icmp_1>,
        record<18, &self::icmp_2>, record<19, &self::mtu_1>, record<20, &self::mtu_2>, record<21, &self::mtu_3>,
        record<22, &self::acct>, record_array<23, &self::route_ipv4, &self::route_ipv4_count>,
        record_array<24, &self::route_ipv6, &self::route_ipv6_count>>;
};

} // namespace mava_tum

using namespace mava_tum;

void mava_tum::decode_owned(mava_tum_session_context &record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn)
{
    decode_for_adapter(record, data, length, alloc_fn, release_fn);
}

int32_t mava_tum_session_context_decode_ext(mava_tum_session_context *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_session_context_encode_ext(const mava_tum_session_context *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_session_context_duplicate(mava_tum_session_context *destination,
    const mava_tum_session_context *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_session_context_free_ext(
    mava_tum_session_context *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}
