// A second copy, written by hand so that it can disagree: the fields of the records in a session context. See
// message_fields.h.
#pragma once

#include "mava_tum/feature_records.h"
#include "mava_tum/subscriber_records.h"
#include "sweeps/record_is.h"

namespace mava_tum_test
{

void visit_fields(record_is<mava_tum_subscriber_v4> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.fixed32(2, record.ipv4_address);
}

void visit_fields(record_is<mava_tum_subscriber_v6> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.bytes(2, record.field_2);
    visit.bytes(3, record.field_3);
    visit.bytes(4, record.field_4);
    visit.varint32(5, record.field_5);
    visit.bytes(6, record.field_6);
    visit.varint32(7, record.field_7);
}

void visit_fields(record_is<mava_tum_ppp_data> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.varint32(4, record.field_4);
    visit.bytes(5, record.field_5);
    visit.varint32(6, record.field_6);
}

void visit_fields(record_is<mava_tum_l2tp_data> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.fixed32(2, record.field_2);
    visit.fixed32(3, record.field_3);
    visit.bytes(4, record.field_4);
    visit.bytes(5, record.field_5);
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
    visit.text(19, record.field_19);
}

void visit_fields(record_is<mava_tum_vlan_info> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
}

void visit_fields(record_is<mava_tum_session_data> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint64(2, record.field_2);
    visit.record(3, record.ppp);
    visit.record(4, record.l2tp);
    visit.text(5, record.field_5);
    visit.bytes(6, record.field_6);
    visit.text(7, record.field_7);
    visit.text(8, record.field_8);
    visit.varint32(9, record.field_9);
    visit.record(10, record.vlan);
    visit.varint32(11, record.field_11);
}

void visit_fields(record_is<mava_tum_subscriber_qos> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.text(3, record.field_3);
    visit.text(4, record.field_4);
    visit.text(5, record.field_5);
    visit.varint32(6, record.field_6);
    visit.varint32(7, record.field_7);
    visit.varint32(8, record.field_8);
    visit.text(9, record.field_9);
    visit.text(10, record.field_10);
    visit.text(11, record.field_11);
    visit.text(12, record.field_12);
}

void visit_fields(record_is<mava_tum_subscriber_acl> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.text(2, record.field_2);
    visit.text(3, record.field_3);
    visit.text(4, record.field_4);
    visit.text(5, record.field_5);
}

void visit_fields(record_is<mava_tum_subscriber_httpr> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.text(2, record.field_2);
}

void visit_fields(record_is<mava_tum_subscriber_li> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.bytes(4, record.field_4);
    visit.varint32(5, record.field_5);
    visit.varint32(6, record.field_6);
    visit.fixed32(7, record.field_7);
    visit.bytes(8, record.field_8);
}

void visit_fields(record_is<mava_tum_subscriber_urpf> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
}

void visit_fields(record_is<mava_tum_subscriber_icmp> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
}

void visit_fields(record_is<mava_tum_subscriber_mtu> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
}

void visit_fields(record_is<mava_tum_subscriber_acct> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
}

void visit_fields(record_is<mava_tum_subscriber_route_ipv4> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.text(2, record.field_2);
    visit.fixed32(3, record.field_3);
    visit.varint32(4, record.field_4);
    visit.fixed32(5, record.field_5);
    visit.text(6, record.field_6);
    visit.varint32(7, record.field_7);
    visit.varint32(8, record.field_8);
    visit.text(9, record.field_9);
}

void visit_fields(record_is<mava_tum_subscriber_route_ipv6> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.text(2, record.field_2);
    visit.bytes(3, record.field_3);
    visit.varint32(4, record.field_4);
    visit.bytes(5, record.field_5);
    visit.text(6, record.field_6);
    visit.varint32(7, record.field_7);
    visit.varint32(8, record.field_8);
    visit.text(9, record.field_9);
}

} // namespace mava_tum_test
