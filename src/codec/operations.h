// The operations on a whole record, as the nested kinds of field call them. Each is defined in message_<operation>.h.
#pragma once

#include "codec/blocks.h"
#include "codec/schema.h"

#include <cstdint>

namespace mava_tum
{

// Decode: zeroes all fields and clears the own bits, at every depth; reserved bits stay.
template <class Record>
void reset_record(Record &record);

// Decode: the fields in [at, end) into a record that has been reset. Returns a decode result.
template <class Record>
int32_t decode_record(Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context);

// Decode: the same for an element of an array.
template <class Record>
int32_t decode_element_record(Record &record, const uint8_t *at, const uint8_t *end, const decode_context &context);

// Encode: whether the record could produce a byte although its parent's bit is clear.
template <class Record>
bool has_content(const Record &record);

// Encode: a codec record as a description of its fields.
template <class Record>
struct codec_description;

// Encode: whether a nested record without a field is written, as a tag and an empty payload.
enum class if_empty : uint8_t { write, leave_out };

// Duplicate: returns whether everything could be copied.
template <class Record>
bool copy_record(Record &destination, const Record &source, const block_source &blocks);

// Free.
template <class Record>
void release_record(Record &record, const block_sink &blocks);

} // namespace mava_tum
