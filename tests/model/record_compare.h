// Compares the record that the library made with the one that the model made: every member, every bit of every mask,
// and everything that pointers lead to.
#pragma once

#include "model/block_log.h"
#include "model/message_tables.h"

#include <cstdint>
#include <string>

namespace mava_tum_model
{

struct record_pair {
    const uint8_t *library;
    const uint8_t *model;
};

// Empty if equal; otherwise "<member path>: expected ..., actual ...". Blocks correspond when the same call gave them.
std::string compare_records(
    const message &of, const record_pair &records, const block_log &library_log, const block_log &model_log);

} // namespace mava_tum_model
