// The mapping between application records and messages: all that src/nal uses of this folder.
//
//     struct vlan_rows {
//         using message = mava_tum_vlan_info;
//         using record = vlan_settings;
//         using rows = row_list<number<1, &record::inner>, number<2, &record::outer>>;
//     };
//
//     encode_mapped<vlan_rows>(settings, buffer, capacity);
//     decode_mapped<vlan_rows>(settings, data, length);
//
// Values travel straight between the application record and the wire: no codec record is built, nothing is allocated.
// The rows are in the order of the field numbers. A row, one line of the mapping, has
//
//     field                    the number of its field
//     send(fields, record)     encode: names the value to a writer (encode_fields.h), if it is to be sent
//     clear(record)            decode: zeroes the place
//
// and, by the shape of its field, for the decode:
//
//     number          store(record, value)
//     bytes           array(record)                     an octet array
//     text            array(record), limit              a char array; how much of it a text may take, NUL included
//     record          rows, target(record)              the rows of the nested message; the record that has them
//     record_array    rows, slots(record), count(record)
//     text_array      slots(record), count(record)
//
// A field without a row is read, checked and dropped. `complete(record, present)`, where the rows have it, is called
// when the decode of the message ends, with the presence bits of what arrived.
#pragma once

#include "codec/mapped_decode.h"
#include "codec/message_encode.h"

#include <cstring>

namespace mava_tum
{

template <class Rows, bool Inline>
struct mapped_description {
    template <class Message>
    static constexpr bool is_inline = Inline;

    template <class Fields>
    [[gnu::always_inline]] static void describe(Fields &fields, const typename Rows::record &record)
    {
        describe_rows(typename Rows::rows{}, fields, record);
    }

private:
    template <class Fields, class... Row>
    [[gnu::always_inline]] static void describe_rows(
        row_list<Row...>, Fields &fields, const typename Rows::record &record)
    {
        (Row::send(fields, record), ...);
    }
};

// A nested message with more fields than this is a call of its own: it is large, and stands in several places.
inline constexpr uint32_t max_inline_mapped_fields = 16;

// For `record` of a writer: a nested record, and an element of an array.
template <class Rows>
using nested_description = mapped_description<Rows, field_count<typename Rows::message> <= max_inline_mapped_fields>;

template <class Rows>
using element_description = mapped_description<Rows, is_tiny<typename Rows::message>>;

// Returns the size needed; above `capacity`, the output was truncated.
template <class Rows>
uint64_t encode_mapped(const typename Rows::record &record, uint8_t *buffer, uint64_t capacity)
{
    return encode_described<typename Rows::message, nested_description<Rows>>(record, {buffer, capacity});
}

// Out of line, so that it is libc's memset: the string instruction that the compiler would put in its place takes twice
// as long for large records.
[[gnu::noinline]] inline void clear_record(void *record, size_t bytes)
{
    memset(record, 0, bytes);
}

// L15: the decode result is dropped: of a malformed message the fields before the fault are delivered, and nothing is
// reported.
template <class Rows>
void decode_mapped(typename Rows::record &record, const uint8_t *data, uint32_t length)
{
    clear_record(&record, sizeof record);
    if (length != 0) // `data` may be null
        decode_fields<mapped_form<Rows>>(record, data, data + length, {});
}

} // namespace mava_tum
