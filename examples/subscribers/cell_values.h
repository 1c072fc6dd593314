// What one cell or value says: a number, an address, a prefix, bytes, a text. Each refuses a text that is none, with
// the file's name and line. An empty cell is zero or empty.
#ifndef EXAMPLES_CELL_VALUES_H
#define EXAMPLES_CELL_VALUES_H

#include "csv_file.h"
#include "subscriber.h"

#include <limits>

namespace examples
{

uint64_t number_up_to(const cell &value, uint64_t largest);

template <typename Number>
Number number(const cell &value)
{
    return static_cast<Number>(number_up_to(value, std::numeric_limits<Number>::max()));
}

template <typename Number>
std::optional<Number> optional_number(const cell &value)
{
    if (value.empty())
        return std::nullopt;
    return number<Number>(value);
}

// `limit` is in bytes, without the NUL that the record needs too.
std::string text(const cell &value, size_t limit);

void read_address(const cell &value, ipv4_address &address);
void read_address(const cell &value, ipv6_address &address);

// An address, '/' and a length in bits.
void read_prefix(const cell &value, prefix<ipv4_address> &result);
void read_prefix(const cell &value, prefix<ipv6_address> &result);

// Exactly `bytes.size()` pairs of hex digits between ':'.
void read_bytes(const cell &value, std::span<uint8_t> bytes);

// The position of the cell's word in `words`.
size_t index_of_word(const cell &value, std::span<const char *const> words);

} // namespace examples

#endif
