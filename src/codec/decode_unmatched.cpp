// The step after a tag that no field of a message has in its shortest form.
#include "codec/decode_unmatched.h"

#include "codec/skip_unknown_field.h"

namespace mava_tum
{

// Continues as if the tag of a field, which ends before `next`, stood there in its shortest form. L2: it did not.
static unmatched_tag assume_shortest(uint32_t tag, const uint8_t *next)
{
    if (tag < varint_continues)
        return {next - 1, tag, MAVA_TUM_OK};
    return {next - 2, assumed_tag | tag, MAVA_TUM_OK};
}

unmatched_tag decode_unmatched(const uint8_t *at, const uint8_t *end, const wire_type *types, uint64_t field_count)
{
    const number_read<uint32_t> tag = read_tag(at, end);
    if (tag.next == nullptr)
        return unmatched_tag::ends_with(MAVA_TUM_TRUNCATED);
    const uint32_t number = field_number_of(tag.value);
    const wire_type type = wire_type_of(tag.value);
    if (number >= 1 && number <= field_count) {
        if (type != types[number - 1])
            return unmatched_tag::ends_with(MAVA_TUM_WRONG_WIRE_TYPE);
        return assume_shortest(tag.value, tag.next);
    }
    const field_read skipped = skip_unknown_field(type, tag.next, end);
    if (skipped.next == nullptr || skipped.next == end)
        return unmatched_tag::ends_with(skipped.failure);
    return {skipped.next, *skipped.next, MAVA_TUM_OK};
}

} // namespace mava_tum
