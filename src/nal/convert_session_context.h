// A whole session: its way to the wire, and its way back into a cleared application record.
#pragma once

#include "mava_tum/session_messages.h"
#include "nal/convert_routes.h"
#include "nal/convert_rows.h"
#include "nal/convert_session_access.h"
#include "nal/convert_session_features.h"
#include "nal/session_features.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum
{

// ---- values that are always sent; L26: field 6 has no member ----

template <class Fields>
void describe_values(Fields &fields, const tum_nal_data_session_context &record)
{
    put<1>(fields, record.session_value_1);
    put<2>(fields, record.session_value_2);
    put<3>(fields, record.session_value_3);
    put<4>(fields, record.session_value_4);
    put<5>(fields, record.feature_mask);
    put<7>(fields, record.session_value_7);
}

inline void values_from_codec(tum_nal_data_session_context &record, const mava_tum_session_context &context)
{
    take(record.session_value_1, context.field_1);
    take(record.session_value_2, context.field_2);
    take(record.session_value_3, context.field_3);
    take(record.session_value_4, context.field_4);
    take(record.feature_mask, context.feature_mask);
    take(record.session_value_7, context.field_7);
}

// ---- how the subscriber is reached ----

constexpr int any_ipv6_part = TUM_NAL_FEATURE_IPV6_PART_2 | TUM_NAL_FEATURE_IPV6_PART_3 | TUM_NAL_FEATURE_IPV6_PART_4 |
                              TUM_NAL_FEATURE_IPV6_PART_6;

template <class Fields>
void describe_access(Fields &fields, const tum_nal_data_session_context &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_IPV4) && record.ipv4_address != 0) // L37
        put_record<8, subscriber_v4_fields>(fields, record);
    if (has_feature(record, any_ipv6_part))
        put_record<9, subscriber_v6_fields>(fields, record);
    put_record<10, session_data_fields>(fields, record); // L36: also when it is empty
}

inline void access_from_codec(tum_nal_data_session_context &record, const mava_tum_session_context &context)
{
    subscriber_v4_from_codec(record, context.subscriber_v4);
    subscriber_v6_from_codec(record, context.subscriber_v6);
    session_data_from_codec(record, context.session_data);
}

// ---- lists ----

inline void lists_from_codec(tum_nal_data_session_context &record, const mava_tum_session_context &context)
{
    take_list<11>(record.qos, record.qos_count, context, context.qos, context.qos_count, qos_from_codec);
    take_list<23>(record.ipv4_routes, record.ipv4_route_count, context, context.route_ipv4, context.route_ipv4_count,
        ipv4_route_from_codec);
    take_list<24>(record.ipv6_routes, record.ipv6_route_count, context, context.route_ipv6, context.route_ipv6_count,
        ipv6_route_from_codec);
}

// ---- the session ----

struct session_context_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        describe_values(fields, record);
        describe_access(fields, record);
        if (has_feature(record, TUM_NAL_FEATURE_QOS))
            put_list<11, qos_fields>(fields, record.qos, record.qos_count);
        describe_policies(fields, record);
        describe_limits(fields, record);
        if (has_feature(record, TUM_NAL_FEATURE_IPV4_ROUTES))
            put_list<23, ipv4_route_fields>(fields, record.ipv4_routes, record.ipv4_route_count);
        if (has_feature(record, TUM_NAL_FEATURE_IPV6_ROUTES))
            put_list<24, ipv6_route_fields>(fields, record.ipv6_routes, record.ipv6_route_count);
    }
};

// L16: no bit of `context` guards a nested record: one whose decode failed part-way is not marked present, yet
// its fields before the fault are delivered. Where nothing was decoded, the nested record marks nothing present.
inline void session_context_from_codec(tum_nal_data_session_context &record, const mava_tum_session_context &context)
{
    values_from_codec(record, context);
    access_from_codec(record, context);
    features_from_codec(record, context);
    lists_from_codec(record, context);
}

} // namespace mava_tum
