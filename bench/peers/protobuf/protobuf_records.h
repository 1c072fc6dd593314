// Application records to and from protobuf messages, by the rules of the adapters.
#ifndef MAVA_TUM_BENCH_PROTOBUF_RECORDS_H
#define MAVA_TUM_BENCH_PROTOBUF_RECORDS_H

#include "peers/harness/application_fields.h"

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"

#ifdef MAVA_TUM_BENCH_PROTO2
#include "session_proto2.pb.h"
#else
#include "session.pb.h"
#endif

#include <string>

namespace bench
{

// The same sources make two modules: the messages are generated as proto3 for the one, as proto2 for the other. The
// runtime identifies messages by their names, so those of proto2 have their own package.
#ifdef MAVA_TUM_BENCH_PROTO2
namespace peer = peer_proto2;
#define MAVA_TUM_BENCH_PROTOBUF_SIDE "proto2"
inline constexpr const char *peer_language = "proto2";
inline constexpr bool peer_uses_arena = false; // the other module has it
#else
#define MAVA_TUM_BENCH_PROTOBUF_SIDE "protobuf"
inline constexpr const char *peer_language = "proto3";
inline constexpr bool peer_uses_arena = true;
#endif

// Copies texts and byte arrays between an application record and a message.

// The generated set_...(const char *) builds a temporary string; assigning to the mutable one reuses its capacity.
inline void assign_text(std::string *target, const char *text)
{
    target->assign(text, std::strlen(text));
}

template <size_t Bytes>
void assign_bytes(std::string *target, const uint8_t (&bytes)[Bytes])
{
    target->assign(reinterpret_cast<const char *>(bytes), Bytes);
}

inline void copy_text(char *array, size_t limit, const std::string &text)
{
    copy_text(array, limit, text.data(), text.size());
}

template <size_t Bytes>
void copy_text(char (&array)[Bytes], const std::string &text)
{
    copy_text(array, Bytes, text.data(), text.size());
}

template <size_t Bytes>
void copy_bytes(uint8_t (&array)[Bytes], const std::string &bytes)
{
    copy_bytes(array, bytes.data(), bytes.size());
}

// `message` is empty on entry. A non-zero `field_8` of an IPv4 route takes the place of `field_7`, as in the adapter.
void fill_peer(const tum_nal_data_session_context &record, peer::SessionContext &message);
void fill_peer(const tum_nal_data_ipv4_route &route, peer::SubscriberRouteIpv4 &message);
void fill_peer(const tum_nal_data_ipv6_route &route, peer::SubscriberRouteIpv6 &message);
void fill_peer(const tum_nal_data_sub_route &record, peer::SubRoute &message);
void fill_peer(const tum_nal_data_subscriber_stats &record, peer::SubscriberStats &message);
void fill_peer(const tum_nal_data_rec_sess_req &record, peer::RecSessReq &message);
void fill_peer(const tum_nal_data_srg_group_rec_start_req &record, peer::SrgGroupRecStartReq &message);

// The route is zero on entry.
void read_peer(const peer::SubscriberRouteIpv4 &message, tum_nal_data_ipv4_route &route);
void read_peer(const peer::SubscriberRouteIpv6 &message, tum_nal_data_ipv6_route &route);

// Overwrite the whole record.
void read_peer(const peer::SessionContext &message, tum_nal_data_session_context &record);
void read_peer(const peer::SubRoute &message, tum_nal_data_sub_route &record);
void read_peer(const peer::SubscriberStats &message, tum_nal_data_subscriber_stats &record);
void read_peer(const peer::RecSessReq &message, tum_nal_data_rec_sess_req &record);
void read_peer(const peer::SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record);

} // namespace bench

#endif
