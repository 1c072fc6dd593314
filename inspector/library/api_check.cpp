// The functions of the C interface that concern adapters.
#include "inspector/library/check.h"

using namespace mava_tum_inspect;

extern "C" uint32_t mava_tum_inspect_adapter_count(void)
{
    return static_cast<uint32_t>(all_adapters().size());
}

extern "C" const char *mava_tum_inspect_adapter_name(uint32_t index)
{
    return index < all_adapters().size() ? all_adapters()[index].name : nullptr;
}

extern "C" int32_t mava_tum_inspect_check(const char *adapter, const uint8_t *data, uint64_t length,
    mava_tum_inspect_finding_fn finding_fn, void *context, mava_tum_inspect_check_result *result)
{
    const adapter_description *found = find_adapter(adapter);
    if (found == nullptr)
        return MAVA_TUM_INSPECT_NO_SUCH_NAME;
    check_message(*found, data, length, finding_fn, context, *result);
    return MAVA_TUM_OK;
}
