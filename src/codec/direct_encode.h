// Encoding without a codec record: whatever holds the values is described field by field, in the order of the numbers,
// and each value goes to the wire at once.
//
//     struct vlan_fields {
//         template <class Fields>
//         static void describe(Fields &fields, const vlan_settings &source)
//         {
//             fields.template value<1>(source.inner);
//             fields.template value<2>(source.outer);
//         }
//     };
//
//     encode_directly<mava_tum_vlan_info, vlan_fields>(settings, buffer, length);
//
// What is not named is absent. Tags, kinds and widths come from the message's field list. A description runs against
// `fast_fields`, into the scratch, and against `counted_fields` and `exact_fields` when that does not do. The bytes are
// those that the codec record with the same contents would give.
#pragma once

#include "codec/field_record.h"
#include "codec/message_encode.h"

#include <cstring>
#include <tuple>

namespace mava_tum
{

template <class List>
struct fields_by_number;

template <class... Field>
struct fields_by_number<field_list<Field...>> {
    using all = std::tuple<Field...>;
};

template <class Record, uint32_t Number>
using field_at = std::tuple_element_t<Number - 1, typename fields_by_number<fields_of<Record>>::all>;

// ---- the fast writer ----

// A nested record with more fields than this is a call of its own: it is large, and stands in several places.
inline constexpr uint32_t max_inline_description_fields = 16;

template <class Record, class Description, class Source>
uint8_t *put_described(const Source &source, uint8_t *at, encode_scratch &scratch, bool top);

// Writes the fields of one Record. Out of room, it goes on from the scratch's front, which is safe and leads nowhere:
// `scratch.failed` is set, and nothing is handed over any more.
template <class Record>
struct fast_fields {
    uint8_t *at;
    encode_scratch &scratch;
    bool top;

    template <uint32_t Number, class Value>
    [[gnu::always_inline]] void value(Value value)
    {
        at = field_at<Record, Number>::put_value(at, value);
    }

    template <uint32_t Number>
    [[gnu::always_inline]] void block(const void *data, uint64_t length)
    {
        using field = field_at<Record, Number>;
        go_on(put_block<field::tag_bytes>(at, wire_tag(field::tag), data, length, scratch, top));
    }

    template <uint32_t Number, size_t Size>
    [[gnu::always_inline]] void text(const char (&array)[Size])
    {
        using field = field_at<Record, Number>;
        store_little_endian(at, wire_tag(field::tag));
        const uint64_t length = copy_array_text(at + field::tag_bytes + 1, array);
        if (length == Size) [[unlikely]]
            return block<Number>(array, strlen(array));
        at[field::tag_bytes] = static_cast<uint8_t>(length);
        at += field::tag_bytes + 1 + length;
    }

    template <uint32_t Number, class Description, class Source>
    [[gnu::always_inline]] void record(const Source &source)
    {
        using field = field_at<Record, Number>;
        using nested = typename field::nested;
        constexpr bool is_inline = field_count<nested> <= max_inline_description_fields;
        put_nested<nested, Description, is_inline>(source, wire_tag(field::tag), field::tag_bytes);
    }

    template <uint32_t Number, class Description, class Source>
    [[gnu::always_inline]] void element(const Source &source)
    {
        using field = field_at<Record, Number>;
        make_room_for_element();
        using element = typename field::element;
        put_nested<element, Description, is_put_inline<element>>(source, wire_tag(field::tag), field::tag_bytes);
    }

    template <uint32_t Number, size_t Size>
    [[gnu::always_inline]] void text_element(const char (&array)[Size])
    {
        make_room_for_element();
        text<Number>(array);
    }

private:
    [[gnu::always_inline]] void go_on(uint8_t *next)
    {
        at = next != nullptr ? next : start_over();
    }

    [[gnu::noinline, gnu::cold]] uint8_t *start_over()
    {
        scratch.failed = true;
        scratch.capacity = 0; // from here on it only counts
        return scratch.begin;
    }

    [[gnu::always_inline]] void make_room_for_element()
    {
        if (at > scratch.element_mark(top)) [[unlikely]]
            go_on(make_room(scratch, at, top));
    }

    template <class Nested, class Description, bool is_inline, class Source>
    [[gnu::always_inline]] void put_nested(const Source &source, uint32_t tag, uint32_t tag_bytes)
    {
        constexpr uint32_t gap_bytes = length_gap_bytes<Nested>;
        constexpr uint32_t max_body_bytes = asks_for_room<Nested>() ? 0 : max_put_bytes<Nested>();
        store_little_endian(at, tag);
        uint8_t *const body = at + tag_bytes + gap_bytes;
        if constexpr (is_inline) {
            fast_fields<Nested> fields{body, scratch, false};
            Description::describe(fields, source);
            at = fields.at;
        } else {
            at = put_described<Nested, Description>(source, body, scratch, false);
        }
        at = close_length_gap<gap_bytes, max_body_bytes>(body, at);
    }
};

// Flattened, so that the position stays in a register from one field to the next.
template <class Record, class Description, class Source>
[[gnu::noinline, gnu::noclone, gnu::flatten]] uint8_t *put_described(
    const Source &source, uint8_t *at, encode_scratch &scratch, bool top)
{
    fast_fields<Record> fields{at, scratch, top};
    Description::describe(fields, source);
    return fields.at;
}

// ---- the size ----

template <class Record, class Description, class Source>
uint64_t count_described(const Source &source);

template <class Record>
struct counted_fields {
    uint64_t bytes = 0;

