// What every function of every message has to do, predicted field by field from the schema: slow, plain, and
// independent of the library. The four calls take what the library's take, with the message as a value.
#pragma once

#include "model/message_tables.h"

#include <cstdint>

namespace mava_tum_model
{

constexpr uint32_t alias_flag = 1;

struct memory_source {
    void *(*allocate)(uint64_t size, void *context) = nullptr;
    void *context = nullptr;
};

struct memory_sink {
    void (*release)(void *pointer, void *context) = nullptr;
    void *context = nullptr;
};

int32_t model_decode(const message &of, uint8_t *record, const uint8_t *data, uint64_t length,
    const memory_source &source, uint32_t flags);

int32_t model_duplicate(const message &of, uint8_t *destination, const uint8_t *source, const memory_source &memory);

void model_free(const message &of, uint8_t *record, const memory_sink &sink, uint32_t flags);

// Where a segment of a gathered output begins. `exact` is false where the address may be any: behind the end of a short
// buffer there is nothing to point at.
struct model_segment {
    const uint8_t *data = nullptr;
    uint64_t length = 0;
    bool exact = true;
};

// The bytes go to `buffer`; addresses in segments are formed as if it stood at `claimed_buffer`.
struct encode_output {
    uint8_t *buffer = nullptr;
    const uint8_t *claimed_buffer = nullptr;
    uint64_t capacity = 0;
    model_segment *segments = nullptr;
    uint32_t *segment_count = nullptr; // in: capacity of segments, out: number of segments; null: none wanted
};

uint64_t model_encode(const message &of, const uint8_t *record, const encode_output &output, uint32_t flags);

} // namespace mava_tum_model
