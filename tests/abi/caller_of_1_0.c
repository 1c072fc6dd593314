/* A program compiled against the public headers of 1.0.0, which are beside it as one file. With the current library,
 * it must find every function that it calls and every member at its offset, and no byte may be written behind a
 * record of that size. One message and one adapter of each public header, and the queue. */
#include "released/mava_tum-1.0.0.h"

#include <stdio.h>
#include <stdlib.h>
#include <string.h>

static unsigned checks;
static unsigned failures;

#define CHECK(condition) check((condition), #condition, __LINE__)

static void check(int holds, const char *condition, int line)
{
    checks++;
    if (holds)
        return;
    failures++;
    printf("line %d: not so: %s\n", line, condition);
}

static uint8_t wire[64 * 1024];
static uint32_t blocks;

static void *obtain(uint64_t size, void *context)
{
    (void)context;
    blocks++;
    return calloc(1, size == 0 ? 1 : (size_t)size);
}

static void release(void *pointer, void *context)
{
    (void)context;
    blocks--;
    free(pointer);
}

/* A record with guard bytes behind it. */
enum { STRIP = 0xA5 };
#define GUARDED(type)                                                                                                  \
    struct {                                                                                                           \
        type record;                                                                                                   \
        uint8_t strip[64];                                                                                             \
    }
#define LAY_OUT(guarded) memset(&(guarded), STRIP, sizeof(guarded))
#define CHECK_STRIP(guarded) CHECK(is_untouched((guarded).strip))

static int is_untouched(const uint8_t strip[64])
{
    for (int at = 0; at < 64; at++)
        if (strip[at] != STRIP)
            return 0;
    return 1;
}

static void subscriber_records(void)
{
    GUARDED(mava_tum_subscriber_v6) in;
    GUARDED(mava_tum_subscriber_v6) copy;
    const mava_tum_subscriber_v6 sent = {.field_1 = 7, .field_7 = 300, .presence_mask = 0x41};
    LAY_OUT(in);
    LAY_OUT(copy);
    uint64_t size = mava_tum_subscriber_v6_encode_ext(&sent, wire, sizeof wire, NULL, NULL, 0);
    CHECK(size == 5 && memcmp(wire, "\x08\x07\x38\xac\x02", 5) == 0);
    CHECK(mava_tum_subscriber_v6_decode_ext(&in.record, wire, size, obtain, NULL, 0) == MAVA_TUM_OK);
    CHECK(in.record.field_1 == 7 && in.record.field_7 == 300 && (in.record.presence_mask & 0x7F) == 0x41);
    CHECK(mava_tum_subscriber_v6_duplicate(&copy.record, &in.record, obtain, NULL) == MAVA_TUM_OK);
    CHECK(copy.record.field_7 == 300);
    CHECK_STRIP(in);
    CHECK_STRIP(copy);
    mava_tum_subscriber_v6_free_ext(&copy.record, release, NULL, 0);
    mava_tum_subscriber_v6_free_ext(&in.record, release, NULL, 0);
}

static void feature_records(void)
{
    GUARDED(mava_tum_subscriber_qos) in;
    mava_tum_subscriber_qos sent = {.field_1 = 1, .field_12 = "gold", .presence_mask = 0x801};
    LAY_OUT(in);
    uint64_t size = mava_tum_subscriber_qos_encode_ext(&sent, wire, sizeof wire, NULL, NULL);
    CHECK(size == 8 && memcmp(wire, "\x08\x01\x62\x04gold", 8) == 0);
    CHECK(mava_tum_subscriber_qos_decode_ext(&in.record, wire, size, obtain, NULL) == MAVA_TUM_OK);
    CHECK(in.record.field_12 != NULL && strcmp(in.record.field_12, "gold") == 0);
    CHECK_STRIP(in);
    mava_tum_subscriber_qos_free_ext(&in.record, release, NULL);
    CHECK(in.record.field_12 == NULL);
}

static void session_messages(void)
{
    GUARDED(mava_tum_session_delete) in;
    const mava_tum_session_delete sent = {.field_4 = UINT64_MAX, .field_5 = 2, .presence_mask = 0x18};
    LAY_OUT(in);
    uint64_t size = mava_tum_session_delete_encode_ext(&sent, wire, sizeof wire, NULL, NULL);
    CHECK(size == 13);
    CHECK(mava_tum_session_delete_decode_ext(&in.record, wire, size, obtain, NULL) == MAVA_TUM_OK);
    CHECK(in.record.field_4 == UINT64_MAX && in.record.field_5 == 2);
    CHECK_STRIP(in);
}

