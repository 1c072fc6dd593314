#include "amplification/asked_limit.h"

#include <algorithm>

namespace mava_tum_amplification
{

namespace
{

using namespace mava_tum_model;

constexpr uint64_t pointer_bytes = 8;
constexpr uint64_t nul_bytes = 1;

uint64_t tag_bytes(const field &of)
{
    return of.number < 16 ? 1 : 2;
}

} // namespace

memory_ratio slot_ratio(const field &array)
{
    const uint64_t empty_element = tag_bytes(array) + 1;
    if (array.kind == field_kind::text_array)
        return {pointer_bytes + nul_bytes, empty_element};
    return {array.nested->record_bytes, empty_element};
}

memory_ratio asked_limit(const field &of)
{
    switch (of.kind) {
    case field_kind::bytes:
    case field_kind::text:
        return {1, 1};
    case field_kind::record:
        return asked_limit(*of.nested);
    case field_kind::record_array:
        return std::max(slot_ratio(of), asked_limit(*of.nested));
    case field_kind::text_array:
        return slot_ratio(of);
    default:
        return {};
    }
}

memory_ratio asked_limit(const message &of)
{
    memory_ratio limit;
    for (const field &member : of.fields)
        limit = std::max(limit, asked_limit(member));
    return limit;
}

memory_ratio dropped_limit(const field &of)
{
    switch (of.kind) {
    case field_kind::record:
        return asked_limit(*of.nested);
    case field_kind::record_array:
        return dropped_limit(*of.nested);
    default:
        return {};
    }
}

memory_ratio dropped_limit(const message &of)
{
    memory_ratio limit;
    for (const field &member : of.fields)
        limit = std::max(limit, dropped_limit(member));
    return limit;
}

} // namespace mava_tum_amplification
