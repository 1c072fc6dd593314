#include "output/colours.h"

#include <cstdlib>
#include <fmt/format.h>

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
        return "2";
    case ink::name:
        return "36";
    case ink::value:
        return "1";
    case ink::fault:
        return "1;31";
    default:
        return "0";
    }
}

} // namespace

colours::colours(colour_choice choice, bool is_terminal) : m_on(are_on(choice, is_terminal)) {}

std::string colours::paint(ink which, std::string_view text) const
{
    if (!m_on || text.empty() || which == ink::plain)
        return std::string(text);
    return fmt::format("\033[{}m{}\033[0m", code_of(which), text);
}

} // namespace mava_tum_cli
