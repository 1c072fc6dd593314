// The encode engine: what holds the values is described field by field, in the order of the numbers, and a writer turns
// each value into bytes.
//
//     struct vlan_description {
//         template <class Fields>
//         static void describe(Fields &fields, const vlan_settings &source)
//         {
//             fields.template number<1>(source.inner);
//             fields.template number<2>(source.outer);
//         }
//     };
//
// What is not named is absent. Tags, formats and widths come from the message's field list. The same description runs
// against two writers: `fast_fields` into the scratch buffer, and `exact_fields` where that is not enough; messages of
// a few numbers have their own. A writer has:
//
//     number<n>(value)                  a varint or a fixed32, as the field list says
//     block<n>(data, length)            a payload that is always copied
//     bytes<n>(value)                   a payload that becomes a segment in gather mode
//     text<n>(pointer)                  up to its NUL
//     array_text<n>(array)              the same in a char array; without a NUL it is measured with strlen
//     record<n, description>(source)    a nested message
//     repeat(count, put_element)        the elements of a repeated field, one after the other
#pragma once

#include "codec/copy_text.h"
#include "codec/encode_scratch.h"
#include "codec/exact_writer.h"
#include "codec/operations.h"

#include <cstring>

namespace mava_tum
{

// ---- the fast path ----

template <class Message, class Description, class Source>
uint8_t *put_described(const Source &source, uint8_t *at, encode_scratch &scratch, nesting level);

// Nested messages with this much in scalars alone are usually longer than a length of one byte can say.
inline constexpr uint32_t long_nested_head_bytes = 192;

template <class Message>
inline constexpr uint32_t length_gap_bytes = max_head_bytes<Message>() > long_nested_head_bytes ? 2 : 1;

// Writes the fields of one message. Out of room, it continues at the front of the scratch buffer, where everything that
// it writes is void: `scratch.failed` is set, and nothing is handed over any more.
template <class Message>
struct fast_fields {
    uint8_t *at;
    encode_scratch &scratch;
    nesting level;

    template <uint32_t Number, class Value>
    [[gnu::always_inline]] void number(Value value)
    {
        using field = field_at<Message, Number>;
        at = field::format::put(at, field::tag, value);
    }

    template <uint32_t Number>
    [[gnu::always_inline]] void block(const void *data, uint64_t length)
    {
        continue_at(put_block(at, field_at<Message, Number>::tag, data, length, scratch, level));
    }

    template <uint32_t Number>
    [[gnu::always_inline]] void bytes(const mava_tum_bytes &value)
    {
        if (value.data == nullptr) [[unlikely]]
            continue_at(put_any_block(at, field_at<Message, Number>::tag, nullptr, value.length, scratch, level));
        else
            block<Number>(value.data, value.length);
    }

    template <uint32_t Number>
    [[gnu::always_inline]] void text(const char *pointer)
    {
        block<Number>(pointer, strlen(pointer));
    }

    template <uint32_t Number, size_t Size>
    [[gnu::always_inline]] void array_text(const char (&array)[Size])
    {
        constexpr field_tag tag = field_at<Message, Number>::tag;
        put_word(at, tag.bytes);
        const uint64_t length = copy_array_text(at + tag.length + 1, array);
        if (length == Size) [[unlikely]]
            return text<Number>(array);
        at[tag.length] = static_cast<uint8_t>(length);
        at += tag.length + 1 + length;
    }

    template <uint32_t Number, class Description, class Source>
    [[gnu::always_inline]] void record(const Source &source, if_empty empty = if_empty::write)
    {
        using nested_message = typename field_at<Message, Number>::nested;
        constexpr field_tag tag = field_at<Message, Number>::tag;
        constexpr uint32_t gap_bytes = length_gap_bytes<nested_message>;
        constexpr uint32_t max_bytes = asks_for_room<nested_message>() ? 0 : max_put_bytes<nested_message>();
        put_word(at, tag.bytes);
        uint8_t *const start = at;
        uint8_t *const nested = at + tag.length + gap_bytes;
        if constexpr (Description::template is_inline<nested_message>) {
            fast_fields<nested_message> fields{nested, scratch, nesting::nested};
            Description::describe(fields, source);
            at = fields.at;
        } else {
            at = put_described<nested_message, Description>(source, nested, scratch, nesting::nested);
        }
        at = close_length_gap<gap_bytes, max_bytes>(nested, at);
        if (empty == if_empty::leave_out && at == start + tag.length + 1)
            at = start;
    }

