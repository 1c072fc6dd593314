#include "model/application_layout.h"

#include "model/raw_memory.h"

#include <algorithm>
#include <cstring>

namespace mava_tum_model
{

bool slot_view::filled() const
{
    const uint8_t *own = content();
    return std::any_of(own, own + own_.bytes, [](uint8_t byte) { return byte != 0; });
}

uint64_t slot_view::number() const
{
    return load_number(content(), own_.bytes);
}

uint64_t slot_view::number_in(slot_kind kind, const field_path &path) const
{
    uint64_t found = 0;
    for_each_slot(layout_, [&](const slot &member, uint32_t offset) {
        const bool a_number = member.kind == kind || (kind == slot_kind::number && member.kind == slot_kind::address);
        const bool found_it = a_number && std::memcmp(member.path.numbers, path.numbers, sizeof path.numbers) == 0;
        if (found_it)
            found = load_number(record_ + offset, member.bytes);
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
