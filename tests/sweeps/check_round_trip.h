// Everything that must hold for any record at all.
#pragma once

#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_value.h"

namespace mava_tum_test
{

// Sends `value` through encode, decode (copying and aliasing), duplicate and free, and reports what does not fit.
void check_round_trip(const message &tested, const record_value &value, random_source &random);

} // namespace mava_tum_test
