// The expected behaviour of every function of every message, computed field by field from the schema: slow, plain, and
// independent of the library. The four calls have the parameters of the library's, and the message as a value.
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

// The start of a segment of a gathered output. `exact` is false if the address is not defined: after the end of a short
// buffer.
struct model_segment {
    const uint8_t *data = nullptr;
    uint64_t length = 0;
    bool exact = true;
};

// The bytes go to `buffer`; addresses in segments are relative to `claimed_buffer`.
struct encode_output {
    uint8_t *buffer = nullptr;
    const uint8_t *claimed_buffer = nullptr;
    uint64_t capacity = 0;
    model_segment *segments = nullptr;
    uint32_t *segment_count = nullptr; // in: capacity of segments, out: number of segments; null: none wanted
};

uint64_t model_encode(const message &of, const uint8_t *record, const encode_output &output, uint32_t flags);

} // namespace mava_tum_model
