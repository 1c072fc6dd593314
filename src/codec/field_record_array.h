// record_array: contiguous records and their count. All elements arrive in one run; a second run is refused. The array
// is one block, zeroed here: neither the reserved bits nor the pointers of an element depend on the allocator.
#pragma once

#include "codec/array_run.h"
#include "codec/field_record.h"

#include <cstring>
#include <type_traits>

namespace mava_tum
{

// A zeroed array, or null. The record cannot hold counts beyond 32 bits.
template <class Element>
[[gnu::always_inline]] inline Element *obtain_array(uint64_t count, const block_source &blocks)
{
    if (count > UINT32_MAX)
        return nullptr;
    void *block = blocks.obtain(count * sizeof(Element));
    return block == nullptr ? nullptr : static_cast<Element *>(memset(block, 0, count * sizeof(Element)));
}

// The order of the tests is part of the contract: second run, allocator, the whole run's bounds, allocation. `at` is
// the position after the first element's tag. The array is attached before its elements are decoded, so that it is
// released even when one of them fails.
template <class Element>
[[gnu::always_inline]] inline field_read start_run(Element *&array, uint32_t &count, uint32_t field_number,
    const uint8_t *at, const uint8_t *end, const block_source &blocks)
{
    if (array != nullptr)
        return field_read::failed(MAVA_TUM_TRUNCATED);
    if (blocks.alloc_fn == nullptr)
        return field_read::failed(MAVA_TUM_NO_MEMORY);
    const run_count run = count_run(at, end, field_number);
    if (!run.is_whole)
        return field_read::failed(MAVA_TUM_TRUNCATED);
    Element *elements = obtain_array<Element>(run.elements, blocks);
    if (elements == nullptr)
        return field_read::failed(MAVA_TUM_NO_MEMORY);
    array = elements;
    count = static_cast<uint32_t>(run.elements);
    return field_read::ends_at(at);
}

template <class Element>
[[gnu::noinline]] field_read read_record_array(Element *&array, uint32_t &count, uint32_t field_number,
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
        const int32_t result = decode_element_record(array[i], element.data, element.end(), context);
        if (result != MAVA_TUM_OK)
            return field_read::failed(result);
    }
    return field_read::ends_at(position.at);
}

// Elements that cannot be copied keep their place, so that what they did copy stays reachable.
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

namespace kind
{

template <uint32_t Number, auto Member, auto CountMember>
struct record_array : field_key<Number, wire_type::length_delimited> {
    using key = field_key<Number, wire_type::length_delimited>;
    using owner = typename member_of<Member>::record;
    using nested = std::remove_pointer_t<typename member_of<Member>::value>;

    static constexpr field_shape shape = field_shape::record_array;
    // Each element asks for room first, so the elements count once.
    static constexpr uint32_t max_put_bytes =
        key::tag.length + max_length_gap_bytes + mava_tum::max_put_bytes<nested>();
    static constexpr uint32_t max_head_bytes =
        key::tag.length + max_length_gap_bytes + mava_tum::max_head_bytes<nested>();
    static constexpr bool is_scalar = false;
    static constexpr bool holds_bytes = mava_tum::holds_bytes<nested>();
    static constexpr bool asks_for_room = true;

    [[gnu::always_inline]] static void reset(owner &record)
    {
        record.*Member = nullptr;
        record.*CountMember = 0;
    }

    [[gnu::always_inline]] static field_read read(
        owner &record, bool, const uint8_t *at, const uint8_t *end, const decode_context &context)
    {
        return read_record_array(record.*Member, record.*CountMember, Number, at, end, context);
    }

    template <class Fields>
    [[gnu::always_inline]] static void describe(Fields &fields, const owner &record, uint32_t present)
    {
        const nested *const array = record.*Member;
        fields.repeat((present & key::bit) != 0 ? record.*CountMember : 0,
            [&](uint32_t i) { fields.template record<Number, codec_description<nested>>(array[i]); });
    }

    [[gnu::always_inline]] static bool copy(
        owner &destination, const owner &source, const block_source &blocks, uint32_t &lost)
    {
        const uint32_t count = source.*CountMember;
        destination.*Member = nullptr;
        destination.*CountMember = 0;
        if (count == 0)
            return true;
        nested *const array = obtain_array<nested>(count, blocks);
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

} // namespace kind

} // namespace mava_tum
