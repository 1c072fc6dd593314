#include "inspector/library/similar_names.h"

#include <algorithm>
#include <array>
#include <cstring>

namespace mava_tum_inspect
{

namespace
{

constexpr std::size_t longest_name = 63;

std::string_view beginning_of(std::string_view name)
{
    return {name.data(), std::min(name.size(), longest_name)};
}

// Whether one is part of the other, and long enough for that to be no accident.
bool contains_other(std::string_view wrong, std::string_view candidate)
{
    constexpr std::size_t telling = 4;
    return (wrong.size() >= telling && candidate.find(wrong) != std::string_view::npos) ||
           (candidate.size() >= telling && wrong.find(candidate) != std::string_view::npos);
}

// A name that is a part of another counts as if it had one wrong character.
uint32_t distance_between(std::string_view wrong, std::string_view candidate)
{
    const uint32_t distance = edit_distance(wrong, candidate);
    return contains_other(wrong, candidate) ? std::min(distance, 1u) : distance;
}

} // namespace

// Computes the table of distances between the beginnings of both, row by row.
uint32_t edit_distance(std::string_view first, std::string_view second)
{
    first = beginning_of(first);
    second = beginning_of(second);
    std::array<uint32_t, longest_name + 1> row;
    for (std::size_t column = 0; column <= second.size(); ++column)
        row[column] = static_cast<uint32_t>(column);
    for (std::size_t line = 1; line <= first.size(); ++line) {
        uint32_t diagonal = row[0];
        row[0] = static_cast<uint32_t>(line);
        for (std::size_t column = 1; column <= second.size(); ++column) {
            const uint32_t replaced = diagonal + (first[line - 1] == second[column - 1] ? 0 : 1);
            diagonal = row[column];
            row[column] = std::min({replaced, row[column] + 1, row[column - 1] + 1});
        }
    }
    return row[second.size()];
}

uint32_t add_if_similar(std::string_view wrong, const char *candidate, std::span<similar_name> found, uint32_t count)
{
    wrong = beginning_of(wrong);
    const uint32_t distance = distance_between(wrong, candidate);
    if (2 * distance > std::max(wrong.size(), std::strlen(candidate)))
        return count; // fewer than half of the characters can stay
    uint32_t place = count;
    while (place > 0 && found[place - 1].distance > distance)
        --place;
    if (place == found.size())
        return count;
    const uint32_t kept = count < found.size() ? count : count - 1;
    std::copy_backward(found.begin() + place, found.begin() + kept, found.begin() + kept + 1);
    found[place] = {candidate, distance};
    return kept + 1;
}

} // namespace mava_tum_inspect
