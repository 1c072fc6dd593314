// Application records to and from nanopb's structures, by the rules of the adapters.
#ifndef MAVA_TUM_BENCH_NANOPB_RECORDS_H
#define MAVA_TUM_BENCH_NANOPB_RECORDS_H

#include "peers/harness/application_fields.h"

#include "session.pb.h"

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"

namespace bench
{

// How the nanopb peer sets fields, and reads the texts of its structures.

template <class Field, class Value>
void put(bool &has, Field &field, Value value)
{
    has = true;
    field = value;
}

template <class Field, class Value>
void put_nonzero(bool &has, Field &field, Value value)
{
    if (value != 0)
        put(has, field, value);
}

template <size_t Room, size_t Bytes>
void put_text_always(bool &has, char (&field)[Room], const char (&text)[Bytes])
{
    static_assert(Room == Bytes);
    has = true;
    std::memcpy(field, text, std::strlen(text) + 1);
}

template <size_t Room, size_t Bytes>
void put_text(bool &has, char (&field)[Room], const char (&text)[Bytes])
{
    if (text[0] != 0)
        put_text_always(has, field, text);
}

template <size_t Bytes>
void put_bytes(bool &has, uint8_t (&field)[Bytes], const uint8_t (&bytes)[Bytes])
{
    has = true;
    std::memcpy(field, bytes, Bytes);
}

template <size_t Bytes>
void take_text(char (&array)[Bytes], const char *field, size_t limit = Bytes)
{
    copy_text(array, limit, field, std::strlen(field));
}

template <size_t Bytes>
void take_bytes(uint8_t (&array)[Bytes], const uint8_t (&field)[Bytes])
{
    std::memcpy(array, field, Bytes);
}

// The structure is zero on entry.
void fill_peer(const tum_nal_data_session_context &record, bench_peer_SessionContext &message);
void fill_peer(const tum_nal_data_sub_route &record, bench_peer_SubRoute &message);
void fill_peer(const tum_nal_data_subscriber_stats &record, bench_peer_SubscriberStats &message);
void fill_peer(const tum_nal_data_rec_sess_req &record, bench_peer_RecSessReq &message);
void fill_peer(const tum_nal_data_srg_group_rec_start_req &record, bench_peer_SrgGroupRecStartReq &message);

// Overwrite the whole record. A decoder leaves absent fields zero, so they need no test.
void read_peer(const bench_peer_SessionContext &message, tum_nal_data_session_context &record);
void read_peer(const bench_peer_SubRoute &message, tum_nal_data_sub_route &record);
void read_peer(const bench_peer_SubscriberStats &message, tum_nal_data_subscriber_stats &record);
void read_peer(const bench_peer_RecSessReq &message, tum_nal_data_rec_sess_req &record);
void read_peer(const bench_peer_SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record);

// Of a session, too. The route is zero before it is read into.
void fill_peer(const tum_nal_data_ipv4_route &route, bench_peer_SubscriberRouteIpv4 &message);
void fill_peer(const tum_nal_data_ipv6_route &route, bench_peer_SubscriberRouteIpv6 &message);
void read_peer(const bench_peer_SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route);
void read_peer(const bench_peer_SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route);

} // namespace bench

#endif