    template <class PutElement>
    [[gnu::always_inline]] void repeat(uint32_t count, const PutElement &put_element)
    {
        const uint8_t *const mark = scratch.element_mark(level);
        for (uint32_t i = 0; i < count; ++i) {
            if (at > mark) [[unlikely]]
                continue_at(make_room(scratch, at, level));
            put_element(i);
        }
    }

private:
    [[gnu::always_inline]] void continue_at(uint8_t *next)
    {
        at = next != nullptr ? next : start_over();
    }

    [[gnu::noinline, gnu::cold]] uint8_t *start_over()
    {
        scratch.failed = true;
        scratch.capacity = 0; // from here on it only counts
        return scratch.begin;
    }
};

// Flattened, so that the position stays in a register from one field to the next.
template <class Message, class Description, class Source>
[[gnu::noinline, gnu::noclone, gnu::flatten]] uint8_t *put_described(
    const Source &source, uint8_t *at, encode_scratch &scratch, nesting level)
{
    fast_fields<Message> fields{at, scratch, level};
    Description::describe(fields, source);
    return fields.at;
}

// ---- the exact path ----

template <class Message, class Description, class Source>
void write_described(const Source &source, exact_writer &writer);

template <class Message>
struct exact_fields {
    exact_writer &writer;

    template <uint32_t Number, class Value>
    void number(Value value)
    {
        using field = field_at<Message, Number>;
        field::format::write(writer, field::tag, value);
    }

    template <uint32_t Number>
    void block(const void *data, uint64_t length)
    {
        writer.block(field_at<Message, Number>::tag, data, length);
    }

    template <uint32_t Number>
    void bytes(const mava_tum_bytes &value)
    {
        writer.bytes_field(field_at<Message, Number>::tag, value);
    }

    template <uint32_t Number>
    void text(const char *pointer)
    {
        block<Number>(pointer, strlen(pointer));
    }

    template <uint32_t Number, size_t Size>
    void array_text(const char (&array)[Size])
    {
        text<Number>(array);
    }

    template <uint32_t Number, class Description, class Source>
    void record(const Source &source, if_empty empty = if_empty::write)
    {
        using field = field_at<Message, Number>;
        using nested_message = typename field::nested;
        exact_writer size{nullptr, 0, writer.mode, {}};
        write_described<nested_message, Description>(source, size);
        const uint64_t nested_bytes = size.position;
        if (nested_bytes == 0 && empty == if_empty::leave_out)
            return;
        if (!writer.start_nested(field::tag, nested_bytes))
            return;
        exact_writer nested = writer.nested(holds_bytes<nested_message>() ? output_mode::gather : output_mode::copy);
        write_described<nested_message, Description>(source, nested);
        nested.finish();
        writer.accept_nested(nested, nested_bytes);
    }

    template <class PutElement>
    void repeat(uint32_t count, const PutElement &put_element)
    {
        for (uint32_t i = 0; i < count; ++i)
            put_element(i);
    }
};

template <class Message, class Description, class Source>
[[gnu::noinline, gnu::noclone, gnu::cold]] void write_described(const Source &source, exact_writer &writer)
{
    exact_fields<Message> fields{writer};
    Description::describe(fields, source);
}

// ---- messages of a few numbers: the size, and byte by byte into the caller's buffer ----

template <class Message>
struct size_of_numbers {
    uint64_t size = 0;

    template <uint32_t Number, class Value>
    [[gnu::always_inline]] void number(Value value)
    {
        using field = field_at<Message, Number>;
        size += field::tag.length + field::format::bytes(value);
    }
};

template <class Message>
struct stored_numbers {
    uint8_t *at;

    template <uint32_t Number, class Value>
    [[gnu::always_inline]] void number(Value value)
    {
        using field = field_at<Message, Number>;
        at = field::format::store(store_varint(at, field::tag_value), value);
    }
};

} // namespace mava_tum
