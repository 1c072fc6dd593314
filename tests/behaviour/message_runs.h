// One wire through decode, encode, duplicate and free of one message, with all combinations of arguments.
#pragma once

#include "block_arena.h"
#include "encode_runs.h"
#include "model/library_calls.h"
#include "model/message_tables.h"
#include "model/random_source.h"
#include "record_hash.h"

#include <span>

namespace mava_tum_behaviour
{

struct wire_input {
    std::span<const uint8_t> wire;
    uint64_t seed;   // of random choices, the same in all runs of the program
    bool every_part; // otherwise the decodes, and a few of the rest chosen by `seed`
};

class message_runs
{
public:
    message_runs(behaviour_table &table, std::size_t message_index);

    void run(const wire_input &input);
    void decode_only(std::span<const uint8_t> wire); // copying

private:
    static constexpr std::size_t sources = 4; // of a record to encode
    static constexpr std::size_t segment_modes = 3;

    void decode(behaviour_row &row, mava_tum_model::failure_plan plan, uint32_t flags);
    void failing_decodes(mava_tum_model::random_source &random, bool all);
    void prepare(std::size_t source, uint32_t flags);
    void encode(std::size_t source, std::size_t mode, uint32_t argument);
    void duplicate(behaviour_row &row, mava_tum_model::failure_plan plan);
    void duplicates(mava_tum_model::random_source &random, bool all);
    void free_twice(behaviour_row &row, uint8_t *record, block_arena &blocks, uint32_t flags);
    void frees();

    uint8_t *record()
    {
        return reinterpret_cast<uint8_t *>(record_) + guarded_output::guard_bytes;
    }
    uint8_t *copy()
    {
        return reinterpret_cast<uint8_t *>(copy_) + guarded_output::guard_bytes;
    }
    std::size_t guarded_bytes() const
    {
        return of_.record_bytes + 2 * guarded_output::guard_bytes;
    }
    void add_guards(call_hash &hash, const uint8_t *record) const;

    const mava_tum_model::message &of_;
    const mava_tum_model::library_message &library_;
    std::span<const uint8_t> wire_;
    uint64_t seed_ = 0;

    block_arena &blocks_;
    block_arena &copied_blocks_;
    guarded_output output_;
    uint64_t record_[96];
    uint64_t copy_[96];

    behaviour_row *decode_rows_[6];
    behaviour_row *encode_rows_[sources][segment_modes];
    behaviour_row *duplicate_rows_[5];
    behaviour_row *free_rows_[4];
};

} // namespace mava_tum_behaviour
