#include "stack/painted_stack.h"

#include <pthread.h>
#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace mava_tum_test
{

namespace
{

constexpr uint8_t paint = 0xA5;

// The frame of a callee is below that of its caller. A small function does not use the stack this far below its own
// frame.
constexpr std::size_t painter_bytes = 96;

class stack_memory
{
public:
    stack_memory() : page_bytes_(static_cast<std::size_t>(::sysconf(_SC_PAGESIZE)))
    {
        const std::size_t mapped_bytes = page_bytes_ + painted_stack_bytes;
        void *mapping = ::mmap(nullptr, mapped_bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
        if (mapping == MAP_FAILED || ::mprotect(mapping, page_bytes_, PROT_NONE) != 0)
            throw std::runtime_error("no memory for a stack");
        mapping_ = static_cast<uint8_t *>(mapping);
    }

    stack_memory(const stack_memory &) = delete;
    stack_memory &operator=(const stack_memory &) = delete;

    ~stack_memory()
    {
        ::munmap(mapping_, page_bytes_ + painted_stack_bytes);
    }

    uint8_t *lowest()
    {
        return mapping_ + page_bytes_;
    }

    uint8_t *top()
    {
        return lowest() + painted_stack_bytes;
    }

private:
    std::size_t page_bytes_;
    uint8_t *mapping_ = nullptr;
};

struct run {
    const std::vector<std::function<void()>> &calls;
    stack_memory stack;
    stack_use use;
};

// A store that the compiler does not turn into a call, which would need stack itself.
[[gnu::noinline]] void paint_below(uint8_t *lowest)
{
    volatile uint8_t *const end = static_cast<uint8_t *>(__builtin_frame_address(0)) - painter_bytes;
    for (volatile uint8_t *at = lowest; at < end; ++at)
        *at = paint;
}

void *make_calls(void *context)
{
    run &running = *static_cast<run *>(context);
    uint8_t *const frame = static_cast<uint8_t *>(__builtin_frame_address(0));
    uint8_t *const lowest = running.stack.lowest();
    for (const std::function<void()> &call : running.calls) {
        paint_below(lowest);
        call();
        const uint8_t *const used = std::find_if(lowest, frame, [](uint8_t byte) { return byte != paint; });
        running.use.call_bytes = std::max(running.use.call_bytes, static_cast<std::size_t>(frame - used));
    }
    running.use.thread_bytes = running.use.call_bytes + static_cast<std::size_t>(running.stack.top() - frame);
    return nullptr;
}

} // namespace

stack_use measure_stack_use(const std::vector<std::function<void()>> &calls)
{
    run running{calls, {}, {}};
    pthread_attr_t attributes;
    pthread_t thread;
    if (::pthread_attr_init(&attributes) != 0 ||
        ::pthread_attr_setstack(&attributes, running.stack.lowest(), painted_stack_bytes) != 0 ||
        ::pthread_create(&thread, &attributes, make_calls, &running) != 0)
        throw std::runtime_error("no thread");
    ::pthread_attr_destroy(&attributes);
    ::pthread_join(thread, nullptr);
    return running.use;
}

} // namespace mava_tum_test
