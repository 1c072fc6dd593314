// TUM_NAL_..._MAX_SIZE of the headers: the largest record of each adapter, made from the model's tables, has a message
// of exactly that size.
#include "check_adapter.h"
#include "model/application_layout.h"
#include "model/raw_memory.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

namespace mava_tum_fuzz
{

namespace
{

using namespace mava_tum_model;

// Calls `visit` with each member that has a value and its place, also in parts and in all elements of lists. A list of
// texts counts as single texts.
template <class visitor>
void for_each_leaf(const application_layout &layout, uint8_t *record, const visitor &visit)
{
    for_each_slot(layout, [&](const slot &member, uint32_t offset) {
        const uint32_t elements = member.kind == slot_kind::list ? member.slots : 1;
        const uint32_t stride = extent_of(member).bytes / elements;
        for (uint32_t index = 0; index < elements; ++index) {
            uint8_t *const at = record + offset + index * stride;
            if (member.element == nullptr)
                visit(member, at);
            else
                for_each_leaf(*member.element, at, visit);
        }
        return true;
    });
}

// All bits of every number, all slots of every list, texts of the largest length.
void fill(const slot &member, uint8_t *at)
{
    switch (member.kind) {
    case slot_kind::text:
    case slot_kind::list: // of texts
        std::memset(at, 'x', member.bytes - 1);
        break;
    case slot_kind::count:
        store_number(at, member.slots, member.bytes);
        break;
    default:
        std::memset(at, 0xFF, member.bytes);
    }
}

uint64_t size_of(const adapter &tested, const uint8_t *record)
{
    return tested.encode(record, nullptr, 0);
}

// A value such as the kind of a session selects other members, which may have more bytes than the value itself.
void choose_number(const adapter &tested, const uint8_t *record, const slot &member, uint8_t *at)
{
    for (uint64_t number = 0; number < 16; ++number) {
        const uint64_t kept = load_number(at, member.bytes);
        const uint64_t size = size_of(tested, record);
        store_number(at, number, member.bytes);
        if (size_of(tested, record) <= size)
            store_number(at, kept, member.bytes);
    }
}

uint64_t largest_size(const adapter &tested)
{
    const application_layout &layout = *sent_layout(tested.name);
    std::vector<uint64_t> memory(layout.extent.bytes / sizeof(uint64_t) + 1);
    auto *const record = reinterpret_cast<uint8_t *>(memory.data());
    for_each_leaf(layout, record, fill);
    for_each_leaf(layout, record, [&](const slot &member, uint8_t *at) {
        if (member.kind == slot_kind::number)
            choose_number(tested, record, member, at);
    });
    return size_of(tested, record);
}

TEST(adapter_sizes, the_largest_message_has_the_size_that_its_header_gives)
{
    for (std::size_t index = 0; index < adapter_count; ++index) {
        const adapter &tested = adapter_at(index);
        EXPECT_EQ(largest_size(tested), tested.max_size) << tested.name;
    }
}

} // namespace

} // namespace mava_tum_fuzz
