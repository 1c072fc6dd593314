// One wire through a decode adapter; the received record, changed records and random ones through the encode adapter.
// Allocations, time and stack do not count as behaviour here.
#pragma once

#include "adapter_records.h"
#include "encode_runs.h"
#include "message_runs.h"
#include "model/application_layout.h"

namespace mava_tum_behaviour
{

class adapter_runs
{
public:
    adapter_runs(behaviour_table &table, std::size_t adapter_index);

    void run(const wire_input &input);
    void decode(std::span<const uint8_t> wire);

private:
    void encode(behaviour_row &row, uint64_t seed);

    const mava_tum_fuzz::adapter &adapter_;
    const mava_tum_model::application_layout &sent_layout_;
    guarded_output received_;
    guarded_output sent_;
    guarded_output output_;
    behaviour_row &decode_row_;
    behaviour_row *encode_rows_[3];
};

} // namespace mava_tum_behaviour
