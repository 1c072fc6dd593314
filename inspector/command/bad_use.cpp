#include "bad_use.h"

#include <algorithm>
#include <fmt/format.h>

namespace mava_tum_cli
{

void print_error(std::string_view command, std::string text)
{
    std::ranges::replace_if(
        text, [](unsigned char character) { return character < ' ' || character == 0x7F; }, '?');
    fmt::print(stderr, "mava-tum{}{}: {}\n", command.empty() ? "" : " ", command, text);
}

} // namespace mava_tum_cli
