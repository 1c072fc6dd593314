#include "recorded_inputs.h"

#include "packed_inputs.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace mava_tum_fuzz
{

namespace
{

[[noreturn]] void stop(const std::string &path, const char *reason)
{
    std::fprintf(stderr, "%s: %s\n", path.c_str(), reason);
    std::exit(1);
}

std::FILE *open_file(const std::string &path, const char *mode)
{
    std::FILE *const file = std::fopen(path.c_str(), mode);
    if (file == nullptr)
        stop(path, std::strerror(errno));
    return file;
}

std::vector<uint8_t> read_file(const std::string &path)
{
    std::FILE *const file = open_file(path, "rb");
    std::vector<uint8_t> bytes;
    uint8_t part[4096];
    while (const std::size_t length = std::fread(part, 1, sizeof part, file))
        bytes.insert(bytes.end(), part, part + length);
    if (std::ferror(file) != 0)
        stop(path, "cannot be read");
    std::fclose(file);
    return bytes;
}

} // namespace

std::vector<std::vector<uint8_t>> read_inputs(const std::string &path)
{
    std::vector<uint8_t> file = read_file(path);
    if (!path.ends_with(".packed"))
        return {std::move(file)};
    const unpacked_inputs unpacked = unpack_inputs(file);
    if (unpacked.fault != nullptr)
        stop(path, unpacked.fault);
    std::vector<std::vector<uint8_t>> inputs;
    for (const auto &input : unpacked.inputs)
        inputs.emplace_back(input.begin(), input.end());
    return inputs;
}

void write_file(const std::string &path, std::span<const uint8_t> bytes)
{
    std::FILE *const file = open_file(path, "wb");
    // An empty input has a null pointer, which fwrite() does not accept.
    const bool is_complete = bytes.empty() || std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (std::fclose(file) != 0 || !is_complete)
        stop(path, "cannot be written");
}

} // namespace mava_tum_fuzz
