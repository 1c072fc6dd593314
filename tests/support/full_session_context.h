// A session context in which every field has content, and every block a different size.
#pragma once

#include "support/record_calls.h"
#include "support/wire_builder.h"

#include <cstdint>
#include <string>
#include <vector>

namespace mava_tum_test
{

// The requested sizes, in order, of a decode in copy mode and of a duplicate, each with the number of its field.
struct allocation_row {
    uint32_t field;
    uint64_t size;
    bool bytes = false; // a bytes field: neither allocated nor released in alias mode
    bool array = false; // the array itself, its elements' blocks follow
};

inline const std::vector<allocation_row> &full_session_context_allocations()
{
    static const std::vector<allocation_row> rows = {
        {.field = 6, .size = 1, .bytes = true}, {.field = 9, .size = 2, .bytes = true}, // subscriber_v6.field_2
        {.field = 10, .size = 3, .bytes = true},                                        // session_data.ppp.field_5
        {.field = 10, .size = 4},                                                       // session_data.l2tp.field_19
        {.field = 10, .size = 5},                                                       // session_data.field_5
        {.field = 10, .size = 6, .bytes = true},                                        // session_data.field_6
        {.field = 11, .size = 2 * sizeof(mava_tum_subscriber_qos), .array = true},
        {.field = 11, .size = 7},                 // qos[0].field_3
        {.field = 11, .size = 8},                 // qos[1].field_12
        {.field = 12, .size = 9},                 // acl.field_2
        {.field = 13, .size = 10},                // httpr.field_2
        {.field = 14, .size = 11, .bytes = true}, // li.field_4
        {.field = 23, .size = 2 * sizeof(mava_tum_subscriber_route_ipv4), .array = true},
        {.field = 23, .size = 12}, // route_ipv4[0].field_2
        {.field = 23, .size = 13}, // route_ipv4[1].field_9
        {.field = 24, .size = 2 * sizeof(mava_tum_subscriber_route_ipv6), .array = true},
        {.field = 24, .size = 14},                // route_ipv6[0].field_2
        {.field = 24, .size = 15, .bytes = true}, // route_ipv6[0].field_3
        {.field = 24, .size = 16},                // route_ipv6[1].field_9
    };
    return rows;
}

inline byte_vector full_session_context()
{
    const auto text_for = [](uint64_t block_size) { return std::string(block_size - 1, 'x'); };
    const auto bytes_for = [](uint64_t block_size) { return byte_vector(block_size, 0xB0); };
    const auto scalar = [](uint64_t value) { return wire_builder().varint(1, value); };

    wire_builder session_data;
    session_data.varint(1, 101)
        .varint(2, 102)
        .length_delimited(3, wire_builder().length_delimited(5, bytes_for(3)))
        .length_delimited(4, wire_builder().text(19, text_for(4)))
        .text(5, text_for(5))
        .length_delimited(6, bytes_for(6))
        .length_delimited(10, scalar(103));

    wire_builder wire;
    for (uint32_t field = 1; field <= 5; ++field)
        wire.varint(field, field);
    wire.length_delimited(6, bytes_for(1)).varint(7, 7);
    wire.length_delimited(8, scalar(8));
    wire.length_delimited(9, wire_builder().length_delimited(2, bytes_for(2)));
    wire.length_delimited(10, session_data);
    wire.length_delimited(11, wire_builder().text(3, text_for(7)));
    wire.length_delimited(11, wire_builder().text(12, text_for(8)));
    wire.length_delimited(12, wire_builder().text(2, text_for(9)));
    wire.length_delimited(13, wire_builder().text(2, text_for(10)));
    wire.length_delimited(14, wire_builder().length_delimited(4, bytes_for(11)));
    for (uint32_t field = 15; field <= 22; ++field)
        wire.length_delimited(field, scalar(field));
    wire.length_delimited(23, wire_builder().text(2, text_for(12)));
    wire.length_delimited(23, wire_builder().text(9, text_for(13)));
    wire.length_delimited(24, wire_builder().text(2, text_for(14)).length_delimited(3, bytes_for(15)));
    wire.length_delimited(24, wire_builder().text(9, text_for(16)));
    return wire;
}

// The blocks of a record decoded from it, in the order of `full_session_context_allocations`.
inline std::vector<const void *> full_session_context_blocks(const mava_tum_session_context &record)
{
    return {record.field_6.data, record.subscriber_v6.field_2.data, record.session_data.ppp.field_5.data,
        record.session_data.l2tp.field_19, record.session_data.field_5, record.session_data.field_6.data, record.qos,
        record.qos[0].field_3, record.qos[1].field_12, record.acl.field_2, record.httpr.field_2, record.li.field_4.data,
        record.route_ipv4, record.route_ipv4[0].field_2, record.route_ipv4[1].field_9, record.route_ipv6,
        record.route_ipv6[0].field_2, record.route_ipv6[0].field_3.data, record.route_ipv6[1].field_9};
}

} // namespace mava_tum_test
