#include "model/application_layout.h"

#include "model/raw_memory.h"

#include <algorithm>
#include <cstring>

namespace mava_tum_model
{

namespace
{

uint64_t number_of_bytes(const uint8_t *at, uint32_t bytes)
{
    switch (bytes) {
    case 1:
        return load<uint8_t>(at, 0);
    case 2:
        return load<uint16_t>(at, 0);
    case 4:
        return load<uint32_t>(at, 0);
    default:
        return load<uint64_t>(at, 0);
    }
}

} // namespace

bool slot_view::filled() const
{
    const uint8_t *own = content();
    return std::any_of(own, own + own_.bytes, [](uint8_t byte) { return byte != 0; });
}

uint64_t slot_view::number() const
{
    return number_of_bytes(content(), own_.bytes);
}

uint64_t slot_view::number_in(slot_kind kind, const field_path &path) const
{
    uint64_t found = 0;
    for_each_slot(layout_, [&](const slot &member, uint32_t offset) {
        const bool a_number = member.kind == kind || (kind == slot_kind::number && member.kind == slot_kind::address);
        const bool found_it = a_number && std::memcmp(member.path.numbers, path.numbers, sizeof path.numbers) == 0;
        if (found_it)
            found = number_of_bytes(record_ + offset, member.bytes);
        return !found_it;
    });
    return found;
}

uint64_t slot_view::number_at(const field_path &path) const
{
    return number_in(slot_kind::number, path);
}

uint32_t slot_view::elements() const
{
    return static_cast<uint32_t>(std::min<uint64_t>(number_in(slot_kind::count, own_.path), own_.slots));
}

} // namespace mava_tum_model
