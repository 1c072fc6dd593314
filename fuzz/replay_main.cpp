// Runs a target over files, without an engine: replay_<question> <file or folder>...
// A target stops the program at the first input that it finds wrong. No input at all is an error too.
#include "fuzz_target.h"

#include <algorithm>
#include <cstdio>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <vector>

namespace
{

namespace fs = std::filesystem;

// The copy ends where the block ends, so that address sanitizers see the first byte too many.
void replay(const fs::path &file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream)
        throw fs::filesystem_error("cannot be read", file, std::make_error_code(std::errc::io_error));
    const std::vector<char> bytes((std::istreambuf_iterator<char>(stream)), std::istreambuf_iterator<char>());
    const std::unique_ptr<uint8_t[]> exact(new uint8_t[bytes.size()]);
    std::copy(bytes.begin(), bytes.end(), exact.get());
    std::fprintf(stderr, "%s\r", file.filename().c_str());
    const std::span<const uint8_t> input(exact.get(), bytes.size());
    mava_tum_fuzz::check_input(input, mava_tum_fuzz::depth::one_part);
    mava_tum_fuzz::check_input(input, mava_tum_fuzz::depth::every_part);
}

std::size_t replay_all(const fs::path &path)
{
    if (!fs::is_directory(path)) {
        replay(path);
        return 1;
    }
    std::size_t count = 0;
    for (const fs::directory_entry &entry : fs::recursive_directory_iterator(path)) {
        if (entry.is_regular_file()) {
            replay(entry.path());
            count += 1;
        }
    }
    return count;
}

} // namespace

int main(int argument_count, char **arguments)
try {
    std::size_t count = 0;
    for (int index = 1; index < argument_count; ++index)
        count += replay_all(arguments[index]);
    std::printf("%zu inputs replayed\n", count);
    return count == 0 ? 1 : 0;
} catch (const std::exception &failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
}
