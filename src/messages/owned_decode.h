// What the decode adapters call: a decode into a scratch record of theirs, which they have zeroed. It aliases the input.
// Unlike the exported decoders, it gives back what a nested record holds before a second occurrence is decoded over it,
// so that the exported free, called with the alias bit, leaves nothing behind.
#pragma once

#include "mava_tum/reconciliation.h"
#include "mava_tum/redundancy_group.h"
#include "mava_tum/routes.h"
#include "mava_tum/session_messages.h"
#include "mava_tum/statistics.h"

namespace mava_tum
{

void decode_owned(mava_tum_session_context &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_session_delete &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_sess_oper_resp &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_subscriber_stats &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_sub_route &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_subscriber_route_resp &record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn);
void decode_owned(mava_tum_rec_start_req &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_rec_complete_req &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_rec_resp &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_rec_sess_req &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_rec_sess_resp &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_rec_sess_replay_req &record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn);
void decode_owned(mava_tum_rec_sess_replay_resp &record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn);
void decode_owned(mava_tum_srg_group_rec_start_req &record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn);
void decode_owned(mava_tum_srg_group_rec_resp &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn,
    mava_tum_release_fn release_fn);
void decode_owned(mava_tum_srg_group_rec_complete_req &record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn);
void decode_owned(mava_tum_srg_group_rec_replay_req &record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn);
void decode_owned(mava_tum_srg_group_rec_replay_resp &record, const uint8_t *data, uint64_t length,
    mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn);

} // namespace mava_tum
