// A consumer of the C++ layer: an adapter encodes a session; the classes decode it, clone it and encode it again.
#include <mava_tum.h>
#include <mava_tum/cpp/mava_tum.hpp>

#include <cstdio>
#include <cstring>

#if CONSUMER_STANDARD == 17
static_assert(__cplusplus == 201703L, "compiled as C++17");
#elif CONSUMER_STANDARD == 20
static_assert(__cplusplus == 202002L, "compiled as C++20");
#elif CONSUMER_STANDARD == 23
static_assert(__cplusplus > 202002L, "compiled as C++23");
#else
#error "CONSUMER_STANDARD is not known"
#endif

namespace tum = mava_tum::cpp;

int main()
{
    std::vector<std::uint8_t> wire(1024);
    tum_nal_data_session_context sent = {};
    sent.feature_mask = TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_MTU_1;
    sent.ipv4_address = 0xC0000211; // 192.0.2.17
    sent.mtu_1_value = 1492;
    std::strcpy(sent.session_name, "user@example.com");
    wire.resize(tum_nal_data_gpb_encode_tum_session_context(&sent, wire.data(), 1024));

    tum::session_context received;
    if (received.decode(wire) != tum::result::ok || received.mtu_1().field_1() != 1492U)
        return 1;
    const auto clone = received.clone();
    received.clear();
    if (!clone || clone->encode() != wire)
        return 1;
    std::printf("%s came back in %zu bytes\n", clone->session_data().field_5()->data(), wire.size());
    return 0;
}
