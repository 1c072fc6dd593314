// The feature records: exported functions.
#include "messages/feature_records_schema.h"

using namespace mava_tum;

int32_t mava_tum_subscriber_qos_decode_ext(
    mava_tum_subscriber_qos *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx));
}

uint64_t mava_tum_subscriber_qos_encode_ext(const mava_tum_subscriber_qos *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_qos_duplicate(mava_tum_subscriber_qos *destination, const mava_tum_subscriber_qos *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_qos_free_ext(
    mava_tum_subscriber_qos *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_subscriber_acl_decode_ext(
    mava_tum_subscriber_acl *record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx));
}

uint64_t mava_tum_subscriber_acl_encode_ext(const mava_tum_subscriber_acl *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_acl_duplicate(mava_tum_subscriber_acl *destination, const mava_tum_subscriber_acl *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_acl_free_ext(
    mava_tum_subscriber_acl *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_subscriber_httpr_decode_ext(mava_tum_subscriber_httpr *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx));
}

uint64_t mava_tum_subscriber_httpr_encode_ext(const mava_tum_subscriber_httpr *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_httpr_duplicate(mava_tum_subscriber_httpr *destination,
    const mava_tum_subscriber_httpr *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_httpr_free_ext(
    mava_tum_subscriber_httpr *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_subscriber_li_decode_ext(mava_tum_subscriber_li *record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_subscriber_li_encode_ext(const mava_tum_subscriber_li *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_subscriber_li_duplicate(mava_tum_subscriber_li *destination, const mava_tum_subscriber_li *source,
    mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_li_free_ext(
    mava_tum_subscriber_li *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}

int32_t mava_tum_subscriber_urpf_decode_ext(mava_tum_subscriber_urpf *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_subscriber_urpf_encode_ext(const mava_tum_subscriber_urpf *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_urpf_duplicate(
    mava_tum_subscriber_urpf *destination, const mava_tum_subscriber_urpf *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_subscriber_urpf_free_ext(mava_tum_subscriber_urpf *) {}

int32_t mava_tum_subscriber_icmp_decode_ext(mava_tum_subscriber_icmp *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_subscriber_icmp_encode_ext(const mava_tum_subscriber_icmp *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_icmp_duplicate(
    mava_tum_subscriber_icmp *destination, const mava_tum_subscriber_icmp *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_subscriber_icmp_free_ext(mava_tum_subscriber_icmp *) {}

int32_t mava_tum_subscriber_mtu_decode_ext(mava_tum_subscriber_mtu *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_subscriber_mtu_encode_ext(const mava_tum_subscriber_mtu *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_mtu_duplicate(mava_tum_subscriber_mtu *destination, const mava_tum_subscriber_mtu *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_subscriber_mtu_free_ext(mava_tum_subscriber_mtu *) {}

int32_t mava_tum_subscriber_acct_decode_ext(mava_tum_subscriber_acct *record, const uint8_t *data, uint64_t length)
{
    return decode_message(*record, data, length, {});
}

uint64_t mava_tum_subscriber_acct_encode_ext(const mava_tum_subscriber_acct *record, uint8_t *buffer, uint64_t length,
    mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_acct_duplicate(
    mava_tum_subscriber_acct *destination, const mava_tum_subscriber_acct *source)
{
    return duplicate_message(*destination, *source, {});
}

void mava_tum_subscriber_acct_free_ext(mava_tum_subscriber_acct *) {}

int32_t mava_tum_subscriber_route_ipv4_decode_ext(mava_tum_subscriber_route_ipv4 *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx));
}

uint64_t mava_tum_subscriber_route_ipv4_encode_ext(const mava_tum_subscriber_route_ipv4 *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count)
{
    return encode_message(*record, {buffer, length, segments, segment_count});
}

int32_t mava_tum_subscriber_route_ipv4_duplicate(mava_tum_subscriber_route_ipv4 *destination,
    const mava_tum_subscriber_route_ipv4 *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_route_ipv4_free_ext(
    mava_tum_subscriber_route_ipv4 *record, mava_tum_release_fn release_fn, void *release_ctx)
{
    release_record(*record, {release_fn, release_ctx});
}

int32_t mava_tum_subscriber_route_ipv6_decode_ext(mava_tum_subscriber_route_ipv6 *record, const uint8_t *data,
    uint64_t length, mava_tum_alloc_fn alloc_fn, void *alloc_ctx, uint32_t flags)
{
    return decode_message(*record, data, length, decode_context::for_caller(alloc_fn, alloc_ctx, flags));
}

uint64_t mava_tum_subscriber_route_ipv6_encode_ext(const mava_tum_subscriber_route_ipv6 *record, uint8_t *buffer,
    uint64_t length, mava_tum_segment *segments, uint32_t *segment_count, uint32_t flags)
{
    return encode_message(*record, {buffer, length, segments, segment_count, flags});
}

int32_t mava_tum_subscriber_route_ipv6_duplicate(mava_tum_subscriber_route_ipv6 *destination,
    const mava_tum_subscriber_route_ipv6 *source, mava_tum_alloc_fn alloc_fn, void *alloc_ctx)
{
    return duplicate_message(*destination, *source, {alloc_fn, alloc_ctx});
}

void mava_tum_subscriber_route_ipv6_free_ext(
    mava_tum_subscriber_route_ipv6 *record, mava_tum_release_fn release_fn, void *release_ctx, uint32_t flags)
{
    release_record(*record, {release_fn, release_ctx, flags});
}
