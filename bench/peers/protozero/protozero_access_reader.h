// The nested messages of a session that tell how it reaches the network: addresses, PPP, L2TP, VLANs, names.
#ifndef MAVA_TUM_BENCH_PROTOZERO_ACCESS_READER_H
#define MAVA_TUM_BENCH_PROTOZERO_ACCESS_READER_H

#include "peers/protozero/protozero_records.h"

namespace bench
{

void read_v4(pbf_reader message, tum_nal_data_session_context &record);
void read_v6(pbf_reader message, tum_nal_data_session_context &record);
void read_session_data(pbf_reader message, tum_nal_data_session_context &record);

} // namespace bench

#endif
