// The one swap of IPv4 addresses.
#include "nal/ipv4_order.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

TEST(ipv4_order, an_address_in_host_order_becomes_one_whose_fixed32_is_in_network_order)
{
    EXPECT_EQ(mava_tum::swap_ipv4_order(0xC0000201), 0x010200C0u); // 192.0.2.1
    EXPECT_EQ(mava_tum::swap_ipv4_order(0x00000001), 0x01000000u);
    EXPECT_EQ(mava_tum::swap_ipv4_order(0), 0u);
}

TEST(ipv4_order, swapping_twice_gives_the_address_back)
{
    for (uint32_t address : {0u, 1u, 0xC0000201u, 0x7F000001u, 0xFFFFFFFFu})
        EXPECT_EQ(mava_tum::swap_ipv4_order(mava_tum::swap_ipv4_order(address)), address);
}

} // namespace
} // namespace mava_tum_test
