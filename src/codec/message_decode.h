// The decode engine, in ordered rounds: a tag is compared with each field's whole tag in schema order, and when it
// matches, value and next tag are read there and the comparison continues with the next field. Writers write in
// field order, so one round usually decodes the message and every branch predicts well.
//
// A form says where the values go:
//
//     message                       whose field list is decoded
//     record                        what holds the values
//     context                       what is passed down to every nested record
//     place<Field>::read(record, seen, at, end, context)
//                                   reads one occurrence of a field, or one run of an array
//     complete(record, present)     called once, however the decode ends
#pragma once

#include "codec/decode_unmatched.h"
#include "codec/operations.h"
#include "codec/probes.h"
#include "codec/wire_read.h"

#include <array>

namespace mava_tum
{

// The position of a decode: at a tag whose first byte has been read. It lives in registers: everything that
// takes it is inlined.
struct decode_position {
    const uint8_t *at;
    const uint8_t *end;
    uint32_t first_byte; // of the tag at `at`, or a mark of `decode_unmatched`
    uint32_t present;
    int32_t result;
    MAVA_TUM_PROBED(probed_place place{};)

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
    [[gnu::always_inline]] bool accept(const field_read &value)
    {
        at = value.next;
        result = value.failure;
        return at != nullptr;
    }

