// Values in words: numbers, addresses in dotted and colon form, texts in quotes.
#pragma once

#include "inspector/library/fault_text.h"
#include "inspector/library/wire_event.h"

#include <cstdint>

namespace mava_tum_inspect
{

// The value of a varint, fixed32, bytes field or text, or the known parts of an unknown field. `data` is the whole
// message.
void describe_value(sentence &text, const occurrence &at, const uint8_t *data);

// `network_order`: as in a codec record, with the first octet in the lowest byte.
void add_ipv4(sentence &text, uint32_t network_order);

void add_ipv6(sentence &text, const uint8_t *address);

// In double quotes, other characters than printable ASCII as \xNN; a long text is shortened, with its length.
void add_quoted(sentence &text, const uint8_t *bytes, uint64_t length);

} // namespace mava_tum_inspect
