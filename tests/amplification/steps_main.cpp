// check_steps <bytes> Decodes, under callgrind, expensive inputs of <bytes> and of twice as many bytes. Each decode
// writes a dump of callgrind with the name "<message>: <input>|<bytes>". scripts/check/steps reads them.
#include "amplification/costly_inputs.h"
#include "model/library_calls.h"

#include <cstdio>
#include <cstdlib>
#include <valgrind/callgrind.h>

namespace
{

using namespace mava_tum_amplification;
using namespace mava_tum_model;

void *allocate(uint64_t size, void *)
{
    return std::malloc(size);
}

void release(void *block, void *)
{
    std::free(block);
}

void count_steps(std::size_t index, const std::string &name, const std::vector<uint8_t> &wire, std::size_t bytes)
{
    alignas(8) static uint8_t record[656];
    const library_message &library = library_message_at(index);
    const std::string label = std::string(library.name) + ": " + name + "|" + std::to_string(bytes);
    CALLGRIND_TOGGLE_COLLECT;
    library.decode(record, wire.data(), wire.size(), allocate, nullptr, 0);
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS_AT(label.c_str());
    library.free(record, release, nullptr, 0);
}

void count_all(std::size_t bytes)
{
    for (std::size_t index = 0; index < all_messages().size(); ++index) {
        const message &of = *all_messages()[index];
        for (const repeated_bytes &input : inputs_full_of_steps(of))
            count_steps(index, input.name, repeat(input.bytes, bytes), bytes);
        count_steps(index, "most memory", worst_wire(of, bytes), bytes);
        count_steps(index, "most memory dropped", dropping_wire(of, bytes), bytes);
    }
}

} // namespace

int main(int argument_count, char **arguments)
{
    const std::size_t bytes = argument_count == 2 ? std::strtoul(arguments[1], nullptr, 10) : 0;
    if (bytes == 0 || !RUNNING_ON_VALGRIND) {
        std::fprintf(stderr, "usage: valgrind --tool=callgrind --collect-atstart=no check_steps <bytes>\n");
        return 2;
    }
    count_all(bytes);
    count_all(2 * bytes);
    return EXIT_SUCCESS;
}
