// Small records with a mapping of their own: the rules of the rows, where the records of the adapters have none of the
// case in question.
#pragma once

#include "codec/mapping.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <new>

namespace mava_tum_test
{

// A record with zeros in its padding too, so that it can be compared as bytes.
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

// What `wire` leaves in a record full of ones. Wire and record end before an inaccessible page.
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
