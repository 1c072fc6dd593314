// How the protobuf side moves texts, byte arrays and IPv4 addresses between an application record and a message.
#ifndef MAVA_TUM_BENCH_PEER_FIELDS_H
#define MAVA_TUM_BENCH_PEER_FIELDS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace bench
{

// The generated set_...(const char *) builds a temporary string; assigning to the mutable one reuses its capacity.
inline void assign_text(std::string *target, const char *text)
{
    target->assign(text, std::strlen(text));
}

template <size_t Bytes>
void assign_bytes(std::string *target, const uint8_t (&bytes)[Bytes])
{
    target->assign(reinterpret_cast<const char *>(bytes), Bytes);
}

// The array is already zero, so the text ends where the copy does. `limit` counts the NUL.
inline void copy_text(char *array, size_t limit, const std::string &text)
{
    std::memcpy(array, text.data(), std::min(text.size(), limit - 1));
}

template <size_t Bytes>
void copy_text(char (&array)[Bytes], const std::string &text)
{
    copy_text(array, Bytes, text);
}

template <size_t Bytes>
void copy_bytes(uint8_t (&array)[Bytes], const std::string &bytes)
{
    std::memcpy(array, bytes.data(), std::min(bytes.size(), Bytes));
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

} // namespace bench

#endif