    template <uint32_t Number, class Value>
    [[gnu::always_inline]] void value(Value value)
    {
        bytes += field_at<Record, Number>::value_bytes(value);
    }

    template <uint32_t Number>
    void block(const void *, uint64_t length)
    {
        bytes = count_block(bytes, field_at<Record, Number>::tag_bytes, length);
    }

    template <uint32_t Number, size_t Size>
    void text(const char (&array)[Size])
    {
        block<Number>(array, strlen(array));
    }

    template <uint32_t Number, class Description, class Source>
    void record(const Source &source)
    {
        block<Number>(nullptr, count_described<typename field_at<Record, Number>::nested, Description>(source));
    }

    template <uint32_t Number, class Description, class Source>
    void element(const Source &source)
    {
        block<Number>(nullptr, count_described<typename field_at<Record, Number>::element, Description>(source));
    }

    template <uint32_t Number, size_t Size>
    void text_element(const char (&array)[Size])
    {
        text<Number>(array);
    }
};

template <class Record, class Description, class Source>
[[gnu::noinline, gnu::noclone, gnu::cold]] uint64_t count_described(const Source &source)
{
    counted_fields<Record> fields;
    Description::describe(fields, source);
    return fields.bytes;
}

// ---- the exact writer ----

template <class Record, class Description, class Source>
void write_described(const Source &source, counting_writer &writer);

template <class Record>
struct exact_fields {
    counting_writer &writer;

    template <uint32_t Number, class Value>
    void value(Value value)
    {
        field_at<Record, Number>::write_value(writer, value);
    }

    template <uint32_t Number>
    void block(const void *data, uint64_t length)
    {
        writer.block(field_at<Record, Number>::tag, data, length);
    }

    template <uint32_t Number, size_t Size>
    void text(const char (&array)[Size])
    {
        block<Number>(array, strlen(array));
    }

    template <uint32_t Number, class Description, class Source>
    void record(const Source &source)
    {
        using field = field_at<Record, Number>;
        write_nested<typename field::nested, Description>(source, field::tag);
    }

    template <uint32_t Number, class Description, class Source>
    void element(const Source &source)
    {
        using field = field_at<Record, Number>;
        write_nested<typename field::element, Description>(source, field::tag);
    }

    template <uint32_t Number, size_t Size>
    void text_element(const char (&array)[Size])
    {
        text<Number>(array);
    }

private:
    template <class Nested, class Description, class Source>
    void write_nested(const Source &source, uint32_t tag)
    {
        const uint64_t body_bytes = count_described<Nested, Description>(source);
        writer.varint(tag);
        writer.varint(static_cast<uint32_t>(body_bytes));
        counting_writer body = writer.nested(false);
        write_described<Nested, Description>(source, body);
        writer.accept_nested(body, body_bytes);
    }
};

template <class Record, class Description, class Source>
[[gnu::noinline, gnu::noclone, gnu::cold]] void write_described(const Source &source, counting_writer &writer)
{
    exact_fields<Record> fields{writer};
    Description::describe(fields, source);
}

// ---- messages of a few scalars, byte by byte into the buffer ----

template <class Record>
struct stored_fields {
    uint8_t *at;

    template <uint32_t Number, class Value>
    [[gnu::always_inline]] void value(Value value)
    {
        at = field_at<Record, Number>::store_value(at, value);
    }
};

// ---- the frame ----

template <class Record, class Description, class Source>
[[gnu::noinline, gnu::cold]] uint64_t encode_directly_and_exactly(
    const Source &source, uint8_t *buffer, uint64_t length)
{
    counting_writer writer{buffer, length, false, {}};
    write_described<Record, Description>(source, writer);
    return writer.position;
}

template <class Record, class Description, class Source>
[[gnu::flatten]] uint64_t encode_few_scalars_directly(const Source &source, uint8_t *buffer, uint64_t length)
{
    counted_fields<Record> counted;
    Description::describe(counted, source);
    if (length == 0)
        return counted.bytes;
    if (counted.bytes > length)
        return encode_directly_and_exactly<Record, Description>(source, buffer, length);
    stored_fields<Record> stored{buffer};
    Description::describe(stored, source);
    return counted.bytes;
}

// Without pieces and gather mode: the output is one span of bytes.
template <class Record, class Description, class Source>
uint64_t encode_directly(const Source &source, uint8_t *buffer, uint64_t length)
{
    if constexpr (is_put_inline<Record>)
        return encode_few_scalars_directly<Record, Description>(source, buffer, length);
    uint8_t storage[scratch_bytes<Record>];
    encode_scratch scratch{storage, storage + block_room<Record>, buffer, length, 0};
    const uint8_t *const at = put_described<Record, Description>(source, storage, scratch, true);
    if (!scratch.failed && hand_over(scratch, at) != nullptr)
        return scratch.handed_over;
    return encode_directly_and_exactly<Record, Description>(source, buffer, length);
}

} // namespace mava_tum
