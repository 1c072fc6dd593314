// The functions of the C interface that list and describe messages.
#include "inspector/library/message_table.h"
#include "mava_tum_inspect.h"

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

} // namespace

extern "C" uint32_t mava_tum_inspect_message_count(void)
{
    return static_cast<uint32_t>(all_messages().size());
}

extern "C" const char *mava_tum_inspect_message_name(uint32_t index)
{
    return index < all_messages().size() ? all_messages()[index].name : nullptr;
}

extern "C" int32_t mava_tum_inspect_describe(const char *message, mava_tum_inspect_message *description)
{
    const message_description *found = find_message(message);
    if (found == nullptr)
        return MAVA_TUM_INSPECT_NO_SUCH_NAME;
    *description = {found->name, static_cast<uint32_t>(found->fields.size()), found->record_bytes, found->mask_offset,
        static_cast<uint32_t>(found->mask_bytes), found->holds_bytes};
    return MAVA_TUM_OK;
}

extern "C" int32_t mava_tum_inspect_describe_field(
    const char *message, uint32_t number, mava_tum_inspect_field *description)
{
    const message_description *found = find_message(message);
    const field_description *field = found == nullptr ? nullptr : find_field(*found, number);
    if (field == nullptr)
        return MAVA_TUM_INSPECT_NO_SUCH_NAME;
    *description = {field->name, field->number, static_cast<int32_t>(field->kind), field->value_bits,
        static_cast<int32_t>(field->address), field->member_offset, field->count_offset,
        field->nested == nullptr ? nullptr : field->nested->name};
    return MAVA_TUM_OK;
}
