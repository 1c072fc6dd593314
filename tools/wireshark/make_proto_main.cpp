// Writes what Wireshark needs to know of the messages to the standard output; see proto_text.h.
#include "proto_text.h"

#include <cstdio>
#include <string_view>

int main(int argc, char **argv)
{
    const std::string_view what = argc == 2 ? argv[1] : "";
    if (what != "proto" && what != "ports") {
        std::fputs("make_proto: say what to write: make_proto proto, or make_proto ports\n", stderr);
        return 2;
    }
    const std::string text = what == "proto" ? mava_tum_wireshark::proto_text() : mava_tum_wireshark::port_table();
    const bool is_written = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return is_written ? 0 : 1;
}
