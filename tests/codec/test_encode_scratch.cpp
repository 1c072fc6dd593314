// Messages that do not fit the scratch buffer of an encode, compared with the bytes of an independent builder.
#include "catalogue.h"
#include "codec/message_encode.h"
#include "messages/feature_records_schema.h"
#include "messages/reconciliation_schema.h"
#include "messages/redundancy_group_schema.h"
#include "messages/routes_schema.h"
#include "messages/session_messages_schema.h"
#include "messages/statistics_schema.h"
#include "messages/subscriber_records_schema.h"
#include "support/guarded_buffer.h"
#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <string>
#include <vector>

namespace mava_tum_test
{
namespace
{

TEST(encode_scratch, a_nested_record_with_more_texts_than_fit_is_written_whole)
{
    for (std::size_t count : {1u, 100u, 130u, 140u, 400u, 2000u}) {
        wire_builder service;
        service.varint(1, 1);
        for (std::size_t i = 0; i < count; ++i)
            service.text(5, std::string(60, static_cast<char>('a' + i % 26)));
        wire_builder wire;
        wire.varint(1, 1).length_delimited(3, service).length_delimited(3, service).text(4, "end");
        decoded<mava_tum_rec_sess_replay_resp> got(wire);
        ASSERT_EQ(got.result, MAVA_TUM_OK);
        EXPECT_TRUE(encoded(got.record) == wire.bytes()) << count << " texts";
    }
}

TEST(encode_scratch, an_array_of_more_short_elements_than_fit_is_written_whole)
{
    for (uint64_t count : {50u, 200u, 900u, 3000u}) {
        wire_builder wire;
        for (uint64_t i = 0; i < count; ++i)
            wire.length_delimited(3, wire_builder().varint(1, 1).varint(2, UINT32_MAX - i).varint(3, UINT32_MAX));
        decoded<mava_tum_rec_sess_req> got(wire);
        ASSERT_EQ(got.result, MAVA_TUM_OK);
        EXPECT_TRUE(encoded(got.record) == wire.bytes()) << count << " elements";
    }
}

// A short buffer receives a block completely or not at all, other fields byte by byte.
struct wire_piece {
    byte_vector bytes;
    bool is_block;
};

std::string expected_hex(const std::vector<wire_piece> &pieces, std::size_t capacity)
{
    write_trace expected;
    for (const wire_piece &piece : pieces) {
        const bool fits = expected.bytes.size() + piece.bytes.size() <= capacity;
        for (uint8_t byte : piece.bytes) {
            expected.bytes.push_back(byte);
            expected.written.push_back(fits || !piece.is_block);
        }
    }
    expected.bytes.resize(capacity);
    expected.written.resize(capacity, false);
    return hex_of(expected);
}

// The second block does not fit the scratch buffer after the first; the buffer ends before, in and after each of them.
TEST(encode_scratch, a_block_behind_a_long_one_is_written_whole_or_not_at_all)
{
    const std::size_t first = 8000;
    for (std::size_t second : {300u, 9000u}) {
        const byte_vector x(first, 'x'), y(second, 'y');
        const wire_builder first_head = wire_builder().tag(3, wire_type::length_delimited).bare_varint(first);
        const wire_builder second_head = wire_builder().tag(4, wire_type::length_delimited).bare_varint(second);
        const std::vector<wire_piece> pieces = {{first_head.bytes(), false}, {x, true}, {second_head.bytes(), false},
            {y, true}, {wire_builder().varint(6, 1).bytes(), false}};
        byte_vector wire;
        for (const wire_piece &piece : pieces)
            wire.insert(wire.end(), piece.bytes.begin(), piece.bytes.end());
        decoded<mava_tum_subscriber_qos> got(wire);
        ASSERT_EQ(got.result, MAVA_TUM_OK);
        EXPECT_TRUE(encoded(got.record) == wire);
        for (std::size_t capacity : {second, first + 2, first + 3, first + 6, first + 200, first + second + 5,
                 first + second + 6, first + second + 7})
            EXPECT_TRUE(hex_of(encode_trace(got.record, capacity, wire.size())) == expected_hex(pieces, capacity))
                << second << " into " << capacity;
    }
}

// A text that fills the scratch buffer up to every size near its end, and a bytes field after it.
void expect_end_behind_a_filled_scratch(const mava_tum_bytes &last, const std::string &expected_end)
{
    const std::size_t end_bytes = 2 + last.length;
    for (std::size_t length = 8000; length < 8400; ++length) {
        std::string text(length, 'x');
        mava_tum_sess_oper_resp record = {};
        record.field_8 = text.data();
        record.field_10 = last;
        mark_present(record, 8, 10);
        const byte_vector wire = encoded(record);
        ASSERT_EQ(wire.size(), 1 + 2 + length + end_bytes);
        ASSERT_EQ(hex_of(&wire[wire.size() - end_bytes], end_bytes), expected_end) << length;
    }
}

// Its address may be null. The undefined-behaviour sanitizer detects if it is passed to memcpy.
TEST(encode_scratch, an_empty_block_where_the_scratch_is_full_is_written_as_its_length_alone)
{
    expect_end_behind_a_filled_scratch({}, "52 00");
}

TEST(encode_scratch, a_block_of_one_byte_where_the_scratch_is_full_is_written)
{
    uint8_t byte = 0xAB;
    expect_end_behind_a_filled_scratch({&byte, 1}, "52 01 AB");
}

// ---- the slack ----

// The fast path tests for room before blocks and elements alone, so a message may write no more between two tests than
// its field list allows for.

// The longest text that is written without a test.
char *longest_short_text()
{
    static std::string text(mava_tum::short_block_bytes, 'x');
    return text.data();
}

template <class Record>
void fill(Record &record);

// Each field with the longest value that is written without a test. An array has one element: there is a test before
// each other element.
template <uint32_t Number, auto Member, class Format>
void fill_field(mava_tum::kind::number_field<Number, Member, Format>, auto &record)
{
    record.*Member = std::numeric_limits<typename Format::value>::max();
}

template <uint32_t Number, auto Member>
void fill_field(mava_tum::kind::text<Number, Member>, auto &record)
{
    record.*Member = longest_short_text();
}

template <uint32_t Number, auto Member>
void fill_field(mava_tum::kind::bytes<Number, Member>, auto &record)
{
    record.*Member = {reinterpret_cast<uint8_t *>(longest_short_text()), mava_tum::short_block_bytes};
}

template <uint32_t Number, auto Member>
void fill_field(mava_tum::kind::record<Number, Member>, auto &record)
{
    fill(record.*Member);
}

template <uint32_t Number, auto Member, auto CountMember>
void fill_field(mava_tum::kind::record_array<Number, Member, CountMember>, auto &record)
{
    static typename mava_tum::kind::record_array<Number, Member, CountMember>::nested element{};
    fill(element);
    record.*Member = &element;
    record.*CountMember = 1;
}

template <uint32_t Number, auto Member, auto CountMember>
void fill_field(mava_tum::kind::text_array<Number, Member, CountMember>, auto &record)
{
    static char *element = longest_short_text();
    record.*Member = &element;
    record.*CountMember = 1;
}

template <class Record, class... Field>
void fill_list(mava_tum::field_list<Field...>, Record &record)
{
    (fill_field(Field{}, record), ...);
}

template <class Record>
void fill(Record &record)
{
    fill_list(mava_tum::fields_of<Record>{}, record);
    mava_tum::set_presence(record, mava_tum::own_bits<Record>, mava_tum::own_bits<Record>);
}

// Each of these lengths may take one byte of the two that are reserved.
template <class Field>
constexpr uint32_t lengths_in_field();

template <class... Field>
constexpr uint32_t lengths_in(mava_tum::field_list<Field...>)
{
    return (0 + ... + lengths_in_field<Field>());
}

template <class Field>
constexpr uint32_t lengths_in_field()
{
    if constexpr (requires { typename Field::nested; })
        return 1 + lengths_in(mava_tum::fields_of<typename Field::nested>{});
    else
        return 0;
}

template <class Record>
void expect_the_slack_to_be_what_is_written(const char *name)
{
    Record record{};
    fill(record);
    const uint32_t slack = mava_tum::max_put_bytes<Record>();
    page_end_buffer storage(slack + mava_tum::spill_bytes);
    mava_tum::encode_scratch scratch{storage.data(), storage.data() + slack, nullptr, 0, 0};
    const uint8_t *const end = mava_tum::put_described<Record, mava_tum::codec_description<Record>>(
        record, storage.data(), scratch, mava_tum::nesting::nested);
    EXPECT_FALSE(scratch.failed) << name;
    const std::ptrdiff_t written = end - storage.data();
    EXPECT_LE(written, slack) << name;
    EXPECT_GE(written + lengths_in(mava_tum::fields_of<Record>{}), slack) << name;
}

TEST(encode_slack, every_message_writes_at_most_what_its_field_list_allows_for)
{
    mava_tum_catalogue::for_each_type(mava_tum_catalogue::message_records(), [](auto type) {
        using record = typename decltype(type)::type;
        expect_the_slack_to_be_what_is_written<record>(mava_tum_catalogue::message_of<record>().name);
    });
}

TEST(encode_slack, every_scratch_buffer_has_its_slack_behind_its_limit)
{
    mava_tum_catalogue::for_each_type(mava_tum_catalogue::message_records(), [](auto type) {
        using record = typename decltype(type)::type;
        EXPECT_EQ(mava_tum::scratch_bytes<record> - mava_tum::block_room<record>,
            mava_tum::max_put_bytes<record>() + mava_tum::spill_bytes)
            << mava_tum_catalogue::message_of<record>().name;
    });
}

} // namespace
} // namespace mava_tum_test
