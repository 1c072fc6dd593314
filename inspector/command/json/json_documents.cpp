#include "json/json_documents.h"

#include "bad_use.h"
#include "input/digit_text.h"

#include <algorithm>
#include <fmt/format.h>
#include <set>

namespace mava_tum_cli
{

namespace
{

// JSON says nothing about a name that occurs twice in an object, and the reader would keep one of the two.
class repeated_name_check
{
public:
    bool operator()(int depth, json::parse_event_t event, json &parsed)
    {
        const auto level = static_cast<size_t>(depth);
        if (m_names.size() <= level)
            m_names.resize(level + 1);
        if (event == json::parse_event_t::object_start && m_names.size() > level + 1)
            m_names[level + 1].clear();
        if (event == json::parse_event_t::key && !m_names[level].insert(parsed.get<std::string>()).second)
            throw bad_use(fmt::format("the name {} occurs twice in one object; remove one of them", parsed.dump()));
        return true;
    }

private:
    std::vector<std::set<std::string>> m_names; // of the object that is open at each depth
};

// What the parser says, without its own number in brackets.
std::string without_label(std::string_view text)
{
    const size_t end = text.find("] ");
    return std::string(end == std::string_view::npos ? text : text.substr(end + 2));
}

// Finds the end of an object or an array, of which the text comes in parts.
class bracket_counter
{
public:
    // How much of the text belongs to it; nothing: all of it, and more follows.
    std::optional<size_t> end_in(std::string_view text)
    {
        for (size_t at = 0; at < text.size(); ++at) {
            step_over(text[at]);
            if (m_depth == 0)
                return at + 1;
        }
        return std::nullopt;
    }

private:
    void step_over(char character)
    {
        if (m_is_escaped)
            m_is_escaped = false;
        else if (m_is_in_string && character == '\\')
            m_is_escaped = true;
        else if (character == '"')
            m_is_in_string = !m_is_in_string;
        else if (m_is_in_string)
            return;
        else if (character == '{' || character == '[')
            ++m_depth;
        else if (character == '}' || character == ']')
            --m_depth;
    }

    size_t m_depth = 0;
    bool m_is_in_string = false;
    bool m_is_escaped = false;
};

size_t lines_in(std::string_view text)
{
    return static_cast<size_t>(std::ranges::count(text, '\n'));
}

} // namespace

json_documents::json_documents(std::vector<std::string> files) : m_files(std::move(files))
{
    open(m_files.front());
}

void json_documents::open(const std::string &path)
{
    m_stream.emplace(path);
    ++m_opened;
    m_has_document = false;
    m_waiting.clear();
    m_begin = 0;
    m_line = 1;
    if (m_output != nullptr)
        read_beside(*m_output);
    if (m_stream->peek(1).empty())
        refuse_empty();
}

void json_documents::refuse_empty() const
{
    throw bad_use(fmt::format("{}: is empty; the JSON of an empty message is {{}}", m_stream->name()));
}

void json_documents::read_beside(output_file &output)
{
    m_output = &output;
    m_stream->call_before_waiting([&output] { output.flush(); });
}

std::string json_documents::place() const
{
    if (m_line == 1)
        return m_stream->name();
    return fmt::format("{}: the document at line {}", m_stream->name(), m_line);
}

bool json_documents::read_more()
{
    const byte_vector more = m_stream->read_some();
    m_waiting.erase(0, m_begin);
    m_begin = 0;
    m_waiting.append(more.begin(), more.end());
    if (m_waiting.size() > message_limit_bytes)
        throw bad_use(fmt::format("{}: more than {} MiB, which is no single message; give smaller documents", place(),
            message_limit_bytes >> 20));
    return !more.empty();
}

// False: the file ends before.
bool json_documents::find_begin()
{
    do {
        for (; m_begin < m_waiting.size(); ++m_begin) {
            if (!is_text_space(static_cast<uint8_t>(m_waiting[m_begin])))
                return true;
            m_line += m_waiting[m_begin] == '\n' ? 1 : 0;
        }
    } while (read_more());
    return false;
}

// The text of the value that begins at m_begin, read until it is whole. Only objects and arrays have an end of their
// own: anything else is all that is left.
std::string_view json_documents::whole_value()
{
    const bool has_end = m_waiting[m_begin] == '{' || m_waiting[m_begin] == '[';
    bracket_counter counter;
    size_t looked_at = 0; // behind m_begin
    do {
        const std::string_view value = std::string_view(m_waiting).substr(m_begin);
        const std::optional<size_t> end = has_end ? counter.end_in(value.substr(looked_at)) : std::nullopt;
        if (end)
            return value.substr(0, looked_at + *end);
        looked_at = value.size();
    } while (read_more());
    return std::string_view(m_waiting).substr(m_begin);
}

void json_documents::parse(std::string_view text)
{
    try {
        repeated_name_check check;
        m_document = json::parse(text, std::ref(check));
    } catch (const bad_use &error) {
        throw bad_use(fmt::format("{}: {}", place(), error.what()));
    } catch (const json::exception &error) {
        throw bad_use(fmt::format("{}: {}", place(), without_label(error.what())));
    }
}

bool json_documents::next()
{
    m_begin += m_taken;
    m_line += lines_in(std::string_view(m_waiting).substr(m_begin - m_taken, m_taken));
    m_taken = 0;
    while (!find_begin()) {
        if (!m_has_document)
            refuse_empty();
        if (m_opened == m_files.size())
            return false;
        open(m_files[m_opened]);
    }
    const std::string_view text = whole_value();
    parse(text);
    m_taken = text.size();
    m_has_document = true;
    return true;
}

} // namespace mava_tum_cli
