// JSON that is written as it goes: nothing of it is kept but which brackets are open. A copy is a place to return to.
#pragma once

#include "inspector/library/text_output.h"

#include <cstdint>
#include <string_view>

namespace mava_tum_inspect
{

// `text` in quotes. It is well-formed UTF-8.
void write_json_string(text_output &output, std::string_view text);

class json_writer
{
public:
    // words: one line that is no JSON but has fewer marks, name=value name={name=value}.
    enum class layout { spread, one_line, words };

    json_writer(text_output &output, layout whole)
        : m_output(&output), m_is_on_one_line(whole != layout::spread), m_is_in_words(whole == layout::words)
    {
    }

    // What is inside of something on one line is on that line too.
    void open_object(layout chosen = layout::spread)
    {
        open('{', '}', chosen);
    }

    void open_array(layout chosen = layout::spread)
    {
        open('[', ']', chosen);
    }

    // Of the object or array that was opened last.
    void close();

    // Closes what was opened since depth() was this.
    void close_to(size_t depth)
    {
        while (m_depth > depth)
            close();
    }

    size_t depth() const
    {
        return m_depth;
    }

    // A member's name, of letters that need no escape. A value follows.
    void name(std::string_view name);

    void number(uint64_t value);
    void signed_number(int64_t value);
    void truth(bool value);
    void string(std::string_view text); // well-formed UTF-8
    void hex(std::span<const uint8_t> bytes);
    void address(std::string_view text);

private:
    struct level {
        char closing;
        bool is_on_one_line;
        bool has_members;
    };

    void open(char opening, char closing, layout chosen);
    void start_member();
    void start_value();
    void start_line();

    // Two for each level of a message, and those around it.
    static constexpr std::size_t most_levels = 24;

    text_output *m_output;
    bool m_is_on_one_line;
    bool m_is_in_words;
    bool m_is_named = false; // the value that comes next
    std::size_t m_depth = 0;
    level m_open[most_levels];
};

// A text that is no UTF-8 is an object with its bytes in hex.
void write_json_text(json_writer &writer, std::string_view text);

} // namespace mava_tum_inspect
