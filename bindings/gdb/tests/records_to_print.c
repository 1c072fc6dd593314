/* Records of every kind, for gdb to print. It stops in look(). */
#include "mava_tum.h"

#include <stdlib.h>
#include <string.h>

mava_tum_session_context session;           /* decoded: see main() */
mava_tum_sess_svc_start services;           /* an array of texts */
mava_tum_session_data clear_bit;            /* a nested record with content, whose own bit is clear */
mava_tum_session_context broken;            /* uninitialised memory may have this content */
tum_nal_data_session_context application;   /* filled like an application does */
tum_nal_data_subscriber_stats statistics;   /* arrays of numbers in nested records */
tum_nal_data_sub_route routes;              /* a count above the slots; addresses */
tum_nal_data_rec_sess_replay_resp response; /* texts in an array */
tum_nal_data_session_delete nothing;
const tum_nal_data_session_delete *pointer = &nothing;
volatile int looked_at;

void look(void);

void look(void)
{
    looked_at = 1;
}

static void *obtain(uint64_t size, void *context)
{
    (void)context;
    return malloc(size != 0 ? size : 1);
}

static void release(void *block, void *context)
{
    (void)context;
    free(block);
}

static uint8_t some_bytes[] = {0x01, 0x02, 0xFF};

static void fill_application_records(void)
{
    static char name[] = "first service";
    static char *names[] = {name, NULL};
    services = (mava_tum_sess_svc_start){
        .field_1 = 1ULL << 40, .field_5 = names, .field_5_count = 2, .presence_mask = 1 | 1 << 4};
    clear_bit = (mava_tum_session_data){.vlan = {.field_1 = 100, .presence_mask = 1}};
    broken = (mava_tum_session_context){.presence_mask = 0xFF000000 | 1 << 5 | 1 << 10 | 1 << 22,
        .field_6 = {.data = (uint8_t *)16, .length = 4},
        .qos_count = 3,
        .route_ipv4 = (mava_tum_subscriber_route_ipv4 *)16,
        .route_ipv4_count = 4000000000U};
    application = (tum_nal_data_session_context){.feature_mask = TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_QOS,
        .ipv4_address = 0xC0000211,
        .ipv6_part_2 = {0x20, 0x01, 0x0D, 0xB8, [15] = 1},
        .session_name = "user@example.com",
        .session_identifier = {0, 1, 2, 3},
        .qos = {{.value_1 = 1, .text_3 = "gold"}, {.value_2 = 2}, {.value_1 = 3}},
        .qos_count = 2};
    memset(application.session_label, 'x', sizeof application.session_label);
    statistics = (tum_nal_data_subscriber_stats){
        .value_6 = 1, .block_7 = {.counter = {[0] = 5, [17] = 9}}, .service_count = 1, .services = {{.name = "voice"}}};
    routes.ipv4_route_count = 51;
    routes.ipv4_routes[49] = (tum_nal_data_ipv4_route){.field_3 = 0x0A000000, .field_4 = 8};
    response.field_3_count = 1;
    response.field_3[0] = (tum_nal_data_service_start){.field_5_count = 2, .field_5 = {"voice", ""}};
}

static int fill_session(void)
{
    mava_tum_subscriber_qos qos[] = {{.field_1 = 1, .field_3 = (char[]){"gold"}, .presence_mask = 5}, {0}};
    static uint8_t address[] = {0x20, 1, 0x0D, 0xB8, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1};
    mava_tum_session_context full = {.field_1 = 7,
        .field_6 = {some_bytes, sizeof some_bytes},
        .subscriber_v4 = {.ipv4_address = 0x110200C0, .presence_mask = 2},
        .subscriber_v6 = {.field_2 = {address, 16}, .field_3 = {address, 0}, .presence_mask = 6},
        .session_data = {.field_5 = (char[]){"user@example.com"}, .presence_mask = 1 << 4},
        .qos = qos,
        .qos_count = 2,
        .presence_mask = 1 | 1 << 5 | 7 << 7 | 1 << 10};
    uint8_t wire[256];
    uint64_t size = mava_tum_session_context_encode_ext(&full, wire, sizeof wire, NULL, NULL, 0);
    return mava_tum_session_context_decode_ext(&session, wire, size, obtain, NULL, 0);
}

int main(void)
{
    if (fill_session() != MAVA_TUM_OK)
        return 1;
    fill_application_records();
    look();
    mava_tum_session_context_free_ext(&session, release, NULL, 0);
    return 0;
}
