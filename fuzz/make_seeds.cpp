// make_seeds messages|adapters <folder>: writes each seed wire of each message as one input of the target.
#include "check_adapter.h"
#include "model/check_message.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

namespace
{

using namespace mava_tum_model;

void write_input(const std::filesystem::path &folder, std::size_t index, uint32_t flags, const wire_bytes &wire)
{
    static int written = 0;
    message_case seed;
    seed.message_index = index;
    seed.flags = flags;
    seed.seed = static_cast<uint64_t>(written);
    seed.wire = wire;
    const wire_bytes bytes = case_bytes(seed);
    std::ofstream file(folder / ("seed_" + std::to_string(written++)), std::ios::binary);
    file.write(reinterpret_cast<const char *>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
}

} // namespace

int main(int argument_count, char **arguments)
{
    if (argument_count != 3) {
        std::fprintf(stderr, "usage: make_seeds messages|adapters <folder>\n");
        return 2;
    }
    const bool adapters = std::strcmp(arguments[1], "adapters") == 0;
    const std::size_t count = adapters ? mava_tum_fuzz::adapter_count : all_messages().size();
    for (std::size_t index = 0; index < count; ++index) {
        const message &of = adapters ? mava_tum_fuzz::message_of_adapter(index) : *all_messages()[index];
        for (const wire_bytes &wire : seed_wires(of)) {
            for (uint32_t flags = 0; flags < (adapters ? 1u : 2u); ++flags)
                write_input(arguments[2], index, flags, wire);
        }
    }
    return 0;
}
