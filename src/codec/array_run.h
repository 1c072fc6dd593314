// A run: the occurrences of one array field that follow each other without another field in between. An array is one
// run; it is counted before anything is allocated.
#pragma once

#include "codec/wire_read.h"

#include <cstdint>

namespace mava_tum
{

struct run_count {
    uint64_t elements; // 64 bits, since an input may be longer than 2^32 bytes
    bool is_whole;     // false: some entry or the tag after it is cut short
};

// `at` is the position after the first entry's tag.
run_count count_run(const uint8_t *at, const uint8_t *end, uint32_t field_number);

// The entry whose tag (unless it is the first) stands at `at`. The run has been counted: all lies inside the input.
[[gnu::always_inline]] inline length_end read_run_entry(const uint8_t *at, const uint8_t *end, bool is_first)
{
    if (!is_first)
        at = read_tag(at, end).next;
    return read_length(at, end);
}

} // namespace mava_tum
