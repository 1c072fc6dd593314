// All adapters, one entry each, with the data that tests of all adapters need.
#pragma once

#include "nal/adapter_calls.h"
#include "support/hex.h"

#include <string>
#include <vector>

namespace mava_tum_test
{

// A list of an adapter: the offset of its count, its slots, and the elements in a message.
struct list_member {
    const char *what;
    std::size_t sent_offset;     // of the count in the record that is sent
    std::size_t received_offset; // of the count in the record that is received
    std::size_t count_bytes;
    std::size_t slots;
    byte_vector (*wire)(const std::vector<byte_vector> &elements); // a message with this list and nothing else
    bool of_texts = false;                                         // its elements are texts: they cannot be malformed
};

// A text of an adapter, as it is received.
struct text_member {
    const char *what;
    std::size_t offset;
    std::size_t array_bytes;
    std::size_t kept;                             // characters that arrive at most
    byte_vector (*wire)(const std::string &text); // a message with this text and nothing else
};

struct adapter {
    const char *name;
    byte_vector sent;          // a record in which everything has content
    byte_vector received;      // what arrives of it
    const char *all_zero_wire; // the message of an all-zero record
    uint64_t (*encode)(const void *record, uint8_t *buffer, uint32_t capacity);
    void (*decode)(const uint8_t *data, uint32_t length, void *record);
    std::vector<list_member> lists;
    std::vector<text_member> texts;
};

const std::vector<adapter> &all_adapters();

// ---- the calls of adapter_calls.h, for an entry of the list ----

// The complete message of `record`, which is directly before an inaccessible page during the call.
byte_vector send(const adapter &tested, const byte_vector &record);

// The record that is decoded from the message, directly before an inaccessible page.
byte_vector receive(const adapter &tested, const byte_vector &wire);

// ---- looking into records ----

uint64_t count_at(const byte_vector &record, std::size_t offset, std::size_t bytes);
void set_count(byte_vector &record, std::size_t offset, std::size_t bytes, uint64_t count);

// Whether `record` can be the result of a truncated message of `whole`: each count is at most that of `whole`, every
// other byte is that of `whole` or zero.
void expect_part_of(
    const adapter &tested, const byte_vector &record, const byte_vector &whole, const std::string &what);

} // namespace mava_tum_test
