// JSON of one message is spread over lines; of several, each has a line.
#pragma once

#include "input/message_source.h"
#include "json/json_writer.h"

namespace mava_tum_cli
{

inline json_writer::layout layout_of(const message_source &source)
{
    return source.has_several() ? json_writer::layout::one_line : json_writer::layout::spread;
}

} // namespace mava_tum_cli
