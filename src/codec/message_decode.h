// The decode frame, in ordered rounds: a tag is compared with each field's whole tag in schema order, and when it
// matches, value and next tag are read right there and the comparison goes on with the next field. Writers write in
// field order, so one round usually decodes the message and every branch predicts well.
#pragma once

#include "codec/frames.h"
#include "codec/skip_unknown_field.h"
#include "codec/wire_read.h"
#include "codec/wire_types.h"
#include "mava_tum/codec_contract.h"

namespace mava_tum
{

template <class Record, class... Field>
[[gnu::always_inline]] inline void reset_fields(field_list<Field...>, Record &record)
{
    (Field::reset(record), ...);
    set_presence(record, own_bits<Record>, 0);
}

template <class Record>
[[gnu::always_inline]] inline void reset_record(Record &record)
{
    reset_fields(fields_of<Record>{}, record);
}

// Where a decode stands: at a tag, of which only the first byte has been read. It lives in registers: everything that
// takes it is inlined.
struct decode_position {
    const uint8_t *at;
    const uint8_t *end;
    uint32_t first_byte; // of the tag at `at`, or a mark of `assume_tag`
    uint32_t present;
    int32_t result;

    static constexpr uint32_t assumed = 1u << 16;

    // False when the message is over.
    [[gnu::always_inline]] bool next_tag()
    {
        result = MAVA_TUM_OK;
        if (at == end)
            return false;
        first_byte = *at;
        return true;
    }

    // Accepts the end of a value. False when it failed.
    [[gnu::always_inline]] bool accept(const read_end &value)
    {
        at = value.next;
        result = value.failure;
        return at != nullptr;
    }

