// One input through one message, in the library and in the model: decode, encode, duplicate and free. Compares
// everything that a caller can see.
#pragma once

#include "model/block_log.h"
#include "model/library_calls.h"
#include "model/message_tables.h"
#include "model/wire_maker.h"

#include <cstdint>
#include <span>
#include <string>

namespace mava_tum_model
{

struct message_case {
    std::size_t message_index = 0;
    uint32_t flags = 0; // decode: the alias bit, and others that mean nothing
    failure_plan decode_plan;
    uint64_t seed = 0; // what happens after the decode
    std::span<const uint8_t> wire;
    bool every_part = true; // otherwise one of the operations after the decode, chosen by `seed`
};

// A case as bytes: eight bytes of choices, then the wire. Shorter input is no case.
constexpr std::size_t case_header_bytes = 8;
bool read_case(std::span<const uint8_t> bytes, message_case &read);
wire_bytes case_bytes(const message_case &from);

// Empty if the library did what the model predicts; otherwise message, operation, member, expected and actual, and the
// case in hex.
std::string check_message(const message_case &checked);

// The decode alone, and its free. `model_of` replaces the message's schema: a test of the comparison passes a wrong
// one.
std::string check_decode(const message_case &checked, const message &model_of);

} // namespace mava_tum_model
