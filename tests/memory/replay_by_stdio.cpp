// Replays recorded inputs as fuzz/replay_main.cpp does, for the memory sanitizer: the C++ runtime library is not
// instrumented, so whatever it writes counts as never written. Nothing here opens a stream; the C library is
// intercepted.
//   replay_by_stdio_<question> <file>...
// Each input is decoded, encoded, duplicated and freed, and all of it is compared with the model: the comparison reads
// every member and every byte that comes out, and so meets each one that was made from memory that nobody wrote.
#include "fuzz_target.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace
{

// The copy ends where the block ends.
bool replay(const char *path)
{
    std::FILE *const file = std::fopen(path, "rb");
    if (file == nullptr)
        return false;
    uint8_t buffer[64 * 1024];
    const std::size_t length = std::fread(buffer, 1, sizeof buffer, file);
    const bool complete = std::feof(file) != 0;
    std::fclose(file);
    uint8_t *const exact = new uint8_t[length];
    for (std::size_t at = 0; at < length; ++at)
        exact[at] = buffer[at];
    mava_tum_fuzz::check_input({exact, length}, mava_tum_fuzz::depth::one_part);
    mava_tum_fuzz::check_input({exact, length}, mava_tum_fuzz::depth::every_part);
    delete[] exact;
    return complete;
}

} // namespace

int main(int argument_count, char **arguments)
{
    int replayed = 0;
    for (int index = 1; index < argument_count; ++index) {
        if (!replay(arguments[index])) {
            std::printf("%s cannot be read\n", arguments[index]);
            return 1;
        }
        ++replayed;
    }
    std::printf("%d inputs replayed\n", replayed);
    return replayed == 0 ? 1 : 0;
}
