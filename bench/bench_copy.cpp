// The floor: the wire bytes of a workload, copied.
#include "bench_operations.h"

#include <cstring>

namespace bench
{
namespace
{

constexpr uintptr_t page_bytes = 4096;

// A place in `buffer` that is half a page away from `source`, counted within pages: where both have nearly the same
// place in their pages, a load waits for the stores of the call before, and a small copy takes twice as long.
uint8_t *half_a_page_away(std::vector<uint8_t> &buffer, const uint8_t *source)
{
    const uintptr_t wanted = (reinterpret_cast<uintptr_t>(source) + page_bytes / 2) % page_bytes;
    const uintptr_t start = reinterpret_cast<uintptr_t>(buffer.data()) % page_bytes;
    return buffer.data() + (wanted + page_bytes - start) % page_bytes;
}

} // namespace

void register_copy(const std::string &work, const std::vector<uint8_t> &wire)
{
    auto buffer = std::make_shared<std::vector<uint8_t>>(wire.size() + page_bytes);
    uint8_t *target = half_a_page_away(*buffer, wire.data());
    register_side(
        work, copy_wire, plain_copy, [&wire, buffer, target] { return std::memcpy(target, wire.data(), wire.size()); });
}

} // namespace bench
