// What a decode of any bytes at all must leave behind: a second decoder over trees of values, as slow and plain as the
// rules it follows, which are those of docs/wire-format.md and docs/leniency.md.
#pragma once

#include "sweeps/expected_record.h"

#include <cstddef>

namespace mava_tum_test
{

// How a decoder is called, and what becomes of its memory.
struct decode_run {
    allocation_plan plan;
    bool alias = false;
    bool allocator_given = true;
    // Blocks that the first occurrence of a record obtained and that its second occurrence drops.
    std::size_t dropped_blocks = 0;
};

// Decodes `wire` into `record`, which is blank but for its spare mask bits. Returns the result code.
int32_t expect_decode_of(record_value &record, const byte_vector &wire, decode_run &run);

} // namespace mava_tum_test
