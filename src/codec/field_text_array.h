// text_array: an array of pointers to texts, and their count. Both the array and every text are blocks of the record.
// As with records, all texts arrive in one run, and a second run is refused.
#pragma once

#include "codec/field_record_array.h"
#include "codec/field_text.h"

#include <cstring>

namespace mava_tum
{

[[gnu::noinline]] inline read_end read_text_array(char **&array, uint32_t &count, uint32_t field_number,
    const uint8_t *at, const uint8_t *end, const decode_context &context)
{
    const read_end run = start_run(array, count, field_number, at, end, context.blocks);
    if (run.next == nullptr)
        return run;
    for (uint32_t i = 0; i < count; ++i) {
        const length_end entry = read_run_entry(at, end, i == 0);
        at = entry.value + entry.length;
        array[i] = copy_payload_as_text(entry.value, entry.length, context.blocks);
        if (array[i] == nullptr)
            return {nullptr, MAVA_TUM_NO_MEMORY};
    }
    return {at, MAVA_TUM_OK};
}

// A text that cannot be copied leaves its slot null; the array, its count and its bit stay.
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

template <uint32_t Number, auto Member, auto CountMember>
struct text_array : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;

    // Each text asks for room first, so the texts count once.
    static constexpr uint32_t max_head_bytes = key::tag_bytes + max_varint32_bytes;
    static constexpr uint32_t max_put_bytes = key::tag_bytes + max_short_put_bytes;
    static constexpr bool is_scalar = false;
    static constexpr bool asks_for_room = true;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = nullptr;
        record.*CountMember = 0;
    }

    [[gnu::always_inline]] static read_end read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        return read_text_array(record.*Member, record.*CountMember, Number, at, end, context);
    }

    [[gnu::always_inline]] static uint8_t *put(
        const owner &record, uint32_t present, uint8_t *at, encode_scratch &scratch, bool top)
    {
        const uint8_t *const mark = scratch.element_mark(top);
        for (const char *text : texts(record, present)) {
            if (at > mark)
                at = make_room(scratch, at, top);
            if (at != nullptr && text != nullptr)
                at = put_block<key::tag_bytes>(at, wire_tag(key::tag), text, strlen(text), scratch, top);
            if (at == nullptr)
                return nullptr;
        }
        return at;
    }

    static uint64_t count(const owner &record, uint32_t present, bool, uint64_t position)
    {
        for (const char *text : texts(record, present))
            if (text != nullptr)
                position = count_block(position, key::tag_bytes, strlen(text));
        return position;
    }

    static void write(const owner &record, uint32_t present, counting_writer &writer)
    {
        for (const char *text : texts(record, present))
            if (text != nullptr)
                writer.block(key::tag, text, strlen(text));
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

private:
    struct text_range {
        char *const *first;
        uint32_t count;

        char *const *begin() const
        {
            return first;
        }
        char *const *end() const
        {
            return first + count;
        }
    };

    // What an encode writes. A slot may be null after a duplicate that ran out of memory; it is left out.
    [[gnu::always_inline]] static text_range texts(const owner &record, uint32_t present)
    {
        return {record.*Member, (present & key::bit) != 0 ? record.*CountMember : 0};
    }
};

} // namespace mava_tum
