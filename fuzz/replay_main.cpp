// Runs a target over inputs, without an engine: replay_<question> FILE... FILE.packed has many inputs
// (packed_inputs.h); any other file is one. A target stops the program at the first input with a difference. No input
// is an error, too. No C++ stream: see recorded_inputs.h.
#include "fuzz_target.h"
#include "recorded_inputs.h"

#include <algorithm>
#include <cstdio>
#include <memory>

namespace
{

// The copy ends where its block ends, so that the address sanitizer detects every access behind it.
void replay(std::span<const uint8_t> bytes)
{
    const std::unique_ptr<uint8_t[]> exact(new uint8_t[bytes.size()]);
    std::copy(bytes.begin(), bytes.end(), exact.get());
    const std::span<const uint8_t> input(exact.get(), bytes.size());
    mava_tum_fuzz::check_input(input, mava_tum_fuzz::depth::one_part);
    mava_tum_fuzz::check_input(input, mava_tum_fuzz::depth::every_part);
}

} // namespace

int main(int argument_count, char **arguments)
{
    std::size_t count = 0;
    for (int index = 1; index < argument_count; ++index) {
        for (const auto &input : mava_tum_fuzz::read_inputs(arguments[index])) {
            std::fprintf(stderr, "input %zu\r", count);
            replay(input);
            count += 1;
        }
    }
    std::printf("%zu inputs replayed\n", count);
    return count == 0 ? 1 : 0;
}
