// Rules for every record.
#pragma once

#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_value.h"

namespace mava_tum_test
{

// Passes `value` through encode, decode (with and without the alias bit), duplicate and free, and reports each
// difference.
void check_round_trip(const message &tested, const record_value &value, random_source &random);

} // namespace mava_tum_test
