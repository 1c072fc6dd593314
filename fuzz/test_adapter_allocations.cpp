// No adapter calls an allocator, on any input: all inputs of the corpus, messages of all kinds, mutated ones, and lists
// that would need hundreds of megabytes in a codec record.
#include "adapter_records.h"
#include "check_adapter.h"
#include "model/wire_maker.h"
#include "recorded_inputs.h"
#include "support/heap_count.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <vector>

namespace mava_tum_fuzz
{

namespace
{

using namespace mava_tum_model;
using mava_tum_test::heap_calls_of;

// Decodes the wire and encodes the result.
std::size_t calls_of(const adapter &tested, const wire_bytes &wire)
{
    alignas(8) static uint8_t received[17620], sent[17620];
    static uint8_t buffer[1 << 15];
    return heap_calls_of([&] {
        tested.decode(wire.data(), static_cast<uint32_t>(wire.size()), received);
        make_record_to_send(tested, sent, received);
        const uint64_t size = tested.encode(sent, nullptr, 0);
        tested.encode(sent, buffer, sizeof buffer);
        tested.encode(sent, buffer, static_cast<uint32_t>(size / 2));
    });
}

class adapter_allocations : public testing::TestWithParam<std::size_t>
{
protected:
    const adapter &tested() const
    {
        return adapter_at(GetParam());
    }
};

std::string name_of(const testing::TestParamInfo<std::size_t> &info)
{
    return adapter_at(info.param).name;
}

INSTANTIATE_TEST_SUITE_P(of, adapter_allocations, testing::Range(std::size_t{0}, adapter_count), name_of);

// Through a volatile pointer: the compiler would remove an unused block.
template <class Function>
Function *opaque(Function *function)
{
    Function *volatile hidden = function;
    return hidden;
}

TEST(heap_count, sees_each_allocator)
{
    void *block = nullptr;
    EXPECT_EQ(heap_calls_of([&] { block = opaque(std::malloc)(1); }), 1u);
    EXPECT_EQ(heap_calls_of([&] { block = opaque(std::realloc)(block, 100); }), 1u);
    opaque(std::free)(block);
    EXPECT_EQ(heap_calls_of([&] { block = opaque(std::calloc)(1, 1); }), 1u);
    opaque(std::free)(block);
    EXPECT_EQ(heap_calls_of([&] { block = ::operator new(1); }), 1u);
    ::operator delete(block);
}

const std::vector<wire_bytes> &corpus()
{
    static const auto inputs = [] {
        constexpr std::size_t header_bytes = 8;
        std::vector<wire_bytes> read;
        for (const std::vector<uint8_t> &input : read_inputs(MAVA_TUM_CORPUS_OF_ADAPTERS)) {
            if (input.size() >= header_bytes)
                read.emplace_back(input.begin() + header_bytes, input.end());
        }
        return read;
    }();
    return inputs;
}

TEST_P(adapter_allocations, none_on_any_input_of_the_corpus)
{
    if (!std::filesystem::exists(MAVA_TUM_CORPUS_OF_ADAPTERS))
        GTEST_SKIP() << "the recorded inputs are not in this tree";
    ASSERT_GT(corpus().size(), 1000u);
    for (const wire_bytes &wire : corpus())
        ASSERT_EQ(calls_of(tested(), wire), 0u) << testing::PrintToString(wire);
}

TEST_P(adapter_allocations, none_on_messages_of_any_kind)
{
    for (const message *of : all_messages()) {
        for (const wire_bytes &wire : seed_wires(*of))
            ASSERT_EQ(calls_of(tested(), wire), 0u) << of->name << " " << testing::PrintToString(wire);
    }
}

TEST_P(adapter_allocations, none_on_mutated_messages)
{
    const message &of = message_of_adapter(GetParam());
    random_source random(GetParam() + 77);
    const std::vector<wire_bytes> seeds = seed_wires(of);
    for (int round = 0; round < 2000; ++round) {
        wire_bytes wire = random.one_in(2) ? random_wire(of, random) : seeds[random.below(seeds.size())];
        for (uint64_t changes = random.below(6); changes > 0; --changes)
            mutate_wire(of, wire, random);
        ASSERT_EQ(calls_of(tested(), wire), 0u) << testing::PrintToString(wire);
    }
}

// Field 4 of a replay request: half a million sessions.
TEST_P(adapter_allocations, none_on_a_megabyte_of_empty_elements)
{
    constexpr std::size_t elements = (1 << 19) / MAVA_TUM_WORK_DIVISOR;
    for (uint8_t field = 1; field < 16; ++field) {
        wire_bytes wire(2 * elements, 0);
        for (std::size_t at = 0; at < wire.size(); at += 2)
            wire[at] = static_cast<uint8_t>(field << 3 | 2);
        ASSERT_EQ(calls_of(tested(), wire), 0u) << "field " << int{field};
    }
}

} // namespace

} // namespace mava_tum_fuzz
