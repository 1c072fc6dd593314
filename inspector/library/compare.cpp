#include "inspector/library/compare.h"

#include "inspector/library/wire_walk.h"

#include <unordered_map>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::occurrence;

struct listed_field {
    std::string path;  // "qos[3].field_2"
    std::string value; // what holds of it in the end, for people
};

class list_visitor : public mava_tum_inspect::wire_visitor
{
public:
    explicit list_visitor(wire_bytes wire) : m_wire(wire) {}

    void on_value(const occurrence &at) override
    {
        entry(at).value = text_of_value(at, m_wire);
    }

    void on_unknown(const occurrence &at) override
    {
        std::string &value = entry(at).value;
        value += (value.empty() ? "" : ", ") + text_of_value(at, m_wire);
    }

    void on_record(const occurrence &at) override
    {
        if (at.notes.has(mava_tum_inspect::note::replaced_record))
            clear_inside(entry(at).path + ".");
        entry(at).value = "a record";
    }

    std::vector<listed_field> take()
    {
        std::erase_if(m_fields, [](const listed_field &field) { return field.value.empty(); });
        return std::move(m_fields);
    }

private:
    // A record that occurs twice starts over.
    void clear_inside(const std::string &prefix)
    {
        for (listed_field &field : m_fields)
            if (field.path.starts_with(prefix))
                field.value.clear();
    }

    listed_field &entry(const occurrence &at)
    {
        mava_tum_inspect::path_text path;
        mava_tum_inspect::append_path(path, &at.path);
        const auto [place, is_new] = m_places.try_emplace(std::string(path.view()), m_fields.size());
        if (is_new)
            m_fields.push_back({place->first, ""});
        return m_fields[place->second];
    }

    wire_bytes m_wire;
    std::vector<listed_field> m_fields;
    std::unordered_map<std::string, size_t> m_places;
};

// In the order of the message. Each path once: the last occurrence counts, and unknown fields stand together.
std::vector<listed_field> list_fields(const mava_tum_inspect::message_description &message, wire_bytes wire)
{
    list_visitor visitor(wire);
    mava_tum_inspect::walk_message(message, wire.data(), wire.size(), visitor);
    return visitor.take();
}

// Values by path.
using field_index = std::unordered_map<std::string, std::string>;

field_index index_of(const std::vector<listed_field> &fields)
{
    field_index index;
    for (const listed_field &field : fields)
        index.emplace(field.path, field.value);
    return index;
}

} // namespace

std::vector<field_difference> differences_of(
    const mava_tum_inspect::message_description &message, wire_bytes first, wire_bytes second)
{
    const std::vector<listed_field> fields = list_fields(message, first);
    const std::vector<listed_field> others = list_fields(message, second);
    const field_index in_first = index_of(fields);
    const field_index in_second = index_of(others);
    std::vector<field_difference> differences;
    for (const listed_field &field : fields) {
        const auto other = in_second.find(field.path);
        if (other == in_second.end())
            differences.push_back({field.path, field.value, std::nullopt});
        else if (other->second != field.value)
            differences.push_back({field.path, field.value, other->second});
    }
    for (const listed_field &field : others)
        if (!in_first.contains(field.path))
            differences.push_back({field.path, std::nullopt, field.value});
    return differences;
}

} // namespace mava_tum_cli
