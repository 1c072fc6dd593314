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
wire_bytes input_of(const growing_input &input, size_t bytes);

// The inputs that make a decoder work hardest for each byte.
std::vector<growing_input> worst_inputs(const mava_tum_model::message &of);

// Messages that nest as deeply as they can: one value that grows at the bottom, and elements that each go to the
// bottom.
std::vector<growing_input> deepest_inputs(const mava_tum_model::message &of);

} // namespace bench

#endif
