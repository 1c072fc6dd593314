#include "message/message_head.h"

#include <fmt/format.h>

namespace mava_tum_cli
{

std::string frame_heading(const message_source &source, const char *message)
{
    const message_place place = source.place();
    return fmt::format("{}{}{}{}, {}\n", source.is_first() ? "" : "\n", place.to_string(), place.is_empty() ? "" : ": ",
        message, counted(source.message().size(), "byte"));
}

json_writer::layout layout_of(const message_source &source)
{
    return source.has_several() ? json_writer::layout::one_line : json_writer::layout::spread;
}

void open_message(json_writer &writer, const message_place &place, std::string_view name, uint64_t bytes)
{
    writer.open_object();
    if (!place.file.empty()) {
        writer.name("file");
        write_json_text(writer, place.file);
    }
    if (place.number != 0) {
        writer.name("number");
        writer.number(place.number);
        writer.name(place.packet != 0 ? "packet" : "offset");
        writer.number(place.packet != 0 ? place.packet : place.offset);
    }
    if (place.packet != 0) {
        writer.name("direction");
        writer.string(place.direction);
    }
    if (!name.empty()) {
        writer.name("message");
        writer.string(name);
    }
    writer.name("bytes");
    writer.number(bytes);
}

} // namespace mava_tum_cli
