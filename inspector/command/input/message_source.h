// The messages of an input, one after another, whatever they are written in.
#pragma once

#include "capture/capture_file.h"
#include "input/input_format.h"
#include "output/output_file.h"

#include <cstdint>
#include <fmt/format.h>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace mava_tum_cli
{

// What the command line says about the input.
struct chosen_input {
    std::vector<std::string> files{"-"};
    input_format format = input_format::automatic;
    capture_choice packets; // of captures
    uint64_t number = 0;    // of the only message that is wanted of each file, from 1; 0: all
};

// Where a message comes from, as far as that has to be told.
struct message_place {
    std::string_view file; // empty: it is the only one
    uint64_t number = 0;   // of the message in the file, from 1; 0: it is the only one
    uint64_t offset = 0;   // where its frame begins in the file
    // Of a capture: the packet in which it begins, from 1, and where that goes: "192.0.2.1:5000 > 192.0.2.2:21017".
    uint64_t packet = 0;
    std::string_view direction;

    bool is_empty() const
    {
        return file.empty() && number == 0;
    }

    // "a.frames: frame 3 at byte 40", "frame 3 at byte 40", "a.bin", "";
    // "message 3 in packet 17, 192.0.2.1:5000 > 192.0.2.2:21017".
    std::string to_string() const
    {
        if (number == 0)
            return std::string(file);
        if (packet != 0)
            return fmt::format(
                "{}{}message {} in packet {}, {}", file, file.empty() ? "" : ": ", number, packet, direction);
        return fmt::format("{}{}frame {} at byte {}", file, file.empty() ? "" : ": ", number, offset);
    }
};

class message_source
{
public:
    // Throws bad_use if the first file cannot be read or is empty; next() does so for the others.
    message_source(chosen_input input, plausible_fn plausible);

    // What waits in the output is written before the input is waited for. Lets a line on the terminal say how far the
    // input is read, unless the output goes there.
    void read_beside(output_file &output);

    // Takes the next message; false after the last.
    bool next();

    std::span<const uint8_t> message() const
    {
        return m_message;
    }

    // Whether there can be several messages.
    bool has_several() const
    {
        return is_stream() || m_input.files.size() > 1;
    }

    bool is_capture() const
    {
        return m_capture.has_value();
    }

    // Whether a message came before the present one.
    bool is_first() const
    {
        return m_taken == 1;
    }

    // Of the present message; empty unless there can be several.
    message_place place() const;

    // The input, and the frame in it if there are frames: how messages to the user begin.
    std::string full_place() const;

private:
    bool is_stream() const
    {
        return m_format == input_format::frames || m_format == input_format::capture;
    }

    void open(const std::string &path);
    bool take_from_file();
    bool take_frame();
    bool take_captured();
    bool take_whole();
    byte_vector whole_message();

    chosen_input m_input;
    plausible_fn m_plausible;
    output_file *m_output = nullptr;
    std::optional<input_stream> m_stream;
    std::optional<capture_file> m_capture; // of m_stream
    size_t m_opened = 0;                   // files
    input_format m_format = input_format::automatic;
    byte_vector m_message;
    uint64_t m_number = 0;       // of the present message in its file
    uint64_t m_begin = 0;        // where its frame begins there
    captured_message m_captured; // if it is of a capture; its bytes are m_message
    uint64_t m_taken = 0;        // messages of all files
};

} // namespace mava_tum_cli
