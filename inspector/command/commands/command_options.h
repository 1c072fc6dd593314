// What the command line says, for all commands: each looks at its own.
#pragma once

#include "bad_use.h"
#include "input/message_source.h"
#include "output/colours.h"

#include <string>

namespace mava_tum_cli
{

struct command_options {
    std::string name; // of a message, or of an adapter
    std::string direction;
    chosen_input input;
    std::string second_file;
    std::string page; // inspector.html, that an input is put into
    std::string output; // empty: standard output
    input_format written_as = input_format::raw;
    colour_choice colour = colour_choice::automatic;
    bool as_json = false;
    bool with_fields = false;    // of JSON: where each field stands
    bool without_absent = false; // absent fields are not named
};

} // namespace mava_tum_cli