    // Whether the tag here is `tag`, in its shortest form.
    template <uint32_t tag>
    [[gnu::always_inline]] bool is_at() const
    {
        constexpr uint32_t wire = wire_tag(tag);
        if constexpr (tag < varint_continues)
            return first_byte == wire;
        else
            return (first_byte == (wire & 0xff) && end - at > 1 && at[1] == wire >> 8) || first_byte == (assumed | tag);
    }
};

// Decodes `Field` if its tag is next. False ends the decode.
template <class Field, class Record>
[[gnu::always_inline]] inline bool decode_if_next(
    Record &record, decode_position &position, const decode_context &context)
{
    if (!position.is_at<Field::tag>()) [[unlikely]]
        return true;
    const uint8_t *const value = position.at + Field::tag_bytes;
    const bool seen = (position.present & Field::bit) != 0;
    if (!position.accept(Field::read(record, seen, value, position.end, context)))
        return false;
    position.present |= Field::bit;
    return position.next_tag();
}

// One round. Afterwards `position` has moved unless the tag there is no field's in its shortest form. False ends the
// decode.
template <class Record, class... Field>
[[gnu::always_inline]] inline bool decode_round(
    field_list<Field...>, Record &record, decode_position &position, const decode_context &context)
{
    return (decode_if_next<Field>(record, position, context) && ...);
}

template <class... Field>
constexpr bool is_tag_of_any(field_list<Field...>, uint32_t tag)
{
    return ((Field::tag == tag) || ...);
}

// Where a decode goes on after a tag that no field has in its shortest form. `at` is null when it ends.
struct unmatched_end {
    const uint8_t *at;
    uint32_t first_byte;
    int32_t result;
};

// Goes on as if the tag of a field, which ends before `next`, stood there in its shortest form. L2: it did not.
inline unmatched_end assume_tag(uint32_t tag, const uint8_t *next)
{
    if (tag < varint_continues)
        return {next - 1, tag, MAVA_TUM_OK};
    return {next - 2, decode_position::assumed | tag, MAVA_TUM_OK};
}

// An unknown field, a known one with another wire type, or a known one with a tag in a longer form than it needs.
template <class Record>
[[gnu::noinline]] unmatched_end decode_unmatched(const uint8_t *at, const uint8_t *end)
{
    const varint32_end tag = read_tag(at, end);
    if (tag.next == nullptr)
        return {nullptr, 0, MAVA_TUM_TRUNCATED};
    if (is_tag_of_any(fields_of<Record>{}, tag.value))
        return assume_tag(tag.value, tag.next);
    const uint32_t number = field_number_of(tag.value);
    if (number >= 1 && number <= field_count<Record>)
        return {nullptr, 0, MAVA_TUM_WRONG_WIRE_TYPE};
    const read_end skipped = skip_unknown_field(wire_type_of(tag.value), tag.next, end);
    if (skipped.next == nullptr || skipped.next == end)
        return {nullptr, 0, skipped.next == end ? MAVA_TUM_OK : skipped.failure};
    return {skipped.next, *skipped.next, MAVA_TUM_OK};
}

// Rounds until the message ends.
template <class Record>
[[gnu::always_inline]] inline int32_t decode_rounds(
    Record &record, decode_position position, const decode_context &context)
{
    bool goes_on = position.next_tag();
    while (goes_on) {
        const uint8_t *const round_start = position.at;
        goes_on = decode_round(fields_of<Record>{}, record, position, context);
        if (!goes_on || position.at != round_start)
            continue;
        const unmatched_end unmatched = decode_unmatched<Record>(position.at, position.end);
        position.at = unmatched.at;
        position.first_byte = unmatched.first_byte;
        position.result = unmatched.result;
        goes_on = unmatched.at != nullptr;
    }
    add_presence(record, position.present);
    return position.result;
}

// The rest of a flat record, from a tag that its first round did not know.
template <class Record>
[[gnu::noinline, gnu::noclone]] int32_t decode_flat_rest(
    Record &record, const uint8_t *at, const uint8_t *end, uint32_t present)
{
    return decode_rounds(record, {at, end, 0, present, MAVA_TUM_OK}, {});
}

// The decoders of nested records are shared by all sources that nest them: a compiler that clones them for one source
// makes the library larger and nothing faster.

// A flat record. Most are tiny: as long as every tag is known, this calls nothing and so saves no register.
template <class Record>
[[gnu::noinline, gnu::noclone]] int32_t decode_flat(Record &record, const uint8_t *at, const uint8_t *end)
{
    decode_position position{at, end, 0, 0, MAVA_TUM_OK};
    bool goes_on = position.next_tag();
    while (goes_on) {
        const uint8_t *const round_start = position.at;
        goes_on = decode_round(fields_of<Record>{}, record, position, {});
        if (goes_on && position.at == round_start) [[unlikely]]
            return decode_flat_rest(record, position.at, position.end, position.present);
    }
    add_presence(record, position.present);
    return position.result;
}

template <class Record>
[[gnu::noinline, gnu::noclone]] int32_t decode_with_context(
    Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    return decode_rounds<Record>(record, {at, end, 0, 0, MAVA_TUM_OK}, context);
}

template <class Record>
[[gnu::always_inline]] inline int32_t decode_record(
    Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    static_assert(is_well_formed<Record>(fields_of<Record>{}));
    if constexpr (is_flat<Record>)
        return decode_flat<Record>(record, at, end);
    else
        return decode_with_context<Record>(record, at, end, context);
}

// The decode behind the adapters, into a cleared scratch record of theirs: it aliases the input and gives back what a
// second occurrence of a nested record replaces.
template <class Record>
void decode_for_adapter(
    Record &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn)
{
    if (length != 0)
        decode_record(record, data, data + length, {{alloc_fn, nullptr}, MAVA_TUM_ALIAS, release_fn});
}

// The exported decoders.
template <class Record>
int32_t decode_message(Record &record, const uint8_t *data, uint64_t length, const decode_context &context)
{
    reset_record(record);
    if (length == 0)
        return MAVA_TUM_OK; // `data` may be null
    return decode_record(record, data, data + length, context);
}

} // namespace mava_tum
