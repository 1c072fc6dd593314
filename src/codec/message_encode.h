// The encode frame: fast into a scratch, and exactly when that does not do.
#pragma once

#include "codec/counting_writer.h"
#include "codec/encode_scratch.h"
#include "codec/frames.h"

namespace mava_tum
{

template <class... Field>
constexpr uint32_t sum_of_put_bytes(field_list<Field...>)
{
    return (0 + ... + Field::max_put_bytes);
}

template <class Record>
constexpr uint32_t max_put_bytes()
{
    return sum_of_put_bytes(fields_of<Record>{});
}

template <class... Field>
constexpr uint32_t sum_of_head_bytes(field_list<Field...>)
{
    return (0 + ... + Field::max_head_bytes);
}

template <class Record>
constexpr uint32_t max_head_bytes()
{
    return sum_of_head_bytes(fields_of<Record>{});
}

template <class Record, class... Field>
[[gnu::always_inline]] inline bool any_has_content(field_list<Field...>, const Record &record)
{
    return (record.presence_mask & own_bits<Record>) != 0 || (Field::has_content(record) || ...);
}

template <class Record>
[[gnu::always_inline]] inline bool has_content(const Record &record)
{
    return any_has_content(fields_of<Record>{}, record);
}

// Puts one field. False when it found no room; a field that asks for none cannot fail.
template <class Field, class Record>
[[gnu::always_inline]] inline bool put_field(
    const Record &record, uint32_t present, uint8_t *&at, encode_scratch &scratch, bool top)
{
    at = Field::put(record, present, at, scratch, top);
    if constexpr (Field::asks_for_room)
        return at != nullptr;
    else
        return true;
}

template <class Record, class... Field>
[[gnu::always_inline]] inline uint8_t *put_fields(
    field_list<Field...>, const Record &record, uint8_t *at, encode_scratch &scratch, bool top)
{
    const uint32_t present = record.presence_mask;
    const bool complete = (put_field<Field>(record, present, at, scratch, top) && ...);
    return complete ? at : nullptr;
}

template <class Record>
[[gnu::noinline, gnu::noclone]] uint8_t *put_record(
    const Record &record, uint8_t *at, encode_scratch &scratch, bool top)
{
    return put_fields(fields_of<Record>{}, record, at, scratch, top);
}

template <class Record, class... Field>
[[gnu::always_inline]] inline uint64_t count_fields(field_list<Field...>, const Record &record, bool gather)
{
    const uint32_t present = record.presence_mask;
    uint64_t position = 0;
    ((position = Field::count(record, present, gather, position)), ...);
    return position;
}

template <class Record>
[[gnu::noinline, gnu::noclone, gnu::cold]] uint64_t count_record(const Record &record, bool gather)
{
    return count_fields(fields_of<Record>{}, record, gather);
}

template <class Record, class... Field>
void write_fields(field_list<Field...>, const Record &record, counting_writer &writer)
{
    const uint32_t present = record.presence_mask;
    (Field::write(record, present, writer), ...);
}

template <class Record>
[[gnu::noinline, gnu::noclone, gnu::cold]] void write_record(const Record &record, counting_writer &writer)
{
    write_fields(fields_of<Record>{}, record, writer);
}

// What the caller passes beside the record. By value: an address would put it, and a frame with a guard, into functions
// that need neither.
struct encode_target {
    uint8_t *buffer;
    uint64_t length;
    mava_tum_segment *segments;
    uint32_t *segment_count;
    uint32_t flags;

    bool gathers() const
    {
        return (flags & MAVA_TUM_ALIAS) != 0;
    }
};

template <class Record>
[[gnu::noinline, gnu::cold]] uint64_t encode_exactly(const Record &record, encode_target target)
{
    counting_writer writer{target.buffer, target.length, target.gathers(),
        segment_list::for_caller(target.segments, target.segment_count)};
    write_record(record, writer);
    writer.finish();
    if (target.segment_count != nullptr)
        *target.segment_count = writer.segments.count;
    return writer.position;
}

[[gnu::noinline, gnu::cold]] inline void add_one_piece(encode_target target, uint64_t length)
{
    segment_list pieces = segment_list::for_caller(target.segments, target.segment_count);
    if (length != 0)
        pieces.add(target.buffer, length);
    *target.segment_count = pieces.count;
}

// Without gather mode, the output is one piece.
[[gnu::always_inline]] inline void report_one_piece(encode_target target, uint64_t length)
{
    if (target.segment_count != nullptr) [[unlikely]]
        add_one_piece(target, length);
}

// How much of the scratch may be filled before the slack, and the whole of it.
template <class Record>
inline constexpr uint32_t block_room = asks_for_room<Record>() ? scratch_block_bytes : 0;

template <class Record>
inline constexpr uint32_t scratch_bytes = block_room<Record> + max_put_bytes<Record>() + spill_bytes;

// Messages of a few scalars: the size first, then byte by byte into the buffer. Through the scratch they take
// longer, since the copy has to wait for the stores of the fields.
template <class Record, class... Field>
[[gnu::always_inline]] inline void store_fields(field_list<Field...>, const Record &record, uint8_t *at)
{
    const uint32_t present = record.presence_mask;
    ((at = Field::store(record, present, at)), ...);
}

template <class Record>
[[gnu::always_inline]] inline uint64_t encode_few_scalars(const Record &record, encode_target target)
{
    const uint64_t bytes = count_fields(fields_of<Record>{}, record, false);
    if (bytes > target.length && target.length != 0)
        return encode_exactly(record, target);
    if (target.length != 0)
        store_fields(fields_of<Record>{}, record, target.buffer);
    report_one_piece(target, bytes);
    return bytes;
}

// The exported encoders.
template <class Record>
[[gnu::always_inline]] inline uint64_t encode_message(const Record &record, encode_target target)
{
    static_assert(scratch_bytes<Record> < 1u << 14, "a body's length takes at most two bytes");
    if (target.gathers())
        return encode_exactly(record, target);
    if constexpr (is_put_inline<Record>)
        return encode_few_scalars(record, target);
    uint8_t storage[scratch_bytes<Record>];
    encode_scratch scratch{storage, storage + block_room<Record>, target.buffer, target.length, 0};
    const uint8_t *const at = put_record(record, storage, scratch, true);
    if (at == nullptr || hand_over(scratch, at) == nullptr)
        return encode_exactly(record, target);
    report_one_piece(target, scratch.handed_over);
    return scratch.handed_over;
}

} // namespace mava_tum
