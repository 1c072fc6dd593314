// A codec record as a tree of plain values, with which the sweeps generate, compare and predict.
//
// It knows no message. A skeleton, made from a record type by record_access.h, has the fields. All other code of this
// folder works on such trees, so a new message needs only its field list.
#pragma once

#include "support/hex.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace mava_tum_test
{

enum class field_kind { varint32, varint64, fixed32, bytes, text, record, records, texts };

struct record_value;

struct field_value {
    uint32_t number = 0;
    field_kind kind = field_kind::varint32;
    // Of `records`: an element without content. Of `records` and `texts`: the size of an element in memory.
    const record_value *element_skeleton = nullptr;
    std::size_t element_bytes = 0;

    bool present = false;
    // The number itself; of `bytes` the length member, of `records` and `texts` the count member.
    uint64_t integer = 0;
    // Of `bytes` and `text`: the content behind the pointer, nothing if it is null.
    std::optional<byte_vector> content;
    // Of `record`: exactly one. Of `records`: the elements, none if the pointer is null.
    std::vector<record_value> records;
    // Of `texts`: the elements, none if the pointer to them is null. An element that is null itself is nothing.
    std::vector<std::optional<byte_vector>> texts;
};

struct record_value {
    // The reserved bits of the presence mask: those that are set, and all.
    uint64_t spare_bits = 0;
    uint64_t all_spare_bits = 0;
    std::vector<field_value> fields;
};

// A pointer to elements and their count.
inline bool is_list(field_kind kind)
{
    return kind == field_kind::records || kind == field_kind::texts;
}

// Whether its encoder has gather mode: a field, at any depth, is a bytes field.
bool holds_bytes(const record_value &skeleton);

// Names the first difference, with the path of field numbers that leads to it.
testing::AssertionResult is_same_record(const record_value &actual, const record_value &expected);

} // namespace mava_tum_test
