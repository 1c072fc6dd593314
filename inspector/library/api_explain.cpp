// The functions of the C interface that explain and judge wire bytes.
#include "inspector/library/decode_memory.h"
#include "inspector/library/explain.h"
#include "inspector/library/message_table.h"

namespace
{

using namespace mava_tum_inspect;

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

class memory_counter final : public wire_visitor
{
public:
    explicit memory_counter(bool aliases) : memory(aliases) {}

    void on_value(const occurrence &at) override
    {
        memory.count_value(at);
    }

    void on_run(const occurrence &first, uint64_t elements) override
    {
        memory.count_run(first, elements);
    }

    void on_fault(const wire_fault &fault) override
    {
        memory.count_fault(fault);
    }

    decode_memory memory;
};

} // namespace

extern "C" int32_t mava_tum_inspect_judge(
    const char *message, const uint8_t *data, uint64_t length, mava_tum_inspect_verdict *verdict)
{
    const message_description *found = find_message(message);
    if (found == nullptr)
        return MAVA_TUM_INSPECT_NO_SUCH_NAME;
    fill_success(*verdict, length);
    judge visitor(*verdict);
    walk_message(*found, data, length, visitor);
    return MAVA_TUM_OK;
}

extern "C" int32_t mava_tum_inspect_explain(const char *message, const uint8_t *data, uint64_t length,
    mava_tum_inspect_line_fn line_fn, void *context, mava_tum_inspect_verdict *verdict)
{
    const message_description *found = find_message(message);
    if (found == nullptr)
        return MAVA_TUM_INSPECT_NO_SUCH_NAME;
    explain_message(*found, data, length, line_fn, context, verdict);
    return MAVA_TUM_OK;
}

extern "C" int32_t mava_tum_inspect_memory(const char *message, const uint8_t *data, uint64_t length, uint32_t flags,
    uint64_t *block_count, uint64_t *block_bytes)
{
    const message_description *found = find_message(message);
    if (found == nullptr)
        return MAVA_TUM_INSPECT_NO_SUCH_NAME;
    memory_counter visitor((flags & MAVA_TUM_ALIAS) != 0);
    walk_message(*found, data, length, visitor);
    *block_count = visitor.memory.asked().blocks;
    *block_bytes = visitor.memory.asked().bytes;
    return MAVA_TUM_OK;
}
