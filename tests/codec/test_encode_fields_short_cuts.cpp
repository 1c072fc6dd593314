// A short cut has the same result as the slower path, so the output does not show whether it is used. These tests call
// the short cuts directly.
#include "messages/reconciliation_schema.h"
#include "messages/routes_schema.h"
#include "messages/session_messages_schema.h"
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using mava_tum::decode_position;
using mava_tum::encode_scratch;
using mava_tum::field_at;
using mava_tum::nesting;

// ---- encode: the fast writer alone ----

// Decodes `wire` and encodes it into `capacity` bytes with the fast writer only; empty if the fast writer fails.
template <class record_type>
byte_vector written_fast(const byte_vector &wire, std::size_t capacity, uint32_t flags = MAVA_TUM_ALIAS)
{
    decoded<record_type> got(wire, {.flags = flags});
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    byte_vector storage(mava_tum::scratch_bytes<record_type>), buffer(capacity);
    encode_scratch scratch{
        storage.data(), storage.data() + mava_tum::block_room<record_type>, buffer.data(), capacity, 0};
    EXPECT_FALSE(scratch.failed);
    const uint8_t *const at = mava_tum::put_described<record_type, mava_tum::codec_description<record_type>>(
        got.record, storage.data(), scratch, nesting::message);
    if (scratch.failed || mava_tum::hand_over(scratch, at) == nullptr)
        return {};
    buffer.resize(scratch.handed_over);
    return buffer;
}

TEST(short_cuts, the_fast_writer_writes_blocks_of_every_length_into_a_buffer_that_just_holds_them)
{
    for (std::size_t length : {0u, 1u, 63u, 64u, 65u, 127u, 128u, 8000u, 9000u, 20000u}) {
        const byte_vector block(length, 'x');
        for (const byte_vector &wire : {wire_builder().length_delimited(2, block).varint(7, 1).bytes(),
                 wire_builder().varint(1, 1).length_delimited(4, block).length_delimited(6, block).bytes()})
            EXPECT_TRUE(written_fast<mava_tum_subscriber_v6>(wire, wire.size()) == wire) << length;
        const byte_vector wire = wire_builder().length_delimited(3, block).length_delimited(4, block).bytes();
        EXPECT_TRUE(written_fast<mava_tum_subscriber_qos>(wire, wire.size()) == wire) << length;
    }
}

TEST(short_cuts, the_fast_writer_writes_nested_records_and_arrays_of_any_length)
{
    for (std::size_t count : {1u, 30u, 300u, 3000u}) {
        wire_builder routes, services;
        for (std::size_t i = 0; i < count; ++i) {
            routes.length_delimited(4, wire_builder().varint(1, i).text(2, std::string(i % 70, 'x')));
            services.length_delimited(3, wire_builder().varint(1, i).text(5, "one").text(5, "another"));
        }
        EXPECT_TRUE(written_fast<mava_tum_sub_route>(routes.bytes(), routes.bytes().size()) == routes.bytes()) << count;
        services.text(4, "end");
        EXPECT_TRUE(
            written_fast<mava_tum_rec_sess_replay_resp>(services.bytes(), services.bytes().size()) == services.bytes())
            << count;
    }
}

TEST(short_cuts, elements_of_the_message_start_anew_early_and_those_of_nested_records_do_not)
{
    uint8_t storage[8192];
    const encode_scratch large{storage, storage + sizeof storage, nullptr, 0, 0};
    EXPECT_EQ(large.element_mark(nesting::message), storage + 2048);
    EXPECT_EQ(large.element_mark(nesting::nested), storage + sizeof storage);
    const encode_scratch small{storage, storage + 1000, nullptr, 0, 0};
    EXPECT_EQ(small.element_mark(nesting::message), storage + 1000);
    EXPECT_EQ(small.element_mark(nesting::nested), storage + 1000);
}

TEST(short_cuts, a_nested_record_without_bits_has_no_content)
{
    mava_tum_session_data record{};
    EXPECT_FALSE(mava_tum::has_content(record));
    record.presence_mask = static_cast<decltype(record.presence_mask)>(all_spare_bits<mava_tum_session_data>());
    EXPECT_FALSE(mava_tum::has_content(record));
    mark_present(record, 1);
    EXPECT_TRUE(mava_tum::has_content(record));
}

// ---- encode: fixed32 ----

TEST(short_cuts, a_fixed32_stands_behind_tags_of_one_and_two_bytes)
{
    uint8_t bytes[32] = {};
    EXPECT_EQ(mava_tum::put_fixed32(bytes, {0x15, 1}, 0x04030201), bytes + 5);
    EXPECT_EQ(hex_of(bytes, 5), "15 01 02 03 04");
    EXPECT_EQ(mava_tum::put_fixed32(bytes, {0x0185, 2}, 0x04030201), bytes + 6);
    EXPECT_EQ(hex_of(bytes, 6), "85 01 01 02 03 04");
    EXPECT_EQ(mava_tum::store_fixed32(bytes, 0x04030201), bytes + 4);
    EXPECT_EQ(hex_of(bytes, 4), "01 02 03 04");
}

// ---- decode ----

TEST(short_cuts, a_tag_of_two_bytes_is_recognised_where_it_stands)
{
    using field_18 = field_at<mava_tum_l2tp_data, 18>;
    using field_19 = field_at<mava_tum_l2tp_data, 19>;
    const uint8_t wire[] = {0x9A, 0x01};
    const decode_position here{wire, wire + sizeof wire, wire[0], 0, 0};
    EXPECT_TRUE(here.is_at<field_19>());
    EXPECT_FALSE(here.is_at<field_18>());
    const uint8_t other_byte[] = {0x9A, 0x02};
    EXPECT_FALSE((decode_position{other_byte, other_byte + 2, other_byte[0], 0, 0}.is_at<field_19>()));
    const decode_position cut{wire, wire + 1, wire[0], 0, 0};
    EXPECT_FALSE(cut.is_at<field_19>());
}

TEST(short_cuts, a_tag_that_is_taken_as_if_in_its_shortest_form_is_recognised_by_its_mark)
{
    const uint8_t wire[] = {0x9A, 0x81, 0x00};
    const decode_position marked{wire + 1, wire + sizeof wire, mava_tum::assumed_tag | 0x9A, 0, 0};
    EXPECT_TRUE((marked.is_at<field_at<mava_tum_l2tp_data, 19>>()));
    EXPECT_FALSE((marked.is_at<field_at<mava_tum_l2tp_data, 18>>()));
}

TEST(short_cuts, a_payload_with_a_length_of_one_byte_that_lies_inside_the_input_is_short)
{
    const uint8_t whole[] = {0x02, 0xAA, 0xBB};
    EXPECT_TRUE(mava_tum::is_short_payload(whole, whole + 3));
    EXPECT_FALSE(mava_tum::is_short_payload(whole, whole + 2));
    EXPECT_FALSE(mava_tum::is_short_payload(whole, whole));
    const uint8_t empty[] = {0x00};
    EXPECT_TRUE(mava_tum::is_short_payload(empty, empty + 1));
}

} // namespace
} // namespace mava_tum_test
