#include "inspector/library/print.h"

namespace mava_tum_inspect
{

namespace
{

// Of a record that is walked as a message of its own.
class offset_visitor final : public wire_visitor
{
public:
    explicit offset_visitor(uint64_t *last) : m_last(last) {}

    void on_value(const occurrence &at) override
    {
        note_place(at);
    }

    void on_record(const occurrence &at) override
    {
        note_place(at);
    }

private:
    void note_place(const occurrence &at)
    {
        if (at.depth == 0)
            m_last[at.field->number] = at.tag.offset;
    }

    uint64_t *m_last;
};

} // namespace

void first_look::on_fault(const wire_fault &met)
{
    result = met.result;
    offset = met.offset;
    append_pointer(pointer, met.at.path);
    describe_fault(fault, met);
}

// ---- fields that occur several times ----

last_occurrences::last_occurrences(const message_description &message, wire_bytes wire, bool may_repeat)
    : m_wire(wire), m_may_repeat(may_repeat)
{
    look_through(message, {0, wire.size()});
}

void last_occurrences::enter(const occurrence &record)
{
    look_through(*record.field->nested, record.value);
}

void last_occurrences::leave()
{
    if (m_may_repeat)
        --m_depth;
}

void last_occurrences::look_through(const message_description &record, const extent &place)
{
    if (!m_may_repeat)
        return;
    offset_visitor visitor(m_last[m_depth++]);
    walk_record(record, nullptr, m_wire.data(), place, visitor);
}

// ---- values ----

void record_printer::on_value(const occurrence &at)
{
    if (m_replaced_records != 0 || !m_last.is_last(at))
        return;
    start(at);
    if (const char *replacement = replacement_of(at))
        write_json_text(m_writer, replacement);
    else
        write_value(m_writer, at, m_wire);
    end(at);
}

void record_printer::on_run(const occurrence &first, uint64_t elements)
{
    if (m_replaced_records != 0)
        return;
    m_writer.name(first.field->name);
    m_writer.open_array();
    m_elements[m_arrays++] = elements;
}

void record_printer::on_record(const occurrence &at)
{
    if (m_replaced_records != 0 || !m_last.is_last(at)) {
        ++m_replaced_records;
        return;
    }
    start(at);
    m_writer.open_object();
    m_last.enter(at);
}

void record_printer::on_record_end(const occurrence &at, uint32_t)
{
    if (m_replaced_records != 0) {
        --m_replaced_records;
        return;
    }
    m_last.leave();
    m_writer.close();
    end(at);
}

void record_printer::start(const occurrence &at)
{
    if (!is_array_element(at.path))
        m_writer.name(at.field->name);
}

void record_printer::end(const occurrence &at)
{
    if (!is_array_element(at.path) || at.path.index + 1 < m_elements[m_arrays - 1])
        return;
    m_writer.close();
    --m_arrays;
}

const char *record_printer::replacement_of(const occurrence &at) const
{
    if (m_redacted.redact_fn == nullptr)
        return nullptr;
    path_text path;
    append_path(path, &at.path);
    const wire_bytes value = value_bytes(at, m_wire);
    const mava_tum_inspect_value described{at.record->name, path.c_str(), at.path.number,
        static_cast<int32_t>(at.field->kind), static_cast<int32_t>(at.field->address), value.data(), value.size()};
    return m_redacted.redact_fn(&described, m_redacted.context);
}

void write_verdict(json_writer &writer, int32_t result, std::string_view path, uint64_t offset, std::string_view rule)
{
    writer.name("result");
    writer.signed_number(result);
    if (result == MAVA_TUM_OK)
        return;
    writer.name("fault");
    writer.open_object();
    writer.name("path");
    writer.string(path);
    writer.name("offset");
    writer.number(offset);
    writer.name("rule");
    writer.string(rule);
    writer.close();
}

// ---- one line ----

namespace
{

// Writes into the caller's buffer. What does not fit is lost.
class bounded_output final : public text_output
{
public:
    bounded_output(char *buffer, uint64_t capacity) : text_output(buffer, static_cast<std::size_t>(capacity)) {}

    bool is_full() const
    {
        return m_is_full;
    }

    char *position() const
    {
        return const_cast<char *>(written().data()) + written().size();
    }

    // Writes there next, instead of what was written since.
    void return_to(char *position, const char *end)
    {
        use(position, static_cast<std::size_t>(end - position));
    }

private:
    void make_room() override
    {
        m_is_full = true;
        use(m_lost, sizeof m_lost);
    }

