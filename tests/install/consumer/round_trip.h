/* For each consumer program: at least one call of each part of the installed library. A session goes through an
 * adapter, through the codec and back, and through the queue. Valid C11 and C++11. */
#ifndef ROUND_TRIP_H
#define ROUND_TRIP_H

#include <mava_tum.h>

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static void *allocate(uint64_t size, void *allocated)
{
    ++*(unsigned *)allocated;
    return malloc((size_t)size);
}

static void release(void *block, void *allocated)
{
    --*(unsigned *)allocated;
    free(block);
}

/* Wire bytes -> codec record -> duplicate -> wire bytes: the same bytes, and nothing stays allocated. */
static int codec_repeats(const uint8_t *wire, uint64_t size)
{
    unsigned allocated = 0;
    uint8_t again[1024];
    mava_tum_session_context decoded;
    mava_tum_session_context copy;
    memset(&copy, 0, sizeof copy);
    if (mava_tum_session_context_decode_ext(&decoded, wire, size, allocate, &allocated, 0) != MAVA_TUM_OK)
        return 0;
    if (mava_tum_session_context_duplicate(&copy, &decoded, allocate, &allocated) != MAVA_TUM_OK)
        return 0;
    mava_tum_session_context_free_ext(&decoded, release, &allocated, 0);
    const uint64_t size_again = mava_tum_session_context_encode_ext(&copy, again, sizeof again, NULL, NULL, 0);
    mava_tum_session_context_free_ext(&copy, release, &allocated, 0);
    return allocated == 0 && size_again == size && memcmp(again, wire, (size_t)size) == 0;
}

static int queue_returns(void)
{
    nal_queue_t queue;
    nal_queue_node_t node;
    memset(&queue, 0, sizeof queue);
    memset(&node, 0, sizeof node);
    nal_queue_enqueue(&queue, &node);
    return nal_queue_dequeue(&queue) == &node && queue.count == 0;
}

/* Prints the received values. Returns the exit status of the program. */
static int round_trip(void)
{
    uint8_t wire[1024];
    tum_nal_data_session_context sent;
    tum_nal_data_session_context received;
    memset(&sent, 0, sizeof sent);
    sent.feature_mask = TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_MTU_1;
    sent.ipv4_address = 0xC0000211; /* 192.0.2.17 */
    sent.mtu_1_value = 1492;
    strcpy(sent.session_name, "user@example.com");
    const uint64_t size = tum_nal_data_gpb_encode_tum_session_context(&sent, wire, sizeof wire);
    if (size > sizeof wire || !codec_repeats(wire, size) || !queue_returns())
        return 1;
    tum_nal_data_gpb_decode_tum_session_context(wire, (uint32_t)size, &received);
    if (memcmp(&sent, &received, sizeof sent) != 0)
        return 1;
    printf("%s came back in %u bytes\n", received.session_name, (unsigned)size);
    return 0;
}

#endif
