// Builds short texts in place, without the heap. A text that does not fit is truncated and ends with three dots.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace mava_tum_inspect
{

// std::to_chars would leave functions of its own in the static library, which a plugin with it inside exports.
class decimal_text
{
public:
    explicit decimal_text(uint64_t number)
    {
        do {
            digits_[--first_] = static_cast<char>('0' + number % 10);
            number /= 10;
        } while (number != 0);
    }

    std::string_view view() const
    {
        return {digits_ + first_, sizeof digits_ - first_};
    }

private:
    char digits_[20];
    std::size_t first_ = sizeof digits_;
};

// At most Size - 1 characters and a NUL.
template <std::size_t Size>
class text_builder
{
public:
    text_builder()
    {
        text_[0] = '\0';
    }

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
        return add(decimal_text(number).view());
    }

    text_builder &add_signed(int64_t number)
    {
        const uint64_t magnitude = static_cast<uint64_t>(number);
        return number < 0 ? add("-").add_number(0 - magnitude) : add_number(magnitude);
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
    static_assert(Size > 4);
    char text_[Size];
    std::size_t used_ = 0;
};

} // namespace mava_tum_inspect
