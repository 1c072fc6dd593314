// The exact calls and bytes that a decode requests from its allocator if no call fails.
#pragma once

#include "inspector/library/wire_walk.h"

#include <cstdint>

namespace mava_tum_inspect
{

struct memory_asked_for {
    uint64_t blocks = 0;
    uint64_t bytes = 0;
};

class decode_memory final : public wire_visitor
{
public:
    // `aliases`: bytes fields point into the input and are not copied.
    explicit decode_memory(bool aliases) : aliases_(aliases) {}

    void on_value(const occurrence &at) override
    {
        const field_kind kind = at.field->kind;
        if (kind == field_kind::text || kind == field_kind::text_array)
            add(at.value.bytes + 1); // with its NUL
        else if (kind == field_kind::bytes && !aliases_)
            add(at.value.bytes);
    }

    void on_run(const occurrence &first, uint64_t elements) override
    {
        const field_description &field = *first.field;
        add(elements * (field.nested != nullptr ? field.nested->record_bytes : sizeof(char *)));
    }

    void on_fault(const wire_fault &fault) override
    {
        if (fault.rule == fault_rule::text_too_long)
            add(0); // length + 1 in 32 bits
    }

    const memory_asked_for &asked() const
    {
        return asked_;
    }

private:
    void add(uint64_t bytes)
    {
        ++asked_.blocks;
        asked_.bytes += bytes;
    }

    bool aliases_;
    memory_asked_for asked_;
};

} // namespace mava_tum_inspect
