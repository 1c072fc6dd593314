// Prints records, views and editors in one line, with the inspector's library: link it (mava_tum_inspect) and include
// this header, which no other does.
//
//     std::cout << session;                 // {field_1: 7, session_data.field_5: "user@example.com"}
//     std::format("{}", session.qos()[0])   // if the standard library has it
//
// A text shows at most 48 bytes, a bytes field its address or its length. The lines have the names and addresses of
// subscribers.
#ifndef MAVA_TUM_CPP_PRINT_HPP
#define MAVA_TUM_CPP_PRINT_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/encoding.hpp"
#include "mava_tum_inspect.h"

#include <ostream>
#include <string>
#if __has_include(<version>)
#include <version>
#endif
#if defined(__cpp_lib_format)
#include <format>
#endif

namespace mava_tum::cpp
{

// Adds a value to the std::string at `context`; the callback of the inspector.
inline std::int32_t append_value(const mava_tum_inspect_line *line, void *context)
{
    const bool is_empty = line->kind == MAVA_TUM_INSPECT_LINE_LENGTH && std::string_view(line->text) == "length 0";
    if (line->kind != MAVA_TUM_INSPECT_LINE_VALUE && !is_empty)
        return 0;
    std::string &printed = *static_cast<std::string *>(context);
    printed.append(printed.size() == 1 ? "" : ", ").append(line->path).append(": ").append(is_empty ? "" : line->text);
    if (is_empty)
        printed.append("empty");
    return 0;
}

// The values that are present, each with its path. An absent record: "absent".
template <class Derived>
std::string to_string(const encoding<Derived> &record)
{
    const view_of<Derived> shown = static_cast<const Derived &>(record).view();
    if (!shown.has_value())
        return "absent";
    const std::vector<std::uint8_t> wire = shown.encode();
    std::string printed = "{";
    mava_tum_inspect_explain(message_of<Derived>::name, wire.data(), wire.size(), append_value, &printed, nullptr);
    return printed += '}';
}

// Writes the line that to_string() returns.
template <class Derived>
std::ostream &operator<<(std::ostream &stream, const encoding<Derived> &record)
{
    return stream << to_string(record);
}

} // namespace mava_tum::cpp

#if defined(__cpp_lib_format)
// With the options of a text: "{:>80}".
template <class Record>
requires std::is_base_of_v<mava_tum::cpp::encoding<Record>, Record>
struct std::formatter<Record, char> : std::formatter<std::string_view, char> {
    // Formats the line that to_string() returns.
    template <class Context>
    auto format(const Record &record, Context &context) const
    {
        return std::formatter<std::string_view, char>::format(mava_tum::cpp::to_string(record), context);
    }
};
#endif

#endif
