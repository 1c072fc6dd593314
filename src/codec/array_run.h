// A run: the elements of one array field that follow each other without another field in between. An array is one run.
#pragma once

#include "codec/wire_read.h"

#include <cstdint>

namespace mava_tum
{

// Walks along a run, one element after the other.
struct run_position {
    const uint8_t *at; // after the element's tag; after the last element, behind the run
    const uint8_t *end;
    uint32_t field_number;

    // The next element. Its data is null when it does not lie inside the input.
    payload element()
    {
        const payload found = read_payload(at, end);
        at = found.data == nullptr ? nullptr : found.end();
        return found;
    }

    // To the next element of a run that has been counted: all of it lies inside the input.
    void step_over_tag()
    {
        at = read_tag(at, end).next;
    }

    enum class follower { element, other_field, truncated };

    // The bytes after the element that was read last.
    follower next()
    {
        if (at == end)
            return follower::other_field;
        const number_read<uint32_t> tag = read_tag(at, end);
        if (tag.next == nullptr)
            return follower::truncated;
        if (field_number_of(tag.value) != field_number) // L5: the wire type of later elements is not looked at
            return follower::other_field;
        at = tag.next;
        return follower::element;
    }
};

struct run_count {
    uint64_t elements; // 64 bits, since an input may be longer than 2^32 bytes
    bool is_whole;     // false: an element or the tag after it is truncated
};

// `at` is the position after the first element's tag.
run_count count_run(const uint8_t *at, const uint8_t *end, uint32_t field_number);

} // namespace mava_tum
