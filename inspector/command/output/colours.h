// Colours, where somebody looks.
#pragma once

#include <string>
#include <string_view>

namespace mava_tum_cli
{

enum class colour_choice { automatic, always, never };

enum class ink { plain, faint, name, value, fault };

class colours
{
public:
    // automatic: on a terminal, unless NO_COLOR is set (https://no-color.org) or TERM is dumb.
    colours(colour_choice choice, bool is_terminal);

    std::string paint(ink which, std::string_view text) const;

    // What stands before and after text of this ink.
    std::string_view start(ink which) const;
    std::string_view end(ink which) const;

private:
    bool m_on;
};

} // namespace mava_tum_cli
