#include "input/input_format.h"

#include "bad_use.h"
#include "capture/capture_file.h"
#include "input/c_text.h"
#include "input/digit_text.h"
#include "input/dump_text.h"

#include <algorithm>
#include <fmt/format.h>
#include <optional>

namespace mava_tum_cli
{

namespace
{

constexpr size_t looked_at_bytes = 64 * 1024;

// What the beginning of the input says: its bytes, and whether that is all of it.
struct beginning {
    std::span<const uint8_t> bytes;
    bool is_all;
};

bool is_hex_shaped(const beginning &input)
{
    return std::ranges::all_of(input.bytes, [](uint8_t character) {
        return hex_digit_value(character) >= 0 || is_text_space(character) || character == ':' || character == ',' ||
               character == 'x' || character == 'X';
    });
}

bool is_base64_shaped(const beginning &input)
{
    return std::ranges::all_of(
        input.bytes, [](uint8_t character) { return is_base64_character(character) || is_text_space(character); });
}

// Hex with a slip in it: a text of which three quarters are hex digits. Of base64 it is one third.
bool is_mostly_hex(const beginning &input)
{
    size_t digits = 0;
    size_t others = 0;
    for (const uint8_t character : input.bytes) {
        if (hex_digit_value(character) >= 0)
            ++digits;
        else if (character > ' ' && character < 0x7F)
            ++others;
        else if (!is_text_space(character))
            return false;
    }
    return digits >= 3 * others;
}

bool is_printable(const beginning &input)
{
    return std::ranges::all_of(input.bytes,
        [](uint8_t character) { return (character >= ' ' && character < 0x7F) || is_text_space(character); });
}

// What people paste; nothing: it is no such text.
std::optional<input_format> pasted_format(const beginning &input)
{
    if (!is_printable(input))
        return std::nullopt;
    std::string_view text(reinterpret_cast<const char *>(input.bytes.data()), input.bytes.size());
    if (!input.is_all)
        text = text.substr(0, text.rfind('\n') + 1); // whole lines
    if (is_dump(text))
        return input_format::dump;
    return is_c(text) ? std::optional(input_format::c) : std::nullopt;
}

[[noreturn]] void refuse_text(const input_stream &stream)
{
    throw bad_use(
        fmt::format("{}: is a text, and neither hex, base64, a dump nor C; mend it, or say -f raw if its letters "
                    "are the bytes of a message (JSON is read by mava-tum encode)",
            stream.name()));
}

using reader_fn = byte_vector (*)(std::span<const uint8_t>, const std::string &);

// The bytes that a text stands for, unless it is broken or was not seen to its end.
std::optional<byte_vector> bytes_of(const beginning &input, reader_fn reader)
{
    if (!input.is_all)
        return std::nullopt;
    try {
        return reader(input.bytes, "");
    } catch (const bad_use &) {
        return std::nullopt;
    }
}

plausibility plausibility_as(const beginning &input, reader_fn reader, const plausible_fn &plausible)
{
    const std::optional<byte_vector> bytes = bytes_of(input, reader);
    return bytes ? plausible(*bytes) : plausibility::none;
}

[[noreturn]] void refuse_ambiguous(const input_stream &stream, const std::vector<input_format> &possible)
{
    std::string names;
    for (const input_format format : possible)
        names += (names.empty() ? "" : " and as ") + std::string(name_of(format));
    throw bad_use(fmt::format("{}: can be read as {}; say which with --format", stream.name(), names));
}

} // namespace

std::string_view name_of(input_format format)
{
    constexpr std::string_view names[] = {"auto", "raw", "hex", "base64", "frames", "dump", "c", "capture"};
    return names[static_cast<size_t>(format)];
}

input_format detect_format(input_stream &stream, const plausible_fn &plausible)
{
    const std::span<const uint8_t> bytes = stream.peek(looked_at_bytes + 1);
    const beginning input{bytes.first(std::min(bytes.size(), looked_at_bytes)), bytes.size() <= looked_at_bytes};
    // Frames begin with a zero as long as they are no longer than their limit. No writer begins a message so: field
    // number 0 does not exist.
    if (!bytes.empty() && bytes[0] == 0)
        return input_format::frames;
    if (is_capture(bytes))
        return input_format::capture;
    if (const std::optional<input_format> pasted = pasted_format(input))
        return *pasted;
    const bool hex_shaped = is_hex_shaped(input);
    const bool base64_shaped = is_base64_shaped(input);
    const bool mostly_hex = is_mostly_hex(input);
    if (!hex_shaped && !base64_shaped && (!mostly_hex || plausible(input.bytes) != plausibility::none)) {
        if (is_printable(input) && plausible(input.bytes) != plausibility::exact)
            refuse_text(stream);
        return input_format::raw;
    }
    // Text decodes as many a message, as long as what is unknown in it is put up with. So whatever the input looks like
    // most is taken if it decodes, and the rest only if it fits without a remainder.
    std::vector<input_format> possible;
    if (hex_shaped && plausibility_as(input, bytes_of_hex, plausible) != plausibility::none)
        possible.push_back(input_format::hex);
    if (base64_shaped && plausibility_as(input, bytes_of_base64, plausible) >=
                             (hex_shaped ? plausibility::exact : plausibility::decodes))
        possible.push_back(input_format::base64);
    if (input.is_all && plausible(input.bytes) == plausibility::exact)
        possible.push_back(input_format::raw);
    if (possible.size() > 1)
        refuse_ambiguous(stream, possible);
    if (possible.size() == 1)
        return possible[0];
    // Nothing that decodes: by its looks, so that the fault is told where it is.
    return hex_shaped || mostly_hex ? input_format::hex : input_format::base64;
}

} // namespace mava_tum_cli