static void statistics(void)
{
    GUARDED(mava_tum_service_stats) in;
    mava_tum_service_stats sent = {.field_1 = "tv", .presence_mask = 0x3};
    sent.field_2.field_18 = 9;
    sent.field_2.presence_mask = 1u << 17;
    LAY_OUT(in);
    uint64_t size = mava_tum_service_stats_encode_ext(&sent, wire, sizeof wire, NULL, NULL);
    CHECK(mava_tum_service_stats_decode_ext(&in.record, wire, size, obtain, NULL) == MAVA_TUM_OK);
    CHECK(strcmp(in.record.field_1, "tv") == 0 && in.record.field_2.field_18 == 9);
    CHECK_STRIP(in);
    mava_tum_service_stats_free_ext(&in.record, release, NULL);
}

static void routes(void)
{
    GUARDED(mava_tum_sub_route) in;
    mava_tum_subscriber_route_ipv4 elements[2] = {
        {.field_1 = 11, .presence_mask = 1}, {.field_1 = 12, .presence_mask = 1}};
    const mava_tum_sub_route sent = {
        .ipv4_routes = elements, .ipv4_route_count = 2, .field_6 = 5, .presence_mask = 0x28};
    LAY_OUT(in);
    uint64_t size = mava_tum_sub_route_encode_ext(&sent, wire, sizeof wire, NULL, NULL, 0);
    CHECK(mava_tum_sub_route_decode_ext(&in.record, wire, size, obtain, NULL, 0) == MAVA_TUM_OK);
    CHECK(in.record.ipv4_route_count == 2 && in.record.ipv6_route_count == 0 && in.record.field_6 == 5);
    CHECK(in.record.ipv4_routes != NULL && in.record.ipv4_routes[1].field_1 == 12);
    CHECK_STRIP(in);
    mava_tum_sub_route_free_ext(&in.record, release, NULL, 0);
}

static void reconciliation(void)
{
    GUARDED(mava_tum_rec_start_req) in;
    mava_tum_rec_start_req sent = {.field_2 = 3, .field_4 = "peer", .presence_mask = 0xA};
    LAY_OUT(in);
    uint64_t size = mava_tum_rec_start_req_encode_ext(&sent, wire, sizeof wire, NULL, NULL);
    CHECK(mava_tum_rec_start_req_decode_ext(&in.record, wire, size, obtain, NULL, 0) == MAVA_TUM_OK);
    CHECK(in.record.field_2 == 3 && strcmp(in.record.field_4, "peer") == 0);
    CHECK_STRIP(in);
    mava_tum_rec_start_req_free_ext(&in.record, release, NULL, 0);
}

static void redundancy_group(void)
{
    GUARDED(mava_tum_srg_group_data) in;
    mava_tum_srg_group_data sent = {.field_4 = 4, .field_5 = "pair", .presence_mask = 0x18};
    LAY_OUT(in);
    uint64_t size = mava_tum_srg_group_data_encode_ext(&sent, wire, sizeof wire, NULL, NULL);
    CHECK(mava_tum_srg_group_data_decode_ext(&in.record, wire, size, obtain, NULL, 0) == MAVA_TUM_OK);
    CHECK(in.record.field_4 == 4 && strcmp(in.record.field_5, "pair") == 0);
    CHECK_STRIP(in);
    mava_tum_srg_group_data_free_ext(&in.record, release, NULL);
}

/* The adapters' records are too large for the stack. */
static GUARDED(tum_nal_data_session_context) context_in;
static GUARDED(tum_nal_data_sess_oper_resp) oper_resp_in;
static GUARDED(tum_nal_data_subscriber_stats) stats_in;
static GUARDED(tum_nal_data_sub_route) route_in;
static GUARDED(tum_nal_data_rec_sess_req) sess_req_in;
static GUARDED(tum_nal_data_srg_group_rec_replay_req) replay_in;

static void adapter_of_session_context(void)
{
    static tum_nal_data_session_context sent;
    sent.feature_mask = TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_MTU_1;
    sent.ipv4_address = 0xC0000211;
    sent.mtu_1_value = 1492;
    memcpy(sent.session_name, "user@example.com", sizeof "user@example.com");
    LAY_OUT(context_in);
    uint64_t size = tum_nal_data_gpb_encode_tum_session_context(&sent, wire, sizeof wire);
    tum_nal_data_gpb_decode_tum_session_context(wire, (uint32_t)size, &context_in.record);
    CHECK(context_in.record.ipv4_address == 0xC0000211 && context_in.record.mtu_1_value == 1492);
    CHECK(strcmp(context_in.record.session_name, "user@example.com") == 0);
    CHECK_STRIP(context_in);
}

