// Do decode, encode, duplicate and free of all 40 messages do what the model predicts?
#include "fuzz_target.h"
#include "model/check_message.h"

#include <cstdio>
#include <cstdlib>

namespace mava_tum_fuzz
{

const mava_tum_model::message &message_of_input(uint8_t first_byte)
{
    return *mava_tum_model::all_messages()[first_byte % mava_tum_model::all_messages().size()];
}

} // namespace mava_tum_fuzz

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, std::size_t size)
{
    mava_tum_model::message_case read;
    if (!mava_tum_model::read_case({data, size}, read))
        return -1;
    const std::string found = mava_tum_model::check_message(read);
    if (!found.empty()) {
        std::fprintf(stderr, "%s\n", found.c_str());
        std::abort();
    }
    return 0;
}
