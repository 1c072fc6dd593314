// Valid records that no decode makes: bits without content, content without bits, null texts, shortened lists, any
// reserved bits.
#pragma once

#include "model/message_tables.h"
#include "model/random_source.h"

#include <cstdint>

namespace mava_tum_model
{

// Pointers are only replaced by null or by constants: the record's owner keeps the blocks.
void change_record(const message &of, uint8_t *record, random_source &random);

// One bytes field claims a length of more than 32 bits. For an encode into a shorter buffer, which never reads the
// bytes.
bool claim_huge_length(const message &of, uint8_t *record, random_source &random);

// Before a call: values, pointers and masks are filled with ones at every depth, the padding with zeros.
void fill_members(const message &of, uint8_t *record);

} // namespace mava_tum_model
