// src/codec/array_run.h and .cpp, line by line. What differs, and why: README.md.
#include "proof_array_run.h"

struct payload proof_run_element(struct run_position *position)
{
    const struct payload found = proof_read_payload(position->at, position->end);
    position->at = found.data == NULL ? NULL : found.data + found.length;
    return found;
}

void proof_run_step_over_tag(struct run_position *position)
{
    position->at = proof_read_started_varint32(position->at, position->end).next;
}

enum follower proof_run_next(struct run_position *position)
{
    if (position->at == position->end)
        return follower_other_field;
    const struct number_read32 tag = proof_read_started_varint32(position->at, position->end);
    if (tag.next == NULL)
        return follower_truncated;
    if (tag.value / 8 != position->field_number)
        return follower_other_field;
    position->at = tag.next;
    return follower_element;
}

struct run_count proof_count_run(const uint8_t *at, const uint8_t *end, uint32_t field_number)
{
    struct run_position position = {at, end, field_number};
    /*@
      loop invariant input: span(position.at, position.end) && position.end == end;
      loop invariant forward: \base_addr(position.at) == \base_addr(at) && at <= position.at;
      loop invariant counted: 1 <= elements && elements - 1 <= position.at - at;
      loop assigns elements, position.at;
      loop variant end - position.at;
    */
    for (uint64_t elements = 1;; ++elements) {
        if (proof_run_element(&position).data == NULL)
            return (struct run_count){0, false};
        switch (proof_run_next(&position)) {
        case follower_element:
            break;
        case follower_other_field:
            return (struct run_count){elements, true};
        case follower_truncated:
            return (struct run_count){0, false};
        }
    }
}
