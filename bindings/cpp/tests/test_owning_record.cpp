// The ownership of blocks by records.
#include "counting_resource.h"
#include "field_values.h"
#include "support/hex.h"
#include "support/recording_allocator.h"

#include <array>

namespace mava_tum_test
{
namespace
{

// Field 4 of subscriber_li, and its field 8, are bytes; so is field 6 of a session, whose name is in its session data.
std::vector<std::uint8_t> session_wire()
{
    tum::session_context session;
    EXPECT_EQ(session.set_field_6(bytes_value(6)), tum::result::ok);
    EXPECT_EQ(session.edit_session_data().set_field_5("user@example.com"), tum::result::ok);
    for (auto qos : session.make_qos(3))
        EXPECT_EQ(qos.set_field_3("gold"), tum::result::ok);
    return session.encode();
}

bool lies_in(const tum::bytes_view &part, const std::vector<std::uint8_t> &whole)
{
    return part.data() >= whole.data() && part.data() + part.size() <= whole.data() + whole.size();
}

TEST(cpp_owning_record, copies_bytes_unless_it_is_told_to_alias_them)
{
    const auto wire = session_wire();
    tum::session_context session;
    ASSERT_EQ(session.decode(wire), tum::result::ok);
    EXPECT_FALSE(lies_in(*session.field_6(), wire));
    ASSERT_EQ(session.decode(tum::alias, wire), tum::result::ok);
    EXPECT_TRUE(lies_in(*session.field_6(), wire));
    EXPECT_TRUE(is_bytes_value(session.field_6(), 6));
}

TEST(cpp_owning_record, obtains_no_block_for_bytes_that_it_aliases_and_never_releases_them)
{
    const auto wire = session_wire();
    counting_resource resource;
    {
        tum::session_context copied(&resource);
        ASSERT_EQ(copied.decode(wire), tum::result::ok);
        EXPECT_EQ(resource.blocks_out(), 6U); // the bytes, the name, the array, three texts
        tum::session_context aliasing(&resource);
        ASSERT_EQ(aliasing.decode(tum::alias, wire), tum::result::ok);
        EXPECT_EQ(resource.blocks_out(), 6U + 5U);
    }
    EXPECT_EQ(resource.blocks_out(), 0U);
}

TEST(cpp_owning_record, clones_bytes_that_the_original_only_aliases)
{
    auto wire = session_wire();
    std::optional<tum::session_context> clone;
    {
        tum::session_context session;
        ASSERT_EQ(session.decode(tum::alias, wire), tum::result::ok);
        clone = session.clone();
    }
    EXPECT_FALSE(lies_in(*clone->field_6(), wire));
    std::fill(wire.begin(), wire.end(), std::uint8_t{0});
    EXPECT_TRUE(is_bytes_value(clone->field_6(), 6));
}

// Two sessions inside a replay; the access list of the second occurs twice, and the blocks of its first occurrence are
// dropped.
TEST(cpp_owning_record, gives_back_what_a_decode_drops)
{
    const auto wire = bytes_of("22 08 62 04 12 02 69 6E 62 00");
    counting_resource resource;
    {
        tum::rec_sess_replay_req request(&resource);
        ASSERT_EQ(request.decode(wire), tum::result::ok);
        EXPECT_EQ(resource.blocks_out(), 2U); // the array, and the dropped text
        EXPECT_FALSE(request.field_4()[0].acl().field_2());
    }
    EXPECT_EQ(resource.blocks_out(), 0U);
}

TEST(cpp_owning_record, keeps_the_fields_before_a_fault_and_gives_them_back)
{
    const auto wire = bytes_of("0A 02 61 62 12 05 08"); // a name, then a truncated record
    counting_resource resource;
    {
        tum::service_stats stats(&resource);
        EXPECT_EQ(stats.decode(wire), tum::result::truncated);
        EXPECT_EQ(stats.field_1(), "ab");
        EXPECT_FALSE(stats.field_2());
    }
    EXPECT_EQ(resource.blocks_out(), 0U);
}

TEST(cpp_owning_record, gives_its_blocks_back_before_it_decodes_anew)
{
    const auto wire = session_wire();
    counting_resource resource;
    tum::session_context session(&resource);
    for (int i = 0; i < 3; ++i) {
        ASSERT_EQ(session.decode(wire), tum::result::ok);
        EXPECT_EQ(resource.blocks_out(), 6U);
    }
    session.clear();
    EXPECT_EQ(resource.blocks_out(), 0U);
    EXPECT_FALSE(session.field_6());
}

TEST(cpp_owning_record, gives_its_own_blocks_back_when_another_is_moved_to_it)
{
    const auto wire = session_wire();
    counting_resource first_resource;
    counting_resource second_resource;
    tum::session_context first(&first_resource);
    ASSERT_EQ(first.decode(wire), tum::result::ok);
    {
        tum::session_context second(&second_resource);
        ASSERT_EQ(second.decode(wire), tum::result::ok);
        first = std::move(second);
    }
    EXPECT_EQ(first_resource.blocks_out(), 0U);
    EXPECT_EQ(second_resource.blocks_out(), 6U);
    EXPECT_EQ(first.session_data().field_5(), "user@example.com");
}

TEST(cpp_owning_record, is_empty_when_it_cannot_be_copied_whole)
{
    tum::session_context session;
    ASSERT_EQ(session.decode(session_wire()), tum::result::ok);
    counting_resource resource;
    tum::session_context copy(&resource);
    ASSERT_EQ(copy.set_field_6(bytes_value(1)), tum::result::ok);
    resource.refuse_block(2);
    EXPECT_EQ(copy.copy_from(session), tum::result::no_memory);
    EXPECT_EQ(copy.encoded_size(), 0U);
    EXPECT_EQ(resource.blocks_out(), 0U);
}

TEST(cpp_owning_record, is_the_same_after_it_was_copied_from_itself)
{
    const auto wire = session_wire();
    tum::session_context session;
    ASSERT_EQ(session.decode(wire), tum::result::ok);
    EXPECT_EQ(session.copy_from(session.view()), tum::result::ok);
    EXPECT_EQ(session.encode(), wire);
}

TEST(cpp_owning_record, copies_a_record_from_within_another)
{
    tum::rec_sess_replay_req request;
    for (auto session : request.make_field_4(2))
        session.set_feature_mask(5);
    tum::session_context session;
    ASSERT_EQ(session.copy_from(request.field_4()[1]), tum::result::ok);
    EXPECT_EQ(session.feature_mask(), 5U);
}

TEST(cpp_owning_record, copies_a_record_that_was_filled_in_c)
{
    mava_tum_service_stats in_c = {};
    char name[] = "voice";
    in_c.field_1 = name;
    in_c.presence_mask = 1;
    tum::service_stats stats;
    ASSERT_EQ(stats.copy_from(tum::service_stats_view(in_c)), tum::result::ok);
    name[0] = 'V';
    EXPECT_EQ(stats.field_1(), "voice");
}

TEST(cpp_owning_record, never_releases_a_pointer_that_was_set_past_the_setters)
{
    char name[] = "voice";
    tum::service_stats stats;
    stats.mutable_c_record().field_1 = name;
    stats.mutable_c_record().presence_mask = 1;
    EXPECT_EQ(stats.field_1(), "voice");
    stats.clear(); // the address sanitizer detects an error
    EXPECT_FALSE(stats.field_1());
}

TEST(cpp_owning_record, is_made_from_a_view_or_an_editor_of_a_record_within_another)
{
    tum::rec_sess_replay_req replay;
    ASSERT_EQ(replay.add_field_4()->edit_session_data().set_field_5("name"), tum::result::ok);
    counting_resource resource;
    {
        std::optional<tum::session_context> of_view = replay.field_4()[0].clone(&resource);
        std::optional<tum::session_data> of_editor = replay.edit_field_4()[0].edit_session_data().clone(&resource);
        replay.clear();
        ASSERT_TRUE(of_view && of_editor);
        EXPECT_EQ(of_view->session_data().field_5(), "name");
        EXPECT_EQ(of_editor->field_5(), "name");
        EXPECT_EQ(resource.blocks_out(), 2U);
        resource.refuse_block(1);
        EXPECT_FALSE(of_view->session_data().clone(&resource));
    }
    const std::optional<tum::session_data> of_nothing = tum::session_data_view().clone();
    ASSERT_TRUE(of_nothing);
    EXPECT_EQ(of_nothing->encoded_size(), 0U);
}

TEST(cpp_owning_record, compacted_gives_back_the_blocks_of_replaced_values)
{
    counting_resource resource;
    tum::session_context session(&resource);
    for (int i = 0; i < 10; ++i)
        ASSERT_EQ(session.set_field_6(bytes_value(1)), tum::result::ok);
    for (int i = 0; i < 5; ++i)
        ASSERT_TRUE(session.add_qos());
    const auto wire = session.encode();
    ASSERT_EQ(resource.blocks_out(), 14U);
    ASSERT_EQ(session.compact(), tum::result::ok);
    EXPECT_EQ(resource.blocks_out(), 2U);
    EXPECT_EQ(session.encode(), wire);
    ASSERT_TRUE(session.add_qos());
    EXPECT_EQ(session.qos().size(), 6U);
}

TEST(cpp_owning_record, compacted_owns_the_bytes_that_it_aliased)
{
    auto wire = session_wire();
    tum::session_context session;
    ASSERT_EQ(session.decode(tum::alias, wire), tum::result::ok);
    ASSERT_EQ(session.compact(), tum::result::ok);
    std::fill(wire.begin(), wire.end(), std::uint8_t{0});
    EXPECT_TRUE(is_bytes_value(session.field_6(), 6));
}

TEST(cpp_owning_record, stays_as_it_is_when_it_cannot_be_compacted)
{
    counting_resource resource;
    tum::session_context session(&resource);
    const auto wire = session_wire();
    ASSERT_EQ(session.decode(wire), tum::result::ok);
    resource.refuse_block(3);
    EXPECT_EQ(session.compact(), tum::result::no_memory);
    EXPECT_EQ(session.encode(), wire);
    EXPECT_EQ(resource.blocks_out(), 6U);
}

TEST(cpp_owning_record, compacted_asks_for_nothing_where_no_block_goes_back)
{
    std::array<std::byte, 4096> buffer;
    std::pmr::monotonic_buffer_resource resource(buffer.data(), buffer.size(), std::pmr::null_memory_resource());
    tum::session_context session(tum::memory(tum::monotonic, &resource));
    ASSERT_EQ(session.decode(session_wire()), tum::result::ok);
    const char *const name = session.session_data().field_5()->data();
    EXPECT_EQ(session.compact(), tum::result::ok);
    EXPECT_EQ(session.session_data().field_5()->data(), name);
    tum::vlan_info vlan;
    EXPECT_EQ(vlan.compact(), tum::result::ok);
}

TEST(cpp_owning_record, takes_its_blocks_from_callbacks_and_hands_them_back)
{
    recording_allocator allocator; // fails the test if a block is not released
    tum::session_context session(tum::memory(allocator.allocate, allocator.release, allocator.context()));
    ASSERT_EQ(session.decode(session_wire()), tum::result::ok);
    EXPECT_EQ(allocator.outstanding_count(), 6U);
    tum::session_context moved = std::move(session);
    EXPECT_EQ(allocator.outstanding_count(), 6U);
    moved = tum::session_context();
    EXPECT_EQ(allocator.outstanding_count(), 0U);
}

TEST(cpp_owning_record, without_a_release_callback_gives_nothing_back_and_adds_nothing_to_a_block)
{
    recording_allocator allocator;
    allocator.allow_outstanding();
    const auto wire = session_wire();
    {
        tum::session_context session(tum::memory(allocator.allocate, nullptr, allocator.context()));
        ASSERT_EQ(session.decode(wire), tum::result::ok);
    }
    recording_allocator beside;
    mava_tum_session_context in_c = {};
    ASSERT_EQ(mava_tum_session_context_decode_ext(&in_c, wire.data(), wire.size(), beside.allocate, &beside, 0), 0);
    mava_tum_session_context_free_ext(&in_c, beside.release, &beside, 0);
    EXPECT_EQ(allocator.outstanding_count(), 6U);
    EXPECT_EQ(allocator.requested_sizes(), beside.requested_sizes());
}

// The weakest alignment that the codec allows. The undefined behaviour sanitizer detects a stronger requirement of the
// layer.
TEST(cpp_owning_record, takes_blocks_that_are_aligned_for_a_record_and_no_better)
{
    alignas(16) static std::byte room[4096];
    std::size_t used = 8;
    const auto allocate = [](std::uint64_t size, void *context) -> void * {
        std::size_t &taken = *static_cast<std::size_t *>(context);
        void *const block = room + taken;
        taken += (static_cast<std::size_t>(size) + 15) / 16 * 16;
        return taken <= sizeof room ? block : nullptr;
    };
    tum::session_context session(tum::memory(
        allocate, [](void *, void *) {}, &used));
    ASSERT_EQ(session.decode(session_wire()), tum::result::ok);
    EXPECT_EQ(session.qos()[2].field_3(), "gold");
}

TEST(cpp_owning_record, of_a_message_that_owns_nothing_asks_for_no_memory)
{
    counting_resource resource;
    tum::session_delete request(&resource);
    ASSERT_EQ(request.decode(bytes_of("08 01")), tum::result::ok);
    EXPECT_EQ(resource.asked(), 0U);
    EXPECT_EQ(request.own_blocks(), nullptr);
}

static_assert(!std::is_copy_constructible_v<tum::session_context>, "a copy is asked for by name: clone()");
static_assert(!std::is_copy_assignable_v<tum::session_context>);
static_assert(std::is_nothrow_move_constructible_v<tum::session_context>);
static_assert(std::is_nothrow_move_assignable_v<tum::session_context>);
static_assert(std::is_nothrow_default_constructible_v<tum::session_context>);

} // namespace
} // namespace mava_tum_test
