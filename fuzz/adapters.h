// The 19 adapters behind one shape.
#pragma once

#include <cstddef>
#include <cstdint>

namespace mava_tum_fuzz
{

struct adapter {
    const char *name;
    const char *message;
    std::size_t sent_bytes;
    std::size_t received_bytes;
    uint64_t (*encode)(const void *record, uint8_t *buffer, uint32_t capacity);
    void (*decode)(const uint8_t *data, uint32_t length, void *record);

    // Makes a record to send from a received one. Null where both are the same.
    void (*to_sent)(void *sent, const void *received);
};

const adapter &adapter_at(std::size_t index);

} // namespace mava_tum_fuzz
