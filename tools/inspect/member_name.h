// Names as the compiler knows them: of a record's member, and of a record. So no table repeats what the headers say.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace mava_tum_inspect
{

// The text that a compiler gives for a template argument, up to the bracket that ends the argument list:
//     g++      ... argument_text() [with auto Argument = &mava_tum_subscriber_v4::field_1; ...]
//     clang    ... argument_text() [Argument = &mava_tum_subscriber_v4::field_1]
template <auto Argument>
constexpr std::string_view argument_text()
{
    const std::string_view whole = __PRETTY_FUNCTION__;
    const std::size_t start = whole.find("Argument = ");
    return whole.substr(start, whole.find_first_of(";]", start) - start);
}

// The same for a type.
template <class Argument>
constexpr std::string_view argument_text()
{
    const std::string_view whole = __PRETTY_FUNCTION__;
    const std::size_t start = whole.find("Argument = ");
    return whole.substr(start, whole.find_first_of(";]", start) - start);
}

constexpr std::string_view text_behind(std::string_view text, std::string_view mark)
{
    return text.substr(text.rfind(mark) + mark.size());
}

// Room for a name with its NUL, for callers that write C.
template <std::size_t Size>
constexpr std::array<char, Size + 1> terminated(std::string_view name)
{
    std::array<char, Size + 1> text{};
    name.copy(text.data(), Size);
    return text;
}

template <auto Member>
struct member_name {
    static constexpr std::string_view name = text_behind(argument_text<Member>(), "::");
    static constexpr auto text = terminated<name.size()>(name);
};

// A codec record is called mava_tum_<message>.
template <class Record>
struct message_name {
    static constexpr std::string_view name = text_behind(argument_text<Record>(), "mava_tum_");
    static constexpr auto text = terminated<name.size()>(name);
};

} // namespace mava_tum_inspect
