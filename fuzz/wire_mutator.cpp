// A mutator that knows the wire format: most changes are of fields, not of bytes.
#include "fuzz_target.h"
#include "model/random_source.h"
#include "model/wire_maker.h"

#include <algorithm>
#include <cstring>

extern "C" {
std::size_t LLVMFuzzerMutate(uint8_t *data, std::size_t size, std::size_t max_size);
std::size_t LLVMFuzzerCustomMutator(uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed);
std::size_t LLVMFuzzerCustomCrossOver(const uint8_t *first, std::size_t first_size, const uint8_t *second,
    std::size_t second_size, uint8_t *out, std::size_t max_out_size, unsigned seed);
}

namespace
{

using namespace mava_tum_model;

constexpr std::size_t header_bytes = 8;
constexpr std::size_t long_input_bytes = 4096; // if longer inputs are allowed, some are made longer than this

// The first byte selects the message. It seldom changes, so that the wire still fits the message.
void change_header(uint8_t *data, random_source &random)
{
    const std::size_t index = random.one_in(8) ? 0 : 1 + random.below(header_bytes - 1);
    data[index] = static_cast<uint8_t>(index == 3 ? random.below(16) : random.next());
}

} // namespace

std::size_t LLVMFuzzerCustomMutator(uint8_t *data, std::size_t size, std::size_t max_size, unsigned seed)
{
    random_source random(seed);
    if (max_size < header_bytes || random.one_in(16))
        return LLVMFuzzerMutate(data, size, max_size);
    if (size < header_bytes) {
        std::memset(data + size, 0, header_bytes - size);
        data[0] = static_cast<uint8_t>(random.next());
        size = header_bytes;
    }
    if (random.one_in(4))
        change_header(data, random);
    const message &of = mava_tum_fuzz::message_of_input(data[0]);
    wire_bytes wire(data + header_bytes, data + size);
    if (random.one_in(64))
        wire = random_wire(of, random);
    for (uint64_t changes = 1 + random.below(3); changes > 0; --changes)
        mutate_wire(of, wire, random);
    if (max_size > long_input_bytes && random.one_in(16))
        lengthen_wire(of, wire, random.below(max_size >> random.below(6)), random);
    wire.resize(std::min(wire.size(), max_size - header_bytes));
    std::copy(wire.begin(), wire.end(), data + header_bytes);
    return header_bytes + wire.size();
}

// The fields of both, one after the other.
std::size_t LLVMFuzzerCustomCrossOver(const uint8_t *first, std::size_t first_size, const uint8_t *second,
    std::size_t second_size, uint8_t *out, std::size_t max_out_size, unsigned)
{
    const std::size_t taken = std::min(first_size, max_out_size);
    std::copy(first, first + taken, out);
    if (taken < header_bytes || second_size <= header_bytes)
        return taken;
    const std::size_t more = std::min(second_size - header_bytes, max_out_size - taken);
    std::copy(second + header_bytes, second + header_bytes + more, out + taken);
    return taken + more;
}
