// A second copy, written by hand so that it can disagree: the fields of sessions, routes and statistics, and of the
// answers about them. See message_fields.h.
#pragma once

#include "mava_tum/routes.h"
#include "mava_tum/session_messages.h"
#include "mava_tum/statistics.h"
#include "sweeps/record_is.h"

namespace mava_tum_test
{

void visit_fields(record_is<mava_tum_session_context> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.varint32(4, record.field_4);
    visit.varint32(5, record.feature_mask);
    visit.bytes(6, record.field_6);
    visit.varint32(7, record.field_7);
    visit.record(8, record.subscriber_v4);
    visit.record(9, record.subscriber_v6);
    visit.record(10, record.session_data);
    visit.records(11, record.qos, record.qos_count);
    visit.record(12, record.acl);
    visit.record(13, record.httpr);
    visit.record(14, record.li);
    visit.record(15, record.urpf_1);
    visit.record(16, record.urpf_2);
    visit.record(17, record.icmp_1);
    visit.record(18, record.icmp_2);
    visit.record(19, record.mtu_1);
    visit.record(20, record.mtu_2);
    visit.record(21, record.mtu_3);
    visit.record(22, record.acct);
    visit.records(23, record.route_ipv4, record.route_ipv4_count);
    visit.records(24, record.route_ipv6, record.route_ipv6_count);
}

void visit_fields(record_is<mava_tum_sub_route> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.records(4, record.ipv4_routes, record.ipv4_route_count);
    visit.records(5, record.ipv6_routes, record.ipv6_route_count);
    visit.varint32(6, record.field_6);
}

void visit_fields(record_is<mava_tum_session_delete> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.varint64(4, record.field_4);
    visit.varint32(5, record.field_5);
}

void visit_fields(record_is<mava_tum_sess_oper_resp> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.varint64(4, record.field_4);
    visit.varint32(5, record.field_5);
    visit.text(6, record.field_6);
    visit.text(7, record.field_7);
    visit.text(8, record.field_8);
    visit.record(9, record.field_9);
    visit.bytes(10, record.field_10);
}

void visit_fields(record_is<mava_tum_stats> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.varint32(4, record.field_4);
    visit.varint32(5, record.field_5);
    visit.varint32(6, record.field_6);
    visit.varint32(7, record.field_7);
    visit.varint32(8, record.field_8);
    visit.varint32(9, record.field_9);
    visit.varint32(10, record.field_10);
    visit.varint32(11, record.field_11);
    visit.varint32(12, record.field_12);
    visit.varint32(13, record.field_13);
    visit.varint32(14, record.field_14);
    visit.varint32(15, record.field_15);
    visit.varint32(16, record.field_16);
    visit.varint32(17, record.field_17);
    visit.varint32(18, record.field_18);
}

void visit_fields(record_is<mava_tum_service_stats> auto &record, auto &visit)
{
    visit.text(1, record.field_1);
    visit.record(2, record.field_2);
}

void visit_fields(record_is<mava_tum_subscriber_stats> auto &record, auto &visit)
{
    visit.varint64(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.varint32(4, record.field_4);
    visit.varint32(5, record.field_5);
    visit.varint32(6, record.field_6);
    visit.record(7, record.field_7);
    visit.records(8, record.field_8, record.field_8_count);
    visit.varint32(9, record.field_9);
    visit.record(10, record.field_10);
    visit.varint32(11, record.field_11);
    visit.record(12, record.field_12);
}

void visit_fields(record_is<mava_tum_subscriber_route_resp> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.text(3, record.field_3);
    visit.text(4, record.field_4);
}

} // namespace mava_tum_test
