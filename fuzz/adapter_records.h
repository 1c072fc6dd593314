// The adapters by number, and their records.
#pragma once

#include "catalogue.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace mava_tum_fuzz
{

using mava_tum_catalogue::adapter;

constexpr std::size_t adapter_count = mava_tum_catalogue::all_adapters().size();

constexpr const adapter &adapter_at(std::size_t index)
{
    return mava_tum_catalogue::all_adapters()[index];
}

// Makes a record to send from a received one; their members may be in different orders.
inline void make_record_to_send(const adapter &of, uint8_t *sent, const uint8_t *received)
{
    using mava_tum_catalogue::record_member;
    if (of.sent == of.received) {
        std::copy_n(received, of.received->size_bytes, sent);
        return;
    }
    std::memset(sent, 0, of.sent->size_bytes);
    for (const record_member &to : of.sent->members) {
        const auto from = std::ranges::find(of.received->members, to.name, &record_member::name);
        std::copy_n(received + from->offset, from->size_bytes, sent + to.offset);
    }
}

} // namespace mava_tum_fuzz