    bool m_is_full = false;
    char m_lost[64];
};

// Everything that closes a line that is cut, and the NUL.
constexpr std::string_view cut_in_json = ",\"cut\":true";
constexpr std::string_view cut_in_words = " ...";
constexpr uint64_t reserved_bytes = 2 * most_record_levels + cut_in_json.size() + 2;

// Stops before the first value or bracket that does not fit.
class line_printer final : public record_printer
{
public:
    line_printer(bounded_output &output, json_writer &writer, const char *end, const message_description &message,
        wire_bytes wire, bool may_repeat, const redaction &redacted)
        : record_printer(writer, message, wire, may_repeat, redacted), m_output(output), m_writer(writer), m_end(end)
    {
    }

    void on_value(const occurrence &at) override
    {
        keep_if_it_fits([&] { record_printer::on_value(at); });
    }

    void on_run(const occurrence &first, uint64_t elements) override
    {
        keep_if_it_fits([&] { record_printer::on_run(first, elements); });
    }

    void on_record(const occurrence &at) override
    {
        keep_if_it_fits([&] { record_printer::on_record(at); });
    }

    void on_record_end(const occurrence &at, uint32_t present) override
    {
        keep_if_it_fits([&] { record_printer::on_record_end(at, present); });
    }

private:
    template <class Write>
    void keep_if_it_fits(Write write)
    {
        char *const position = m_output.position();
        const json_writer before = m_writer;
        write();
        if (!m_output.is_full())
            return;
        m_writer = before;
        m_output.return_to(position, m_end);
        stop();
    }

    bounded_output &m_output;
    json_writer &m_writer;
    const char *m_end;
};

void write_head(json_writer &writer, const message_description &message, uint64_t bytes, const first_look &look)
{
    writer.open_object();
    writer.name("message");
    writer.string(message.name);
    writer.name("bytes");
    writer.number(bytes);
    write_verdict(writer, look.result, look.pointer.view(), look.offset, look.fault.view());
    writer.name("record");
}

void write_head(text_output &output, const message_description &message, uint64_t bytes, const first_look &look)
{
    output.write(message.name);
    output.write(", ");
    output.write_number(bytes);
    output.write(bytes == 1 ? " byte, " : " bytes, ");
    output.write(look.result == MAVA_TUM_OK ? "result 0" : look.fault.view());
    output.write(": ");
}

} // namespace

void print_value(sentence &text, const occurrence &at, wire_bytes wire)
{
    if (at.field != nullptr && at.field->nested != nullptr) {
        text.add("a record");
        return;
    }
    char value[MAVA_TUM_INSPECT_SENTENCE_BYTES];
    bounded_output output(value, sizeof value);
    write_value(output, at, wire);
    text.add({value, output.is_full() ? sizeof value : static_cast<std::size_t>(output.position() - value)});
}

int32_t print_message(const message_description &message, wire_bytes wire, int32_t form, const redaction &redacted,
    char *buffer, uint64_t capacity)
{
    buffer[0] = '\0';
    if (capacity <= reserved_bytes)
        return MAVA_TUM_INSPECT_CUT;
    const bool is_json = form == MAVA_TUM_INSPECT_JSON;
    const first_look look(message, wire);
    bounded_output output(buffer, capacity - reserved_bytes);
    json_writer writer(output, is_json ? json_writer::layout::one_line : json_writer::layout::words);
    if (is_json)
        write_head(writer, message, wire.size(), look);
    else
        write_head(output, message, wire.size(), look);
    const std::size_t depth = writer.depth();
    writer.open_object();
    if (output.is_full()) {
        buffer[0] = '\0';
        return MAVA_TUM_INSPECT_CUT;
    }
    const char *end = buffer + capacity - 1;
    line_printer visitor(output, writer, end, message, wire, look.repeats, redacted);
    walk_message(message, wire.data(), wire.size(), visitor);
    output.return_to(output.position(), end);
    writer.close_to(depth); // more than one, if the walk has ended early
    if (visitor.is_stopped())
        output.write(is_json ? cut_in_json : cut_in_words);
    if (is_json)
        output.put('}');
    *output.position() = '\0';
    return visitor.is_stopped() ? int32_t{MAVA_TUM_INSPECT_CUT} : int32_t{MAVA_TUM_OK};
}

} // namespace mava_tum_inspect
