#include "inspector/library/check.h"

#include "inspector/library/explain.h"
#include "inspector/library/finding_text.h"
#include "inspector/library/payload_notes.h"
#include "inspector/library/wire_walk.h"

namespace mava_tum_inspect
{

namespace
{

constexpr uint32_t presence_bit(uint32_t number)
{
    return 1u << (number - 1);
}

bool fits(uint64_t number, uint64_t bits)
{
    return bits >= 64 || number >> bits == 0;
}

uint64_t elements_that_arrive(const member_limit &limit, uint64_t elements)
{
    const uint64_t count = limit.count_bits >= 64 ? elements : elements & ((uint64_t{1} << limit.count_bits) - 1);
    return count < limit.allowed ? count : limit.allowed;
}

class checker final : public wire_visitor
{
public:
    checker(const adapter_description &adapter, const uint8_t *data, uint64_t finding_limit,
        mava_tum_inspect_finding_fn finding_fn, void *context, mava_tum_inspect_check_result &result)
        : data_(data), told_findings_(finding_fn == nullptr ? 0 : finding_limit), finding_fn_(finding_fn),
          context_(context), result_(result)
    {
        frames_[0].members = adapter.received->limits;
        frames_[0].arrives = true;
    }

    void on_value(const occurrence &at) override
    {
        frame &inside = top();
        if (!inside.arrives)
            return;
        const member_limit *limit = find_limit(inside.members, at.path.number);
        note_content(inside, at);
        if (at.notes.has(note::replaced_value))
            report({MAVA_TUM_INSPECT_REPLACED, at, limit});
        if (limit != nullptr)
            check_value(inside, at, *limit);
        else if (has_content(at))
            report({MAVA_TUM_INSPECT_NO_MEMBER, at, nullptr});
    }

    void on_run(const occurrence &first, uint64_t elements) override
    {
        frame &inside = top();
        const member_limit *limit = find_limit(inside.members, first.path.number);
        inside.elements = limit == nullptr ? 0 : elements_that_arrive(*limit, elements);
        if (inside.arrives && inside.elements < elements)
            report({MAVA_TUM_INSPECT_LIST_CUT, first, limit, elements, inside.elements});
    }

    void on_record(const occurrence &at) override
    {
        const frame &outer = top();
        const member_limit *limit = find_limit(outer.members, at.path.number);
        const bool is_beyond = at.path.index != path_step::no_index && at.path.index >= outer.elements;
        if (outer.arrives && at.notes.has(note::replaced_record))
            report({MAVA_TUM_INSPECT_REPLACED, at, limit});
        frame &inner = frames_[++depth_];
        inner = {};
        inner.arrives = outer.arrives && limit != nullptr && !is_beyond;
        inner.members = limit == nullptr ? std::span<const member_limit>() : limit->members;
    }

    void on_record_end(const occurrence &at, uint32_t present) override
    {
        const frame &inside = top();
        for (const member_limit &limit : inside.members)
            if (inside.arrives && limit.only_with != 0 && (inside.with_content & presence_bit(limit.number)) != 0 &&
                (present & presence_bit(limit.only_with)) == 0)
                report_missing_part(at, limit);
        --depth_;
    }

    void on_unknown(const occurrence &at) override
    {
        if (top().arrives)
            report({MAVA_TUM_INSPECT_UNKNOWN_FIELD, at, nullptr});
    }

    void on_fault(const wire_fault &fault) override
    {
        fill_fault(result_.verdict, fault);
        if (!is_told())
            return;
        sentence text;
        text.add(result_.verdict.text).add("; the fields after it do not arrive (L15)");
        tell({MAVA_TUM_INSPECT_FAULT, fault.offset, 0, 0, result_.verdict.path, text.c_str()});
    }

private:
    // A record of the walk, and the members that receive its fields.
    struct frame {
        std::span<const member_limit> members;
        bool arrives = false;      // false: it is beyond the slots of a list, or inside such a record
        uint64_t elements = 0;     // of the run that is being walked: those that arrive
        uint32_t with_content = 0; // bits of the fields that hold more than zero
    };

    // Messages nest five deep.
    static constexpr std::size_t most_frames = 8;

