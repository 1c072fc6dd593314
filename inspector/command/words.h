// Small words that several outputs share.
#pragma once

#include <cstdint>
#include <fmt/format.h>
#include <string>
#include <string_view>

namespace mava_tum_cli
{

// "1 byte", "7 bytes".
inline std::string counted(uint64_t count, std::string_view thing)
{
    return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
}

} // namespace mava_tum_cli
