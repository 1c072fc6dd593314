// operator new for code that is not instrumented: the vectors and strings of the model, the mutator and the engine. The
// sanitizer's allocator would take most of an execution. The library's memory stays with the sanitizer: its blocks come
// from malloc, the input from new[].
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <new>

namespace
{

constexpr std::size_t step_bytes = 32;
constexpr std::size_t list_count = 65;
constexpr std::size_t slab_bytes = std::size_t{1} << 18;
constexpr std::size_t not_listed = SIZE_MAX;

// Precedes each block; the block is aligned like those of malloc.
struct alignas(16) block_header {
    std::size_t list;
    block_header *next;
};

struct block_lists {
    block_header *lists[list_count] = {};
    uint8_t *slab = nullptr;
    std::size_t slab_left = 0;
};

thread_local block_lists own;

block_header *checked(void *memory)
{
    if (memory == nullptr)
        std::abort();
    return static_cast<block_header *>(memory);
}

block_header *cut_from_slab(std::size_t bytes)
{
    if (own.slab_left < bytes) {
        own.slab = reinterpret_cast<uint8_t *>(checked(std::malloc(slab_bytes)));
        own.slab_left = slab_bytes;
    }
    block_header *cut = reinterpret_cast<block_header *>(own.slab);
    own.slab += bytes;
    own.slab_left -= bytes;
    return cut;
}

block_header *obtain(std::size_t size)
{
    const std::size_t list = (size + step_bytes - 1) / step_bytes;
    if (list >= list_count) {
        block_header *large = checked(std::malloc(sizeof(block_header) + size));
        large->list = not_listed;
        return large;
    }
    block_header *block = own.lists[list];
    if (block != nullptr) {
        own.lists[list] = block->next;
    } else {
        block = cut_from_slab(sizeof(block_header) + list * step_bytes);
        block->list = list;
    }
    return block;
}

void give_back(void *pointer)
{
    if (pointer == nullptr)
        return;
    block_header *block = static_cast<block_header *>(pointer) - 1;
    if (block->list == not_listed) {
        std::free(block);
        return;
    }
    block->next = own.lists[block->list];
    own.lists[block->list] = block;
}

} // namespace

void *operator new(std::size_t size)
{
    return obtain(size) + 1;
}

void operator delete(void *pointer) noexcept
{
    give_back(pointer);
}

void operator delete(void *pointer, std::size_t) noexcept
{
    give_back(pointer);
}

void *operator new(std::size_t size, const std::nothrow_t &) noexcept
{
    return obtain(size) + 1;
}

void operator delete(void *pointer, const std::nothrow_t &) noexcept
{
    give_back(pointer);
}
