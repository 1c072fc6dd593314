// Compares the record that the library made with the one that the model made: every member, every bit of every mask,
// and all memory that pointers point to.
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

// Empty if equal; otherwise "<member path>: expected ..., actual ...". Blocks correspond if the same call returned
// them.
std::string compare_records(
    const message &of, const record_pair &records, const block_log &library_log, const block_log &model_log);

} // namespace mava_tum_model
