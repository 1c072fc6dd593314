// What decode and duplicate must leave behind, predicted from the tree of values: the record, the result, and every
// call of the allocator.
#pragma once

#include "sweeps/record_value.h"

#include <cstdint>
#include <limits>
#include <vector>

namespace mava_tum_test
{

// Which allocator calls fail, counted from 1; by default none. `sizes` collects what is asked for.
struct allocation_plan {
    uint64_t first_failing = std::numeric_limits<uint64_t>::max();
    uint64_t last_failing = std::numeric_limits<uint64_t>::max();
    std::vector<uint64_t> sizes;

    bool allocate(uint64_t size)
    {
        sizes.push_back(size);
        return sizes.size() < first_failing || sizes.size() > last_failing;
    }
};

// Decodes the wire of `sent` into `record`, which is blank but for its spare mask bits. Returns the result code.
int32_t expect_decode(record_value &record, const record_value &sent, allocation_plan &plan, bool alias);

// Copies `source` into `record`, which is blank but for its spare mask bits. Returns the result code.
int32_t expect_duplicate(record_value &record, const record_value &source, allocation_plan &plan);

// What a free leaves of `record`: lengths and bits, but neither pointers nor counts. Aliased bytes are not touched.
// Returns the sizes of the blocks in the order in which they are given back.
std::vector<uint64_t> expect_free(record_value &record, bool alias);

// Leaves the record without content, but with its spare mask bits.
void clear_fields(record_value &record);

// What of `sent` a decoder delivers when the wire ends after `cut` bytes: `sent` without the fields that are not
// complete. `result` becomes the decoder's result code.
record_value sent_before_cut(const record_value &sent, std::size_t cut, int32_t &result);

} // namespace mava_tum_test
