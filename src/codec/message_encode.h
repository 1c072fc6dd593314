// The encode of a whole message: the fast path, and the exact path where that is not enough. The source is anything
// that has a description: a codec record, whose description follows from its field list, or an application record.
#pragma once

#include "codec/encode_fields.h"
#include "codec/probes.h"

namespace mava_tum
{

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

template <class Record>
struct codec_description {
    template <class Message>
    static constexpr bool is_inline = is_tiny<Message>;

    template <class Fields>
    [[gnu::always_inline]] static void describe(Fields &fields, const Record &record)
    {
        describe_list(fields_of<Record>{}, fields, record);
    }

private:
    template <class Fields, class... Field>
    [[gnu::always_inline]] static void describe_list(field_list<Field...>, Fields &fields, const Record &record)
    {
        const uint32_t present = record.presence_mask;
        (Field::describe(fields, record, present), ...);
    }
};

// What the caller passes beside the record. By value: an address would put it, and a frame with a guard, into functions
// that need neither.
struct encode_target {
    uint8_t *buffer;
    uint64_t length;
    mava_tum_segment *segments = nullptr;
    uint32_t *segment_count = nullptr;
    uint32_t flags = 0;

    output_mode mode() const
    {
        return (flags & MAVA_TUM_ALIAS) != 0 ? output_mode::gather : output_mode::copy;
    }
};

template <class Message, class Description, class Source>
[[gnu::noinline, gnu::cold]] uint64_t encode_exactly(const Source &source, encode_target target)
{
    exact_writer writer{
        target.buffer, target.length, target.mode(), segment_list::for_caller(target.segments, target.segment_count)};
    write_described<Message, Description>(source, writer);
    writer.finish();
    if (target.segment_count != nullptr)
        *target.segment_count = writer.segments.count;
    MAVA_TUM_PROBED(report_size<Message>(writer.position, target.length);)
    return writer.position;
}

[[gnu::noinline, gnu::cold]] inline void add_one_segment(encode_target target, uint64_t length)
{
    segment_list segments = segment_list::for_caller(target.segments, target.segment_count);
    if (length != 0)
        segments.add(target.buffer, length);
    *target.segment_count = segments.count;
}

// Without gather mode, the output is one segment.
[[gnu::always_inline]] inline void report_one_segment(encode_target target, uint64_t length)
{
    if (target.segment_count != nullptr) [[unlikely]]
        add_one_segment(target, length);
}

// How much of the scratch buffer may be filled before the slack, and the whole of it.
template <class Message>
inline constexpr uint32_t block_room = asks_for_room<Message>() ? scratch_block_bytes : 0;

template <class Message>
inline constexpr uint32_t scratch_bytes = block_room<Message> + max_put_bytes<Message>() + spill_bytes;

// Messages of a few numbers: the size first, then byte by byte into the caller's buffer. Through the scratch buffer
// they take longer, since the copy has to wait for the stores of the fields.
template <class Message, class Description, class Source>
[[gnu::always_inline]] inline uint64_t encode_few_numbers(const Source &source, encode_target target)
{
    size_of_numbers<Message> measured;
    Description::describe(measured, source);
    const uint64_t size = measured.size;
    if (target.length != 0) {
        if (size > target.length) [[unlikely]]
            return encode_exactly<Message, Description>(source, target);
        stored_numbers<Message> stored{target.buffer};
        Description::describe(stored, source);
    }
    report_one_segment(target, size);
    return size;
}

template <class Message, class Description, class Source>
[[gnu::always_inline]] inline uint64_t encode_described(const Source &source, encode_target target)
{
    static_assert(scratch_bytes<Message> < 1u << 14, "the length of a nested message takes at most two bytes");
    if (target.mode() == output_mode::gather)
        return encode_exactly<Message, Description>(source, target);
    if constexpr (is_tiny<Message>)
        return encode_few_numbers<Message, Description>(source, target);
    uint8_t storage[scratch_bytes<Message>];
    encode_scratch scratch{storage, storage + block_room<Message>, target.buffer, target.length, 0};
    const uint8_t *const at = put_described<Message, Description>(source, storage, scratch, nesting::message);
    if (scratch.failed || hand_over(scratch, at) == nullptr)
        return encode_exactly<Message, Description>(source, target);
    report_one_segment(target, scratch.handed_over);
    return scratch.handed_over;
}

// The exported encoders.
template <class Record>
[[gnu::always_inline]] inline uint64_t encode_message(const Record &record, encode_target target)
{
    return encode_described<Record, codec_description<Record>>(record, target);
}

} // namespace mava_tum
