#include "peers/harness/other_work.h"

#include <array>
#include <utility>

namespace bench
{
namespace
{

constexpr uint64_t cache_line_bytes = 64;

// For each number, other code on other cache lines, with a branch that depends on the data.
template <uint64_t Number>
[[gnu::noinline, gnu::aligned(cache_line_bytes)]] uint64_t piece_of_code(uint64_t value)
{
    value = (value ^ (Number * 0x9E3779B97F4A7C15)) * 0xBF58476D1CE4E5B9;
    if ((value >> (Number % 61)) & 1)
        value += Number;
    return value ^ (value >> 31);
}

constexpr uint64_t pieces = other_work::code_bytes / cache_line_bytes;

template <uint64_t... Numbers>
constexpr auto all_pieces(std::integer_sequence<uint64_t, Numbers...>)
{
    return std::array<uint64_t (*)(uint64_t), sizeof...(Numbers)>{piece_of_code<Numbers>...};
}

} // namespace

void other_work::run()
{
    static constexpr auto code = all_pieces(std::make_integer_sequence<uint64_t, pieces>());
    for (uint64_t i = 0; i < data_.size(); i += cache_line_bytes / sizeof(uint64_t))
        data_[i] += sum_ += i;
    for (const auto piece : code)
        sum_ = piece(sum_);
}

} // namespace bench
