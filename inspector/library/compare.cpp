#include "inspector/library/compare.h"

#include "codec/wire_types.h"
#include "inspector/library/print.h"

#include <algorithm>

namespace mava_tum_inspect
{

namespace
{

using mava_tum::wire_type;

// What counts of each field of a record: its last occurrence; of an array, the first element.
class record_content final : public wire_visitor
{
public:
    record_content(const message_description &its_record, wire_bytes its_wire, const extent &its_place)
        : record(its_record), wire(its_wire), place(its_place)
    {
        walk_record(record, nullptr, wire.data(), place, *this);
    }

    const message_description &record;
    const wire_bytes wire;
    const extent place;

    struct counted_field {
        uint64_t tag_offset;
        extent value;
        uint64_t number_value;
    };

    bool has(uint32_t number) const
    {
        return (m_present >> (number - 1) & 1) != 0;
    }

    // Only of a field that is there.
    const counted_field &of(uint32_t number) const
    {
        return m_fields[number];
    }

    uint64_t elements_of(uint32_t number) const
    {
        return has(number) ? m_elements[number] : 0;
    }

    void on_value(const occurrence &at) override
    {
        keep(at);
    }

    void on_record(const occurrence &at) override
    {
        keep(at);
    }

    void on_run(const occurrence &first, uint64_t elements) override
    {
        if (first.depth == 0)
            m_elements[first.path.number] = elements;
    }

private:
    static constexpr std::size_t numbers = 33; // of fields, from 1: each owns a bit of a mask

    void keep(const occurrence &at)
    {
        if (at.depth != 0 || (is_array_element(at.path) && at.path.index != 0))
            return;
        m_present |= 1u << (at.path.number - 1);
        m_fields[at.path.number] = {at.tag.offset, at.value, at.number_value};
    }

    uint32_t m_present = 0;
    counted_field m_fields[numbers];
    uint64_t m_elements[numbers];
};

// The unknown fields of a record, one after the other.
class unknown_fields final : public wire_visitor
{
public:
    explicit unknown_fields(const record_content &content) : m_content(content), m_rest(content.place)
    {
        next();
    }

    // Null: there are no more.
    const occurrence *present() const
    {
        return m_is_found ? &m_present : nullptr;
    }

    void next()
    {
        m_is_found = false;
        one_step step(*this);
        walk_record(m_content.record, nullptr, m_content.wire.data(), m_rest, step);
    }

private:
    class one_step final : public wire_visitor
    {
    public:
        explicit one_step(unknown_fields &fields) : m_fields(fields) {}

        void on_unknown(const occurrence &at) override
        {
            if (at.depth != 0)
                return;
            const uint64_t behind = at.value.offset + at.value.bytes;
            const uint64_t end = m_fields.m_rest.offset + m_fields.m_rest.bytes;
            m_fields.m_is_found = true;
            m_fields.m_present = at;
            m_fields.m_rest = {behind, end - behind};
            stop();
        }

    private:
        unknown_fields &m_fields;
    };

    const record_content &m_content;
    extent m_rest;
    bool m_is_found = false;
    occurrence m_present;
};

// Of values of one field. Records are compared by their fields.
bool is_same(const occurrence &one, wire_bytes wire, const occurrence &other, wire_bytes other_wire)
{
    const bool is_number = one.field == nullptr ? one.wire_type == static_cast<uint32_t>(wire_type::varint)
                                                : !is_length_delimited(one.field->kind);
    if (one.field == nullptr && one.wire_type != other.wire_type)
        return false;
    if (is_number)
        return one.number_value == other.number_value;
    if (one.field != nullptr && one.field->nested != nullptr)
        return true;
    return std::ranges::equal(content_bytes(one, wire), content_bytes(other, other_wire));
}

// Walks a record of one message, its own, and looks for each field in the record of the other.
class record_comparer final : public wire_visitor
{
public:
    record_comparer(
        const record_content &own, const record_content &others, bool is_second, difference_visitor &visitor)
        : m_own(own), m_others(others), m_is_second(is_second), m_visitor(visitor), m_unknown(others)
    {
    }

    void on_value(const occurrence &at) override
    {
        if (at.depth != 0 || !counts(at))
            return;
        occurrence other = at;
        compare(at, find(other) ? &other : nullptr);
    }

    void on_run(const occurrence &first, uint64_t) override
    {
        if (first.depth != 0)
            return;
        m_elements = m_others.elements_of(first.path.number);
        if (m_elements != 0)
            m_element = {m_others.wire.data(), m_others.of(first.path.number).tag_offset,
                m_others.place.offset + m_others.place.bytes};
    }

