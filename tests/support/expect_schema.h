// Checks a message against the list of its fields: number, wire type and one sample of each.
#pragma once

#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_test
{

struct field_row {
    uint32_t number;
    wire_type type;
    const char *sample; // the field as our encoder writes it, tag included
};

// A sample alone sets the bit of its number and no other, and is written back byte by byte.
template <class record_type>
void expect_each_field_alone_round_trips(const std::vector<field_row> &rows)
{
    for (const field_row &row : rows) {
        decoded<record_type> got(row.sample);
        EXPECT_EQ(got.result, MAVA_TUM_OK) << row.sample;
        EXPECT_EQ(got.present(), fields(row.number)) << row.sample;
        EXPECT_EQ(encoded_hex(got.record), row.sample);
    }
}

// All samples, decoded from the last field to the first, are encoded in ascending order.
template <class record_type>
void expect_any_order_in_and_ascending_order_out(const std::vector<field_row> &rows)
{
    byte_vector ascending;
    byte_vector descending;
    uint32_t all = 0;
    for (const field_row &row : rows) {
        ascending = joined({ascending, bytes_of(row.sample)});
        descending = joined({bytes_of(row.sample), descending});
        all |= fields(row.number);
    }
    EXPECT_EQ(all, all_own_bits<record_type>) << "the rows name every field";
    decoded<record_type> got(descending);
    EXPECT_EQ(got.result, MAVA_TUM_OK);
    EXPECT_EQ(got.present(), all);
    EXPECT_EQ(encoded_hex(got.record), hex_of(ascending));
}

template <class record_type>
void expect_other_wire_types_are_refused(const std::vector<field_row> &rows)
{
    for (const field_row &row : rows) {
        for (uint32_t type = 0; type < 8; ++type) {
            if (type == static_cast<uint32_t>(row.type))
                continue;
            decoded<record_type> got(
                wire_builder().tag(row.number, static_cast<wire_type>(type)).raw("00 00 00 00 00 00 00 00"));
            EXPECT_EQ(got.result, MAVA_TUM_WRONG_WIRE_TYPE) << "field " << row.number << ", wire type " << type;
            EXPECT_EQ(got.present(), 0u);
            EXPECT_TRUE(got.allocator.calls().empty());
        }
    }
}

template <class record_type>
void expect_other_numbers_are_skipped(const std::vector<field_row> &rows)
{
    const uint32_t beyond = rows.back().number + 1;
    for (uint32_t number : {0u, beyond, beyond + 1, 1000u, 0x1FFFFFFFu}) {
        decoded<record_type> got(wire_builder()
                                     .varint(number, 300)
                                     .fixed64(number, 1)
                                     .length_delimited(number, bytes_of("08 01"))
                                     .fixed32(number, 1)
                                     .raw(rows.front().sample));
        EXPECT_EQ(got.result, MAVA_TUM_OK) << "field " << number;
        EXPECT_EQ(got.present(), fields(rows.front().number)) << "field " << number;
        for (wire_type type :
            {wire_type::group_start, wire_type::group_end, wire_type::undefined_6, wire_type::undefined_7}) {
            decoded<record_type> refused(wire_builder().tag(number, type).raw("00"));
            EXPECT_EQ(refused.result, MAVA_TUM_UNSUPPORTED_WIRE_TYPE) << "field " << number;
        }
    }
}

// L2: a tag may have more bytes than necessary. Here the first tag of each sample does, after and before another field.
template <class record_type>
void expect_over_long_tags_are_accepted(const std::vector<field_row> &rows)
{
    for (const field_row &row : rows) {
        const byte_vector sample = bytes_of(row.sample);
        const uint32_t tag = row.number << 3 | static_cast<uint32_t>(row.type);
        const byte_vector value(sample.begin() + (tag < 0x80 ? 1 : 2), sample.end());
        for (std::size_t width : {2u, 3u, 5u, 7u, 12u}) {
            decoded<record_type> got(
                wire_builder().varint(1000, 1).overlong_varint(tag, width).raw(value).varint(1000, 1));
            EXPECT_EQ(got.result, MAVA_TUM_OK) << row.sample << ", tag in " << width << " bytes";
            EXPECT_EQ(got.present(), fields(row.number)) << row.sample << ", tag in " << width << " bytes";
            EXPECT_EQ(encoded_hex(got.record), row.sample) << "tag in " << width << " bytes";
        }
    }
}

template <class record_type>
void expect_schema(const std::vector<field_row> &rows)
{
    expect_each_field_alone_round_trips<record_type>(rows);
    expect_any_order_in_and_ascending_order_out<record_type>(rows);
    expect_other_wire_types_are_refused<record_type>(rows);
    expect_other_numbers_are_skipped<record_type>(rows);
    expect_over_long_tags_are_accepted<record_type>(rows);
}

} // namespace mava_tum_test
