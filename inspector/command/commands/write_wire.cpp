#include "commands/write_wire.h"

#include "input/base64_text.h"
#include "input/frame_reader.h"
#include "input/hex_text.h"
#include "output/output_file.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

namespace
{

void write_frame(std::span<const uint8_t> wire, output_file &output)
{
    if (wire.size() > frame_limit_bytes)
        throw bad_use(fmt::format(
            "the message has {} bytes, and a frame at most {}; give another --to", wire.size(), frame_limit_bytes));
    output.write(frame_header_of(static_cast<uint32_t>(wire.size())));
    output.write(wire);
}

} // namespace

void write_wire(std::span<const uint8_t> wire, const command_options &options)
{
    output_file output(options.output);
    const bool is_text = options.written_as == input_format::hex || options.written_as == input_format::base64;
    if (!is_text && output.is_terminal())
        throw bad_use("raw bytes would go to the terminal; name a file with -o, or give --to hex");
    if (options.written_as == input_format::hex)
        output.write(hex_of_bytes(wire) + "\n");
    else if (options.written_as == input_format::base64)
        output.write(base64_of_bytes(wire) + "\n");
    else if (options.written_as == input_format::frames)
        write_frame(wire, output);
    else
        output.write(wire);
    output.commit();
}

} // namespace mava_tum_cli
