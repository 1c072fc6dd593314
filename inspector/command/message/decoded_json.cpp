#include "message/decoded_json.h"

#include "inspector/library/wire_walk.h"
#include "message/verdict.h"

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::extent;
using mava_tum_inspect::field_description;
using mava_tum_inspect::message_description;
using mava_tum_inspect::occurrence;
using mava_tum_inspect::path_step;
using mava_tum_inspect::wire_fault;

// Puts each value into the object of the record that it stands in.
class record_builder
{
public:
    void start_array(const occurrence &first)
    {
        member(first) = json::array();
    }

    void add_value(const occurrence &at, json value)
    {
        if (is_array_element(at.path))
            member(at).push_back(std::move(value));
        else
            member(at) = std::move(value);
    }

    void open_record(const occurrence &at)
    {
        json &place = member(at);
        if (is_array_element(at.path)) {
            place.push_back(json::object());
            m_open.push_back(&place.back());
        } else {
            place = json::object(); // of a record that occurs twice, the last counts
            m_open.push_back(&place);
        }
    }

    void close_record()
    {
        m_open.pop_back();
    }

    const json &record() const
    {
        return m_record;
    }

private:
    // Pointers to open objects stay: nothing is added to a record while one inside it is open.
    json &member(const occurrence &at)
    {
        json &object = m_open.empty() ? m_record : *m_open.back();
        return object[at.field->name];
    }

    json m_record = json::object();
    std::vector<json *> m_open;
};

class json_visitor : public mava_tum_inspect::wire_visitor
{
public:
    explicit json_visitor(wire_bytes wire) : m_wire(wire) {}

    void on_value(const occurrence &at) override
    {
        m_record.add_value(at, json_of_value(at, m_wire));
        add_field(at, json::object());
    }

    void on_unknown(const occurrence &at) override
    {
        add_field(at, {{"unknown", true}, {"value", text_of_value(at, m_wire)}});
    }

    void on_run(const occurrence &first, uint64_t) override
    {
        m_record.start_array(first);
    }

    void on_record(const occurrence &at) override
    {
        m_record.open_record(at);
        add_field(at, json::object());
    }

    void on_record_end(const occurrence &at, uint32_t present) override
    {
        m_record.close_record();
        add_absent_fields(*at.field->nested, present, json_pointer_of(at.path));
    }

    void on_undecoded(const occurrence &at) override
    {
        add_field(at, {{"decoded", false}});
    }

    void on_fault(const wire_fault &fault) override
    {
        m_fault = {{"path", json_pointer_of(fault.at.path)}, {"offset", fault.offset}, {"rule", fault_in_words(fault)}};
        m_result = fault.result;
    }

    void add_absent_fields(const message_description &message, uint32_t present, const std::string &path)
    {
        for (const field_description &field : message.fields)
            if ((present >> (field.number - 1) & 1) == 0)
                m_fields.push_back({{"path", member_path(path, field.name)}, {"number", field.number},
                    {"kind", mava_tum_inspect::kind_name(field.kind)}, {"present", false}});
    }

    json document(const message_description &message) const
    {
        json whole{{"message", message.name}, {"bytes", m_wire.size()}, {"result", m_result}};
        if (!m_fault.is_null())
            whole["fault"] = m_fault;
        whole["record"] = m_record.record();
        whole["fields"] = m_fields;
        return whole;
    }

    bool is_whole() const
    {
        return m_fault.is_null();
    }

private:
    void add_field(const occurrence &at, json more)
    {
        const uint64_t end = at.value.offset + at.value.bytes;
        json field{{"path", json_pointer_of(at.path)}, {"number", at.path.number}, {"kind", kind_of(at)},
            {"present", true}, {"offset", at.tag.offset}, {"bytes", end - at.tag.offset},
            {"value_offset", at.value.offset}, {"value_bytes", at.value.bytes}};
        const std::vector<std::string> notes = notes_in_words(at, m_wire);
        if (!notes.empty())
            field["notes"] = notes;
        field.update(more);
        m_fields.push_back(std::move(field));
    }

    wire_bytes m_wire;
    record_builder m_record;
    json m_fields = json::array();
    json m_fault;
    int32_t m_result = MAVA_TUM_OK;
};

constexpr int indent = 2;

std::string with_indented_lines(const std::string &text)
{
    std::string indented;
    for (const char character : text) {
        indented += character;
        if (character == '\n')
            indented.append(indent, ' ');
    }
    return indented;
}

// Each field takes one line, everything else is spread out.
std::string spread_out(const json &document)
{
    std::string text;
    for (const auto &[name, value] : document.items()) {
        text += text.empty() ? "{\n  " : ",\n  ";
        text += json(name).dump() + ": ";
        if (name != "fields" || value.empty()) {
            text += with_indented_lines(value.dump(indent));
            continue;
        }
        std::string lines;
        for (const json &field : value)
            lines += (lines.empty() ? "[\n    " : ",\n    ") + field.dump();
        text += lines + "\n  ]";
    }
    return text + "\n}";
}

} // namespace

decoded_json decode_to_json(const message_description &message, wire_bytes wire, bool is_compact)
{
    json_visitor visitor(wire);
    const mava_tum_inspect::walk_result result =
        mava_tum_inspect::walk_message(message, wire.data(), wire.size(), visitor);
    visitor.add_absent_fields(message, result.present, "");
    const json document = visitor.document(message);
    return {is_compact ? document.dump() : spread_out(document), visitor.is_whole()};
}

} // namespace mava_tum_cli
