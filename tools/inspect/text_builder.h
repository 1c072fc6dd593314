// Short texts put together in place, without the heap. What does not fit is cut, and three points say so.
#pragma once

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace mava_tum_inspect
{

// At most Size - 1 characters and a NUL.
template <std::size_t Size>
class text_builder
{
public:
    text_builder &add(std::string_view text)
    {
        const std::size_t kept = std::min(text.size(), Size - 1 - used_);
        std::memcpy(text_ + used_, text.data(), kept);
        used_ += kept;
        text_[used_] = '\0';
        if (kept < text.size())
            std::memcpy(text_ + Size - 4, "...", 4);
        return *this;
    }

    text_builder &add_number(uint64_t number)
    {
        return add_digits(number);
    }

    text_builder &add_signed(int64_t number)
    {
        return add_digits(number);
    }

    // Two digits, upper case.
    text_builder &add_hex(uint8_t byte)
    {
        static constexpr char digits[] = "0123456789ABCDEF";
        const char pair[] = {digits[byte >> 4], digits[byte & 15]};
        return add({pair, 2});
    }

    const char *c_str() const
    {
        return text_;
    }

    std::string_view view() const
    {
        return {text_, used_};
    }

private:
    template <class Number>
    text_builder &add_digits(Number number)
    {
        char digits[24];
        const char *end = std::to_chars(digits, digits + sizeof(digits), number).ptr;
        return add({digits, static_cast<std::size_t>(end - digits)});
    }

    static_assert(Size > 4);
    char text_[Size] = "";
    std::size_t used_ = 0;
};

} // namespace mava_tum_inspect
