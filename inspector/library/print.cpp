#include "inspector/library/print.h"

namespace mava_tum_cli
{

using mava_tum_inspect::message_description;
using mava_tum_inspect::occurrence;

namespace
{

// Of a record that is walked as a message of its own.
class offset_visitor : public mava_tum_inspect::wire_visitor
{
public:
    offset_visitor(uint64_t begin, std::span<uint64_t> last) : m_begin(begin), m_last(last) {}

    void on_value(const occurrence &at) override
    {
        note(at);
    }

    void on_record(const occurrence &at) override
    {
        note(at);
    }

private:
    void note(const occurrence &at)
    {
        if (at.depth == 0)
            m_last[at.field->number] = m_begin + at.tag.offset;
    }

    uint64_t m_begin;
    std::span<uint64_t> m_last;
};

} // namespace

last_occurrences::last_occurrences(const message_description &message, wire_bytes wire, bool may_repeat)
    : m_wire(wire), m_may_repeat(may_repeat)
{
    look_through(message, 0, wire.size());
}

void last_occurrences::enter(const occurrence &record)
{
    look_through(*record.field->nested, record.value.offset, record.value.bytes);
}

void last_occurrences::leave()
{
    if (m_may_repeat)
        m_last.pop_back();
}

void last_occurrences::look_through(const message_description &record, uint64_t begin, uint64_t bytes)
{
    if (!m_may_repeat)
        return;
    offset_visitor visitor(begin, m_last.emplace_back());
    mava_tum_inspect::walk_message(record, m_wire.data() + begin, bytes, visitor);
}

bool last_occurrences::is_last(const occurrence &at) const
{
    // An array has one run: its elements do not replace each other.
    return !m_may_repeat || is_array_element(at.path) || m_last.back()[at.field->number] == at.tag.offset;
}

} // namespace mava_tum_cli
