// Text on its way out: it is appended here, and handed on in large pieces.
#pragma once

#include <charconv>
#include <cstdint>
#include <fmt/format.h>
#include <span>
#include <string>
#include <string_view>

namespace mava_tum_cli
{

// "1 byte", "7 bytes".
inline std::string counted(uint64_t count, std::string_view thing)
{
    return fmt::format("{} {}{}", count, thing, count == 1 ? "" : "s");
}

class text_output
{
public:
    void write(std::string_view text)
    {
        m_waiting += text;
        if (m_waiting.size() >= enough_bytes)
            hand_on(m_waiting);
    }

    void put(char character)
    {
        m_waiting += character;
    }

    void fill(size_t count, char character = ' ')
    {
        m_waiting.append(count, character);
    }

    // Returns how many digits there are.
    size_t write_number(uint64_t number)
    {
        char digits[20];
        const std::string_view text(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
        write(text);
        return text.size();
    }

    // With blanks behind it, up to a width.
    void write_padded(std::string_view text, size_t width)
    {
        write(text);
        fill(text.size() < width ? width - text.size() : 0);
    }

    // With blanks before it.
    void write_right_aligned(uint64_t number, size_t width)
    {
        char digits[20];
        const std::string_view text(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
        fill(text.size() < width ? width - text.size() : 0);
        write(text);
    }

    void write_hex(std::span<const uint8_t> bytes)
    {
        constexpr char digits[] = "0123456789abcdef";
        for (const uint8_t byte : bytes) {
            const char pair[] = {digits[byte >> 4], digits[byte & 15]};
            write({pair, 2});
        }
    }

protected:
    text_output() = default;
    ~text_output() = default;

    // Takes what waits, or leaves it.
    virtual void hand_on(std::string &waiting) = 0;

    std::string m_waiting;

private:
    static constexpr size_t enough_bytes = 64 * 1024;
};

// All of it stays here.
class text_in_memory final : public text_output
{
public:
    std::string take()
    {
        return std::move(m_waiting);
    }

private:
    void hand_on(std::string &) override {}
};

} // namespace mava_tum_cli
