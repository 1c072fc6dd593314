// Values in words: numbers, addresses in dotted and colon form, texts in quotes.
#pragma once

#include "inspector/library/fault_text.h"
#include "inspector/library/wire_event.h"

#include <cstdint>

namespace mava_tum_inspect
{

// The value of a varint, fixed32, bytes field or text; of an unknown field, what is known of it. `data` is the whole
// message.
void describe_value(sentence &text, const occurrence &at, const uint8_t *data);

// `network_order`: as it stands in a record, the first octet in the lowest byte.
void add_ipv4(sentence &text, uint32_t network_order);

void add_ipv6(sentence &text, const uint8_t *address);

// In double quotes, what is not printable ASCII as \xNN; of a long one the beginning, and how long it is.
void add_quoted(sentence &text, const uint8_t *bytes, uint64_t length);

} // namespace mava_tum_inspect
