// Small records with their own mapping, for rules of the rows that no adapter's record can show.
#pragma once

#include "codec/mapping.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace mava_tum_test
{

// A record with zeros, also in its padding, so that it can be compared as bytes.
template <class Record>
class small_record
{
public:
    Record *operator->()
    {
        return reinterpret_cast<Record *>(bytes_);
    }

    byte_vector bytes() const
    {
        return byte_vector(bytes_, bytes_ + sizeof bytes_);
    }

private:
    alignas(Record) uint8_t bytes_[sizeof(Record)] = {};
};

// The record that is decoded from `wire`, filled with ones before. Wire and record end before an inaccessible page.
template <class Rows>
byte_vector received_bytes(const byte_vector &wire)
{
    using record_type = typename Rows::record;
    constexpr std::size_t longest = 1 << 14;
    static page_end_buffer input(longest), record(sizeof(record_type));
    if (wire.size() > longest)
        throw std::invalid_argument("the message is longer than the memory for it");
    uint8_t *const data = input.data() + longest - wire.size();
    std::copy(wire.begin(), wire.end(), data);
    std::memset(record.data(), 0xFF, sizeof(record_type));
    mava_tum::decode_mapped<Rows>(
        *reinterpret_cast<record_type *>(record.data()), data, static_cast<uint32_t>(wire.size()));
    return byte_vector(record.data(), record.data() + sizeof(record_type));
}

} // namespace mava_tum_test
