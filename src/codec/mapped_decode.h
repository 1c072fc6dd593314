// The places of an application record, as the decode engine sees them: rows (mapping.h) matched with fields. What
// arrives is what a decode into a codec record would deliver if each allocation succeeded.
#pragma once

#include "codec/array_run.h"
#include "codec/copy_text.h"
#include "codec/message_decode.h"

#include <cstring>
#include <type_traits>

namespace mava_tum
{

template <class... Row>
struct row_list {
};

// Stands for the row of a field that has none.
struct no_row {
};

template <uint32_t Number, class List>
struct row_of_field;

template <uint32_t Number>
struct row_of_field<Number, row_list<>> {
    using row = no_row;
};

template <uint32_t Number, class First, class... Rest>
struct row_of_field<Number, row_list<First, Rest...>> {
    using row =
        std::conditional_t<First::field == Number, First, typename row_of_field<Number, row_list<Rest...>>::row>;
};

// Nothing is passed down.
struct no_context {
};

template <class Field, class Row, field_shape Shape = Field::shape>
struct mapped_place;

template <class Rows>
struct mapped_form {
    using message = typename Rows::message;
    using record = typename Rows::record;
    using context = no_context;
    using context_argument = no_context;

    template <class Field>
    using place = mapped_place<Field, typename row_of_field<Field::number, typename Rows::rows>::row>;

    [[gnu::always_inline]] static void complete(record &record, uint32_t present)
    {
        if constexpr (requires { Rows::complete(record, present); })
            Rows::complete(record, present);
    }
};

template <class Record, class... Row>
[[gnu::always_inline]] inline void clear_rows(row_list<Row...>, Record &record)
{
    (Row::clear(record), ...);
}

// Before a second occurrence of a nested record is decoded: it replaces the first.
template <class Rows>
[[gnu::noinline, gnu::cold]] void start_over(typename Rows::record &record)
{
    clear_rows(typename Rows::rows{}, record);
}

// ---- numbers ----

template <class Field, class Row>
struct mapped_place<Field, Row, field_shape::number> {
    template <class Record>
    [[gnu::always_inline]] static field_read read(
        Record &record, bool, const uint8_t *at, const uint8_t *end, no_context)
    {
        const auto found = Field::format::read(at, end);
        if (found.next == nullptr)
            return field_read::failed(MAVA_TUM_TRUNCATED);
        if constexpr (!std::is_same_v<Row, no_row>)
            Row::store(record, found.value);
        return field_read::ends_at(found.next);
    }
};

// ---- bytes and texts: a second occurrence is refused ----

inline field_read end_of_payload(const payload &found)
{
    return found.data == nullptr ? field_read::failed(MAVA_TUM_TRUNCATED) : field_read::ends_at(found.end());
}

// L19: of a longer value the first bytes are taken, behind a shorter one the rest stays zero.
[[gnu::noinline]] inline field_read receive_any_bytes(
    uint8_t *array, uint32_t size, const uint8_t *at, const uint8_t *end)
{
    const payload found = read_payload(at, end);
    if (found.data != nullptr)
        memcpy(array, found.data, found.length < size ? found.length : size);
    return end_of_payload(found);
}

// The same; a value of exactly the array's size is copied inline.
template <size_t Size>
[[gnu::always_inline]] inline field_read receive_bytes(uint8_t (&array)[Size], const uint8_t *at, const uint8_t *end)
{
    static_assert(Size < varint_continues);
    if (!is_short_payload(at, end) || *at != Size) [[unlikely]]
        return receive_any_bytes(array, Size, at, end);
    memcpy(array, at + 1, Size);
    return field_read::ends_at(at + 1 + Size);
}

// L21: cut to the limit, and at a NUL.
[[gnu::noinline]] inline field_read receive_text(char *array, uint32_t limit, const uint8_t *at, const uint8_t *end)
{
    const payload found = read_payload(at, end);
    if (found.data != nullptr)
        copy_text_into_array(array, found.data, found.length < limit ? found.length : limit - 1);
    return end_of_payload(found);
}

template <class Field, class Row>
struct mapped_place<Field, Row, field_shape::bytes> {
    template <class Record>
    [[gnu::always_inline]] static field_read read(
        Record &record, bool seen, const uint8_t *at, const uint8_t *end, no_context)
    {
        if (seen) [[unlikely]]
            return field_read::failed(MAVA_TUM_TRUNCATED);
        if constexpr (std::is_same_v<Row, no_row>)
            return end_of_payload(read_payload(at, end));
        else
            return receive_bytes(Row::array(record), at, end);
    }
};

template <class Field, class Row>
struct mapped_place<Field, Row, field_shape::text> {
    template <class Record>
    [[gnu::always_inline]] static field_read read(
        Record &record, bool seen, const uint8_t *at, const uint8_t *end, no_context)
    {
        if (seen) [[unlikely]]
            return field_read::failed(MAVA_TUM_TRUNCATED);
        if constexpr (std::is_same_v<Row, no_row>)
            return end_of_payload(read_payload(at, end));
        else
            return receive_text(&Row::array(record)[0], Row::limit, at, end);
    }
};

// ---- nested records: the last occurrence wins ----

template <class Field, class Row>
struct mapped_place<Field, Row, field_shape::record> {
    static_assert(std::is_same_v<typename Row::rows::message, typename Field::nested>);

