// Do the 19 adapters receive and send what the model predicts, stay inside their record, and call no allocator?
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

bool check_input(std::span<const uint8_t> bytes, depth how)
{
    adapter_case read;
    if (!read_adapter_case(bytes, read))
        return false;
    read.every_part = how == depth::every_part;
    const std::string found = check_adapter(read);
    if (!found.empty()) {
        std::fprintf(stderr, "%s\n", found.c_str());
        std::abort();
    }
    return true;
}

} // namespace mava_tum_fuzz
