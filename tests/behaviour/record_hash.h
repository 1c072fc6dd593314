// The hash of a record: every byte of it and of the memory that it points to. The name of the place replaces an
// address.
#pragma once

#include "block_arena.h"
#include "model/message_tables.h"

#include <span>

namespace mava_tum_behaviour
{

// The memory that pointers may point to.
struct known_places {
    std::span<const uint8_t> input;
    const block_arena &blocks;
    const block_arena &other_blocks; // of the record that another one was copied from; or `blocks` again
};

// The same number for the same place in every run.
uint64_t name_of(const void *pointer, const known_places &places);

void add_record(call_hash &hash, const mava_tum_model::message &of, const uint8_t *record, const known_places &places);

} // namespace mava_tum_behaviour
