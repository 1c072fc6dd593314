#include "output/colours.h"

#include <cstdlib>

namespace mava_tum_cli
{

namespace
{

std::string_view environment(const char *name)
{
    const char *value = std::getenv(name);
    return value != nullptr ? value : "";
}

bool are_on(colour_choice choice, bool is_terminal)
{
    if (choice != colour_choice::automatic)
        return choice == colour_choice::always;
    return is_terminal && environment("NO_COLOR").empty() && environment("TERM") != "dumb";
}

std::string_view code_of(ink which)
{
    switch (which) {
    case ink::faint:
        return "\033[2m";
    case ink::name:
        return "\033[36m";
    case ink::value:
        return "\033[1m";
    case ink::fault:
        return "\033[1;31m";
    default:
        return "";
    }
}

} // namespace

colours::colours(colour_choice choice, bool is_terminal) : m_on(are_on(choice, is_terminal)) {}

std::string_view colours::start(ink which) const
{
    return m_on ? code_of(which) : "";
}

std::string_view colours::end(ink which) const
{
    return m_on && which != ink::plain ? "\033[0m" : "";
}

std::string colours::paint(ink which, std::string_view text) const
{
    if (text.empty())
        return "";
    return std::string(start(which)).append(text).append(end(which));
}

} // namespace mava_tum_cli
