#include "nal/convert_session_features.h"

#include "nal/convert_rows.h"
#include "nal/session_features.h"

namespace mava_tum
{

// ---- QoS; L26: field 9 has no member ----

void qos_to_codec(mava_tum_subscriber_qos &qos, const tum_nal_data_qos_element &element)
{
    put<1>(qos, qos.field_1, element.value_1);
    put_nonzero<2>(qos, qos.field_2, element.value_2);
    put_text<3>(qos, qos.field_3, element.text_3);
    put_text<4>(qos, qos.field_4, element.text_4);
    put_text<5>(qos, qos.field_5, element.text_5);
    put_nonzero<6>(qos, qos.field_6, element.value_6);
    put_nonzero<7>(qos, qos.field_7, element.value_7);
    put_nonzero<8>(qos, qos.field_8, element.value_8);
    put_text<10>(qos, qos.field_10, element.text_10);
    put_text<11>(qos, qos.field_11, element.text_11);
    put_text<12>(qos, qos.field_12, element.text_12);
}

void qos_from_codec(tum_nal_data_qos_element &element, const mava_tum_subscriber_qos &qos)
{
    take<1>(element.value_1, qos, qos.field_1);
    take<2>(element.value_2, qos, qos.field_2);
    take_text<3>(element.text_3, qos, qos.field_3);
    take_text<4>(element.text_4, qos, qos.field_4);
    take_text<5>(element.text_5, qos, qos.field_5);
    take<6>(element.value_6, qos, qos.field_6);
    take<7>(element.value_7, qos, qos.field_7);
    take<8>(element.value_8, qos, qos.field_8);
    take_text<10>(element.text_10, qos, qos.field_10);
    take_text<11>(element.text_11, qos, qos.field_11);
    take_text<12>(element.text_12, qos, qos.field_12);
}

// ---- access lists ----

static void acl_to_codec(mava_tum_subscriber_acl &acl, const tum_nal_data_session_context &record)
{
    put<1>(acl, acl.field_1, record.acl_value_1);
    put_text<2>(acl, acl.field_2, record.acl_text_2);
    put_text<3>(acl, acl.field_3, record.acl_text_3);
    put_text<4>(acl, acl.field_4, record.acl_text_4);
    put_text<5>(acl, acl.field_5, record.acl_text_5);
}

static void acl_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_acl &acl)
{
    take<1>(record.acl_value_1, acl, acl.field_1);
    take_text<2>(record.acl_text_2, acl, acl.field_2);
    take_text<3>(record.acl_text_3, acl, acl.field_3);
    take_text<4>(record.acl_text_4, acl, acl.field_4);
    take_text<5>(record.acl_text_5, acl, acl.field_5);
}

// ---- HTTP redirect ----

static void redirect_to_codec(mava_tum_subscriber_httpr &httpr, const tum_nal_data_session_context &record)
{
    put<1>(httpr, httpr.field_1, record.redirect_value_1);
    put_text<2>(httpr, httpr.field_2, record.redirect_text_2);
}

static void redirect_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_httpr &httpr)
{
    take<1>(record.redirect_value_1, httpr, httpr.field_1);
    take_text<2>(record.redirect_text_2, httpr, httpr.field_2);
}

// ---- lawful intercept ----

static void intercept_to_codec(mava_tum_subscriber_li &li, const tum_nal_data_session_context &record)
{
    put<1>(li, li.field_1, record.intercept_value_1);
    put<2>(li, li.field_2, record.intercept_value_2);
    put<3>(li, li.field_3, record.intercept_value_3);
    put_bytes<4>(li, li.field_4, record.intercept_identifier);
    put<5>(li, li.field_5, record.intercept_value_5);
    put<6>(li, li.field_6, record.intercept_value_6);
    put_ipv4_nonzero<7>(li, li.field_7, record.intercept_ipv4_address);
    put_ipv6_nonzero<8>(li, li.field_8, record.intercept_ipv6_address);
}

static void intercept_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_li &li)
{
    take<1>(record.intercept_value_1, li, li.field_1);
    take<2>(record.intercept_value_2, li, li.field_2);
    take<3>(record.intercept_value_3, li, li.field_3);
    take_bytes<4>(record.intercept_identifier, li, li.field_4);
    take<5>(record.intercept_value_5, li, li.field_5);
    take<6>(record.intercept_value_6, li, li.field_6);
    take_ipv4<7>(record.intercept_ipv4_address, li, li.field_7);
    take_bytes<8>(record.intercept_ipv6_address, li, li.field_8);
}

