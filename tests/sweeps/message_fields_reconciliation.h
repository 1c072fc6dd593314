// A second copy, written by hand so that it can disagree: the fields of the reconciliation of sessions and of redundancy
// groups. See message_fields.h.
#pragma once

#include "mava_tum/reconciliation.h"
#include "mava_tum/redundancy_group.h"
#include "sweeps/record_is.h"

namespace mava_tum_test
{

void visit_fields(record_is<mava_tum_rec_start_req> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.text(4, record.field_4);
}

void visit_fields(record_is<mava_tum_rec_complete_req> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.text(4, record.field_4);
}

void visit_fields(record_is<mava_tum_rec_resp> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.text(2, record.field_2);
    visit.varint32(3, record.field_3);
}

void visit_fields(record_is<mava_tum_rec_session_state> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint64(2, record.field_2);
    visit.varint32(3, record.field_3);
}

void visit_fields(record_is<mava_tum_rec_sess_req> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.records(3, record.field_3, record.field_3_count);
    visit.text(4, record.field_4);
    visit.text(5, record.field_5);
    visit.varint32(6, record.field_6);
}

void visit_fields(record_is<mava_tum_rec_sess_resp> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.records(2, record.field_2, record.field_2_count);
    visit.varint32(3, record.field_3);
    visit.varint32(4, record.field_4);
}

void visit_fields(record_is<mava_tum_rec_sess_replay_req> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.records(4, record.field_4, record.field_4_count);
    visit.varint32(5, record.field_5);
    visit.text(6, record.field_6);
}

void visit_fields(record_is<mava_tum_rec_sess_replay_fail> auto &record, auto &visit)
{
    visit.varint64(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.record(3, record.field_3);
}

void visit_fields(record_is<mava_tum_sess_svc_start> auto &record, auto &visit)
{
    visit.varint64(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.varint32(4, record.field_4);
    visit.texts(5, record.field_5, record.field_5_count);
}

void visit_fields(record_is<mava_tum_rec_sess_replay_resp> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.records(2, record.field_2, record.field_2_count);
    visit.records(3, record.field_3, record.field_3_count);
    visit.text(4, record.field_4);
    visit.varint32(5, record.field_5);
}

void visit_fields(record_is<mava_tum_srg_group_rec_start_req> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
}

void visit_fields(record_is<mava_tum_srg_group_rec_resp> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
}

void visit_fields(record_is<mava_tum_srg_group_rec_complete_req> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
}

void visit_fields(record_is<mava_tum_srg_group_data> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.varint32(3, record.field_3);
    visit.varint32(4, record.field_4);
    visit.text(5, record.field_5);
}

void visit_fields(record_is<mava_tum_srg_group_rec_replay_req> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.varint32(2, record.field_2);
    visit.records(3, record.field_3, record.field_3_count);
    visit.varint32(4, record.field_4);
}

void visit_fields(record_is<mava_tum_srg_group_rec_replay_resp> auto &record, auto &visit)
{
    visit.varint32(1, record.field_1);
    visit.records(2, record.field_2, record.field_2_count);
    visit.records(3, record.field_3, record.field_3_count);
    visit.varint32(4, record.field_4);
}

} // namespace mava_tum_test