    frame &top()
    {
        return frames_[depth_];
    }

    // ---- values ----

    // A zero or empty value arrives as zero, also without a member.
    static bool has_content(const occurrence &at)
    {
        return is_length_delimited(at.field->kind) ? at.value.bytes != 0 : at.number_value != 0;
    }

    static void note_content(frame &inside, const occurrence &at)
    {
        const uint32_t bit = presence_bit(at.path.number);
        inside.with_content = has_content(at) ? inside.with_content | bit : inside.with_content & ~bit;
    }

    void check_value(const frame &inside, const occurrence &at, const member_limit &limit)
    {
        switch (limit.kind) {
        case limit_kind::number:
            if (!fits(at.number_value, limit.allowed))
                report({MAVA_TUM_INSPECT_NUMBER_CUT, at, &limit, at.number_value, limit.allowed});
            return;
        case limit_kind::text:
            return check_text(at, limit, limit.allowed);
        case limit_kind::texts:
            if (at.path.index < inside.elements)
                check_text(at, limit, limit.text_characters);
            return;
        case limit_kind::bytes:
            return check_bytes(at, limit);
        default:
            return;
        }
    }

    void check_text(const occurrence &at, const member_limit &limit, uint64_t characters)
    {
        const uint64_t ends_at = text_bytes(data_ + at.value.offset, at.value.bytes);
        if (ends_at > characters)
            report({MAVA_TUM_INSPECT_TEXT_CUT, at, &limit, ends_at, characters});
        else if (ends_at < at.value.bytes)
            report({MAVA_TUM_INSPECT_TEXT_ENDS, at, &limit, at.value.bytes, ends_at});
    }

    void check_bytes(const occurrence &at, const member_limit &limit)
    {
        if (at.value.bytes > limit.allowed)
            report({MAVA_TUM_INSPECT_BYTES_CUT, at, &limit, at.value.bytes, limit.allowed});
        else if (at.value.bytes != 0 && at.value.bytes < limit.allowed)
            report({MAVA_TUM_INSPECT_BYTES_PADDED, at, &limit, at.value.bytes, limit.allowed});
    }

    // ---- findings ----

    // `at` is the record; the finding is about one of its fields.
    void report_missing_part(const occurrence &at, const member_limit &limit)
    {
        occurrence value = at;
        value.record = at.field->nested;
        value.field = find_field(*value.record, limit.number);
        value.path = {&at.path, value.field, limit.number, path_step::no_index};
        report({MAVA_TUM_INSPECT_PART_MISSING, value, &limit});
    }

    // Counts the finding that comes now. The text of one that is only counted is not made.
    bool is_told()
    {
        return result_.finding_count++ < told_findings_;
    }

    void report(const raw_finding &finding)
    {
        if (is_stopped() || !is_told())
            return;
        sentence text;
        describe_finding(text, finding);
        path_text path;
        append_path(path, &finding.at.path);
        tell({finding.kind, finding.at.tag.offset, finding.found, finding.allowed, path.c_str(), text.c_str()});
    }

    void tell(const mava_tum_inspect_finding &finding)
    {
        if (finding_fn_(&finding, context_) != 0)
            stop();
    }

    const uint8_t *data_;
    uint64_t told_findings_; // at most; the others are counted
    mava_tum_inspect_finding_fn finding_fn_;
    void *context_;
    mava_tum_inspect_check_result &result_;
    frame frames_[most_frames];
    std::size_t depth_ = 0;
};

} // namespace

int32_t check_message(const adapter_description &adapter, const uint8_t *data, uint64_t length, uint64_t finding_limit,
    mava_tum_inspect_finding_fn finding_fn, void *context, mava_tum_inspect_check_result &result)
{
    result = {};
    result.record_bytes = adapter.received->size_bytes;
    fill_success(result.verdict, length);
    checker visitor(adapter, data, finding_limit, finding_fn, context, result);
    walk_message(*adapter.carried, data, length, visitor);
    if (!visitor.is_stopped())
        return MAVA_TUM_OK;
    result.verdict = {};
    return MAVA_TUM_INSPECT_STOPPED;
}

} // namespace mava_tum_inspect
