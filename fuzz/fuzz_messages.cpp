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

bool check_input(std::span<const uint8_t> bytes, depth how)
{
    mava_tum_model::message_case read;
    if (!mava_tum_model::read_case(bytes, read))
        return false;
    read.every_part = how == depth::every_part;
    const std::string found = mava_tum_model::check_message(read);
    if (!found.empty()) {
        std::fprintf(stderr, "%s\n", found.c_str());
        std::abort();
    }
    return true;
}

} // namespace mava_tum_fuzz
