// The functions of mava_tum_inspect.h, by what they call.
#include "inspector/library/check.h"
#include "inspector/library/compare.h"
#include "inspector/library/decode_memory.h"
#include "inspector/library/explain.h"
#include "inspector/library/guess.h"
#include "inspector/library/message_table.h"
#include "inspector/library/print.h"
#include "inspector/library/similar_names.h"

#include <algorithm>

namespace
{

using namespace mava_tum_inspect;

static_assert(MAVA_TUM_INSPECT_VARINT == static_cast<int>(field_kind::varint));
static_assert(MAVA_TUM_INSPECT_FIXED32 == static_cast<int>(field_kind::fixed32));
static_assert(MAVA_TUM_INSPECT_BYTES == static_cast<int>(field_kind::bytes));
static_assert(MAVA_TUM_INSPECT_TEXT == static_cast<int>(field_kind::text));
static_assert(MAVA_TUM_INSPECT_RECORD == static_cast<int>(field_kind::record));
static_assert(MAVA_TUM_INSPECT_RECORD_ARRAY == static_cast<int>(field_kind::record_array));
static_assert(MAVA_TUM_INSPECT_TEXT_ARRAY == static_cast<int>(field_kind::text_array));
static_assert(MAVA_TUM_INSPECT_NO_ADDRESS == static_cast<int>(address_kind::none));
static_assert(MAVA_TUM_INSPECT_IPV4 == static_cast<int>(address_kind::ipv4));
static_assert(MAVA_TUM_INSPECT_IPV6 == static_cast<int>(address_kind::ipv6));

// ---- arguments ----

bool is_missing(const void *array, uint64_t count)
{
    return array == nullptr && count != 0;
}

wire_bytes bytes_at(const uint8_t *data, uint64_t length)
{
    return {data, static_cast<std::size_t>(length)};
}

// Returns what `use` returns for the message that `name` is. `are_missing`: of the other arguments.
template <class Use>
int32_t with_message(const char *name, bool are_missing, Use use)
{
    if (name == nullptr || are_missing)
        return MAVA_TUM_INSPECT_NULL_ARGUMENT;
    const message_description *found = find_message(name);
    return found == nullptr ? int32_t{MAVA_TUM_INSPECT_NO_SUCH_NAME} : use(*found);
}

// ---- visitors ----

class judge final : public wire_visitor
{
public:
    explicit judge(mava_tum_inspect_verdict &verdict) : verdict_(verdict) {}

    void on_fault(const wire_fault &fault) override
    {
        fill_fault(verdict_, fault);
    }

private:
    mava_tum_inspect_verdict &verdict_;
};

// The largest useful number.
constexpr uint32_t most_names = 8;

template <class Described>
uint32_t similar_among(std::span<const Described> all, const char *wrong, const char **names, uint32_t capacity)
{
    if (wrong == nullptr || is_missing(names, capacity))
        return 0;
    similar_name found[most_names];
    const std::span<similar_name> places(found, std::min(capacity, most_names));
    uint32_t count = 0;
    for (const Described &described : all)
        count = add_if_similar(wrong, described.name, places, count);
    for (uint32_t i = 0; i < count; ++i)
        names[i] = found[i].name;
    return count;
}

} // namespace

// ---- names ----

extern "C" uint32_t mava_tum_inspect_message_count(void)
{
    return static_cast<uint32_t>(all_messages().size());
}

extern "C" const char *mava_tum_inspect_message_name(uint32_t index)
{
    return index < all_messages().size() ? all_messages()[index].name : nullptr;
}

extern "C" uint32_t mava_tum_inspect_adapter_count(void)
{
    return static_cast<uint32_t>(all_adapters().size());
}

extern "C" const char *mava_tum_inspect_adapter_name(uint32_t index)
{
    return index < all_adapters().size() ? all_adapters()[index].name : nullptr;
}

extern "C" uint32_t mava_tum_inspect_similar_messages(const char *wrong, const char **names, uint32_t capacity)
{
    return similar_among(all_messages(), wrong, names, capacity);
}

extern "C" uint32_t mava_tum_inspect_similar_adapters(const char *wrong, const char **names, uint32_t capacity)
{
    return similar_among(all_adapters(), wrong, names, capacity);
}

// ---- messages and fields ----

extern "C" int32_t mava_tum_inspect_describe(const char *message, mava_tum_inspect_message *description)
{
    return with_message(message, description == nullptr, [description](const message_description &found) {
        *description = {found.name, static_cast<uint32_t>(found.fields.size()), found.record_bytes, found.mask_offset,
            static_cast<uint32_t>(found.mask_bytes), found.holds_bytes};
        return int32_t{MAVA_TUM_OK};
    });
}

