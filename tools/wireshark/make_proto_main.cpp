// Writes what Wireshark needs to know of the messages to the standard output; see proto_text.h.
#include "proto_text.h"

#include <cstdio>
#include <string_view>

int main(int argc, char **argv)
{
    using namespace mava_tum_wireshark;
    const std::string_view what = argc == 2 ? argv[1] : "";
    std::string text;
    if (what == "proto")
        text = proto_text();
    else if (what == "ports")
        text = port_table();
    else if (what == "addresses")
        text = address_table();
    if (text.empty()) {
        std::fputs(
            "make_proto: say what to write: make_proto proto, make_proto ports or make_proto addresses\n", stderr);
        return 2;
    }
    const bool is_written = std::fputs(text.c_str(), stdout) >= 0 && std::fflush(stdout) == 0;
    return is_written ? 0 : 1;
}
