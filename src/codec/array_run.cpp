#include "codec/array_run.h"

namespace mava_tum
{

run_count count_run(const uint8_t *at, const uint8_t *end, uint32_t field_number)
{
    for (uint64_t elements = 1;; ++elements) {
        const length_end entry = read_length(at, end);
        if (entry.value == nullptr)
            return {0, false};
        at = entry.value + entry.length;
        if (at == end)
            return {elements, true};
        const varint32_end tag = read_tag(at, end);
        if (tag.next == nullptr)
            return {0, false};
        if (field_number_of(tag.value) != field_number) // L5: the wire type of later entries is not looked at
            return {elements, true};
        at = tag.next;
    }
}

} // namespace mava_tum