    void on_record(const occurrence &at) override
    {
        if (at.depth != 0 || !counts(at))
            return;
        occurrence other = at;
        const bool is_found = find(other);
        compare(at, is_found ? &other : nullptr);
        if (is_stopped())
            return;
        const record_content own(*at.field->nested, m_own.wire, at.value);
        const record_content others(*at.field->nested, m_others.wire, is_found ? other.value : extent{0, 0});
        record_comparer inner(own, others, m_is_second, m_visitor);
        walk_record(own.record, &at.path, own.wire.data(), own.place, inner);
        if (inner.is_stopped())
            stop();
    }

    // Both walks step through the unknown fields of two records in the same way, so that none is left out.
    void on_unknown(const occurrence &at) override
    {
        if (at.depth != 0)
            return;
        while (m_unknown.present() != nullptr && m_unknown.present()->path.number < at.path.number)
            m_unknown.next();
        const bool is_found = m_unknown.present() != nullptr && m_unknown.present()->path.number == at.path.number;
        compare(at, is_found ? m_unknown.present() : nullptr);
        if (is_found)
            m_unknown.next();
    }

private:
    bool counts(const occurrence &at) const
    {
        return is_array_element(at.path) || m_own.of(at.path.number).tag_offset == at.tag.offset;
    }

    // `field`: of the own record; then that of the other, if there is one.
    bool find(occurrence &field)
    {
        if (is_array_element(field.path))
            return find_element(field);
        if (!m_others.has(field.path.number))
            return false;
        const record_content::counted_field &found = m_others.of(field.path.number);
        field.tag.offset = found.tag_offset;
        field.value = found.value;
        field.number_value = found.number_value;
        return true;
    }

    // Elements have one order in both messages: that of the index.
    bool find_element(occurrence &field)
    {
        if (m_elements == 0)
            return false;
        --m_elements;
        field.tag.offset = m_element.position;
        read_varint(m_element, 32);
        const uint64_t bytes = read_varint(m_element, 32).value;
        field.value = {m_element.position, bytes};
        m_element.position += bytes;
        return true;
    }

    void compare(const occurrence &own, const occurrence *other)
    {
        if (other != nullptr && (m_is_second || is_same(own, m_own.wire, *other, m_others.wire)))
            return;
        if (m_is_second)
            m_visitor.on_difference(nullptr, &own);
        else
            m_visitor.on_difference(&own, other);
        if (m_visitor.is_stopped)
            stop();
    }

    const record_content &m_own;
    const record_content &m_others;
    bool m_is_second; // what the first message has, too, has been compared
    difference_visitor &m_visitor;
    wire_cursor m_element;   // of the other's run: the next one
    uint64_t m_elements = 0; // that are left of it
    unknown_fields m_unknown;
};

// ---- for callers in C ----

class text_differences final : public difference_visitor
{
public:
    text_differences(wire_bytes first, wire_bytes second, mava_tum_inspect_difference_fn difference_fn, void *context)
        : m_first(first), m_second(second), m_difference_fn(difference_fn), m_context(context)
    {
    }

    void on_difference(const occurrence *first, const occurrence *second) override
    {
        ++count;
        if (m_difference_fn == nullptr)
            return;
        path_text path;
        append_path(path, first != nullptr ? &first->path : &second->path);
        sentence first_text;
        sentence second_text;
        const mava_tum_inspect_difference difference{
            path.c_str(), text_of(first, m_first, first_text), text_of(second, m_second, second_text)};
        is_stopped = m_difference_fn(&difference, m_context) != 0;
    }

    uint64_t count = 0;

private:
    static const char *text_of(const occurrence *at, wire_bytes wire, sentence &text)
    {
        if (at == nullptr)
            return nullptr;
        print_value(text, *at, wire);
        return text.c_str();
    }

    wire_bytes m_first;
    wire_bytes m_second;
    mava_tum_inspect_difference_fn m_difference_fn;
    void *m_context;
};

} // namespace

void compare_messages(
    const message_description &message, wire_bytes first, wire_bytes second, difference_visitor &visitor)
{
    const record_content in_first(message, first, {0, first.size()});
    const record_content in_second(message, second, {0, second.size()});
    for (const bool is_second : {false, true}) {
        const record_content &own = is_second ? in_second : in_first;
        record_comparer comparer(own, is_second ? in_first : in_second, is_second, visitor);
        if (!visitor.is_stopped)
            walk_record(message, nullptr, own.wire.data(), own.place, comparer);
    }
}

int32_t compare_messages(const message_description &message, wire_bytes first, wire_bytes second,
    mava_tum_inspect_difference_fn difference_fn, void *context, uint64_t *difference_count)
{
    for (const wire_bytes wire : {first, second})
        if (first_look(message, wire).result != MAVA_TUM_OK)
            return MAVA_TUM_INSPECT_MALFORMED;
    text_differences visitor(first, second, difference_fn, context);
    compare_messages(message, first, second, visitor);
    if (difference_count != nullptr)
        *difference_count = visitor.count;
    return visitor.is_stopped ? int32_t{MAVA_TUM_INSPECT_STOPPED} : int32_t{MAVA_TUM_OK};
}

} // namespace mava_tum_inspect