// ---- uRPF ----

static void urpf_to_codec(mava_tum_subscriber_urpf &urpf, uint32_t value_1, uint32_t value_2)
{
    put<1>(urpf, urpf.field_1, value_1);
    put<2>(urpf, urpf.field_2, value_2);
}

static void urpf_from_codec(uint32_t &value_1, uint32_t &value_2, const mava_tum_subscriber_urpf &urpf)
{
    take<1>(value_1, urpf, urpf.field_1);
    take<2>(value_2, urpf, urpf.field_2);
}

// ---- accounting ----

// The two values are selected by bits of the accounting flags, not of the feature mask; a selected zero is sent.
static void accounting_to_codec(mava_tum_subscriber_acct &acct, const tum_nal_data_session_context &record)
{
    put<1>(acct, acct.field_1, record.accounting_flags);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_2) != 0)
        put<2>(acct, acct.field_2, record.accounting_value_2);
    if ((record.accounting_flags & TUM_NAL_ACCOUNTING_VALUE_3) != 0)
        put<3>(acct, acct.field_3, record.accounting_value_3);
}

static void accounting_from_codec(tum_nal_data_session_context &record, const mava_tum_subscriber_acct &acct)
{
    take<1>(record.accounting_flags, acct, acct.field_1);
    take<2>(record.accounting_value_2, acct, acct.field_2);
    take<3>(record.accounting_value_3, acct, acct.field_3);
}

// ---- all of them ----

static void policies_to_codec(mava_tum_session_context &context, const tum_nal_data_session_context &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_ACL)) {
        acl_to_codec(context.acl, record);
        mark_present<12>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_REDIRECT)) {
        redirect_to_codec(context.httpr, record);
        mark_present<13>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_INTERCEPT)) {
        intercept_to_codec(context.li, record);
        mark_present<14>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_URPF_1)) {
        urpf_to_codec(context.urpf_1, record.urpf_1_value_1, record.urpf_1_value_2);
        mark_present<15>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_URPF_2)) {
        urpf_to_codec(context.urpf_2, record.urpf_2_value_1, record.urpf_2_value_2);
        mark_present<16>(context);
    }
}

static void limits_to_codec(mava_tum_session_context &context, const tum_nal_data_session_context &record)
{
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_1)) {
        put<1>(context.icmp_1, context.icmp_1.field_1, record.icmp_1_value);
        mark_present<17>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_ICMP_2)) {
        put<1>(context.icmp_2, context.icmp_2.field_1, record.icmp_2_value);
        mark_present<18>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_MTU_1)) {
        put<1>(context.mtu_1, context.mtu_1.field_1, record.mtu_1_value);
        mark_present<19>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_MTU_2)) {
        put<1>(context.mtu_2, context.mtu_2.field_1, record.mtu_2_value);
        mark_present<20>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_MTU_3)) {
        put<1>(context.mtu_3, context.mtu_3.field_1, record.mtu_3_value);
        mark_present<21>(context);
    }
    if (has_feature(record, TUM_NAL_FEATURE_ACCOUNTING)) {
        accounting_to_codec(context.acct, record);
        mark_present<22>(context);
    }
}

void features_to_codec(mava_tum_session_context &context, const tum_nal_data_session_context &record)
{
    policies_to_codec(context, record);
    limits_to_codec(context, record);
}

void features_from_codec(tum_nal_data_session_context &record, const mava_tum_session_context &context)
{
    acl_from_codec(record, context.acl);
    redirect_from_codec(record, context.httpr);
    intercept_from_codec(record, context.li);
    urpf_from_codec(record.urpf_1_value_1, record.urpf_1_value_2, context.urpf_1);
    urpf_from_codec(record.urpf_2_value_1, record.urpf_2_value_2, context.urpf_2);
    take<1>(record.icmp_1_value, context.icmp_1, context.icmp_1.field_1);
    take<1>(record.icmp_2_value, context.icmp_2, context.icmp_2.field_1);
    take<1>(record.mtu_1_value, context.mtu_1, context.mtu_1.field_1);
    take<1>(record.mtu_2_value, context.mtu_2, context.mtu_2.field_1);
    take<1>(record.mtu_3_value, context.mtu_3, context.mtu_3.field_1);
    accounting_from_codec(record, context.acct);
}

} // namespace mava_tum
