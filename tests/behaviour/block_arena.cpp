#include "block_arena.h"

#include <algorithm>

namespace mava_tum_behaviour
{

using mava_tum_model::failing;

namespace
{

constexpr std::size_t arena_bytes = std::size_t{16} << 20;
constexpr std::size_t guard_bytes = 16; // keeps blocks aligned too

enum event : uint64_t { asked, refused, released };

} // namespace

block_arena::block_arena() : memory_(arena_bytes / sizeof(uint64_t)) {}

void block_arena::restart(mava_tum_model::failure_plan plan)
{
    plan_ = plan;
    used_ = 0;
    blocks_.clear();
    calls_ = 0;
    hash_ = {};
}

bool block_arena::fails(uint64_t size) const
{
    switch (plan_.when) {
    case failing::once:
        return calls_ == plan_.at;
    case failing::from_then:
        return calls_ >= plan_.at;
    case failing::empty:
        return size == 0;
    default:
        return false;
    }
}

void *block_arena::allocate(uint64_t size, void *context)
{
    block_arena &arena = *static_cast<block_arena *>(context);
    arena.calls_ += 1;
    arena.hash_.add(asked);
    arena.hash_.add(size);
    if (arena.fails(size) || size > arena_bytes - arena.used_ - 2 * guard_bytes) {
        arena.hash_.add(refused);
        return nullptr;
    }
    uint8_t *at = reinterpret_cast<uint8_t *>(arena.memory_.data()) + arena.used_;
    const std::size_t taken = (size + 2 * guard_bytes - 1) / guard_bytes * guard_bytes;
    std::memset(at, fresh_byte, taken);
    arena.used_ += taken;
    arena.blocks_.push_back({at, size});
    return at;
}

void block_arena::release(void *pointer, void *context)
{
    block_arena &arena = *static_cast<block_arena *>(context);
    const place where = arena.place_of(pointer);
    arena.hash_.add(released);
    arena.hash_.add(where.block);
    arena.hash_.add(where.offset);
}

void block_arena::add_calls(call_hash &hash) const
{
    hash.add(hash_.value());
    for (const block &given : blocks_)
        hash.add_bytes(given.at + given.size, guard_bytes - given.size % guard_bytes);
}

block_arena::place block_arena::place_of(const void *pointer) const
{
    const uint8_t *at = static_cast<const uint8_t *>(pointer);
    const auto after = std::upper_bound(
        blocks_.begin(), blocks_.end(), at, [](const uint8_t *value, const block &given) { return value < given.at; });
    if (after == blocks_.begin())
        return {0, 0, 0};
    const block &given = *(after - 1);
    const uint64_t offset = static_cast<uint64_t>(at - given.at);
    if (offset > given.size)
        return {0, 0, 0};
    return {static_cast<uint64_t>(after - blocks_.begin()), offset, given.size - offset};
}

} // namespace mava_tum_behaviour
