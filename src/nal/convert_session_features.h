// The features of a session: QoS entries, access lists, redirect, intercept, checks, limits and accounting. Each
// record's way to the wire, and below it its way back into a cleared application record.
#pragma once

#include "mava_tum/feature_records.h"
#include "mava_tum/session_messages.h"
#include "nal/convert_rows.h"
#include "nal/session_features.h"
#include "tum_nal/nal_session_context.h"

namespace mava_tum
{

// ---- QoS; L26: field 9 has no member ----

struct qos_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_qos_element &element)
    {
        put<1>(fields, element.value_1);
        put_nonzero<2>(fields, element.value_2);
        put_text<3>(fields, element.text_3);
        put_text<4>(fields, element.text_4);
        put_text<5>(fields, element.text_5);
        put_nonzero<6>(fields, element.value_6);
        put_nonzero<7>(fields, element.value_7);
        put_nonzero<8>(fields, element.value_8);
        put_text<10>(fields, element.text_10);
        put_text<11>(fields, element.text_11);
        put_text<12>(fields, element.text_12);
    }
};

inline void qos_from_codec(tum_nal_data_qos_element &element, const mava_tum_subscriber_qos &qos)
{
    take(element.value_1, qos.field_1);
    take(element.value_2, qos.field_2);
    take_text<3>(element.text_3, qos, qos.field_3);
    take_text<4>(element.text_4, qos, qos.field_4);
    take_text<5>(element.text_5, qos, qos.field_5);
    take(element.value_6, qos.field_6);
    take(element.value_7, qos.field_7);
    take(element.value_8, qos.field_8);
    take_text<10>(element.text_10, qos, qos.field_10);
    take_text<11>(element.text_11, qos, qos.field_11);
    take_text<12>(element.text_12, qos, qos.field_12);
}

// ---- access lists ----

struct acl_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        put<1>(fields, record.acl_value_1);
        put_text<2>(fields, record.acl_text_2);
        put_text<3>(fields, record.acl_text_3);
        put_text<4>(fields, record.acl_text_4);
        put_text<5>(fields, record.acl_text_5);
    }
};

inline void acl_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_acl &acl)
{
    take(record.acl_value_1, acl.field_1);
    take_text<2>(record.acl_text_2, acl, acl.field_2);
    take_text<3>(record.acl_text_3, acl, acl.field_3);
    take_text<4>(record.acl_text_4, acl, acl.field_4);
    take_text<5>(record.acl_text_5, acl, acl.field_5);
}

// ---- HTTP redirect ----

struct redirect_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        put<1>(fields, record.redirect_value_1);
        put_text<2>(fields, record.redirect_text_2);
    }
};

inline void redirect_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_httpr &httpr)
{
    take(record.redirect_value_1, httpr.field_1);
    take_text<2>(record.redirect_text_2, httpr, httpr.field_2);
}

// ---- lawful intercept ----

struct intercept_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        put<1>(fields, record.intercept_value_1);
        put<2>(fields, record.intercept_value_2);
        put<3>(fields, record.intercept_value_3);
        put_bytes<4>(fields, record.intercept_identifier);
        put<5>(fields, record.intercept_value_5);
        put<6>(fields, record.intercept_value_6);
        put_ipv4_nonzero<7>(fields, record.intercept_ipv4_address);
        put_ipv6_nonzero<8>(fields, record.intercept_ipv6_address);
    }
};

inline void intercept_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_li &li)
{
    take(record.intercept_value_1, li.field_1);
    take(record.intercept_value_2, li.field_2);
    take(record.intercept_value_3, li.field_3);
    take_bytes<4>(record.intercept_identifier, li, li.field_4);
    take(record.intercept_value_5, li.field_5);
    take(record.intercept_value_6, li.field_6);
    take_ipv4(record.intercept_ipv4_address, li.field_7);
    take_bytes<8>(record.intercept_ipv6_address, li, li.field_8);
}

// ---- uRPF ----

struct urpf_values {
    uint32_t value_1;
    uint32_t value_2;
};

struct urpf_fields {
    template <class Fields>
    static void describe(Fields &fields, const urpf_values &values)
    {
        put<1>(fields, values.value_1);
        put<2>(fields, values.value_2);
    }
};

