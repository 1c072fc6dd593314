// Application records to and from protobuf-c's messages, by the rules of the adapters. A message is a tree of pointers.
// The nested messages are in a structure of parts beside it, so that filling allocates nothing.
#ifndef MAVA_TUM_BENCH_PROTOBUF_C_RECORDS_H
#define MAVA_TUM_BENCH_PROTOBUF_C_RECORDS_H

#include "peers/harness/application_fields.h"

#include "session.pb-c.h"

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"

#include <protobuf-c/protobuf-c.h>

namespace bench
{

// Sets fields without copying their content, and reads fields that may be absent.

template <class Field, class Value>
void put(protobuf_c_boolean &has, Field &field, Value value)
{
    has = 1;
    field = value;
}

template <class Field, class Value>
void put_nonzero(protobuf_c_boolean &has, Field &field, Value value)
{
    if (value != 0)
        put(has, field, value);
}

// The message points at the record's text: packing only reads it, although the generated member is not const.
inline void put_text_always(char *&field, const char *text)
{
    field = const_cast<char *>(text);
}

inline void put_text(char *&field, const char *text)
{
    if (text[0] != 0)
        put_text_always(field, text);
}

template <size_t Bytes>
void put_bytes(protobuf_c_boolean &has, ProtobufCBinaryData &field, const uint8_t (&bytes)[Bytes])
{
    put(has, field, ProtobufCBinaryData{Bytes, const_cast<uint8_t *>(bytes)});
}

// Makes `part` the nested message that `field` points at.
template <class Message>
Message &attach(Message *&field, Message &part, void (*init)(Message *))
{
    init(&part);
    field = &part;
    return part;
}

template <size_t Bytes>
void take_text(char (&array)[Bytes], const char *field, size_t limit = Bytes)
{
    if (field != nullptr)
        copy_text(array, limit, field, std::strlen(field));
}

template <size_t Bytes>
void take_bytes(uint8_t (&array)[Bytes], const ProtobufCBinaryData &field)
{
    if (field.len != 0)
        copy_bytes(array, field.data, field.len);
}

// At most as many elements as there are slots.
template <class Count, class Entry, size_t Slots>
Count slots_taken(size_t received, const Entry (&)[Slots])
{
    return static_cast<Count>(std::min(received, Slots));
}

template <class Message, unsigned Slots>
struct list_parts {
    Message messages[Slots];
    Message *pointers[Slots];
};

struct session_parts {
    Bench__Peer__SubscriberV4 v4;
    Bench__Peer__SubscriberV6 v6;
    Bench__Peer__SessionData session_data;
    Bench__Peer__PppData ppp;
    Bench__Peer__L2tpData l2tp;
    Bench__Peer__VlanInfo vlan;
    list_parts<Bench__Peer__SubscriberQos, TUM_NAL_SESSION_QOS_ENTRIES> qos;
    Bench__Peer__SubscriberAcl acl;
    Bench__Peer__SubscriberHttpr httpr;
    Bench__Peer__SubscriberLi li;
    Bench__Peer__SubscriberUrpf urpf[2];
    Bench__Peer__SubscriberIcmp icmp[2];
    Bench__Peer__SubscriberMtu mtu[3];
    Bench__Peer__SubscriberAcct acct;
    list_parts<Bench__Peer__SubscriberRouteIpv4, TUM_NAL_SESSION_IPV4_ROUTES> ipv4_routes;
    list_parts<Bench__Peer__SubscriberRouteIpv6, TUM_NAL_SESSION_IPV6_ROUTES> ipv6_routes;
};

struct routes_parts {
    list_parts<Bench__Peer__SubscriberRouteIpv4, TUM_NAL_SUB_ROUTE_IPV4_ROUTES> ipv4_routes;
    list_parts<Bench__Peer__SubscriberRouteIpv6, TUM_NAL_SUB_ROUTE_IPV6_ROUTES> ipv6_routes;
};

struct statistics_parts {
    list_parts<Bench__Peer__ServiceStats, TUM_NAL_STATS_SERVICES> services;
    Bench__Peer__Stats service_blocks[TUM_NAL_STATS_SERVICES];
    Bench__Peer__Stats blocks[3];
};

struct states_parts {
    list_parts<Bench__Peer__RecSessionState, TUM_NAL_REC_SESSION_STATES> states;
};

struct no_parts {
};

// The message is initialised on entry. It points into record and parts afterwards.
void fill_peer(const tum_nal_data_session_context &record, Bench__Peer__SessionContext &message, session_parts &parts);
void fill_peer(const tum_nal_data_sub_route &record, Bench__Peer__SubRoute &message, routes_parts &parts);
void fill_peer(
    const tum_nal_data_subscriber_stats &record, Bench__Peer__SubscriberStats &message, statistics_parts &parts);
void fill_peer(const tum_nal_data_rec_sess_req &record, Bench__Peer__RecSessReq &message, states_parts &parts);
void fill_peer(
    const tum_nal_data_srg_group_rec_start_req &record, Bench__Peer__SrgGroupRecStartReq &message, no_parts &parts);

// Overwrite the whole record.
void read_peer(const Bench__Peer__SessionContext &message, tum_nal_data_session_context &record);
void read_peer(const Bench__Peer__SubRoute &message, tum_nal_data_sub_route &record);
void read_peer(const Bench__Peer__SubscriberStats &message, tum_nal_data_subscriber_stats &record);
void read_peer(const Bench__Peer__RecSessReq &message, tum_nal_data_rec_sess_req &record);
void read_peer(const Bench__Peer__SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record);

// Of a session, too. The route is zero before it is read into.
void fill_peer(const tum_nal_data_ipv4_route &route, Bench__Peer__SubscriberRouteIpv4 &message);
void fill_peer(const tum_nal_data_ipv6_route &route, Bench__Peer__SubscriberRouteIpv6 &message);
void read_peer(const Bench__Peer__SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route);
void read_peer(const Bench__Peer__SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route);

} // namespace bench

#endif
