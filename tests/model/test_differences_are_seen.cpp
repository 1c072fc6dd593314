// The comparison reports each kind of difference, made by a schema that is wrong in one place.
#include "model/check_message.h"
#include "model/record_compare.h"
#include "support/hex.h"

#include <gtest/gtest.h>

#include <vector>

namespace mava_tum_model
{

namespace
{

std::size_t index_of(const char *name)
{
    std::size_t index = 0;
    while (all_messages()[index] != find_message(name))
        ++index;
    return index;
}

// The reported difference if `change` changes the model's fields of `name` before both decode `wire`.
template <class change_type>
std::string found_after(const char *name, const char *wire_hex, change_type change)
{
    message wrong = *find_message(name);
    std::vector<field> fields(wrong.fields.begin(), wrong.fields.end());
    change(wrong, fields);
    wrong.fields = fields;
    const wire_bytes wire = mava_tum_test::bytes_of(wire_hex);
    message_case checked;
    checked.message_index = index_of(name);
    checked.seed = 2; // starts from a record of ones
    checked.wire = wire;
    return check_decode(checked, wrong);
}

TEST(comparison, says_nothing_where_nothing_differs)
{
    EXPECT_EQ(found_after("subscriber_v6", "12 02 AA BB 38 01", [](message &, std::vector<field> &) {}), "");
}

TEST(comparison, names_message_operation_member_and_both_results)
{
    const std::string found = found_after(
        "vlan_info", "10 05", [](message &, std::vector<field> &fields) { fields[1].kind = field_kind::fixed32; });
    EXPECT_EQ(found, "vlan_info decode: result: expected -3, actual 0\n  wire 1005\n  case 04000000020000001005");
}

TEST(comparison, sees_a_value_in_another_member)
{
    const std::string found = found_after("vlan_info", "10 05",
        [](message &, std::vector<field> &fields) { std::swap(fields[0].offset, fields[1].offset); });
    EXPECT_NE(found.find("vlan_info decode: .field_1: expected 0x0, actual 0x5"), std::string::npos) << found;
}

TEST(comparison, sees_a_spare_bit_that_was_not_kept)
{
    const std::string found = found_after("vlan_info", "", [](message &, std::vector<field> &fields) {
        fields.push_back({8, field_kind::varint32, 4});
    });
    EXPECT_NE(found.find(".presence_mask: expected 0x7c, actual 0xfc"), std::string::npos) << found;
}

TEST(comparison, sees_another_allocation_size)
{
    const std::string found = found_after("subscriber_acl", "12 01 41",
        [](message &, std::vector<field> &fields) { fields[1].kind = field_kind::bytes; });
    EXPECT_NE(found.find("allocator call 1: expected 1 bytes, actual 2 bytes"), std::string::npos) << found;
}

TEST(comparison, sees_an_allocation_that_was_not_made)
{
    const std::string found = found_after(
        "subscriber_acl", "12 01 41", [](message &, std::vector<field> &fields) { fields.erase(fields.begin() + 1); });
    EXPECT_NE(found.find("allocator call 1: expected no such call, actual 2 bytes"), std::string::npos) << found;
}

TEST(comparison, sees_a_difference_inside_an_element)
{
    message element = *find_message("rec_session_state");
    std::vector<field> fields(element.fields.begin(), element.fields.end());
    std::swap(fields[0].offset, fields[2].offset);
    element.fields = fields;
    const std::string found = found_after("rec_sess_resp", "12 00 12 02 08 07",
        [&element](message &, std::vector<field> &of_parent) { of_parent[1].nested = &element; });
    EXPECT_NE(found.find(".field_2[1].field_1: expected 0x7, actual 0x0"), std::string::npos) << found;
}

TEST(comparison, sees_releases_in_another_order)
{
    block_log library;
    block_log model;
    void *blocks[] = {block_log::allocate(1, &library), block_log::allocate(1, &library),
        block_log::allocate(1, &model), block_log::allocate(1, &model)};
    block_log::release(blocks[0], &library);
    block_log::release(blocks[1], &library);
    block_log::release(blocks[3], &model);
    block_log::release(blocks[2], &model);
    EXPECT_EQ(block_log::compare_releases(library, model), "release call 1: expected block 2, actual block 1");
}

TEST(comparison, sees_a_block_released_twice)
{
    block_log library;
    block_log model;
    void *ours = block_log::allocate(1, &library);
    void *theirs = block_log::allocate(1, &model);
    block_log::release(ours, &library);
    block_log::release(theirs, &model);
    EXPECT_EQ(block_log::compare_releases(library, model), "");
    EXPECT_FALSE(library.released_wrongly());
    block_log::release(ours, &library);
    EXPECT_TRUE(library.released_wrongly());
    EXPECT_EQ(
        block_log::compare_releases(library, model), "release call 2: expected no such call, actual block 1 again");
}

TEST(comparison, tells_a_block_from_an_earlier_one_at_the_same_address)
{
    block_log log;
    void *given = nullptr;
    // Until the address of a released block is returned again, which every allocator does soon.
    void *first = block_log::allocate(24, &log);
    block_log::release(first, &log);
    for (int attempt = 0; attempt < 1000 && given != first; ++attempt)
        given = block_log::allocate(24, &log);
    if (given != first)
        GTEST_SKIP() << "this allocator gave the address only once: sanitizers hold released memory back";
    EXPECT_GT(log.index_of(given), 0u);
    const std::size_t before = log.outstanding();
    block_log::release(given, &log);
    EXPECT_EQ(log.outstanding(), before - 1);
}

} // namespace

} // namespace mava_tum_model
