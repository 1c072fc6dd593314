// A 64-bit hash of a call's effects. Not for security: it only detects changes of behaviour.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mava_tum_behaviour
{

class call_hash
{
public:
    void add(uint64_t value)
    {
        state_ = (state_ ^ value) * 0x9E3779B97F4A7C15;
        state_ ^= state_ >> 32;
    }

    void add_bytes(const void *bytes, std::size_t count)
    {
        const uint8_t *at = static_cast<const uint8_t *>(bytes);
        add(count);
        for (; count >= sizeof(uint64_t); at += sizeof(uint64_t), count -= sizeof(uint64_t))
            add_part(at, sizeof(uint64_t));
        add_part(at, count);
    }

    uint64_t value() const
    {
        return state_;
    }

private:
    void add_part(const uint8_t *at, std::size_t count)
    {
        uint64_t value = 0;
        std::memcpy(&value, at, count);
        add(value);
    }

    uint64_t state_ = 0x243F6A8885A308D3;
};

} // namespace mava_tum_behaviour
