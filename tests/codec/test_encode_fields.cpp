// Encoding without a codec record: the bytes are those of the codec record with the same contents, into every buffer.
#include "codec/message_encode.h"
#include "messages/session_messages_schema.h"
#include "support/guarded_buffer.h"
#include "support/record_calls.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace mava_tum_test
{
namespace
{

template <class Message, class Description, class Source>
uint64_t encode(const Source &source, uint8_t *buffer, uint64_t capacity)
{
    return mava_tum::encode_described<Message, Description>(source, {buffer, capacity});
}

// ---- texts in arrays ----

template <std::size_t Size>
struct text_source {
    char text[Size];
};

struct text_fields {
    template <class Fields, std::size_t Size>
    static void describe(Fields &fields, const text_source<Size> &source)
    {
        fields.template number<1>(7u);
        fields.template array_text<2>(source.text);
    }
};

template <std::size_t Size>
byte_vector encode_text(const text_source<Size> &source)
{
    byte_vector wire(encode<mava_tum_subscriber_httpr, text_fields>(source, nullptr, 0));
    EXPECT_EQ((encode<mava_tum_subscriber_httpr, text_fields>(source, wire.data(), wire.size())), wire.size());
    return wire;
}

// Every text that fits the array, followed by non-zero bytes; the array ends at an inaccessible page.
template <std::size_t Size>
void expect_each_length_to_be_sent()
{
    page_end_buffer memory(sizeof(text_source<Size>));
    auto &source = *reinterpret_cast<text_source<Size> *>(memory.data());
    for (std::size_t length = 0; length < Size; ++length) {
        std::memset(source.text, 'x', Size);
        source.text[length] = '\0';
        byte_vector expected = {0x08, 0x07, 0x12};
        if (length >= 128)
            expected.push_back(static_cast<uint8_t>(length % 128 + 128));
        expected.push_back(static_cast<uint8_t>(length < 128 ? length : length / 128));
        expected.insert(expected.end(), length, 'x');
        ASSERT_EQ(hex_of(encode_text(source)), hex_of(expected)) << Size << " " << length;
    }
}

TEST(encode_fields, a_text_of_each_length_is_sent_up_to_its_nul)
{
    expect_each_length_to_be_sent<1>();
    expect_each_length_to_be_sent<8>();
    expect_each_length_to_be_sent<15>();
    expect_each_length_to_be_sent<16>();
    expect_each_length_to_be_sent<17>();
    expect_each_length_to_be_sent<33>();
    expect_each_length_to_be_sent<36>();
    expect_each_length_to_be_sent<64>();
    expect_each_length_to_be_sent<65>();
    expect_each_length_to_be_sent<68>();
    expect_each_length_to_be_sent<256>();
}

TEST(encode_fields, a_byte_of_all_ones_or_0x80_before_the_nul_is_not_its_end)
{
    for (const char filler : {'\x01', '\x7F', '\x80', '\x81', '\xFF'}) {
        text_source<33> source;
        std::memset(source.text, filler, sizeof source.text);
        source.text[20] = '\0';
        const byte_vector wire = encode_text(source);
        EXPECT_EQ(wire.size(), 24u);
        EXPECT_EQ(
            hex_of(byte_vector(wire.begin() + 4, wire.end())), hex_of(byte_vector(20, static_cast<uint8_t>(filler))));
    }
}

// ---- whole sessions, beside the codec record ----

struct entry_source {
    uint32_t number;
    std::string text;
};

struct session_source {
    uint32_t number;
    std::string first;
    std::string second;
    std::vector<entry_source> entries;
};

struct entry_fields {
    template <class Message>
    static constexpr bool is_inline = false;

    template <class Fields>
    static void describe(Fields &fields, const entry_source &source)
    {
        fields.template number<1>(source.number);
        fields.template block<3>(source.text.data(), source.text.size());
    }
};

struct l2tp_source_fields {
    template <class Message>
    static constexpr bool is_inline = false;

    template <class Fields>
    static void describe(Fields &fields, const session_source &source)
    {
        fields.template number<2>(source.number);
        fields.template block<19>(source.first.data(), source.first.size());
    }
};

struct data_fields {
    template <class Message>
    static constexpr bool is_inline = false;

    template <class Fields>
    static void describe(Fields &fields, const session_source &source)
    {
        fields.template record<4, l2tp_source_fields>(source);
        fields.template block<5>(source.second.data(), source.second.size());
    }
};

struct session_fields {
    template <class Fields>
    static void describe(Fields &fields, const session_source &source)
    {
        fields.template number<1>(source.number);
        fields.template record<10, data_fields>(source);
        fields.repeat(static_cast<uint32_t>(source.entries.size()),
            [&](uint32_t i) { fields.template record<11, entry_fields>(source.entries[i]); });
    }
};

// The codec record that points to the same contents.
struct codec_session {
    mava_tum_session_context record = {};
    std::vector<mava_tum_subscriber_qos> entries;

    explicit codec_session(const session_source &source) : entries(source.entries.size())
    {
        record.field_1 = source.number;
        record.session_data.l2tp.field_2 = source.number;
        record.session_data.l2tp.field_19 = const_cast<char *>(source.first.c_str());
        mark_present(record.session_data.l2tp, 2, 19);
        record.session_data.field_5 = const_cast<char *>(source.second.c_str());
        mark_present(record.session_data, 4, 5);
        for (std::size_t i = 0; i < entries.size(); ++i) {
            entries[i].field_1 = source.entries[i].number;
            entries[i].field_3 = const_cast<char *>(source.entries[i].text.c_str());
            mark_present(entries[i], 1, 3);
        }
        record.qos = entries.data();
        record.qos_count = static_cast<uint32_t>(entries.size());
        mark_present(record, 1, 10);
        if (!entries.empty())
            mark_present(record, 11);
    }
};

void expect_the_bytes_of_the_codec_record(const session_source &source, uint64_t capacity)
{
    const codec_session codec(source);
    byte_vector expected(capacity + 1, 0xA5);
    byte_vector got(capacity + 1, 0xA5);
    const uint64_t expected_size =
        mava_tum_session_context_encode_ext(&codec.record, expected.data(), capacity, nullptr, nullptr, 0);
    EXPECT_EQ((encode<mava_tum_session_context, session_fields>(source, got.data(), capacity)), expected_size)
        << capacity;
    ASSERT_EQ(got, expected) << capacity;
}

uint64_t size_of(const session_source &source)
{
    return encode<mava_tum_session_context, session_fields>(source, nullptr, 0);
}

TEST(encode_fields, a_session_gives_the_bytes_of_its_codec_record_into_every_buffer)
{
    const session_source source{
        300, "some name", std::string(130, 'n'), {{1, "one"}, {70000, std::string(64, 't')}, {0, ""}}};
    for (uint64_t capacity = 0; capacity <= size_of(source) + 1; ++capacity)
        expect_the_bytes_of_the_codec_record(source, capacity);
}

// Sizes around those at which a block no longer fits the scratch buffer, in the message and in a nested one.
TEST(encode_fields, a_block_of_any_length_at_any_depth_gives_the_bytes_of_the_codec_record)
{
    for (const std::size_t length :
        {63u, 64u, 65u, 127u, 128u, 129u, 2047u, 2048u, 8100u, 8191u, 8192u, 8193u, 20000u}) {
        const session_source sources[] = {{1, std::string(length, 'a'), "b", {{2, "c"}}},
            {1, "a", std::string(length, 'b'), {{2, "c"}}}, {1, "a", "b", {{2, std::string(length, 'c')}, {3, "d"}}}};
        for (const session_source &source : sources) {
            const uint64_t size = size_of(source);
            for (const uint64_t capacity : {uint64_t{0}, uint64_t{1}, size / 2, size - 1, size, size + 1})
                expect_the_bytes_of_the_codec_record(source, capacity);
        }
    }
}

// The list goes to the buffer in parts. If a part does not fit, no invalid byte may have been written before.
TEST(encode_fields, a_long_list_gives_the_bytes_of_its_codec_record_into_a_buffer_cut_anywhere)
{
    session_source source{1, "a", "b", {}};
    for (uint32_t i = 0; i < 200; ++i)
        source.entries.push_back({i * 1000, std::string(i % 70, static_cast<char>('a' + i % 26))});
    const uint64_t size = size_of(source);
    ASSERT_GT(size, 2 * 2048u);
    for (uint64_t capacity = 0; capacity <= size + 1; capacity += 37)
        expect_the_bytes_of_the_codec_record(source, capacity);
    for (uint64_t capacity = size - 3; capacity <= size + 1; ++capacity)
        expect_the_bytes_of_the_codec_record(source, capacity);
}

TEST(encode_fields, once_a_nested_block_found_no_room_a_later_list_still_gives_the_right_bytes)
{
    session_source source{1, std::string(9000, 'a'), std::string(9000, 'b'), {}};
    for (uint32_t i = 0; i < 300; ++i)
        source.entries.push_back({i, std::string(60, 'c')});
    const uint64_t size = size_of(source);
    for (const uint64_t capacity : {uint64_t{0}, uint64_t{100}, uint64_t{9100}, size / 2, size - 1, size, size + 1})
        expect_the_bytes_of_the_codec_record(source, capacity);
}

// ---- a few scalars ----

struct group_source {
    uint32_t field_1;
    uint32_t field_2;
    uint32_t field_3;
};

struct few_fields {
    template <class Fields>
    static void describe(Fields &fields, const group_source &source)
    {
        fields.template number<1>(source.field_1);
        fields.template number<2>(source.field_2);
    }
};

TEST(encode_fields, a_few_scalars_fill_a_buffer_of_their_size_and_nothing_beyond)
{
    const group_source source{300, 0xFFFFFFFF, 0};
    const byte_vector expected = {0x08, 0xAC, 0x02, 0x15, 0xFF, 0xFF, 0xFF, 0xFF};
    for (uint64_t capacity = 0; capacity <= expected.size() + 1; ++capacity) {
        byte_vector got(expected.size() + 2, 0xA5);
        EXPECT_EQ((encode<mava_tum_subscriber_v4, few_fields>(source, got.data(), capacity)), expected.size());
        for (std::size_t i = 0; i < got.size(); ++i)
            ASSERT_EQ(got[i], i < capacity && i < expected.size() ? expected[i] : 0xA5) << capacity << " " << i;
    }
}

} // namespace
} // namespace mava_tum_test
