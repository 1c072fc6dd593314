// Packs inputs into one file, and unpacks them (packed_inputs.h):
//   pack_inputs pack FILE.packed FILE-OR-FOLDER...   in this order, the files of a folder in the order of their names
//   pack_inputs unpack FILE.packed FOLDER            a file for each input, named after its place
#include "packed_inputs.h"
#include "recorded_inputs.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <string_view>

namespace
{

namespace fs = std::filesystem;

std::vector<fs::path> files_of(const fs::path &path)
{
    if (!fs::is_directory(path))
        return {path};
    std::vector<fs::path> files(fs::directory_iterator{path}, fs::directory_iterator{});
    std::sort(files.begin(), files.end());
    return files;
}

void pack(const char *packed, std::span<char *> paths)
{
    std::vector<uint8_t> bytes;
    std::size_t count = 0;
    for (const char *path : paths) {
        for (const fs::path &file : files_of(path)) {
            for (const auto &input : mava_tum_fuzz::read_inputs(file)) {
                mava_tum_fuzz::pack_input(bytes, input);
                ++count;
            }
        }
    }
    mava_tum_fuzz::write_file(packed, bytes);
    std::printf("%s: %zu inputs in %zu bytes\n", packed, count, bytes.size());
}

void unpack(const char *packed, const fs::path &folder)
{
    fs::create_directories(folder);
    std::size_t place = 0;
    for (const auto &input : mava_tum_fuzz::read_inputs(packed)) {
        char name[16];
        std::snprintf(name, sizeof name, "%06zu", place++);
        mava_tum_fuzz::write_file(folder / name, input);
    }
}

} // namespace

int main(int argument_count, char **arguments)
{
    const std::string_view command = argument_count < 4 ? "" : arguments[1];
    if (command == "pack") {
        pack(arguments[2], {arguments + 3, arguments + argument_count});
    } else if (command == "unpack" && argument_count == 4) {
        unpack(arguments[2], arguments[3]);
    } else {
        std::fputs("usage: pack_inputs pack FILE.packed FILE-OR-FOLDER... | unpack FILE.packed FOLDER\n", stderr);
        return 2;
    }
    return 0;
}
