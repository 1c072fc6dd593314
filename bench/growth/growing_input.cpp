#include "growth/growing_input.h"

namespace bench
{

wire_bytes input_of(const growing_input &input, size_t bytes)
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

} // namespace bench
