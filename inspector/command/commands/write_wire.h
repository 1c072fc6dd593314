// What `encode` and `app ... encode` have in common.
#pragma once

#include "commands/command_options.h"

#include <cstdint>
#include <span>

namespace mava_tum_cli
{

// Writes one message to where the options say, in the format that they say. Throws bad_use instead of writing raw bytes
// to a terminal.
void write_wire(std::span<const uint8_t> wire, const command_options &options);

// The result of `work`; a bad_use of it, which begins with a path in the JSON, gets the file's name in front.
template <class Work>
auto at_place(const std::string &file, const Work &work)
{
    try {
        return work();
    } catch (const bad_use &error) {
        throw bad_use((file == "-" ? "standard input" : file) + ": " + error.what());
    }
}

} // namespace mava_tum_cli
