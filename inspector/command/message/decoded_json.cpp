#include "message/decoded_json.h"

#include "inspector/library/print.h"
#include "message/message_head.h"
#include "message/verdict.h"

namespace mava_tum_cli
{

namespace
{

// Where each field stands, one on a line.
class place_visitor : public wire_visitor
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
        add_absent_fields(*at.field->nested, present, pointer_to(at.path));
    }

    void on_undecoded(const occurrence &at) override
    {
        open(at);
        m_writer.name("decoded");
        m_writer.truth(false);
        m_writer.close();
    }

    void add_absent_fields(const message_description &message, uint32_t present, const path_text &record)
    {
        if (!m_has_absent_fields)
            return;
        for (const field_description &field : message.fields) {
            if ((present >> (field.number - 1) & 1) != 0)
                continue;
            path_text path = record;
            open(path.add("/").add(field.name), field.number, kind_name(field.kind), false);
            m_writer.close();
        }
    }

private:
    static path_text pointer_to(const path_step &step)
    {
        path_text path;
        append_pointer(path, step);
        return path;
    }

    void open(const path_text &path, uint32_t number, std::string_view kind, bool is_present)
    {
        m_writer.open_object(json_writer::layout::one_line);
        m_writer.name("path");
        m_writer.string(path.view());
        member("number", number);
        m_writer.name("kind");
        m_writer.string(kind);
        m_writer.name("present");
        m_writer.truth(is_present);
    }

    void open(const occurrence &at)
    {
        open(pointer_to(at.path), at.path.number, kind_of(at), true);
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
    record_printer visitor(writer, message, wire, look.repeats);
    walk_message(message, wire.data(), wire.size(), visitor);
    writer.close_to(depth); // more than one, if a fault has ended the walk
}

void write_fields(json_writer &writer, const message_description &message, wire_bytes wire, bool has_absent_fields)
{
    writer.name("fields");
    writer.open_array();
    place_visitor visitor(writer, wire, has_absent_fields);
    const walk_result result = walk_message(message, wire.data(), wire.size(), visitor);
    visitor.add_absent_fields(message, result.present, path_text());
    writer.close();
}

} // namespace

std::optional<std::string> print_json(const message_description &message, wire_bytes wire, const message_place &place,
    const json_style &style, text_output &output)
{
    const first_look look(message, wire);
    json_writer writer(output, style.layout);
    open_message(writer, place, message.name, wire.size());
    write_verdict(writer, look.result, look.pointer.view(), look.offset, look.fault.view());
    write_record(writer, message, wire, look);
    if (style.has_fields)
        write_fields(writer, message, wire, style.has_absent_fields);
    writer.close();
    output.put('\n');
    if (look.result == MAVA_TUM_OK)
        return std::nullopt;
    return std::string(look.fault.view());
}

} // namespace mava_tum_cli
