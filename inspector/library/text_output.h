// Text on its way out: written into a buffer, which is handed on when it is full. Allocates nothing.
#pragma once

#include "inspector/library/text_builder.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>

namespace mava_tum_inspect
{

class text_output
{
public:
    void write(std::string_view text)
    {
        while (text.size() > room())
            text = write_part(text);
        if (!text.empty())
            append(text.data(), text.size());
    }

    void put(char character)
    {
        if (m_at == m_end)
            make_room();
        *m_at++ = character;
    }

    void fill(std::size_t count, char character = ' ')
    {
        for (; count > room(); make_room()) {
            count -= room();
            std::memset(m_at, character, room());
            m_at = m_end;
        }
        std::memset(m_at, character, count);
        m_at += count;
    }

    // Returns how many digits there are.
    std::size_t write_number(uint64_t number)
    {
        if (number < 10) {
            put(static_cast<char>('0' + number));
            return 1;
        }
        const decimal_text digits(number);
        write(digits.view());
        return digits.view().size();
    }

    // With blanks behind it, up to a width.
    void write_padded(std::string_view text, std::size_t width)
    {
        write(text);
        fill(text.size() < width ? width - text.size() : 0);
    }

    // With blanks before it.
    void write_right_aligned(uint64_t number, std::size_t width)
    {
        const decimal_text digits(number);
        fill(digits.view().size() < width ? width - digits.view().size() : 0);
        write(digits.view());
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
    text_output(char *buffer, std::size_t size_bytes)
    {
        use(buffer, size_bytes);
    }

    ~text_output() = default;

    // Takes what is written, and gives a buffer with room again. Not abstract: that would call the C++ runtime library.
    virtual void make_room() {}

    void use(char *buffer, std::size_t size_bytes)
    {
        m_begin = buffer;
        m_at = buffer;
        m_end = buffer + size_bytes;
    }

    // In the present buffer.
    std::string_view written() const
    {
        return {m_begin, static_cast<std::size_t>(m_at - m_begin)};
    }

private:
    // Fills the buffer. Returns the rest of the text.
    [[gnu::noinline]] std::string_view write_part(std::string_view text)
    {
        const std::size_t part = room();
        append(text.data(), part);
        make_room();
        return {text.data() + part, text.size() - part};
    }

    std::size_t room() const
    {
        return static_cast<std::size_t>(m_end - m_at);
    }

    void append(const char *text, std::size_t size_bytes)
    {
        std::memcpy(m_at, text, size_bytes);
        m_at += size_bytes;
    }

    char *m_begin;
    char *m_at;
    char *m_end;
};

} // namespace mava_tum_inspect
