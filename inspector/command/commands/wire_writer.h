// What `encode` and `app ... encode` have in common.
#pragma once

#include "commands/command_options.h"
#include "output/output_file.h"
#include "json/json_documents.h"

#include <cstdint>
#include <span>

namespace mava_tum_cli
{

// Writes messages to where the options say, in the format that they say. Throws bad_use instead of writing raw bytes to
// a terminal, or a second message where there are no frames to tell it from the first.
class wire_writer
{
public:
    explicit wire_writer(const command_options &options);

    void write(std::span<const uint8_t> wire);
    void commit();

    output_file &output()
    {
        return m_output;
    }

    // Whether several messages can be written.
    bool has_frames() const
    {
        return m_format == input_format::frames;
    }

private:
    void write_frame(std::span<const uint8_t> wire);

    output_file m_output;
    input_format m_format;
    bool m_has_message = false;
};

// Makes a message of each document of the input. A bad_use of `encode`, which begins with a path in the JSON, gets the
// document's place in front.
template <class Encode>
void write_all_documents(const command_options &options, const Encode &encode)
{
    json_documents documents(options.input.files);
    wire_writer writer(options);
    if (writer.has_frames())
        documents.read_beside(writer.output());
    while (documents.next()) {
        try {
            writer.write(encode(documents.document()));
        } catch (const bad_use &error) {
            throw bad_use(documents.place() + ": " + error.what());
        }
    }
    writer.commit();
}

} // namespace mava_tum_cli
