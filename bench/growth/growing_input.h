// Messages that can be made as long as wanted, to see how a call's time grows with their length.
#ifndef MAVA_TUM_BENCH_GROWING_INPUT_H
#define MAVA_TUM_BENCH_GROWING_INPUT_H

#include "growth/wire_pieces.h"

#include <string>
#include <vector>

namespace bench
{

// `head`, then `unit` again and again, then `tail`. Where `nesting` names fields, all of it is the content of the last
// of them, which is inside the one before, and so on.
struct growing_input {
    std::string kind;
    wire_bytes head;
    wire_bytes unit;
    wire_bytes tail;
    std::vector<uint32_t> nesting;
};

// As long as `bytes` or, by less than a unit and the nesting, longer.
inline wire_bytes input_of(const growing_input &input, size_t bytes)
{
    wire_bytes wire = input.head;
    do
        append(wire, input.unit);
    while (wire.size() + input.tail.size() < bytes);
    append(wire, input.tail);
    for (size_t level = input.nesting.size(); level != 0; --level) {
        wire_bytes outer;
        append_delimited(outer, input.nesting[level - 1], wire);
        wire.swap(outer);
    }
    return wire;
}

// The inputs that make a decoder work hardest for each byte.
std::vector<growing_input> worst_inputs(const mava_tum_model::message &of);

// Messages that nest as deeply as they can: one value that grows at the bottom, and elements that each go to the
// bottom.
std::vector<growing_input> deepest_inputs(const mava_tum_model::message &of);

} // namespace bench

#endif
