// The out-of-line part of the read primitives.
#include "codec/wire_read.h"

namespace mava_tum
{

number_read<uint32_t> read_long_varint32(const uint8_t *at, const uint8_t *end)
{
    return read_varint32(at, end);
}

} // namespace mava_tum
