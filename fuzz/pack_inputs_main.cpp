// Packs inputs into one file, and unpacks them (packed_inputs.h):
//   pack_inputs pack FILE.packed FILE-OR-FOLDER...   short inputs first, those of one length by their bytes, none twice
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
using input_list = std::vector<std::vector<uint8_t>>;

void append_inputs(input_list &inputs, const fs::path &file)
{
    for (auto &input : mava_tum_fuzz::read_inputs(file))
        inputs.push_back(std::move(input));
}

input_list inputs_below(std::span<char *> paths)
{
    input_list inputs;
    for (const char *path : paths) {
        if (!fs::is_directory(path))
            append_inputs(inputs, path);
        else
            for (const fs::directory_entry &entry : fs::directory_iterator(path))
                append_inputs(inputs, entry.path());
    }
    return inputs;
}

bool is_shorter(const std::vector<uint8_t> &left, const std::vector<uint8_t> &right)
{
    return left.size() != right.size() ? left.size() < right.size() : left < right;
}

void pack(const char *packed, std::span<char *> paths)
{
    input_list inputs = inputs_below(paths);
    std::sort(inputs.begin(), inputs.end(), is_shorter);
    inputs.erase(std::unique(inputs.begin(), inputs.end()), inputs.end());
    std::vector<uint8_t> file;
    for (const auto &input : inputs)
        mava_tum_fuzz::pack_input(file, input);
    mava_tum_fuzz::write_file(packed, file);
    std::printf("%s: %zu inputs in %zu bytes\n", packed, inputs.size(), file.size());
}

void unpack(const char *packed, const fs::path &folder)
{
    fs::create_directories(folder);
    std::size_t place = 0;
    for (const auto &input : mava_tum_fuzz::read_inputs(packed))
        mava_tum_fuzz::write_file(folder / std::to_string(place++), input);
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
