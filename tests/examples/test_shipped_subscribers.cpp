// The file of subscribers that the build makes for the examples.
#include "run_program.h"
#include "subscriber_file.h"

#include <algorithm>
#include <gtest/gtest.h>

using examples::feature;
using examples::subscriber;
using examples::tunnel_kind;

namespace
{

const std::vector<subscriber> &shipped()
{
    static const std::vector<subscriber> subscribers = examples::read_subscribers(SUBSCRIBERS_FILE);
    return subscribers;
}

template <typename Condition>
auto count_of(Condition condition)
{
    return std::ranges::count_if(shipped(), condition);
}

bool is_documentation_address(examples::ipv4_address address)
{
    const uint32_t range = address >> 8;
    return address == 0 || range == 0xC00002 || range == 0xC63364 || range == 0xCB0071;
}

bool is_documentation_address(const examples::ipv6_address &address)
{
    const std::array<uint8_t, 4> range = {0x20, 0x01, 0x0D, 0xB8};
    return address == examples::ipv6_address{} || std::equal(range.begin(), range.end(), address.begin());
}

std::vector<examples::ipv4_address> ipv4_addresses_of(const subscriber &who)
{
    std::vector<examples::ipv4_address> all;
    if (who.ipv4)
        all.push_back(who.ipv4->address);
    if (who.l2tp)
        all.insert(all.end(), {who.l2tp->local_ipv4, who.l2tp->remote_ipv4});
    if (who.intercept)
        all.push_back(who.intercept->ipv4);
    for (const auto &route : who.ipv4_routes)
        all.insert(all.end(), {route.destination.address, route.next_hop});
    return all;
}

std::vector<examples::ipv6_address> ipv6_addresses_of(const subscriber &who)
{
    std::vector<examples::ipv6_address> all = {
        who.ipv6_host.value_or(examples::ipv6_address{}), who.ipv6_gateway.value_or(examples::ipv6_address{})};
    for (const auto &prefix : {who.ipv6_prefix, who.ipv6_delegated})
        all.push_back(prefix ? prefix->address : examples::ipv6_address{});
    if (who.l2tp)
        all.insert(all.end(), {who.l2tp->local_ipv6, who.l2tp->remote_ipv6});
    if (who.intercept)
        all.push_back(who.intercept->ipv6);
    for (const auto &route : who.ipv6_routes)
        all.insert(all.end(), {route.destination.address, route.next_hop});
    return all;
}

bool has_example_name(const std::string &name)
{
    return name.ends_with("example.com") || name.ends_with("example.net") || name.ends_with("example.org");
}

} // namespace

TEST(shipped_subscribers, are_the_same_whenever_they_are_made)
{
    const program_result made = run_program("'" MAKE_SUBSCRIBERS "'");
    EXPECT_EQ(made.status, 0);
    // Not EXPECT_EQ: it would print both files.
    EXPECT_TRUE(made.output == read_file(SUBSCRIBERS_FILE)) << "the build made " SUBSCRIBERS_FILE;
}

TEST(shipped_subscribers, are_many_and_150_of_them_use_every_slot)
{
    EXPECT_EQ(shipped().size(), 1200U);
    EXPECT_EQ(count_of([](const subscriber &who) {
        return who.qos.size() == 8 && who.ipv4_routes.size() == 4 && who.ipv6_routes.size() == 4;
    }),
        150);
}

TEST(shipped_subscribers, come_by_every_kind_of_access)
{
    EXPECT_GE(count_of([](const subscriber &who) { return who.access == examples::access_kind::direct; }), 200);
    EXPECT_GE(count_of([](const subscriber &who) { return who.access == examples::access_kind::ppp; }), 200);
    for (const tunnel_kind kind : {tunnel_kind::open, tunnel_kind::ipv4, tunnel_kind::ipv6})
        EXPECT_GE(count_of([kind](const subscriber &who) { return who.l2tp && who.l2tp->kind == kind; }), 20);
}

TEST(shipped_subscribers, have_each_feature_on_and_off_with_values_that_then_stay_at_home)
{
    for (size_t i = 0; i < static_cast<size_t>(feature::count); ++i) {
        EXPECT_GE(count_of([i](const subscriber &who) { return who.features[i]; }), 150) << "feature " << i;
    }
    EXPECT_GE(count_of([](const subscriber &who) { return !who.has(feature::qos) && !who.qos.empty(); }), 10);
    EXPECT_GE(
        count_of([](const subscriber &who) { return !who.has(feature::routes) && !who.ipv6_routes.empty(); }), 10);
    EXPECT_GE(count_of([](const subscriber &who) { return !who.has(feature::intercept) && who.intercept; }), 10);
}

TEST(shipped_subscribers, have_documentation_addresses_and_names_only)
{
    for (const subscriber &who : shipped()) {
        for (const examples::ipv4_address address : ipv4_addresses_of(who))
            EXPECT_TRUE(is_documentation_address(address)) << who.line;
        for (const examples::ipv6_address &address : ipv6_addresses_of(who))
            EXPECT_TRUE(is_documentation_address(address)) << who.line;
        EXPECT_TRUE(has_example_name(who.user)) << who.user;
        EXPECT_TRUE(!who.l2tp || has_example_name(who.l2tp->name)) << who.line;
        EXPECT_TRUE(!who.redirect || who.redirect->text_2.starts_with("http://portal.example.org/")) << who.line;
    }
}
