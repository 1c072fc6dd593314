// Rules for the classes of all messages, with every field filled. filled_records.h is written by the build.
#include "counting_resource.h"
#include "filled_records.h"
#include "support/heap_count.h"

#include <array>

namespace mava_tum_test
{
namespace
{

template <class Record>
class cpp_every_message : public testing::Test
{
protected:
    static std::vector<std::uint8_t> full_wire()
    {
        Record record;
        fill(record);
        return record.encode();
    }
};

template <class Tuple>
struct types_in;

template <class... Record>
struct types_in<std::tuple<Record...>> {
    using type = testing::Types<Record...>;
};

struct names_of_messages {
    template <class Record>
    static std::string GetName(int)
    {
        return name_of<Record>;
    }
};

using messages = types_in<every_message>::type;
TYPED_TEST_SUITE(cpp_every_message, messages, names_of_messages);

static_assert(std::tuple_size_v<every_message> == 40, "a class for each message of the codec");

TYPED_TEST(cpp_every_message, has_no_field_in_the_beginning_and_none_on_the_wire)
{
    const TypeParam record;
    expect_absent(record);
    EXPECT_EQ(record.encoded_size(), 0U);
}

TYPED_TEST(cpp_every_message, shows_every_field_as_it_was_set)
{
    TypeParam record;
    fill(record);
    expect_filled(record);
}

TYPED_TEST(cpp_every_message, shows_every_field_of_the_wire)
{
    const auto wire = this->full_wire();
    TypeParam decoded;
    ASSERT_EQ(decoded.decode(wire), tum::result::ok);
    expect_filled(decoded);
    EXPECT_EQ(decoded.encode(), wire);
}

TYPED_TEST(cpp_every_message, has_no_field_left_when_each_was_taken_away)
{
    TypeParam record;
    fill(record);
    empty(record);
    expect_absent(record);
    EXPECT_EQ(record.encoded_size(), 0U);
}

TYPED_TEST(cpp_every_message, keeps_its_content_when_it_is_moved_and_leaves_an_empty_record_behind)
{
    TypeParam first;
    fill(first);
    TypeParam second(std::move(first));
    expect_filled(second);
    expect_absent(first);
    TypeParam third;
    fill(third);
    third = std::move(second);
    expect_filled(third);
    expect_absent(second);
    fill(second); // still usable
    expect_filled(second);
}

TYPED_TEST(cpp_every_message, stays_as_it_is_when_it_is_moved_to_itself)
{
    TypeParam record;
    fill(record);
    TypeParam &same = record;
    record = std::move(same);
    expect_filled(record);
}

TYPED_TEST(cpp_every_message, lives_on_in_a_clone_when_it_is_gone)
{
    std::optional<TypeParam> clone;
    {
        TypeParam record;
        fill(record);
        clone = record.clone();
    }
    ASSERT_TRUE(clone);
    expect_filled(*clone);
}

TYPED_TEST(cpp_every_message, equals_a_record_with_the_same_fields_and_no_other)
{
    TypeParam record;
    fill(record);
    std::optional<TypeParam> clone = record.clone();
    ASSERT_TRUE(clone);
    EXPECT_TRUE(record == *clone && record.view() == *clone && !(record != clone->view()));
    TypeParam decoded;
    ASSERT_EQ(decoded.decode(record.encode()), tum::result::ok);
    EXPECT_EQ(decoded, record);
    EXPECT_NE(record, TypeParam());
    const auto mask = record.c_record().presence_mask;
    for (unsigned bit = 0; mask >> bit != 0; ++bit) {
        clone->mutable_c_record().presence_mask = static_cast<std::decay_t<decltype(mask)>>(mask & ~(1U << bit));
        EXPECT_EQ(record == *clone, (mask >> bit & 1U) == 0) << "bit " << bit;
    }
}

TYPED_TEST(cpp_every_message, gives_every_block_back_whichever_is_refused_in_a_decode)
{
    const auto wire = this->full_wire();
    counting_resource resource;
    std::size_t refused = 0;
    for (tum::result code = tum::result::no_memory; code == tum::result::no_memory;) {
        resource.refuse_block(++refused);
        TypeParam record(&resource);
        code = record.decode(wire);
        ASSERT_TRUE(code == tum::result::ok || code == tum::result::no_memory);
        EXPECT_EQ(code == tum::result::no_memory, resource.asked() >= refused);
    }
    EXPECT_EQ(resource.blocks_out(), 0U);
}

TYPED_TEST(cpp_every_message, is_cloned_whole_or_not_at_all)
{
    TypeParam record;
    fill(record);
    counting_resource resource;
    std::optional<TypeParam> clone;
    for (std::size_t refused = 1; !clone; ++refused) {
        resource.refuse_block(refused);
        clone = record.clone(&resource);
        EXPECT_TRUE(clone || resource.blocks_out() == 0);
    }
    expect_filled(*clone);
}

// The buffer cannot grow: a block that does not fit is refused.
TYPED_TEST(cpp_every_message, is_decoded_and_encoded_without_a_call_of_the_heap_in_a_buffer_of_the_callers)
{
    const auto wire = this->full_wire();
    std::vector<std::uint8_t> again(wire.size());
    std::array<std::byte, 32 * 1024> buffer;
    const std::size_t calls_before = heap_calls();
    std::pmr::monotonic_buffer_resource resource(buffer.data(), buffer.size(), std::pmr::null_memory_resource());
    TypeParam remembered(&resource);
    const tum::result first = remembered.decode(wire);
    TypeParam kept(tum::memory(tum::monotonic, &resource));
    const tum::result second = kept.decode(tum::alias, wire);
    const tum::encoded encoded = kept.encode(again);
    EXPECT_EQ(heap_calls(), calls_before);
    ASSERT_EQ(first, tum::result::ok);
    ASSERT_EQ(second, tum::result::ok);
    expect_filled(remembered);
    expect_filled(kept);
    EXPECT_TRUE(encoded);
    EXPECT_EQ(again, wire);
}

TEST(cpp_heap_count, sees_the_heap_of_a_record_without_memory_of_the_callers)
{
    tum::rec_resp response;
    const std::size_t calls_before = heap_calls();
    ASSERT_EQ(response.set_field_2("text"), tum::result::ok);
    EXPECT_EQ(heap_calls(), calls_before + 1);
}

} // namespace
} // namespace mava_tum_test
