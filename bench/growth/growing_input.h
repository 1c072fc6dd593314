// Messages of any length, to measure how a call's time grows with it.
#ifndef MAVA_TUM_BENCH_GROWING_INPUT_H
#define MAVA_TUM_BENCH_GROWING_INPUT_H

#include "growth/wire_pieces.h"

#include <string>
#include <vector>

namespace bench
{

// `head`, then `unit` repeated, then `tail`. If `nesting` names fields, this is the content of the last one, which is
// nested in the one before, and so on.
struct growing_input {
    std::string kind;
    wire_bytes head;
    wire_bytes unit;
    wire_bytes tail;
    std::vector<uint32_t> nesting;
};

// At least `bytes` long; longer by less than one unit and the nesting.
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

// The inputs that are most expensive to decode per byte.
std::vector<growing_input> worst_inputs(const mava_tum_model::message &of);

// Messages of the deepest nesting: one innermost value that grows, and elements that are each nested to the innermost
// level.
std::vector<growing_input> deepest_inputs(const mava_tum_model::message &of);

} // namespace bench

#endif