static void adapters_of_session_and_statistics(void)
{
    static tum_nal_data_sess_oper_resp sent = {.field_1 = 6, .field_4 = 1ull << 40, .field_8 = "done"};
    sent.field_9.value_4 = 44;
    sent.field_9.service_count = 1;
    memcpy(sent.field_9.services[0].name, "tv", sizeof "tv");
    LAY_OUT(oper_resp_in);
    uint64_t size = tum_nal_data_gpb_encode_tum_sess_oper_resp(&sent, wire, sizeof wire);
    tum_nal_data_gpb_decode_tum_sess_oper_resp(wire, (uint32_t)size, &oper_resp_in.record);
    CHECK(memcmp(&oper_resp_in.record.field_9, &sent.field_9, sizeof sent.field_9) == 0);
    CHECK(oper_resp_in.record.field_4 == 1ull << 40 && strcmp(oper_resp_in.record.field_8, "done") == 0);
    CHECK_STRIP(oper_resp_in);

    LAY_OUT(stats_in);
    size = tum_nal_data_gpb_encode_tum_subscriber_stats(&sent.field_9, wire, sizeof wire);
    tum_nal_data_gpb_decode_tum_subscriber_stats(wire, (uint32_t)size, &stats_in.record);
    CHECK(stats_in.record.value_4 == 44 && strcmp(stats_in.record.services[0].name, "tv") == 0);
    CHECK_STRIP(stats_in);
}

static void adapters_of_lists(void)
{
    static tum_nal_data_sub_route route = {.field_2 = 2, .ipv4_route_count = 1, .field_6 = 6};
    route.ipv4_routes[0].field_3 = 0x0A000001;
    LAY_OUT(route_in);
    uint64_t size = tum_nal_data_gpb_encode_tum_sub_route(&route, wire, sizeof wire);
    tum_nal_data_gpb_decode_tum_sub_route(wire, (uint32_t)size, &route_in.record);
    CHECK(route_in.record.ipv4_route_count == 1 && route_in.record.ipv4_routes[0].field_3 == 0x0A000001);
    CHECK(route_in.record.field_6 == 6);
    CHECK_STRIP(route_in);

    static tum_nal_data_rec_sess_req sess_req = {.field_1 = 8};
    LAY_OUT(sess_req_in);
    size = tum_nal_data_gpb_encode_tum_rec_sess_req(&sess_req, wire, sizeof wire);
    tum_nal_data_gpb_decode_tum_rec_sess_req(wire, (uint32_t)size, &sess_req_in.record);
    CHECK(sess_req_in.record.field_1 == 8);
    CHECK_STRIP(sess_req_in);

    static tum_nal_data_srg_group_rec_replay_req replay = {.field_1 = 9};
    LAY_OUT(replay_in);
    size = tum_nal_data_gpb_encode_tum_srg_group_rec_replay_req(&replay, wire, sizeof wire);
    tum_nal_data_gpb_decode_tum_srg_group_rec_replay_req(wire, (uint32_t)size, &replay_in.record);
    CHECK(replay_in.record.field_1 == 9);
    CHECK_STRIP(replay_in);
}

static void queue(void)
{
    nal_queue_t line = {0};
    nal_queue_node_t nodes[3] = {{0}};
    for (int at = 0; at < 3; at++)
        nal_queue_enqueue(&line, &nodes[at]);
    CHECK(line.count == 3 && line.head == &nodes[0] && line.tail == &nodes[2]);
    CHECK(nal_queue_delete(&line, &nodes[1]) == 1 && nodes[0].next == &nodes[2]);
    CHECK(nal_queue_dequeue(&line) == &nodes[0] && nal_queue_dequeue(&line) == &nodes[2]);
    CHECK(nal_queue_dequeue(&line) == NULL && line.count == 0);
}

int main(void)
{
    subscriber_records();
    feature_records();
    session_messages();
    statistics();
    routes();
    reconciliation();
    redundancy_group();
    adapter_of_session_context();
    adapters_of_session_and_statistics();
    adapters_of_lists();
    queue();
    CHECK(blocks == 0);
    printf("%u checks of a caller compiled against 1.0.0, %u failures\n", checks, failures);
    return failures != 0;
}
