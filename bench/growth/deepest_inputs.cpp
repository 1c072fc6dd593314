#include "growth/growing_input.h"

#include <algorithm>
#include <optional>

namespace bench
{
namespace
{

using mava_tum_model::field;
using mava_tum_model::message;

// The field numbers from a message down to its deepest text or bytes field.
std::optional<std::vector<uint32_t>> deepest_value(const message &of)
{
    std::optional<std::vector<uint32_t>> deepest;
    for (const field &member : of.fields) {
        std::optional<std::vector<uint32_t>> below;
        if (member.nested != nullptr)
            below = deepest_value(*member.nested);
        else if (is_text_or_bytes(member))
            below.emplace();
        if (!below || (deepest && deepest->size() > below->size()))
            continue;
        below->insert(below->begin(), member.number);
        deepest = below;
    }
    return deepest;
}

const field &field_of(const message &of, uint32_t number)
{
    return *std::ranges::find(of.fields, number, &field::number);
}

// The number of steps of the path up to its first array, inclusive; 0 if there is none.
size_t steps_to_elements(const message &of, const std::vector<uint32_t> &path)
{
    const message *at = &of;
    for (size_t step = 0; step < path.size(); ++step) {
        const field &member = field_of(*at, path[step]);
        if (is_array(member))
            return step + 1;
        at = member.nested;
    }
    return 0;
}

// One element of the array, with the nested records down to the value.
wire_bytes element(const std::vector<uint32_t> &path, size_t array_step)
{
    wire_bytes wire = {'a', 'b', 'c'};
    for (size_t step = path.size(); step > array_step; --step) {
        wire_bytes outer;
        append_delimited(outer, path[step - 1], wire);
        wire.swap(outer);
    }
    return wire;
}

} // namespace

std::vector<growing_input> deepest_inputs(const message &of)
{
    const std::optional<std::vector<uint32_t>> path = deepest_value(of);
    if (!path)
        return {};
    std::vector<growing_input> inputs;
    inputs.push_back({"one value " + std::to_string(path->size() - 1) + " deep", {}, {'a'}, {}, *path});
    if (const size_t steps = steps_to_elements(of, *path); steps != 0) {
        const size_t array_step = steps - 1;
        inputs.push_back({"elements, each " + std::to_string(path->size() - 1) + " deep", {},
            element(*path, array_step), {}, {path->begin(), path->begin() + static_cast<std::ptrdiff_t>(array_step)}});
    }
    return inputs;
}

} // namespace bench
