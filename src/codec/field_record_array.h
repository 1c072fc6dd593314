// record_array: contiguous records and their count. All elements arrive in one run; a second run is refused. The array
// is one block, zeroed here: neither the spare bits nor the pointers of an element depend on the allocator.
#pragma once

#include "codec/array_run.h"
#include "codec/field_record.h"

#include <cstring>
#include <type_traits>

namespace mava_tum
{

// A zeroed array, or null. Counts beyond 32 bits cannot be told to the record.
template <class Element>
[[gnu::always_inline]] inline Element *obtain_array(uint64_t count, const block_source &blocks)
{
    if (count > UINT32_MAX)
        return nullptr;
    void *block = blocks.obtain(count * sizeof(Element));
    return block == nullptr ? nullptr : static_cast<Element *>(memset(block, 0, count * sizeof(Element)));
}

// The order of the tests is part of the contract: second run, allocator, the whole run's bounds, allocation. `at` is
// the position after the first entry's tag; `next` of the result is null on failure. The array is attached before its
// elements are decoded, so that it is released even when one of them fails.
template <class Element>
[[gnu::always_inline]] inline read_end start_run(Element *&array, uint32_t &count, uint32_t field_number,
    const uint8_t *at, const uint8_t *end, const block_source &blocks)
{
    if (array != nullptr)
        return {nullptr, MAVA_TUM_TRUNCATED};
    if (blocks.alloc_fn == nullptr)
        return {nullptr, MAVA_TUM_NO_MEMORY};
    const run_count run = count_run(at, end, field_number);
    if (!run.is_whole)
        return {nullptr, MAVA_TUM_TRUNCATED};
    Element *elements = obtain_array<Element>(run.elements, blocks);
    if (elements == nullptr)
        return {nullptr, MAVA_TUM_NO_MEMORY};
    array = elements;
    count = static_cast<uint32_t>(run.elements);
    return {at, MAVA_TUM_OK};
}

template <class Element>
[[gnu::noinline]] read_end read_record_array(Element *&array, uint32_t &count, uint32_t field_number, const uint8_t *at,
    const uint8_t *end, const decode_context &context)
{
    const read_end run = start_run(array, count, field_number, at, end, context.blocks);
    if (run.next == nullptr)
        return run;
    for (uint32_t i = 0; i < count; ++i) {
        const length_end entry = read_run_entry(at, end, i == 0);
        at = entry.value + entry.length;
        const int32_t result = decode_record(array[i], entry.value, at, context);
        if (result != MAVA_TUM_OK)
            return {nullptr, result};
    }
    return {at, MAVA_TUM_OK};
}

// Elements that cannot be copied keep their slot, so that what they did copy stays reachable.
template <class Element>
[[gnu::noinline]] bool copy_elements(
    Element *destination, const Element *source, uint32_t count, const block_source &blocks)
{
    bool complete = true;
    for (uint32_t i = 0; i < count; ++i)
        complete &= copy_record(destination[i], source[i], blocks);
    return complete;
}

template <class Element>
[[gnu::noinline]] void release_record_array(Element *&array, uint32_t &count, const block_sink &blocks)
{
    if (array != nullptr)
        for (uint32_t i = 0; i < count; ++i)
            release_record(array[i], blocks);
    blocks.release(array);
    count = 0;
}

template <uint32_t Number, auto Member, auto CountMember>
struct record_array : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;
    using element = std::remove_pointer_t<typename member_of<Member>::value>;

    // Each element asks for room first, so the elements count once.
    static constexpr uint32_t max_put_bytes =
        key::tag_bytes + max_length_gap_bytes + mava_tum::max_put_bytes<element>();
    static constexpr uint32_t max_head_bytes =
        key::tag_bytes + max_length_gap_bytes + mava_tum::max_head_bytes<element>();
    static constexpr bool is_scalar = false;
    static constexpr bool holds_bytes = mava_tum::holds_bytes<element>();
    static constexpr bool asks_for_room = true;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = nullptr;
        record.*CountMember = 0;
    }

    [[gnu::always_inline]] static read_end read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        return read_record_array(record.*Member, record.*CountMember, Number, at, end, context);
    }

    [[gnu::always_inline]] static uint8_t *put(
        const owner &record, uint32_t present, uint8_t *at, encode_scratch &scratch, bool top)
    {
        const uint32_t count = (present & key::bit) != 0 ? record.*CountMember : 0;
        const uint8_t *const mark = scratch.element_mark(top);
        for (uint32_t i = 0; i < count; ++i) {
            if (at > mark)
                at = make_room(scratch, at, top);
            if (at != nullptr)
                at = put_nested_record((record.*Member)[i], at, wire_tag(key::tag), key::tag_bytes, scratch);
            if (at == nullptr)
                return nullptr;
        }
        return at;
    }

    static uint64_t count(const owner &record, uint32_t present, bool gather, uint64_t position)
    {
        const uint32_t count = (present & key::bit) != 0 ? record.*CountMember : 0;
        for (uint32_t i = 0; i < count; ++i)
            position = count_nested(position, key::tag_bytes, count_record((record.*Member)[i], gather));
        return position;
    }

    static void write(const owner &record, uint32_t present, counting_writer &writer)
    {
        const uint32_t count = (present & key::bit) != 0 ? record.*CountMember : 0;
        for (uint32_t i = 0; i < count; ++i) {
            const element &nested = (record.*Member)[i];
            write_nested_record(nested, count_record(nested, writer.gather), key::tag, writer);
        }
    }

    [[gnu::always_inline]] static bool copy(
        owner &destination, const owner &source, const block_source &blocks, uint32_t &lost)
    {
        const uint32_t count = source.*CountMember;
        destination.*Member = nullptr;
        destination.*CountMember = 0;
        if (count == 0)
            return true;
        element *const array = obtain_array<element>(count, blocks);
        if (array == nullptr) {
            lost |= key::bit;
            return false;
        }
        destination.*Member = array;
        destination.*CountMember = count;
        return copy_elements(array, source.*Member, count, blocks);
    }

    [[gnu::always_inline]] static void release(owner &record, const block_sink &blocks)
    {
        release_record_array(record.*Member, record.*CountMember, blocks);
    }
};

} // namespace mava_tum
