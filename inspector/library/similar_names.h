// The names that are most like a wrong one.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace mava_tum_inspect
{

// The number of characters to insert, remove or replace to get from one to the other. Names longer than 63 count as
// their first 63.
uint32_t edit_distance(std::string_view first, std::string_view second);

// A name, and its distance from the wrong one.
struct similar_name {
    const char *name;
    uint32_t distance;
};

// Inserts `candidate` into the `count` names of `found`, nearest first, unless it has little in common with `wrong` or
// all places have nearer names. Returns the new count.
uint32_t add_if_similar(std::string_view wrong, const char *candidate, std::span<similar_name> found, uint32_t count);

} // namespace mava_tum_inspect
