// The values of a message, written in one walk: the record of `mava-tum decode --json`, and a message on one line.
#pragma once

#include "inspector/library/fault_text.h"
#include "inspector/library/field_value.h"
#include "inspector/library/wire_walk.h"

namespace mava_tum_inspect
{

// Codec records nest five deep.
inline constexpr std::size_t most_record_levels = 8;

// What has to be known before anything is written.
class first_look final : public wire_visitor
{
public:
    first_look(const message_description &message, wire_bytes wire)
    {
        walk_message(message, wire.data(), wire.size(), *this);
    }

    bool repeats = false; // a field that counts once
    int32_t result = MAVA_TUM_OK;
    uint64_t offset = 0; // of the fault
    path_text pointer;
    sentence fault;

    void on_value(const occurrence &at) override
    {
        repeats |= at.notes.has(note::replaced_value);
    }

    void on_record(const occurrence &at) override
    {
        repeats |= at.notes.has(note::replaced_record);
    }

    void on_fault(const wire_fault &met) override;
};

// Fields that occur several times in a record where one counts: the last one replaces the others. Text that is written
// as the bytes come has to know it at the first.
class last_occurrences
{
public:
    // `may_repeat` false: no field of the message occurs twice, and nothing has to be looked for.
    last_occurrences(const message_description &message, wire_bytes wire, bool may_repeat);

    // A record begins, whose fields come next.
    void enter(const occurrence &record);
    void leave();

    // Of a field of the record that was entered last.
    bool is_last(const occurrence &at) const
    {
        // An array has one run: its elements do not replace each other.
        return !m_may_repeat || is_array_element(at.path) || m_last[m_depth - 1][at.field->number] == at.tag.offset;
    }

private:
    static constexpr std::size_t numbers = 33; // of fields, from 1: each owns a bit of a mask

    void look_through(const message_description &record, const extent &place);

    wire_bytes m_wire;
    bool m_may_repeat;
    std::size_t m_depth = 0;
    uint64_t m_last[most_record_levels][numbers]; // of each record that is open
};

// What is printed instead of some values.
struct redaction {
    mava_tum_inspect_redact_fn redact_fn = nullptr; // null: nothing is
    void *context = nullptr;
};

// Writes the values of the fields that are present, each record an object.
class record_printer : public wire_visitor
{
public:
    // `may_repeat`: of first_look.
    record_printer(json_writer &writer, const message_description &message, wire_bytes wire, bool may_repeat,
        const redaction &redacted = {})
        : m_writer(writer), m_wire(wire), m_last(message, wire, may_repeat), m_redacted(redacted)
    {
    }

    void on_value(const occurrence &at) override;
    void on_run(const occurrence &first, uint64_t elements) override;
    void on_record(const occurrence &at) override;
    void on_record_end(const occurrence &at, uint32_t present) override;

private:
    void start(const occurrence &at);
    void end(const occurrence &at);
    const char *replacement_of(const occurrence &at) const;

    json_writer &m_writer;
    wire_bytes m_wire;
    last_occurrences m_last;
    redaction m_redacted;
    std::size_t m_arrays = 0;
    uint64_t m_elements[most_record_levels]; // of each array that is open
    uint64_t m_replaced_records = 0;         // that are open: a later one counts instead of the outermost
};

// "result", and "fault" if it is not 0.
void write_verdict(json_writer &writer, int32_t result, std::string_view path, uint64_t offset, std::string_view rule);

// As write_value() does, as far as there is room.
void print_value(sentence &text, const occurrence &at, wire_bytes wire);

// mava_tum_inspect_print. `capacity` is not 0.
int32_t print_message(const message_description &message, wire_bytes wire, int32_t form, const redaction &redacted,
    char *buffer, uint64_t capacity);

} // namespace mava_tum_inspect
