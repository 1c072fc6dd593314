// What the engine (libFuzzer) calls, and how the sanitizers behave under it.
#include "fuzz_target.h"

extern "C" {
int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size);
const char *__asan_default_options();
}

// -1: the engine does not keep the input.
int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    return mava_tum_fuzz::check_input({data, size}, mava_tum_fuzz::depth::one_part) ? 0 : -1;
}

// For speed: no stack trace of each block and no fill of new blocks; replay a finding for the full report. Freed memory
// is still quarantined, for longer than an execution takes.
const char *__asan_default_options()
{
    return "malloc_context_size=0:max_malloc_fill_size=0:quarantine_size_mb=4:thread_local_quarantine_size_kb=256";
}