    // Whether the field's tag is here, in its shortest form.
    template <class Field>
    [[gnu::always_inline]] bool is_at() const
    {
        constexpr uint32_t bytes = Field::tag.bytes;
        if constexpr (Field::tag.length == 1)
            return first_byte == bytes;
        else
            return (first_byte == (bytes & 0xff) && end - at > 1 && at[1] == bytes >> 8) ||
                   first_byte == (assumed_tag | Field::tag_value);
    }
};

// Decodes `Field` if its tag is next. False ends the decode.
template <class Form, class Field>
[[gnu::always_inline]] inline bool decode_if_next(
    typename Form::record &record, decode_position &position, const typename Form::context &context)
{
    if (!position.is_at<Field>()) [[unlikely]]
        return true;
    const uint8_t *const value = position.at + Field::tag.length;
    const bool seen = (position.present & Field::bit) != 0;
    MAVA_TUM_PROBED(position.place.field = Field::number;)
    if (!position.accept(Form::template place<Field>::read(record, seen, value, position.end, context)))
        return false;
    position.present |= Field::bit;
    return position.next_tag();
}

// One round. Afterwards `position` has moved unless the tag there is no field's in its shortest form. False ends the
// decode.
template <class Form, class... Field>
[[gnu::always_inline]] inline bool decode_round(field_list<Field...>, typename Form::record &record,
    decode_position &position, const typename Form::context &context)
{
    return (decode_if_next<Form, Field>(record, position, context) && ...);
}

// The wire types of fields 1, 2, ...
template <class List>
inline constexpr std::array<wire_type, 0> wire_types_of{};

template <class... Field>
inline constexpr std::array<wire_type, sizeof...(Field)> wire_types_of<field_list<Field...>>{Field::type...};

// Rounds until the message ends.
template <class Form>
[[gnu::always_inline]] inline int32_t decode_rounds(
    typename Form::record &record, decode_position position, const typename Form::context &context)
{
    constexpr const auto &types = wire_types_of<fields_of<typename Form::message>>;
    bool continues = position.next_tag();
    while (continues) {
        const uint8_t *const round_start = position.at;
        MAVA_TUM_PROBED(position.place.round_start = round_start;)
        continues = decode_round<Form>(fields_of<typename Form::message>{}, record, position, context);
        if (!continues || position.at != round_start)
            continue;
        const unmatched_tag unmatched = decode_unmatched(position.at, position.end, types.data(), types.size());
        position.at = unmatched.at;
        position.first_byte = unmatched.first_byte;
        position.result = unmatched.result;
        MAVA_TUM_PROBED(position.place.field = 0;)
        continues = unmatched.at != nullptr;
    }
    Form::complete(record, position.present);
    MAVA_TUM_PROBED(if (position.result != MAVA_TUM_OK)
                        [[unlikely]] return report_fault<Form>(position.place, position.end, position.result);)
    return position.result;
}

// The decoders of nested records are shared by all sources that nest them: a compiler that clones them for one source
// makes the library larger and nothing faster.

template <class Form>
[[gnu::noinline, gnu::noclone]] int32_t decode_any(
    typename Form::record &record, const uint8_t *at, const uint8_t *end, typename Form::context_argument context)
{
    return decode_rounds<Form>(record, {at, end, 0, 0, MAVA_TUM_OK}, context);
}

// The rest of a flat message, from a tag that its first round did not know.
template <class Form>
[[gnu::noinline, gnu::noclone, gnu::cold]] int32_t decode_flat_rest(
    typename Form::record &record, const uint8_t *at, const uint8_t *end, uint32_t present)
{
    return decode_rounds<Form>(record, {at, end, 0, present, MAVA_TUM_OK}, {});
}

// A flat message, inline: as long as every tag is known, this calls nothing.
template <class Form>
[[gnu::always_inline]] inline int32_t decode_flat_inline(
    typename Form::record &record, const uint8_t *at, const uint8_t *end)
{
    decode_position position{at, end, 0, 0, MAVA_TUM_OK};
    bool continues = position.next_tag();
    while (continues) {
        const uint8_t *const round_start = position.at;
        MAVA_TUM_PROBED(position.place.round_start = round_start;)
        continues = decode_round<Form>(fields_of<typename Form::message>{}, record, position, {});
        if (continues && position.at == round_start) [[unlikely]]
            return decode_flat_rest<Form>(record, position.at, position.end, position.present);
    }
    Form::complete(record, position.present);
    MAVA_TUM_PROBED(if (position.result != MAVA_TUM_OK)
                        [[unlikely]] return report_fault<Form>(position.place, position.end, position.result);)
    return position.result;
}

// The same as a function that saves no register.
template <class Form>
[[gnu::noinline, gnu::noclone]] int32_t decode_flat(
    typename Form::record &record, const uint8_t *at, const uint8_t *end)
{
    return decode_flat_inline<Form>(record, at, end);
}

template <class Form>
[[gnu::always_inline]] inline int32_t decode_fields(
    typename Form::record &record, const uint8_t *at, const uint8_t *end, typename Form::context_argument context)
{
    using message = typename Form::message;
    static_assert(is_well_formed<message>(fields_of<message>{}));
    if constexpr (is_flat<message>)
        return decode_flat<Form>(record, at, end);
    else
        return decode_any<Form>(record, at, end, context);
}

// An element of an array: flat ones of a few fields inline, since their loop takes longer than their fields.
template <class Form>
[[gnu::always_inline]] inline int32_t decode_element(
    typename Form::record &record, const uint8_t *at, const uint8_t *end, typename Form::context_argument context)
{
    if constexpr (is_tiny<typename Form::message>)
        return decode_flat_inline<Form>(record, at, end);
    else
        return decode_fields<Form>(record, at, end, context);
}

// ---- into a codec record ----

// Every field is its own place.
template <class Record>
struct codec_form {
    using message = Record;
    using record = Record;
    using context = decode_context;
    using context_argument = const decode_context &;

    template <class Field>
    using place = Field;

    [[gnu::always_inline]] static void complete(Record &record, uint32_t present)
    {
        add_presence(record, present);
    }
};

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

template <class Record>
[[gnu::always_inline]] inline int32_t decode_record(
    Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    return decode_fields<codec_form<Record>>(record, at, end, context);
}

template <class Record>
[[gnu::always_inline]] inline int32_t decode_element_record(
    Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    return decode_element<codec_form<Record>>(record, at, end, context);
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