extern "C" int32_t mava_tum_inspect_describe_field(
    const char *message, uint32_t number, mava_tum_inspect_field *description)
{
    if (message == nullptr || description == nullptr)
        return MAVA_TUM_INSPECT_NULL_ARGUMENT;
    const message_description *found = find_message(message);
    const field_description *field = found == nullptr ? nullptr : find_field(*found, number);
    if (field == nullptr)
        return MAVA_TUM_INSPECT_NO_SUCH_NAME;
    *description = {field->name, field->number, static_cast<int32_t>(field->kind), field->value_bits,
        static_cast<int32_t>(field->address), field->member_offset, field->count_offset,
        field->nested == nullptr ? nullptr : field->nested->name};
    return MAVA_TUM_OK;
}

// ---- wire bytes ----

extern "C" int32_t mava_tum_inspect_judge(
    const char *message, const uint8_t *data, uint64_t length, mava_tum_inspect_verdict *verdict)
{
    return with_message(message, is_missing(data, length) || verdict == nullptr, [&](const message_description &found) {
        fill_success(*verdict, length);
        judge visitor(*verdict);
        walk_message(found, data, length, visitor);
        return int32_t{MAVA_TUM_OK};
    });
}

extern "C" int32_t mava_tum_inspect_explain(const char *message, const uint8_t *data, uint64_t length,
    mava_tum_inspect_line_fn line_fn, void *context, mava_tum_inspect_verdict *verdict)
{
    return with_message(message, is_missing(data, length) || line_fn == nullptr, [&](const message_description &found) {
        return explain_message(found, data, length, line_fn, context, verdict);
    });
}

extern "C" int32_t mava_tum_inspect_memory(const char *message, const uint8_t *data, uint64_t length, uint32_t flags,
    uint64_t *block_count, uint64_t *block_bytes)
{
    const bool are_missing = is_missing(data, length) || block_count == nullptr || block_bytes == nullptr;
    return with_message(message, are_missing, [&](const message_description &found) {
        decode_memory memory((flags & MAVA_TUM_ALIAS) != 0);
        walk_message(found, data, length, memory);
        *block_count = memory.asked().blocks;
        *block_bytes = memory.asked().bytes;
        return int32_t{MAVA_TUM_OK};
    });
}

extern "C" int32_t mava_tum_inspect_check(const char *adapter, const uint8_t *data, uint64_t length,
    uint64_t finding_limit, mava_tum_inspect_finding_fn finding_fn, void *context,
    mava_tum_inspect_check_result *result)
{
    if (adapter == nullptr || is_missing(data, length) || result == nullptr)
        return MAVA_TUM_INSPECT_NULL_ARGUMENT;
    const adapter_description *found = find_adapter(adapter);
    if (found == nullptr)
        return MAVA_TUM_INSPECT_NO_SUCH_NAME;
    return check_message(*found, data, length, finding_limit, finding_fn, context, *result);
}

extern "C" uint32_t mava_tum_inspect_guess(
    const uint8_t *data, uint64_t length, mava_tum_inspect_candidate *candidates, uint32_t capacity)
{
    if (is_missing(data, length) || is_missing(candidates, capacity))
        return 0;
    return guess_messages(data, length, {candidates, capacity});
}

extern "C" int32_t mava_tum_inspect_print(const char *message, const uint8_t *data, uint64_t length, int32_t form,
    mava_tum_inspect_redact_fn redact_fn, void *context, char *buffer, uint64_t capacity)
{
    return with_message(
        message, is_missing(data, length) || is_missing(buffer, capacity), [&](const message_description &found) {
            if (capacity == 0)
                return int32_t{MAVA_TUM_INSPECT_CUT};
            return print_message(found, bytes_at(data, length), form, {redact_fn, context}, buffer, capacity);
        });
}

extern "C" int32_t mava_tum_inspect_compare(const char *message, const uint8_t *first, uint64_t first_length,
    const uint8_t *second, uint64_t second_length, mava_tum_inspect_difference_fn difference_fn, void *context,
    uint64_t *difference_count)
{
    const bool are_missing = is_missing(first, first_length) || is_missing(second, second_length);
    return with_message(message, are_missing, [&](const message_description &found) {
        return compare_messages(found, bytes_at(first, first_length), bytes_at(second, second_length), difference_fn,
            context, difference_count);
    });
}
