// The floor under all: a copy of a message's wire bytes.
#include "peers/harness/peer_program.h"

namespace bench
{

std::string peer_version()
{
    return "memcpy of the C library";
}

void add_operations(suite &operations)
{
    const corpus &content = operations.content();
    auto buffer = std::make_shared<std::vector<uint8_t>>(content.longest_wire());
    operations.add_encode("copy", "memcpy", [&content, buffer](size_t i) {
        const std::vector<uint8_t> &wire = content.wires[i];
        std::memcpy(buffer->data(), wire.data(), wire.size());
        return byte_view(buffer->data(), wire.size());
    });
}

} // namespace bench
