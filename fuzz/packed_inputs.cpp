#include "packed_inputs.h"

namespace mava_tum_fuzz
{

namespace
{

constexpr std::size_t length_bytes = 4;

uint32_t read_length(std::span<const uint8_t> at)
{
    return uint32_t{at[0]} << 24 | uint32_t{at[1]} << 16 | uint32_t{at[2]} << 8 | uint32_t{at[3]};
}

} // namespace

unpacked_inputs unpack_inputs(std::span<const uint8_t> file)
{
    if (file.empty())
        return {{}, "it has no input"};
    unpacked_inputs unpacked;
    while (!file.empty()) {
        if (file.size() < length_bytes)
            return {{}, "it ends inside a length"};
        const uint32_t length = read_length(file);
        file = file.subspan(length_bytes);
        if (file.size() < length)
            return {{}, "it ends inside an input"};
        unpacked.inputs.push_back(file.first(length));
        file = file.subspan(length);
    }
    return unpacked;
}

void pack_input(std::vector<uint8_t> &file, std::span<const uint8_t> input)
{
    for (std::size_t shift = 8 * length_bytes; shift > 0; shift -= 8)
        file.push_back(static_cast<uint8_t>(input.size() >> (shift - 8)));
    file.insert(file.end(), input.begin(), input.end());
}

} // namespace mava_tum_fuzz
