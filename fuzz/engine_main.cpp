// What the engine (libFuzzer) calls, and how the sanitizers behave under it.
#include "fuzz_target.h"

extern "C" {
int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);
const char *__asan_default_options();
}

// -1: not worth keeping.
int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    return mava_tum_fuzz::check_input({data, size}, mava_tum_fuzz::depth::one_part) ? 0 : -1;
}

// No stack for each block, no filling of blocks that are filled anyway: replay the finding for the whole story. Freed
// memory is still held back, for longer than any execution lasts.
const char *__asan_default_options()
{
    return "malloc_context_size=0:max_malloc_fill_size=0:quarantine_size_mb=4:thread_local_quarantine_size_kb=256";
}
