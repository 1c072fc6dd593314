// One input through one adapter, in both directions.
#pragma once

#include "adapter_records.h"
#include "model/message_tables.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

namespace mava_tum_fuzz
{

// The message that the adapter sends and receives.
const mava_tum_model::message &message_of_adapter(std::size_t index);

struct adapter_case {
    std::size_t adapter_index = 0;
    uint64_t seed = 0; // how the received record is changed before it is sent, and where it is cut
    std::span<const uint8_t> wire;
    bool every_part = true; // otherwise one of the operations after the first decode, chosen by `seed`
};

// Eight bytes of choices, then the wire. Shorter input is no case.
bool read_adapter_case(std::span<const uint8_t> bytes, adapter_case &read);

// Empty if all of this holds, otherwise a description of the difference: receiving: nothing outside the record is
// touched, and every byte of it is the one that the model predicts; sending: the record is only read, and the size and
// the bytes, into a buffer of any capacity, are those that the model predicts; both: no allocator is called.
std::string check_adapter(const adapter_case &checked);

} // namespace mava_tum_fuzz