    template <class Record>
    [[gnu::always_inline]] static field_read read(
        Record &record, bool seen, const uint8_t *at, const uint8_t *end, no_context)
    {
        const payload found = read_payload(at, end);
        if (found.data == nullptr)
            return field_read::failed(MAVA_TUM_TRUNCATED);
        auto &target = Row::target(record);
        if (seen) [[unlikely]]
            start_over<typename Row::rows>(target);
        const int32_t result = decode_fields<mapped_form<typename Row::rows>>(target, found.data, found.end(), {});
        return result == MAVA_TUM_OK ? field_read::ends_at(found.end()) : field_read::failed(result);
    }
};

// ---- lists: one run, whole or not at all ----

template <class Row>
[[gnu::always_inline]] inline int32_t receive_element(auto &slot, const payload &element)
{
    if constexpr (std::is_array_v<std::remove_reference_t<decltype(slot)>>) {
        copy_text_into_array(slot, element.data, element.length < sizeof slot ? element.length : sizeof slot - 1);
        return MAVA_TUM_OK;
    } else {
        return decode_element<mapped_form<typename Row::rows>>(slot, element.data, element.end(), {});
    }
}

// L17: the count is first narrowed to the bits of its member (in 8 bits 258 elements are 2), then kept within the
// slots, so that a record never claims elements that it does not hold.
template <class Count>
constexpr Count narrowed_count(uint64_t elements, uint64_t slots)
{
    const Count narrow = static_cast<Count>(static_cast<uint32_t>(elements));
    return narrow < slots ? narrow : static_cast<Count>(slots);
}

[[gnu::noinline, gnu::cold]] inline void clear_slots(void *first, uint64_t count, uint64_t slot_bytes)
{
    memset(first, 0, count * slot_bytes);
}

// The elements beyond the slots are checked by decoding them over the last slot, whose own element, `last_kept`, is
// then decoded once more. Returns the decode result.
template <class Row>
[[gnu::noinline, gnu::cold]] int32_t receive_excess(
    auto &last_slot, const payload &last_kept, uint64_t &elements, run_position &position)
{
    for (;;) {
        const payload element = position.element();
        if (element.data == nullptr)
            return MAVA_TUM_TRUNCATED;
        ++elements;
        const int32_t result = receive_element<Row>(last_slot, element);
        if (result != MAVA_TUM_OK)
            return result;
        const run_position::follower follower = position.next();
        if (follower == run_position::follower::truncated)
            return MAVA_TUM_TRUNCATED;
        if (follower == run_position::follower::other_field)
            break;
    }
    memset(&last_slot, 0, sizeof last_slot);
    return receive_element<Row>(last_slot, last_kept);
}

// One pass, without counting first: what a list with a fault has stored is cleared again.
template <class Row, class Record>
[[gnu::noinline]] field_read receive_list(Record &record, uint32_t field_number, const uint8_t *at, const uint8_t *end)
{
    auto &slots = Row::slots(record);
    constexpr uint64_t slot_count = std::extent_v<std::remove_reference_t<decltype(slots)>>;
    run_position position{at, end, field_number};
    int32_t result = MAVA_TUM_TRUNCATED;
    uint64_t elements = 0;
    for (;;) {
        const payload element = position.element();
        if (element.data == nullptr)
            break;
        auto &slot = slots[elements++];
        result = receive_element<Row>(slot, element);
        if (result != MAVA_TUM_OK)
            break;
        const run_position::follower follower = position.next();
        if (follower == run_position::follower::other_field)
            break;
        result = MAVA_TUM_TRUNCATED;
        if (follower == run_position::follower::truncated)
            break;
        if (elements == slot_count) [[unlikely]] {
            result = receive_excess<Row>(slot, element, elements, position);
            break;
        }
    }
    using count_type = std::remove_reference_t<decltype(Row::count(record))>;
    const count_type count = result == MAVA_TUM_OK ? narrowed_count<count_type>(elements, slot_count) : 0;
    Row::count(record) = count;
    if (count != elements) [[unlikely]]
        clear_slots(slots + count, (elements < slot_count ? elements : slot_count) - count, sizeof slots[0]);
    return result == MAVA_TUM_OK ? field_read::ends_at(position.at) : field_read::failed(result);
}

template <class Field, class Row>
struct mapped_list {
    template <class Record>
    [[gnu::always_inline]] static field_read read(
        Record &record, bool seen, const uint8_t *at, const uint8_t *end, no_context)
    {
        if (seen) [[unlikely]]
            return field_read::failed(MAVA_TUM_TRUNCATED);
        return receive_list<Row>(record, Field::number, at, end);
    }
};

template <class Field, class Row>
struct mapped_place<Field, Row, field_shape::record_array> : mapped_list<Field, Row> {
    static_assert(std::is_same_v<typename Row::rows::message, typename Field::nested>);
};

template <class Field, class Row>
struct mapped_place<Field, Row, field_shape::text_array> : mapped_list<Field, Row> {
};

} // namespace mava_tum
