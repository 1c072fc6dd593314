// Application records of reconciliation to and from protobuf messages, by the rules of their adapters.
#ifndef MAVA_TUM_BENCH_RECONCILIATION_PEER_H
#define MAVA_TUM_BENCH_RECONCILIATION_PEER_H

#include "session.pb.h"
#include "tum_nal/nal_reconciliation.h"
#include "tum_nal/nal_redundancy_group.h"

namespace bench
{

// `message` is empty on entry.
void fill_peer(const tum_nal_data_rec_sess_req &record, peer::RecSessReq &message);
void fill_peer(const tum_nal_data_srg_group_rec_start_req &record, peer::SrgGroupRecStartReq &message);

// Overwrite the whole record.
void read_peer(const peer::RecSessReq &message, tum_nal_data_rec_sess_req &record);
void read_peer(const peer::SrgGroupRecStartReq &message, tum_nal_data_srg_group_rec_start_req &record);

} // namespace bench

#endif
