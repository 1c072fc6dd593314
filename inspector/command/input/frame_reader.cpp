#include "input/frame_reader.h"

#include "bad_use.h"

#include <algorithm>
#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

// A length is not to be trusted before its bytes have come.
constexpr size_t step_bytes = size_t{1} << 20;

std::string place_of(const input_stream &stream, uint64_t number, uint64_t begin)
{
    return fmt::format("{}: frame {} at byte {}", stream.name(), number, begin);
}

} // namespace

frame_header frame_header_of(uint32_t length)
{
    return {static_cast<uint8_t>(length >> 24), static_cast<uint8_t>(length >> 16), static_cast<uint8_t>(length >> 8),
        static_cast<uint8_t>(length)};
}

uint32_t frame_length_of(std::span<const uint8_t, frame_header_bytes> header)
{
    uint32_t length = 0;
    for (const uint8_t byte : header)
        length = length << 8 | byte;
    return length;
}

bool read_frame(input_stream &stream, uint64_t number, byte_vector &message)
{
    const uint64_t begin = stream.position();
    frame_header header{};
    const size_t header_bytes = stream.read(header);
    if (header_bytes == 0)
        return false;
    if (header_bytes < header.size())
        throw bad_use(fmt::format("{}: the input ends after {} of the {} bytes of its length; get the whole file, or "
                                  "name the format with --format",
            place_of(stream, number, begin), header_bytes, header.size()));
    const uint32_t length = frame_length_of(header);
    if (length > frame_limit_bytes)
        throw bad_use(fmt::format("{}: claims {} bytes, and {} is the limit; these seem not to be frames, name the "
                                  "format with --format",
            place_of(stream, number, begin), length, frame_limit_bytes));
    message.clear();
    while (message.size() < length) {
        const size_t filled = message.size();
        message.resize(filled + std::min<size_t>(length - filled, step_bytes));
        const size_t received = stream.read(std::span(message).subspan(filled));
        if (filled + received < message.size())
            throw bad_use(fmt::format("{}: the input ends after {} of its {} bytes; get the whole file, or name the "
                                      "format with --format",
                place_of(stream, number, begin), filled + received, length));
    }
    return true;
}

} // namespace mava_tum_cli
