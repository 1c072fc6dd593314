// The hash of a record: every byte of it and of what it points at, with the name of the place in place of an address.
#pragma once

#include "block_arena.h"
#include "model/message_tables.h"

#include <span>

namespace mava_tum_behaviour
{

// Where pointers may lead.
struct known_places {
    std::span<const uint8_t> input;
    const block_arena &blocks;
    const block_arena &other_blocks; // of the record that another one was copied from; or `blocks` again
};

// The same number for the same place in every run.
uint64_t name_of(const void *pointer, const known_places &places);

void add_record(call_hash &hash, const mava_tum_model::message &of, const uint8_t *record, const known_places &places);

} // namespace mava_tum_behaviour
