// An allocator that records every call with its size, and every release, in order. The one of the library and the one
// of the model are compared call by call.
#pragma once

#include "model/model.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_model
{

enum class failing : uint8_t {
    never,
    once,      // call number `at`, counted from 1
    from_then, // call number `at` and all later ones
    empty,     // every call for 0 bytes
    no_allocator
};

struct failure_plan {
    failing when = failing::never;
    uint32_t at = 0;
};

// The source of the blocks. Sanitizers must check the library's blocks, but not those of the model.
enum class block_memory : uint8_t { watched, plain };

class block_log
{
public:
    explicit block_log(failure_plan plan = {}, block_memory memory = block_memory::watched)
        : plan_(plan), memory_(memory)
    {
    }
    block_log(const block_log &) = delete;
    block_log &operator=(const block_log &) = delete;
    ~block_log();

    memory_source source()
    {
        return plan_.when == failing::no_allocator ? memory_source{} : memory_source{allocate, this};
    }

    memory_sink sink()
    {
        return {release, this};
    }

    static void *allocate(uint64_t size, void *context);
    static void release(void *pointer, void *context);

    static constexpr std::size_t unknown = SIZE_MAX;

    // The number of the call that returned this block. After a release, an address may be returned again: live blocks
    // are searched first.
    std::size_t index_of(const void *pointer) const;

    uint64_t size_of_block(std::size_t index) const
    {
        return blocks_[index].size;
    }

    // Outstanding blocks, and their bytes.
    std::size_t outstanding() const;
    uint64_t outstanding_bytes() const;

    // Calls so far and the bytes that they requested.
    std::size_t calls() const
    {
        return blocks_.size();
    }
    uint64_t asked_bytes() const;

    // Whether a pointer was released that is not live: a released block, or a foreign one.
    bool released_wrongly() const;

    bool made_any_call() const
    {
        return !blocks_.empty();
    }

    // Empty if both recorded the same; otherwise the first difference.
    static std::string compare_allocations(const block_log &library, const block_log &model);
    static std::string compare_releases(const block_log &library, const block_log &model);

private:
    struct block {
        uint8_t *memory;
        uint64_t size;
        bool live;
    };

    struct release_call {
        std::size_t index; // or unknown, for a pointer of another allocator
        const void *pointer;
        bool was_live;
        bool operator==(const release_call &other) const
        {
            return index == other.index && was_live == other.was_live && (index != unknown || pointer == other.pointer);
        }
    };

    bool fails(uint64_t size) const;
    uint8_t *obtain(uint64_t size) const;
    void give_back(void *memory) const;
    std::size_t find(const void *pointer, bool live) const;
    static std::string describe(const release_call &call);

    failure_plan plan_;
    block_memory memory_;
    std::vector<block> blocks_;
    std::vector<release_call> releases_;
    mutable std::size_t last_found_ = 0; // blocks are looked up nearly in order
};

} // namespace mava_tum_model
