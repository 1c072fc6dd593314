#include "json/json_file.h"

#include "bad_use.h"

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

} // namespace

json read_json_file(const std::string &path)
{
    input_stream stream(path);
    const byte_vector content = stream.read_all();
    if (content.empty())
        throw bad_use(fmt::format("{}: is empty; the JSON of an empty message is {{}}", stream.name()));
    try {
        repeated_name_check check;
        return json::parse(content, std::ref(check));
    } catch (const bad_use &error) {
        throw bad_use(fmt::format("{}: {}", stream.name(), error.what()));
    } catch (const json::exception &error) {
        throw bad_use(fmt::format("{}: {}", stream.name(), without_label(error.what())));
    }
}

} // namespace mava_tum_cli
