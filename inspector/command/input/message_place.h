// Where a message comes from, as far as that has to be told.
#pragma once

#include <cstdint>
#include <fmt/format.h>
#include <string>
#include <string_view>

namespace mava_tum_cli
{

struct message_place {
    std::string_view file; // empty: it is the only one
    uint64_t number = 0;   // of the message in the file, from 1; 0: it is the only one
    uint64_t offset = 0;   // where its frame begins in the file

    bool is_empty() const
    {
        return file.empty() && number == 0;
    }

    // "a.frames: frame 3 at byte 40", "frame 3 at byte 40", "a.bin", "".
    std::string to_string() const
    {
        if (number == 0)
            return std::string(file);
        return fmt::format("{}{}frame {} at byte {}", file, file.empty() ? "" : ": ", number, offset);
    }
};

} // namespace mava_tum_cli
