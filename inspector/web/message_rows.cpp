#include "module.h"

#include "inspector/library/wire_walk.h"
#include "message/verdict.h"

#include <array>
#include <vector>

namespace mava_tum_cli
{

namespace
{

using mava_tum_inspect::extent;
using mava_tum_inspect::message_description;
using mava_tum_inspect::occurrence;
using mava_tum_inspect::wire_fault;

enum class row_kind : uint32_t { value, record, unknown, undecoded, fault, unread, absent };

class row_visitor : public mava_tum_inspect::wire_visitor
{
public:
    void on_value(const occurrence &at) override
    {
        take(row_kind::value, at);
    }

    void on_record(const occurrence &at) override
    {
        take(row_kind::record, at);
    }

    void on_unknown(const occurrence &at) override
    {
        take(row_kind::unknown, at);
    }

    void on_undecoded(const occurrence &at) override
    {
        take(row_kind::undecoded, at);
    }

    void on_fault(const wire_fault &fault) override
    {
        take_fault(fault);
    }

    void on_record_end(const occurrence &at, uint32_t present) override
    {
        take_absent(*at.field->nested, at.depth + 1, at.value.offset + at.value.bytes, present);
    }

    void walk(const message_description &message, wire_bytes wire)
    {
        const mava_tum_inspect::walk_result result = walk_message(message, wire.data(), wire.size(), *this);
        take_absent(message, 0, wire.size(), result.present);
    }

private:
    virtual void take(row_kind kind, const occurrence &at) = 0;
    virtual void take_fault(const wire_fault &fault) = 0;
    virtual void take_missing(const message_description &record, uint32_t depth, uint64_t end, uint32_t present) = 0;

    void take_absent(const message_description &record, uint32_t depth, uint64_t end, uint32_t present)
    {
        const uint64_t all = (uint64_t{1} << record.fields.size()) - 1;
        if ((present & all) != all)
            take_missing(record, depth, end, present);
    }
};

uint32_t place_of(const message_description &message)
{
    return static_cast<uint32_t>(&message - mava_tum_inspect::all_messages().data());
}

class row_writer : public row_visitor
{
public:
    void flush()
    {
        host_write(host_channel::bytes, m_rows.data(), m_rows.size() * sizeof(row));
        m_rows.clear();
    }

    void on_unread(const extent &left) override
    {
        const auto begin = static_cast<uint32_t>(left.offset);
        add({static_cast<uint32_t>(row_kind::unread), begin, begin, begin, static_cast<uint32_t>(left.bytes), 0, 0, 0});
    }

private:
    using row = std::array<uint32_t, 8>;
    static constexpr size_t rows_at_once = 8192;

    void add(const row &added)
    {
        m_rows.push_back(added);
        if (m_rows.size() == rows_at_once)
            flush();
    }

    static row row_of(row_kind kind, const occurrence &at)
    {
        const uint32_t head = static_cast<uint32_t>(kind) + 256 * (at.depth & 0xFF) + (at.notes.bits != 0 ? 65536 : 0);
        const auto behind_tag = static_cast<uint32_t>(at.tag.offset + at.tag.bytes);
        return {head, static_cast<uint32_t>(at.tag.offset), behind_tag, static_cast<uint32_t>(at.value.offset),
            static_cast<uint32_t>(at.value.bytes), place_of(*at.record), at.path.number,
            is_array_element(at.path) ? static_cast<uint32_t>(at.path.index) : ~uint32_t{0}};
    }

    void take(row_kind kind, const occurrence &at) override
    {
        add(row_of(kind, at));
    }

    void take_fault(const wire_fault &fault) override
    {
        const auto at = static_cast<uint32_t>(fault.offset);
        add({static_cast<uint32_t>(row_kind::fault) + 256 * (fault.at.depth & 0xFF), at, at, at, 0, 0, 0,
            ~uint32_t{0}});
    }

    void take_missing(const message_description &record, uint32_t depth, uint64_t end, uint32_t present) override
    {
        const auto at = static_cast<uint32_t>(end);
        add({static_cast<uint32_t>(row_kind::absent) + 256 * depth, at, at, at, 0, place_of(record), present, 0});
    }

    std::vector<row> m_rows;
};

class text_writer : public row_visitor
{
public:
    text_writer(wire_bytes wire, uint64_t first, uint64_t count, text_output &output)
        : m_wire(wire), m_first(first), m_count(count), m_writer(output, json_writer::layout::one_line)
    {
        m_writer.open_array();
    }

    void finish()
    {
        m_writer.close();
    }

    void on_unread(const extent &) override
    {
        if (is_wanted())
            write("", {});
    }

private:
    // Of the row that comes now.
    bool is_wanted()
    {
        const uint64_t row = m_row++;
        return row >= m_first && row - m_first < m_count;
    }

    void write(std::string_view text, const std::vector<std::string> &notes)
    {
        m_writer.open_object();
        m_writer.name("text");
        m_writer.string(text);
        m_writer.name("notes");
        m_writer.open_array();
        for (const std::string &told : notes)
            m_writer.string(told);
        m_writer.close();
        m_writer.close();
    }

    void take(row_kind kind, const occurrence &at) override
    {
        if (!is_wanted())
            return;
        const bool has_value = kind == row_kind::value || kind == row_kind::unknown;
        write(has_value ? text_of_value(at, m_wire) : "", notes_in_words(at, m_wire));
    }

    void take_fault(const wire_fault &fault) override
    {
        if (is_wanted())
            write(fault_in_words(fault), {});
    }

    void take_missing(const message_description &, uint32_t, uint64_t, uint32_t) override
    {
        if (is_wanted())
            write("", {});
    }

    wire_bytes m_wire;
    uint64_t m_first;
    uint64_t m_count;
    uint64_t m_row = 0;
    json_writer m_writer;
};

} // namespace

void write_rows(const message_description &message, wire_bytes wire)
{
    row_writer writer;
    writer.walk(message, wire);
    writer.flush();
}

void write_row_texts(
    const message_description &message, wire_bytes wire, uint64_t first, uint64_t count, text_output &output)
{
    text_writer writer(wire, first, count, output);
    writer.walk(message, wire);
    writer.finish();
}

} // namespace mava_tum_cli
