// What needs C++20: the layer's spans and lists with the standard library's.
#include "mava_tum/cpp/mava_tum.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <ranges>
#include <span>
#include <vector>

namespace tum = mava_tum::cpp;

TEST(cpp_span, converts_from_and_to_the_span_of_the_standard_library)
{
    const std::vector<std::uint8_t> bytes = {1, 2, 3};
    const tum::bytes_view ours = std::span<const std::uint8_t>(bytes);
    const std::span<const std::uint8_t> theirs = ours;
    EXPECT_EQ(theirs.data(), bytes.data());
    EXPECT_EQ(theirs.size(), 3U);
    EXPECT_EQ(tum::bytes_view(std::as_bytes(theirs)), ours);
}

template <class Range>
constexpr bool is_random_access_view = std::ranges::random_access_range<Range> &&std::ranges::sized_range<Range>
    &&std::ranges::common_range<Range> &&std::ranges::view<Range> &&std::ranges::borrowed_range<Range>;

static_assert(is_random_access_view<tum::text_list>);
static_assert(is_random_access_view<tum::subscriber_qos_list>);
static_assert(is_random_access_view<tum::subscriber_qos_editors>);
static_assert(is_random_access_view<tum::bytes_view> && std::ranges::contiguous_range<tum::bytes_view>);
static_assert(std::regular<tum::subscriber_qos_view>);
static_assert(std::regular<tum::subscriber_qos_list>);
static_assert(!std::ranges::borrowed_range<tum::bytes_argument>, "for parameters only");

TEST(cpp_list_view, goes_through_the_algorithms_of_ranges)
{
    tum::session_context session;
    for (std::uint32_t number = 1; number <= 5; ++number)
        session.add_qos()->set_field_1(number * 10);
    const auto number_of = [](const tum::subscriber_qos_view &qos) { return qos.field_1().value_or(0); };
    // Of a list without a name: what is found refers to the record.
    const auto found = std::ranges::lower_bound(session.qos(), 30U, {}, number_of);
    EXPECT_EQ((*found).field_1(), 30U);
    EXPECT_EQ(found - session.qos().begin(), 2);
    std::ranges::for_each(session.edit_qos(), [](tum::subscriber_qos_editor qos) { qos.set_field_2(7U); });
    EXPECT_EQ(std::ranges::count(session.qos(), 7U, [](const auto &qos) { return qos.field_2(); }), 5);
}

#if !defined(__clang__) || __clang_major__ > 15 // before, clang cannot compile the views of the standard library
TEST(cpp_list_view, goes_through_the_views_of_ranges)
{
    tum::session_context session;
    for (std::uint32_t number = 1; number <= 5; ++number)
        session.add_qos()->set_field_1(number);
    std::vector<std::uint32_t> odd;
    for (const auto qos : session.qos() | std::views::reverse |
                              std::views::filter([](const auto &each) { return *each.field_1() % 2 == 1; }))
        odd.push_back(*qos.field_1());
    EXPECT_EQ(odd, (std::vector<std::uint32_t>{5, 3, 1}));
}
#endif
