/* Encodes a session and decodes it. Prints the size and two values. */
#include "tum_nal/nal_session_context.h"

#include <stdio.h>

int main(void)
{
    tum_nal_data_session_context sent = {
        .feature_mask = TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_MTU_1,
        .ipv4_address = 0xC0000211, /* 192.0.2.17 */
        .session_name = "user@example.com",
        .mtu_1_value = 1492,
    };
    uint8_t wire[TUM_NAL_SESSION_CONTEXT_MAX_SIZE]; /* large enough for every session */
    uint64_t size = tum_nal_data_gpb_encode_tum_session_context(&sent, wire, sizeof wire);
    tum_nal_data_session_context received;
    tum_nal_data_gpb_decode_tum_session_context(wire, (uint32_t)size, &received);
    printf("%llu bytes: %s has MTU %u\n", (unsigned long long)size, received.session_name, received.mtu_1_value);
    return 0;
}