inline void urpf_from_codec(uint32_t &value_1, uint32_t &value_2, const mava_tum_subscriber_urpf &urpf)
{
    take(value_1, urpf.field_1);
    take(value_2, urpf.field_2);
}

// ---- accounting ----

// L37: the two values are selected by bits of the accounting flags, not of the feature mask; a selected zero is sent.
struct accounting_fields {
    template <class Fields>
    static void describe(Fields &fields, const tum_nal_data_session_context &record)
    {
        put<1>(fields, record.accounting_flags);
        if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_2) != 0)
            put<2>(fields, record.accounting_value_2);
        if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_3) != 0)
            put<3>(fields, record.accounting_value_3);
    }
};

inline void accounting_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_acct &acct)
{
    take(record.accounting_flags, acct.field_1);
    take(record.accounting_value_2, acct.field_2);
    take(record.accounting_value_3, acct.field_3);
}

// ---- all of them ----

// ICMP and MTU checks are one value each.
struct single_value_fields {
    template <class Fields>
    static void describe(Fields &fields, uint32_t value)
    {
        put<1>(fields, value);
    }
};

// A feature's record is sent when the feature mask selects it, even if none of its fields is.
template <unsigned FieldNumber, class Description, class Fields, class Source>
inline void put_feature(Fields &fields, const tum_nal_data_session_context &record, int feature, const Source &source)
{
    if (has_feature(record, feature))
        put_record<FieldNumber, Description>(fields, source);
}

template <class Fields>
inline void describe_policies(Fields &fields, const tum_nal_data_session_context &record)
{
    put_feature<12, acl_fields>(fields, record, TUM_NAL_FEATURE_ACL, record);
    put_feature<13, redirect_fields>(fields, record, TUM_NAL_FEATURE_REDIRECT, record);
    put_feature<14, intercept_fields>(fields, record, TUM_NAL_FEATURE_INTERCEPT, record);
    put_feature<15, urpf_fields>(
        fields, record, TUM_NAL_FEATURE_URPF_1, urpf_values{record.urpf_1_value_1, record.urpf_1_value_2});
    put_feature<16, urpf_fields>(
        fields, record, TUM_NAL_FEATURE_URPF_2, urpf_values{record.urpf_2_value_1, record.urpf_2_value_2});
}

template <class Fields>
inline void describe_limits(Fields &fields, const tum_nal_data_session_context &record)
{
    put_feature<17, single_value_fields>(fields, record, TUM_NAL_FEATURE_ICMP_1, record.icmp_1_value);
    put_feature<18, single_value_fields>(fields, record, TUM_NAL_FEATURE_ICMP_2, record.icmp_2_value);
    put_feature<19, single_value_fields>(fields, record, TUM_NAL_FEATURE_MTU_1, record.mtu_1_value);
    put_feature<20, single_value_fields>(fields, record, TUM_NAL_FEATURE_MTU_2, record.mtu_2_value);
    put_feature<21, single_value_fields>(fields, record, TUM_NAL_FEATURE_MTU_3, record.mtu_3_value);
    put_feature<22, accounting_fields>(fields, record, TUM_NAL_FEATURE_ACCOUNTING, record);
}

inline void features_from_codec(tum_nal_data_session_context &record, const mava_tum_session_context &context)
{
    acl_from_codec(record, context.acl);
    redirect_from_codec(record, context.httpr);
    intercept_from_codec(record, context.li);
    urpf_from_codec(record.urpf_1_value_1, record.urpf_1_value_2, context.urpf_1);
    urpf_from_codec(record.urpf_2_value_1, record.urpf_2_value_2, context.urpf_2);
    take(record.icmp_1_value, context.icmp_1.field_1);
    take(record.icmp_2_value, context.icmp_2.field_1);
    take(record.mtu_1_value, context.mtu_1.field_1);
    take(record.mtu_2_value, context.mtu_2.field_1);
    take(record.mtu_3_value, context.mtu_3.field_1);
    accounting_from_codec(record, context.acct);
}

} // namespace mava_tum
