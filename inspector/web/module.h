// What the files of the module share: what it asks of the page, or of the test, that it runs in; and the rows of a
// tree.
#pragma once

#include "inspector/library/field_value.h"
#include "inspector/library/message_table.h"
#include "output/output_file.h"

#include <cstddef>
#include <cstdint>

namespace mava_tum_cli
{

enum class host_channel : int32_t {
    output = 0, // text
    errors = 1, // one line
    bytes = 2,  // a message, or rows
};

#define MAVA_TUM_HOST(name) __attribute__((import_module("host"), import_name(name)))

extern "C" {

// Returns a number for host_read_file, negative: there is no such file.
MAVA_TUM_HOST("open") int32_t host_open_file(const char *name, size_t name_bytes);

// Returns how many bytes came; 0 at the end. An offset may be larger than a size_t: hence a double.
MAVA_TUM_HOST("read") uint32_t host_read_file(int32_t file, double offset, uint8_t *buffer, size_t capacity);

MAVA_TUM_HOST("write") void host_write(host_channel channel, const void *data, size_t size_bytes);
}

#undef MAVA_TUM_HOST

// ---- rows ----

// A message as rows: each field, what a fault leaves unread, and at the end of each record which fields are absent. A
// row is one line of the page's tree; its number is its place among them.

// Writes all rows to the host, each as eight numbers of 32 bits: kind and depth (kind + 256 * depth + 65536 if there
// are notes), offset of the tag, of the length, of the value, bytes of the value, place of the record's message in the
// catalogue, number of the field (of absent fields: the mask of those that are present), place in its array or -1.
void write_rows(const mava_tum_inspect::message_description &message, wire_bytes wire);

// Writes the texts of `count` rows from the row `first`, as a JSON array of {"text": ..., "notes": [...]}.
void write_row_texts(const mava_tum_inspect::message_description &message, wire_bytes wire, uint64_t first,
    uint64_t count, text_output &output);

} // namespace mava_tum_cli
