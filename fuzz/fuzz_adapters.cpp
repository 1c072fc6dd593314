// Do the 19 adapters keep to their record, give every block back, and send what the model can read?
#include "check_adapter.h"
#include "fuzz_target.h"

#include <cstdio>
#include <cstdlib>

namespace mava_tum_fuzz
{

const mava_tum_model::message &message_of_input(uint8_t first_byte)
{
    return message_of_adapter(first_byte % adapter_count);
}

} // namespace mava_tum_fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    mava_tum_fuzz::adapter_case read;
    if (!mava_tum_fuzz::read_adapter_case({data, size}, read))
        return -1;
    const std::string found = mava_tum_fuzz::check_adapter(read);
    if (!found.empty()) {
        std::fprintf(stderr, "%s\n", found.c_str());
        std::abort();
    }
    return 0;
}
