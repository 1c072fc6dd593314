// Whether a text can stand in JSON, or on a terminal, as it is.
#pragma once

#include <string_view>

namespace mava_tum_cli
{

// Well-formed UTF-8 without a zero byte, and without what only a terminal would understand.
bool is_plain_utf8(std::string_view text);

} // namespace mava_tum_cli
