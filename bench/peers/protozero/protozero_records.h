// Application records straight to wire bytes and back, by the rules of the adapters.
#ifndef MAVA_TUM_BENCH_PROTOZERO_RECORDS_H
#define MAVA_TUM_BENCH_PROTOZERO_RECORDS_H

#include "peers/protozero/protozero_fields.h"

#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"

namespace bench
{

// `buffer` is empty on entry.
void write_record(output_buffer &buffer, const tum_nal_data_session_context &record);
void write_record(output_buffer &buffer, const tum_nal_data_sub_route &record);
void write_record(output_buffer &buffer, const tum_nal_data_subscriber_stats &record);
void write_record(output_buffer &buffer, const tum_nal_data_rec_sess_req &record);
void write_record(output_buffer &buffer, const tum_nal_data_srg_group_rec_start_req &record);

// Overwrite the whole record.
void read_record(pbf_reader message, tum_nal_data_session_context &record);
void read_record(pbf_reader message, tum_nal_data_sub_route &record);
void read_record(pbf_reader message, tum_nal_data_subscriber_stats &record);
void read_record(pbf_reader message, tum_nal_data_rec_sess_req &record);
void read_record(pbf_reader message, tum_nal_data_srg_group_rec_start_req &record);

// Of a session, too. The route is zero before it is read into.
void write_route(writer &message, const tum_nal_data_ipv4_route &route);
void write_route(writer &message, const tum_nal_data_ipv6_route &route);
void read_route(pbf_reader message, tum_nal_data_ipv4_route &route);
void read_route(pbf_reader message, tum_nal_data_ipv6_route &route);

// The nested messages of a session that say how it reaches the network: addresses, PPP, L2TP, VLANs, names.
void read_v4(pbf_reader message, tum_nal_data_session_context &record);
void read_v6(pbf_reader message, tum_nal_data_session_context &record);
void read_session_data(pbf_reader message, tum_nal_data_session_context &record);

} // namespace bench

#endif
