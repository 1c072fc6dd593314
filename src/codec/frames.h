// The operations on a whole record, as the nested kinds of field call them. Each is defined in message_<operation>.h.
#pragma once

#include "codec/blocks.h"
#include "codec/schema.h"

#include <cstdint>

namespace mava_tum
{

struct counting_writer;
struct encode_scratch;

// Decode: zeroes all fields and clears the own bits, at every depth; spare bits stay.
template <class Record>
void reset_record(Record &record);

// Decode: the fields in [at, end) into a record that has been reset. Returns a decode result.
template <class Record>
int32_t decode_record(Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context);

// Encode: whether the record could produce a byte although its parent's bit is clear.
template <class Record>
bool has_content(const Record &record);

// Encode: writes the fields into the scratch at `at`. `top` is true for the message itself, false for a nested record.
// Returns the position after them, or null when the exact writer must take over.
template <class Record>
uint8_t *put_record(const Record &record, uint8_t *at, encode_scratch &scratch, bool top);

// The same, inlined where it stands.
template <class Record, class... Field>
uint8_t *put_fields(field_list<Field...>, const Record &record, uint8_t *at, encode_scratch &scratch, bool top);

// Encode: the most that put_record writes without asking for room.
template <class Record>
constexpr uint32_t max_put_bytes();

// Encode: the same without the payloads of texts and bytes: how large a record of its kind is.
template <class Record>
constexpr uint32_t max_head_bytes();

// Encode: the exact size. In gather mode the contents of bytes fields do not count.
template <class Record>
uint64_t count_record(const Record &record, bool gather);

// Encode: the fields through the exact writer.
template <class Record>
void write_record(const Record &record, counting_writer &writer);

// Duplicate: returns whether everything could be copied.
template <class Record>
bool copy_record(Record &destination, const Record &source, const block_source &blocks);

// Free.
template <class Record>
void release_record(Record &record, const block_sink &blocks);

} // namespace mava_tum
