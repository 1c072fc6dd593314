// The messages of an input, one after another, whatever they are written in.
#pragma once

#include "input/input_format.h"
#include "output/output_file.h"

#include <memory>

namespace mava_tum_cli
{

class message_source
{
public:
    // Throws bad_use for what cannot be read or is empty.
    message_source(const std::string &path, input_format format, const plausible_fn &plausible);

    // Lets a line on the terminal say how far the input is read, unless the output goes there.
    void show_progress_beside(const output_file &output);

    // Takes the next message; false after the last.
    bool next();

    std::span<const uint8_t> message() const
    {
        return m_message;
    }

    // The messages taken so far: the number of the present one, from 1.
    uint64_t number() const
    {
        return m_number;
    }

    // Where the present message begins in the file.
    uint64_t begin() const
    {
        return m_begin;
    }

    bool has_frames() const
    {
        return m_format == input_format::frames;
    }

    // The input, and the frame in it if there are frames: how messages to the user begin.
    std::string place() const;

    const input_stream &stream() const
    {
        return m_stream;
    }

private:
    byte_vector whole_message();

    input_stream m_stream;
    input_format m_format;
    byte_vector m_message;
    uint64_t m_number = 0;
    uint64_t m_begin = 0;
};

// The one message of an input that must not have more.
byte_vector read_single_message(const std::string &path, input_format format, const plausible_fn &plausible);

} // namespace mava_tum_cli
