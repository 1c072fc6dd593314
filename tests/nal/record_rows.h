// Rows of a record: its members that are not zero, and the complete message.
#pragma once

#include "nal/adapter_calls.h"

#include <gtest/gtest.h>

#include <vector>

namespace mava_tum_test
{

template <class record_type>
struct record_row {
    const char *what;
    void (*fill)(record_type &record);
    const char *wire;
};

// A record on the heap, with all bytes zero at first. A copy of a small record can lose its padding; here it stays
// zero, so that the record can be compared as bytes.
template <class record_type>
class filled_record
{
public:
    explicit filled_record(void (*fill)(record_type &record))
    {
        fill(**this);
    }

    record_type &operator*()
    {
        return *reinterpret_cast<record_type *>(bytes_);
    }

private:
    alignas(record_type) uint8_t bytes_[sizeof(record_type)] = {};
};

template <class record_type>
void expect_sent(const std::vector<record_row<record_type>> &rows)
{
    for (const record_row<record_type> &row : rows)
        EXPECT_EQ(sent_hex(*filled_record(row.fill)), hex_of(bytes_of(row.wire))) << row.what;
}

template <class record_type>
void expect_received(const std::vector<record_row<record_type>> &rows)
{
    for (const record_row<record_type> &row : rows) {
        received<record_type> got(row.wire);
        EXPECT_EQ(first_difference(*got, *filled_record(row.fill)), -1) << row.what;
    }
}

// Rows for both directions.
template <class record_type>
void expect_both_ways(const std::vector<record_row<record_type>> &rows)
{
    expect_sent(rows);
    expect_received(rows);
}

} // namespace mava_tum_test
