// The functions of the C interface for unknown messages and wrong names.
#include "inspector/library/guess.h"
#include "inspector/library/message_table.h"
#include "inspector/library/similar_names.h"

#include <algorithm>

namespace
{

using namespace mava_tum_inspect;

// The largest useful number.
constexpr uint32_t most_names = 8;

template <class Described>
uint32_t similar_among(std::span<const Described> all, const char *wrong, const char **names, uint32_t capacity)
{
    similar_name found[most_names];
    const std::span<similar_name> places(found, std::min(capacity, most_names));
    uint32_t count = 0;
    for (const Described &described : all)
        count = add_if_similar(wrong, described.name, places, count);
    for (uint32_t i = 0; i < count; ++i)
        names[i] = found[i].name;
    return count;
}

} // namespace

extern "C" uint32_t mava_tum_inspect_similar_messages(const char *wrong, const char **names, uint32_t capacity)
{
    return similar_among(all_messages(), wrong, names, capacity);
}

extern "C" uint32_t mava_tum_inspect_similar_adapters(const char *wrong, const char **names, uint32_t capacity)
{
    return similar_among(all_adapters(), wrong, names, capacity);
}

extern "C" uint32_t mava_tum_inspect_guess(
    const uint8_t *data, uint64_t length, mava_tum_inspect_candidate *candidates, uint32_t capacity)
{
    return guess_messages(data, length, {candidates, capacity});
}
