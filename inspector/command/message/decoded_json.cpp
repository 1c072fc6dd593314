#include "message/decoded_json.h"

#include "inspector/library/wire_walk.h"
#include "inspector/library/print.h"
#include "message/message_head.h"
#include "message/verdict.h"
#include "json/json_values.h"

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::field_description;
using mava_tum_inspect::message_description;
using mava_tum_inspect::note;
using mava_tum_inspect::occurrence;
using mava_tum_inspect::walk_message;
using mava_tum_inspect::wire_fault;

// What has to be known before anything is written.
class first_look : public mava_tum_inspect::wire_visitor
{
public:
    void on_value(const occurrence &at) override
    {
        repeats |= at.notes.has(note::replaced_value);
    }

    void on_record(const occurrence &at) override
    {
        repeats |= at.notes.has(note::replaced_record);
    }

    void on_fault(const wire_fault &met) override
    {
        result = met.result;
        offset = met.offset;
        path = json_pointer_of(met.at.path);
        fault = fault_in_words(met);
    }

    bool repeats = false; // a field that counts once
    int32_t result = MAVA_TUM_OK;
    uint64_t offset = 0;
    std::string path;
    std::optional<std::string> fault;
};

// The values of the fields that are present, each record an object.
class record_visitor : public mava_tum_inspect::wire_visitor
{
public:
    record_visitor(json_writer &writer, wire_bytes wire, last_occurrences last)
        : m_writer(writer), m_wire(wire), m_last(std::move(last))
    {
    }

    void on_value(const occurrence &at) override
    {
        if (m_replaced_records != 0 || !m_last.is_last(at))
            return;
        start(at);
        write_value(m_writer, at, m_wire);
        end(at);
    }

    void on_run(const occurrence &first, uint64_t elements) override
    {
        if (m_replaced_records != 0)
            return;
        m_writer.name(first.field->name);
        m_writer.open_array();
        m_elements.push_back(elements);
    }

    void on_record(const occurrence &at) override
    {
        if (m_replaced_records != 0 || !m_last.is_last(at)) {
            ++m_replaced_records;
            return;
        }
        start(at);
        m_writer.open_object();
        m_last.enter(at);
    }

    void on_record_end(const occurrence &at, uint32_t) override
    {
        if (m_replaced_records != 0) {
            --m_replaced_records;
            return;
        }
        m_last.leave();
        m_writer.close();
        end(at);
    }

private:
    void start(const occurrence &at)
    {
        if (!is_array_element(at.path))
            m_writer.name(at.field->name);
    }

    void end(const occurrence &at)
    {
        if (!is_array_element(at.path) || at.path.index + 1 < m_elements.back())
            return;
        m_writer.close();
        m_elements.pop_back();
    }

    json_writer &m_writer;
    wire_bytes m_wire;
    last_occurrences m_last;
    std::vector<uint64_t> m_elements; // of each array that is open
    uint64_t m_replaced_records = 0;  // that are open: a later one counts instead of the outermost
};

// Where each field stands, one on a line.
class place_visitor : public mava_tum_inspect::wire_visitor
{
public:
    place_visitor(json_writer &writer, wire_bytes wire, bool has_absent_fields)
        : m_writer(writer), m_wire(wire), m_has_absent_fields(has_absent_fields)
    {
    }

    void on_value(const occurrence &at) override
    {
        open(at);
        m_writer.close();
    }

    void on_unknown(const occurrence &at) override
    {
        open(at);
        m_writer.name("unknown");
        m_writer.truth(true);
        m_writer.name("value");
        m_writer.string(text_of_value(at, m_wire));
        m_writer.close();
    }

    void on_record(const occurrence &at) override
    {
        open(at);
        m_writer.close();
    }

    void on_record_end(const occurrence &at, uint32_t present) override
    {
        add_absent_fields(*at.field->nested, present, json_pointer_of(at.path));
    }

    void on_undecoded(const occurrence &at) override
    {
        open(at);
        m_writer.name("decoded");
        m_writer.truth(false);
        m_writer.close();
    }

    void add_absent_fields(const message_description &message, uint32_t present, const std::string &path)
    {
        if (!m_has_absent_fields)
            return;
        for (const field_description &field : message.fields) {
            if ((present >> (field.number - 1) & 1) != 0)
                continue;
            open(member_path(path, field.name), field.number, mava_tum_inspect::kind_name(field.kind), false);
            m_writer.close();
        }
    }

private:
    void open(const std::string &path, uint32_t number, std::string_view kind, bool is_present)
    {
        m_writer.open_object(json_writer::layout::one_line);
        m_writer.name("path");
        m_writer.string(path);
        member("number", number);
        m_writer.name("kind");
        m_writer.string(kind);
        m_writer.name("present");
        m_writer.truth(is_present);
    }

    void open(const occurrence &at)
    {
        open(json_pointer_of(at.path), at.path.number, kind_of(at), true);
        member("offset", at.tag.offset);
        member("bytes", at.value.offset + at.value.bytes - at.tag.offset);
        member("value_offset", at.value.offset);
        member("value_bytes", at.value.bytes);
        if (at.notes.bits != 0)
            add_notes(at);
    }

    void add_notes(const occurrence &at)
    {
        m_writer.name("notes");
        m_writer.open_array();
        for (const std::string &told : notes_in_words(at, m_wire))
            m_writer.string(told);
        m_writer.close();
    }

    void member(std::string_view name, uint64_t value)
    {
        m_writer.name(name);
        m_writer.number(value);
    }

    json_writer &m_writer;
    wire_bytes m_wire;
    bool m_has_absent_fields;
};

void write_record(json_writer &writer, const message_description &message, wire_bytes wire, const first_look &look)
{
    writer.name("record");
    const size_t depth = writer.depth();
    writer.open_object();
    record_visitor visitor(writer, wire, last_occurrences(message, wire, look.repeats));
    walk_message(message, wire.data(), wire.size(), visitor);
    writer.close_to(depth); // more than one, if a fault has ended the walk
}

void write_fields(json_writer &writer, const message_description &message, wire_bytes wire, bool has_absent_fields)
{
    writer.name("fields");
    writer.open_array();
    place_visitor visitor(writer, wire, has_absent_fields);
    const mava_tum_inspect::walk_result result = walk_message(message, wire.data(), wire.size(), visitor);
    visitor.add_absent_fields(message, result.present, "");
    writer.close();
}

} // namespace

std::optional<std::string> print_json(const message_description &message, wire_bytes wire, const message_place &place,
    const json_style &style, text_output &output)
{
    first_look look;
    walk_message(message, wire.data(), wire.size(), look);
    json_writer writer(output, style.layout);
    open_message(writer, place, message.name, wire.size());
    write_verdict(writer, look.result, look.path, look.offset, look.fault.value_or(""));
    write_record(writer, message, wire, look);
    if (style.has_fields)
        write_fields(writer, message, wire, style.has_absent_fields);
    writer.close();
    output.put('\n');
    return look.fault;
}

} // namespace mava_tum_cli
