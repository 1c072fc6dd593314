#include "model/block_log.h"

#include <cstdlib>
#include <cstring>
#include <new>

namespace mava_tum_model
{

namespace
{

// Both sides refuse sizes that are too large to fill.
constexpr uint64_t largest_block = uint64_t{64} << 20;

// Memory is filled with a pattern, to detect blocks that are not zeroed or not written.
constexpr int fresh_byte = 0xA5;

} // namespace

block_log::~block_log()
{
    for (const block &left : blocks_) {
        if (left.live)
            give_back(left.memory);
    }
}

uint8_t *block_log::obtain(uint64_t size) const
{
    return static_cast<uint8_t *>(memory_ == block_memory::watched ? std::malloc(size) : ::operator new(size));
}

void block_log::give_back(void *memory) const
{
    if (memory_ == block_memory::watched)
        std::free(memory);
    else
        ::operator delete(memory);
}

bool block_log::fails(uint64_t size) const
{
    const std::size_t call = blocks_.size() + 1;
    switch (plan_.when) {
    case failing::once:
        return call == plan_.at;
    case failing::from_then:
        return call >= plan_.at;
    case failing::empty:
        return size == 0;
    default:
        return size > largest_block;
    }
}

std::size_t block_log::outstanding() const
{
    std::size_t count = 0;
    for (const block &given : blocks_)
        count += given.live ? 1 : 0;
    return count;
}

uint64_t block_log::outstanding_bytes() const
{
    uint64_t bytes = 0;
    for (const block &given : blocks_)
        bytes += given.live ? given.size : 0;
    return bytes;
}

uint64_t block_log::asked_bytes() const
{
    uint64_t bytes = 0;
    for (const block &asked : blocks_)
        bytes += asked.size;
    return bytes;
}

bool block_log::released_wrongly() const
{
    for (const release_call &call : releases_) {
        if (!call.was_live)
            return true;
    }
    return false;
}

void *block_log::allocate(uint64_t size, void *context)
{
    block_log &log = *static_cast<block_log *>(context);
    uint8_t *memory = log.fails(size) || size > largest_block ? nullptr : log.obtain(size);
    if (memory != nullptr)
        std::memset(memory, fresh_byte, size);
    log.blocks_.push_back({memory, size, memory != nullptr});
    return memory;
}

std::size_t block_log::index_of(const void *pointer) const
{
    const std::size_t live = find(pointer, true);
    return live != unknown ? live : find(pointer, false);
}

std::size_t block_log::find(const void *pointer, bool live) const
{
    const std::size_t count = blocks_.size();
    for (std::size_t step = 0; step < count; ++step) {
        const std::size_t index = (last_found_ + step) % count;
        if (blocks_[index].memory == pointer && blocks_[index].live == live) {
            last_found_ = index;
            return index;
        }
    }
    return unknown;
}

void block_log::release(void *pointer, void *context)
{
    block_log &log = *static_cast<block_log *>(context);
    const std::size_t index = pointer == nullptr ? unknown : log.index_of(pointer);
    const bool live = index != unknown && log.blocks_[index].live;
    log.releases_.push_back({index, pointer, live});
    if (live) {
        log.blocks_[index].live = false;
        log.give_back(pointer);
    }
}

std::string block_log::compare_allocations(const block_log &library, const block_log &model)
{
    for (std::size_t index = 0; index < library.blocks_.size() || index < model.blocks_.size(); ++index) {
        const bool in_both = index < library.blocks_.size() && index < model.blocks_.size();
        if (in_both && library.blocks_[index].size == model.blocks_[index].size)
            continue;
        const auto size_at = [index](const block_log &log) {
            return index < log.blocks_.size() ? std::to_string(log.blocks_[index].size) + " bytes" : "no such call";
        };
        return "allocator call " + std::to_string(index + 1) + ": expected " + size_at(model) + ", actual " +
               size_at(library);
    }
    return {};
}

std::string block_log::describe(const release_call &call)
{
    if (call.index == unknown)
        return call.pointer == nullptr ? "null" : "a pointer that no call gave";
    return "block " + std::to_string(call.index + 1) + (call.was_live ? "" : " again");
}

std::string block_log::compare_releases(const block_log &library, const block_log &model)
{
    for (std::size_t index = 0; index < library.releases_.size() || index < model.releases_.size(); ++index) {
        const bool in_both = index < library.releases_.size() && index < model.releases_.size();
        if (in_both && library.releases_[index] == model.releases_[index])
            continue;
        const auto released = [index](const block_log &log) {
            return index < log.releases_.size() ? describe(log.releases_[index]) : "no such call";
        };
        return "release call " + std::to_string(index + 1) + ": expected " + released(model) + ", actual " +
               released(library);
    }
    return {};
}

} // namespace mava_tum_model
