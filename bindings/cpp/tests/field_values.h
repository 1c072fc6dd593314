// The value of a field in the tests: it shows the number with which the field was set.
#pragma once

#include "mava_tum/cpp/mava_tum.hpp"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mava_tum_test
{

namespace tum = mava_tum::cpp;

constexpr std::uint32_t list_length = 2;

constexpr std::uint32_t number_32(std::uint32_t field)
{
    return 1000 + field;
}

constexpr std::uint64_t number_64(std::uint32_t field)
{
    return (std::uint64_t{1} << 40) + field;
}

// Lives as long as the program.
inline std::string_view text_value(std::uint32_t field)
{
    static const std::vector<std::string> texts = [] {
        std::vector<std::string> made;
        for (int i = 0; i < 64; ++i)
            made.push_back("text of field " + std::to_string(i));
        return made;
    }();
    return texts.at(field);
}

inline tum::bytes_view bytes_value(std::uint32_t field)
{
    return tum::bytes_of(text_value(field).substr(1));
}

inline bool is_bytes_value(const std::optional<tum::bytes_view> &bytes, std::uint32_t field)
{
    const tum::bytes_view expected = bytes_value(field);
    return bytes && std::equal(bytes->begin(), bytes->end(), expected.begin(), expected.end());
}

inline tum::span<const std::string_view> texts_value(std::uint32_t field)
{
    static std::string_view texts[list_length];
    texts[0] = text_value(field);
    texts[1] = text_value(field + 1);
    return texts;
}

inline bool is_texts_value(const tum::text_list &texts, std::uint32_t field)
{
    const auto expected = texts_value(field);
    return std::equal(texts.begin(), texts.end(), expected.begin(), expected.end());
}

} // namespace mava_tum_test
