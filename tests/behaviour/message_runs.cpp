#include "message_runs.h"

#include "model/record_changes.h"

#include <algorithm>

namespace mava_tum_behaviour
{

using namespace mava_tum_model;

namespace
{

constexpr uint32_t other_flags = 0xFFFFFFFE; // all bits without a meaning

enum decode_group : std::size_t { copied, aliased, without_allocator, fails_once, fails_from_then, fails_when_empty };
constexpr const char *decode_names[] = {"copied", "aliased", "no allocator", "one allocation fails",
    "allocations fail from one on", "allocations of 0 bytes fail"};

enum source_of_record : std::size_t { as_decoded, changed, freed, huge_length };
constexpr const char *source_names[] = {"decoded", "changed", "freed", "huge length"};

enum segment_mode : std::size_t { no_segments, counted, gathered };
constexpr const char *mode_names[] = {"no segments", "copied", "gathered"};

enum duplicate_group : std::size_t { whole, of_changed, copy_fails_once, copy_fails_from_then, copy_without_allocator };
constexpr const char *duplicate_names[] = {
    "decoded", "changed", "one allocation fails", "allocations fail from one on", "no allocator"};

enum free_group : std::size_t { owning, aliasing, of_changed_record, of_duplicate };
constexpr const char *free_names[] = {"owned", "alias bit", "changed", "of a duplicate"};

// Capacities of segments; the last one: a count, but no array for segments.
constexpr uint32_t segment_capacities[] = {0, 1, 2, 64, 3};
constexpr uint32_t segment_arguments = 5;

// Blocks are shared by all messages: one call at a time.
block_arena &shared_arena(std::size_t index)
{
    static block_arena arenas[2];
    return arenas[index];
}

} // namespace

message_runs::message_runs(behaviour_table &table, std::size_t message_index)
    : of_(*all_messages()[message_index]), library_(library_message_at(message_index)), blocks_(shared_arena(0)),
      copied_blocks_(shared_arena(1))
{
    const std::string prefix = std::string("mava_tum_") + of_.name;
    for (std::size_t group = 0; group < std::size(decode_rows_); ++group)
        decode_rows_[group] = &table.new_row(prefix + "_decode_ext", decode_names[group]);
    for (std::size_t source = 0; source < sources; ++source) {
        for (std::size_t mode = 0; mode < segment_modes; ++mode) {
            encode_rows_[source][mode] =
                &table.new_row(prefix + "_encode_ext", std::string(source_names[source]) + ", " + mode_names[mode]);
        }
    }
    for (std::size_t group = 0; group < std::size(duplicate_rows_); ++group)
        duplicate_rows_[group] = &table.new_row(prefix + "_duplicate", duplicate_names[group]);
    for (std::size_t group = 0; group < std::size(free_rows_); ++group)
        free_rows_[group] = &table.new_row(prefix + "_free_ext", free_names[group]);
}

void message_runs::add_guards(call_hash &hash, const uint8_t *record) const
{
    hash.add_bytes(record - guarded_output::guard_bytes, guarded_output::guard_bytes);
    hash.add_bytes(record + of_.record_bytes, guarded_output::guard_bytes);
}

void message_runs::decode(behaviour_row &row, failure_plan plan, uint32_t flags)
{
    blocks_.restart(plan);
    std::memset(record_, fresh_byte, guarded_bytes());
    const int32_t result = library_.decode(record(), wire_.data(), wire_.size(), blocks_.alloc_fn(), &blocks_, flags);
    call_hash hash;
    hash.add(static_cast<uint64_t>(result));
    blocks_.add_calls(hash);
    add_record(hash, of_, record(), {wire_, blocks_, blocks_});
    add_guards(hash, record());
    row.add(wire_, uint64_t{plan.at} << 32 | flags, hash);
}

void message_runs::failing_decodes(random_source &random, bool all)
{
    decode(*decode_rows_[copied], {}, 0);
    const uint32_t calls = static_cast<uint32_t>(blocks_.calls());
    const uint32_t first = all || calls == 0 ? 1 : 1 + static_cast<uint32_t>(random.below(calls));
    const uint32_t last = all ? std::min(calls, 64u) : std::min(first, calls);
    for (uint32_t call = first; call <= last; ++call) {
        decode(*decode_rows_[fails_once], {failing::once, call}, call % 2);
        decode(*decode_rows_[fails_from_then], {failing::from_then, call}, call / 2 % 2);
    }
    decode(*decode_rows_[fails_when_empty], {failing::empty}, 0);
    decode(*decode_rows_[without_allocator], {failing::no_allocator}, 0);
    decode(*decode_rows_[without_allocator], {failing::no_allocator}, alias_flag);
}

// Makes a record for further calls. Its decode is not counted again.
void message_runs::prepare(std::size_t source, uint32_t flags)
{
    blocks_.restart();
    std::memset(record_, fresh_byte, guarded_bytes());
    library_.decode(record(), wire_.data(), wire_.size(), blocks_.alloc_fn(), &blocks_, flags);
    random_source random(seed_ + 1);
    if (source == changed || source == huge_length)
        change_record(of_, record(), random);
    if (source == huge_length)
        claim_huge_length(of_, record(), random);
    if (source == freed)
        library_.free(record(), block_arena::release, &blocks_, flags);
}

// `argument`: its lowest bit is the alias bit of the decode, the others select the capacity of segments.
void message_runs::encode(std::size_t source, std::size_t mode, uint32_t argument)
{
    prepare(source, argument % 2);
    const known_places places = {wire_, blocks_, blocks_};
    const uint32_t choice = argument / 2 % segment_arguments;
    const bool no_array = choice == segment_arguments - 1;
    mava_tum_segment segments[66];
    const auto encode_once = [&](uint8_t *buffer, uint64_t capacity, call_hash &hash) {
        std::memset(segments, fresh_byte, sizeof segments);
        uint32_t count = segment_capacities[choice];
        const uint32_t flags = mode == gathered ? alias_flag : mode == counted ? other_flags : argument / 2 % 2;
        const bool count_wanted = mode != no_segments;
        const uint64_t result = library_.encode(record(), buffer, capacity,
            count_wanted && !no_array ? segments : nullptr, count_wanted ? &count : nullptr, flags);
        hash.add(count);
        for (std::size_t index = 0; count_wanted && index < segment_capacities[choice] + 1; ++index) {
            const uint8_t *data = segments[index].data;
            const bool in_buffer = buffer != nullptr && data >= buffer && data <= buffer + capacity;
            hash.add(in_buffer ? static_cast<uint64_t>(data - buffer) : ~name_of(data, places));
            hash.add(segments[index].length);
        }
        return result;
    };
    encode_at_all_capacities(output_, *encode_rows_[source][mode], wire_, argument, encode_once);
}

void message_runs::duplicate(behaviour_row &row, failure_plan plan)
{
    copied_blocks_.restart(plan);
    std::memset(copy_, fresh_byte, guarded_bytes());
    const int32_t result = library_.duplicate(copy(), record(), copied_blocks_.alloc_fn(), &copied_blocks_);
    call_hash hash;
    hash.add(static_cast<uint64_t>(result));
    copied_blocks_.add_calls(hash);
    add_record(hash, of_, copy(), {wire_, copied_blocks_, blocks_});
    add_guards(hash, copy());
    row.add(wire_, plan.at, hash);
}

void message_runs::duplicates(random_source &random, bool all)
{
    prepare(changed, 0);
    duplicate(*duplicate_rows_[of_changed], {});
    prepare(as_decoded, static_cast<uint32_t>(seed_ % 2));
    duplicate(*duplicate_rows_[whole], {});
    const uint32_t calls = static_cast<uint32_t>(copied_blocks_.calls());
    free_twice(*free_rows_[of_duplicate], copy(), copied_blocks_, 0);
    const uint32_t first = all || calls == 0 ? 1 : 1 + static_cast<uint32_t>(random.below(calls));
    const uint32_t last = all ? std::min(calls, 64u) : std::min(first, calls);
    for (uint32_t call = first; call <= last; ++call) {
        duplicate(*duplicate_rows_[copy_fails_once], {failing::once, call});
        free_twice(*free_rows_[of_duplicate], copy(), copied_blocks_, 0);
        duplicate(*duplicate_rows_[copy_fails_from_then], {failing::from_then, call});
    }
    duplicate(*duplicate_rows_[copy_without_allocator], {failing::no_allocator});
}

void message_runs::free_twice(behaviour_row &row, uint8_t *record, block_arena &blocks, uint32_t flags)
{
    for (int time = 0; time < 2; ++time) {
        library_.free(record, block_arena::release, &blocks, flags);
        call_hash hash;
        blocks.add_calls(hash);
        add_record(hash, of_, record, {wire_, blocks, blocks_});
        add_guards(hash, record);
        row.add(wire_, flags, hash);
    }
}

// Each decode with each free, also with different flags: releases are only recorded.
void message_runs::frees()
{
    for (uint32_t flags = 0; flags < 4; ++flags) {
        prepare(as_decoded, flags % 2);
        const bool alias = flags / 2 != 0;
        free_twice(*free_rows_[alias ? aliasing : owning], record(), blocks_, alias ? ~0u : other_flags);
    }
    prepare(changed, 0);
    free_twice(*free_rows_[of_changed_record], record(), blocks_, static_cast<uint32_t>(seed_ % 2));
}

void message_runs::decode_only(std::span<const uint8_t> wire)
{
    wire_ = wire;
    decode(*decode_rows_[copied], {}, 0);
}

void message_runs::run(const wire_input &input)
{
    wire_ = input.wire;
    seed_ = input.seed;
    random_source random(seed_);
    decode(*decode_rows_[copied], {}, other_flags);
    decode(*decode_rows_[aliased], {}, alias_flag);
    if (input.every_part)
        decode(*decode_rows_[aliased], {}, ~0u);
    const uint64_t part = random.below(8);
    if (input.every_part || part == 0)
        failing_decodes(random, input.every_part);
    if (input.every_part || part == 1)
        duplicates(random, input.every_part);
    if (input.every_part || part == 2)
        frees();
    if (!input.every_part && part < 3)
        return;
    const std::size_t only_source = random.below(sources);
    const std::size_t only_mode = random.below(segment_modes);
    const uint32_t only_argument = static_cast<uint32_t>(random.below(2 * segment_arguments));
    if (!input.every_part)
        return encode(only_source, only_mode, only_argument);
    for (std::size_t source = 0; source < sources; ++source) {
        for (uint32_t argument = 0; argument < 2 * segment_arguments; ++argument) {
            for (std::size_t mode = argument < 4 ? no_segments : counted; mode < segment_modes; ++mode)
                encode(source, mode, argument);
        }
    }
}

} // namespace mava_tum_behaviour
