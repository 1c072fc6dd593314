// Wire bytes in the shortest form and in longer ones, for expensive inputs.
#ifndef MAVA_TUM_BENCH_WIRE_PIECES_H
#define MAVA_TUM_BENCH_WIRE_PIECES_H

#include "model/message_tables.h"

#include <cstdint>
#include <vector>

namespace bench
{

using wire_bytes = std::vector<uint8_t>;

inline constexpr uint32_t varint_type = 0;
inline constexpr uint32_t fixed64_type = 1;
inline constexpr uint32_t delimited_type = 2;
inline constexpr uint32_t fixed32_type = 5;

// In at least `least_bytes` bytes; if that is more than the value needs, it is an over-long varint.
inline void append_varint(wire_bytes &wire, uint64_t value, size_t least_bytes = 1)
{
    for (size_t written = 1; value >= 0x80 || written < least_bytes; ++written, value >>= 7)
        wire.push_back(static_cast<uint8_t>(value | 0x80));
    wire.push_back(static_cast<uint8_t>(value));
}

inline void append_tag(wire_bytes &wire, uint32_t number, uint32_t type, size_t least_bytes = 1)
{
    append_varint(wire, uint64_t{number} << 3 | type, least_bytes);
}

inline void append(wire_bytes &wire, const wire_bytes &more)
{
    wire.insert(wire.end(), more.begin(), more.end());
}

inline void append_delimited(wire_bytes &wire, uint32_t number, const wire_bytes &content)
{
    append_tag(wire, number, delimited_type);
    append_varint(wire, content.size());
    append(wire, content);
}

inline bool is_varint(const mava_tum_model::field &member)
{
    return member.kind == mava_tum_model::field_kind::varint32 || member.kind == mava_tum_model::field_kind::varint64;
}

inline bool is_array(const mava_tum_model::field &member)
{
    return member.kind == mava_tum_model::field_kind::record_array ||
           member.kind == mava_tum_model::field_kind::text_array;
}

inline bool is_text_or_bytes(const mava_tum_model::field &member)
{
    return member.kind == mava_tum_model::field_kind::text || member.kind == mava_tum_model::field_kind::bytes;
}

// These may be repeated; a second occurrence of a kind that owns a block is an error.
inline bool may_repeat(const mava_tum_model::field &member)
{
    return !is_array(member) && !is_text_or_bytes(member);
}

} // namespace bench

#endif
