// text_array: an array of pointers to texts, and their count. Both the array and every text are blocks of the record.
// As with records, all texts arrive in one run, and a second run is refused.
#pragma once

#include "codec/field_record_array.h"
#include "codec/field_text.h"

#include <cstring>

namespace mava_tum
{

[[gnu::noinline]] inline field_read read_text_array(char **&array, uint32_t &count, uint32_t field_number,
    const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    const field_read run = start_run(array, count, field_number, at, end, context.blocks);
    if (run.next == nullptr)
        return run;
    run_position position{at, end, field_number};
    for (uint32_t i = 0; i < count; ++i) {
        if (i != 0)
            position.step_over_tag();
        const payload element = position.element();
        array[i] = copy_payload_as_text(element.data, element.length, context.blocks);
        if (array[i] == nullptr)
            return field_read::failed(MAVA_TUM_NO_MEMORY);
    }
    return field_read::ends_at(position.at);
}

// A text that cannot be copied leaves its element null; the array, its count and its bit stay.
[[gnu::noinline]] inline bool copy_texts(
    char **destination, char *const *source, uint32_t count, const block_source &blocks)
{
    bool complete = true;
    for (uint32_t i = 0; i < count; ++i)
        complete &= copy_text(destination[i], source[i], blocks);
    return complete;
}

[[gnu::noinline]] inline void release_text_array(char **&array, uint32_t &count, const block_sink &blocks)
{
    if (array != nullptr)
        for (uint32_t i = 0; i < count; ++i)
            blocks.release(array[i]);
    blocks.release(array);
    count = 0;
}

namespace kind
{

template <uint32_t Number, auto Member, auto CountMember>
struct text_array : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;

    // Each text asks for room first, so the texts count once.
    static constexpr field_shape shape = field_shape::text_array;
    static constexpr uint32_t max_head_bytes = key::tag.length + max_varint32_bytes;
    static constexpr uint32_t max_put_bytes = key::tag.length + max_short_put_bytes;
    static constexpr bool is_scalar = false;
    static constexpr bool asks_for_room = true;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = nullptr;
        record.*CountMember = 0;
    }

    [[gnu::always_inline]] static field_read read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        return read_text_array(record.*Member, record.*CountMember, Number, at, end, context);
    }

    // An element may be null after a duplicate whose allocation failed; it is not written.
    template <class Fields>
    [[gnu::always_inline]] static void describe(Fields &fields, const owner &record, uint32_t present)
    {
        char *const *const array = record.*Member;
        fields.repeat((present & key::bit) != 0 ? record.*CountMember : 0, [&](uint32_t i) {
            if (array[i] != nullptr)
                fields.template text<Number>(array[i]);
        });
    }

    [[gnu::always_inline]] static bool copy(
        owner &destination, const owner &source, const block_source &blocks, uint32_t &lost)
    {
        const uint32_t count = source.*CountMember;
        char **const array = count == 0 ? nullptr : obtain_array<char *>(count, blocks);
        const bool is_lost = count != 0 && array == nullptr;
        destination.*Member = array;
        destination.*CountMember = array == nullptr ? 0 : count;
        if (is_lost)
            lost |= key::bit;
        return !is_lost && copy_texts(array, source.*Member, destination.*CountMember, blocks);
    }

    [[gnu::always_inline]] static void release(owner &record, const block_sink &blocks)
    {
        release_text_array(record.*Member, record.*CountMember, blocks);
    }
};

} // namespace kind

} // namespace mava_tum
