// Records to sweep over: seeds that are always the same, and random ones from a seeded generator.
#pragma once

#include "sweeps/record_value.h"

#include <cstdint>
#include <random>
#include <string>
#include <vector>

namespace mava_tum_test
{

using random_source = std::mt19937_64;

struct named_record {
    std::string name;
    record_value value;
};

// Every field with content at every depth, lists of three elements, varints of every width.
record_value full_record(const record_value &skeleton);

// Every field present and empty: zeros, empty texts and bytes, records and list elements without a field, a null text
// in the middle of a list.
record_value hollow_record(const record_value &skeleton);

// The full record and the hollow one, one with bits but no content of texts and lists, one with every second field, and
// one per field with that field alone.
std::vector<named_record> seeds_of(const record_value &skeleton);

// Any mixture, also unusual ones that callers may pass: values without their bit, bits without their text, lists
// without elements, bytes fields with a null pointer and length 0. Reserved mask bits are random at every depth.
record_value random_record(const record_value &skeleton, random_source &random);

// Gives the list `count` elements, random ones or empty ones, and marks it present.
void fill_list(field_value &list, std::size_t count, random_source &random);
void fill_list_with_empty_elements(field_value &list, std::size_t count);

// The number of fields at all depths, with one element in each list: a measure of the time for a record.
std::size_t field_count_of(const record_value &skeleton);

byte_vector random_text(std::size_t length, random_source &random);

} // namespace mava_tum_test
