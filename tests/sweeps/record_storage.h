// Memory for one codec record of any message.
#pragma once

#include "sweeps/message_list.h"
#include "sweeps/random_records.h"

#include <cstdint>

namespace mava_tum_test
{

// Has the record's exact size, so that the address sanitizer detects an access behind it.
class record_storage
{
public:
    explicit record_storage(const message &tested) : tested_(tested), record_(memory_.new_block(tested.record_bytes))
    {
        std::memset(record_, 0, tested.record_bytes);
    }

    record_storage(const message &tested, const record_value &value) : record_storage(tested)
    {
        tested.fill(record_, value, memory_);
    }

    // Random content that a decode or duplicate must overwrite: invalid pointers, random bits.
    record_storage(const message &tested, random_source &random) : record_storage(tested)
    {
        uint8_t *bytes = static_cast<uint8_t *>(record_);
        for (std::size_t i = 0; i < tested.record_bytes; ++i)
            bytes[i] = static_cast<uint8_t>(random());
    }

    void *get()
    {
        return record_;
    }

    record_value value() const
    {
        return tested_.read(record_);
    }

    // The reserved mask bits, which do not change, and nothing else.
    record_value blank() const
    {
        return tested_.blank(record_);
    }

private:
    const message &tested_;
    record_memory memory_;
    void *record_;
};

} // namespace mava_tum_test
