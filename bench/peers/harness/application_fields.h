// Copies texts, byte arrays and IPv4 addresses from and to application records, for all implementations.
#ifndef MAVA_TUM_BENCH_APPLICATION_FIELDS_H
#define MAVA_TUM_BENCH_APPLICATION_FIELDS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace bench
{

// Received texts of routes are truncated to these sizes, NUL included, although the arrays are larger.
inline constexpr size_t short_route_text_limit = 33;
inline constexpr size_t long_route_text_limit = 65;

// The array is already zero, so the text ends where the copy does. `limit` counts the NUL.
inline void copy_text(char *array, size_t limit, const char *text, size_t length)
{
    std::memcpy(array, text, std::min(length, limit - 1));
}

template <size_t Bytes>
void copy_text(char (&array)[Bytes], const char *text, size_t length)
{
    copy_text(array, Bytes, text, length);
}

template <size_t Bytes>
void copy_bytes(uint8_t (&array)[Bytes], const void *bytes, size_t length)
{
    std::memcpy(array, bytes, std::min(length, Bytes));
}

template <size_t Bytes>
bool any_byte_set(const uint8_t (&bytes)[Bytes])
{
    return std::any_of(bytes, bytes + Bytes, [](uint8_t byte) { return byte != 0; });
}

// A fixed32 is little-endian on the wire, an IPv4 address is in network order there.
inline uint32_t swap_ipv4(uint32_t address)
{
    return __builtin_bswap32(address);
}

template <class Record>
bool has_feature(const Record &record, uint32_t features)
{
    return (record.feature_mask & features) != 0;
}

} // namespace bench

#endif
