// Texts and octets into arrays of many sizes, compared with a copy byte by byte.
#include "messages/feature_records_schema.h"
#include "messages/subscriber_records_schema.h"
#include "nal/rows.h"
#include "nal/small_records.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using mava_tum::row_list;

// ---- octets ----

template <std::size_t Size>
struct octets_record {
    uint8_t octets[Size];
};

template <std::size_t Size>
struct octets_rows {
    using message = mava_tum_subscriber_v6;
    using record = octets_record<Size>;
    using rows = row_list<mava_tum::octets<2, &record::octets>>;
};

template <std::size_t Size>
void expect_octets_of_each_length()
{
    for (std::size_t length = 0; length <= 300; ++length) {
        byte_vector content(length);
        for (std::size_t i = 0; i < length; ++i)
            content[i] = static_cast<uint8_t>(i + 1);
        byte_vector expected = content;
        expected.resize(Size, 0);
        EXPECT_EQ(received_bytes<octets_rows<Size>>(wire_builder().length_delimited(2, content)), expected)
            << length << " octets into " << Size;
        const byte_vector padded =
            wire_builder().tag(2, wire_type::length_delimited).overlong_varint(length, 4).raw(content);
        EXPECT_EQ(received_bytes<octets_rows<Size>>(padded), expected) << length << " octets into " << Size;
        if (length != 0) {
            const byte_vector cut =
                wire_builder().tag(2, wire_type::length_delimited).bare_varint(length + 1).raw(content);
            EXPECT_EQ(received_bytes<octets_rows<Size>>(cut), byte_vector(Size, 0))
                << length << " octets into " << Size;
        }
    }
}

TEST(rows_arrays, of_more_octets_than_the_array_has_the_first_arrive_and_behind_fewer_stand_zeros)
{
    expect_octets_of_each_length<1>();
    expect_octets_of_each_length<6>();
    expect_octets_of_each_length<7>();
    expect_octets_of_each_length<8>();
    expect_octets_of_each_length<16>();
    expect_octets_of_each_length<127>();
}

TEST(rows_arrays, a_second_occurrence_of_octets_is_refused_and_the_first_stays)
{
    for (const char *second : {"12 02 CC DD", "12 00", "12 04 CC DD EE FF", "12 7F"}) {
        const byte_vector wire = joined({bytes_of("12 04 AA BB CC DD"), bytes_of(second)});
        EXPECT_EQ(received_bytes<octets_rows<4>>(wire), bytes_of("AA BB CC DD")) << second;
    }
    EXPECT_EQ(received_bytes<octets_rows<4>>(bytes_of("12 00 12 04 AA BB CC DD")), bytes_of("00 00 00 00"));
}

// ---- texts ----

template <std::size_t Size>
struct text_record {
    char text[Size];
};

template <std::size_t Size, uint32_t Limit>
struct text_rows {
    using message = mava_tum_subscriber_httpr;
    using record = text_record<Size>;
    using rows = row_list<mava_tum::text<2, &record::text, mava_tum::if_not_empty, Limit>>;
};

// The characters before the first NUL, up to one less than the limit.
byte_vector kept_of(const byte_vector &text, std::size_t limit, std::size_t array_bytes)
{
    byte_vector array(array_bytes, 0);
    for (std::size_t i = 0; i < text.size() && i + 1 < limit && text[i] != 0; ++i)
        array[i] = text[i];
    return array;
}

template <std::size_t Size, uint32_t Limit>
void expect_text(const byte_vector &text)
{
    ASSERT_EQ(
        (received_bytes<text_rows<Size, Limit>>(wire_builder().length_delimited(2, text))), kept_of(text, Limit, Size))
        << text.size() << " bytes into " << Limit << " of " << Size << ": " << hex_of(text);
}

template <std::size_t Size, uint32_t Limit = Size>
void expect_texts_of_each_length_and_nul()
{
    for (std::size_t length = 0; length <= 130; ++length) {
        byte_vector text(length);
        for (std::size_t i = 0; i < length; ++i)
            text[i] = static_cast<uint8_t>(1 + (i * 37 + 0x7F) % 255);
        expect_text<Size, Limit>(text);
        for (std::size_t nul = 0; nul < length; ++nul) {
            byte_vector with_nul = text;
            with_nul[nul] = 0;
            expect_text<Size, Limit>(with_nul);
        }
    }
    expect_text<Size, Limit>(byte_vector(5000, 'x'));
}

TEST(rows_arrays, a_text_arrives_up_to_the_limit_and_its_nul_and_zeros_follow)
{
    expect_texts_of_each_length_and_nul<1>();
    expect_texts_of_each_length_and_nul<2>();
    expect_texts_of_each_length_and_nul<9>();
    expect_texts_of_each_length_and_nul<16>();
    expect_texts_of_each_length_and_nul<17>();
    expect_texts_of_each_length_and_nul<33>();
    expect_texts_of_each_length_and_nul<65>();
    expect_texts_of_each_length_and_nul<128>();
    expect_texts_of_each_length_and_nul<256>();
}

TEST(rows_arrays, a_text_with_a_limit_below_its_array_arrives_up_to_that)
{
    expect_texts_of_each_length_and_nul<36, 33>();
    expect_texts_of_each_length_and_nul<68, 65>();
    expect_texts_of_each_length_and_nul<64, 1>();
    expect_texts_of_each_length_and_nul<64, 17>();
}

} // namespace
} // namespace mava_tum_test
