// The decode frame, in ordered rounds: a tag is compared with each field's whole tag in schema order, and when it
// matches, value and next tag are read right there and the comparison goes on with the next field. Writers write in
// field order, so one round usually decodes the message and every branch predicts well.
#pragma once

#include "codec/frames.h"
#include "codec/skip_unknown_field.h"
#include "codec/wire_read.h"
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

// Where a decode stands. It lives in registers: everything that takes it is inlined.
struct decode_position {
    const uint8_t *at;
    const uint8_t *end;
    uint32_t tag;
    uint32_t present;
    int32_t result;

    // Reads the next tag. False when the message is over, well or not.
    [[gnu::always_inline]] bool next_tag()
    {
        result = MAVA_TUM_OK;
        if (at == end)
            return false;
        const varint32_end read = read_tag(at, end);
        at = read.next;
        tag = read.value;
        result = MAVA_TUM_TRUNCATED;
        return at != nullptr;
    }

    // Accepts the end of a value. False when it failed.
    [[gnu::always_inline]] bool accept(const read_end &value)
    {
        at = value.next;
        result = value.failure;
        return at != nullptr;
    }
};

// Decodes `Field` if its tag is next. False ends the decode.
template <class Field, class Record>
[[gnu::always_inline]] inline bool decode_if_next(
    Record &record, decode_position &position, const decode_context &context)
{
    if (position.tag != Field::tag)
        return true;
    const bool seen = (position.present & Field::bit) != 0;
    if (!position.accept(Field::read(record, seen, position.at, position.end, context)))
        return false;
    position.present |= Field::bit;
    return position.next_tag();
}

// A tag that no field has. False ends the decode.
template <class Record>
[[gnu::always_inline]] inline bool skip_or_refuse(decode_position &position)
{
    const uint32_t number = field_number_of(position.tag);
    if (number >= 1 && number <= field_count<Record>)
        return position.accept({nullptr, MAVA_TUM_WRONG_WIRE_TYPE});
    return position.accept(skip_unknown_field(wire_type_of(position.tag), position.at, position.end)) &&
           position.next_tag();
}

template <class Record, class... Field>
[[gnu::always_inline]] inline int32_t decode_fields(
    field_list<Field...>, Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    static_assert(is_well_formed<Record>(field_list<Field...>{}));
    decode_position position{at, end, 0, 0, MAVA_TUM_OK};
    bool goes_on = position.next_tag();
    while (goes_on) {
        const uint8_t *const round_start = position.at;
        goes_on = (decode_if_next<Field>(record, position, context) && ...);
        if (goes_on && position.at == round_start)
            goes_on = skip_or_refuse<Record>(position);
    }
    set_presence(record, own_bits<Record>, position.present);
    return position.result;
}

template <class Record>
[[gnu::noinline]] int32_t decode_record(
    Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    return decode_fields(fields_of<Record>{}, record, at, end, context);
}

// The decode behind the adapters, into a scratch record of theirs: it aliases the input, clears the whole record, and
// gives back what a second occurrence of a nested record replaces.
template <class Record>
void decode_for_adapter(
    Record &record, const uint8_t *data, uint64_t length, mava_tum_alloc_fn alloc_fn, mava_tum_release_fn release_fn)
{
    record = {};
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
