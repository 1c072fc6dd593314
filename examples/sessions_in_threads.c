/* Four threads decode and encode at once, without a lock: the library keeps nothing between calls, so any number of
 * threads may read the same message, each into a record of its own.
 * Prints how many messages came out of each thread as they went in. */
#include "tum_nal/nal_session_context.h"

#include <pthread.h>
#include <stdio.h>
#include <string.h>

enum { thread_count = 4, rounds = 1000 };

struct message {
    uint8_t wire[TUM_NAL_SESSION_CONTEXT_MAX_SIZE];
    uint64_t size;
};

struct worker {
    pthread_t thread;
    const struct message *shared; /* read by all threads, changed by none */
    unsigned unchanged;
};

static void *work(void *argument)
{
    struct worker *worker = argument;
    const struct message *shared = worker->shared;
    for (unsigned i = 0; i < rounds; ++i) {
        tum_nal_data_session_context session; /* this thread's own */
        uint8_t again[sizeof shared->wire];
        tum_nal_data_gpb_decode_tum_session_context(shared->wire, (uint32_t)shared->size, &session);
        const uint64_t size = tum_nal_data_gpb_encode_tum_session_context(&session, again, sizeof again);
        worker->unchanged += size == shared->size && memcmp(again, shared->wire, (size_t)size) == 0;
    }
    return NULL;
}

static void fill(struct message *message)
{
    const tum_nal_data_session_context session = {
        .feature_mask = TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_MTU_1,
        .ipv4_address = 0xC0000211, /* 192.0.2.17 */
        .session_name = "user@example.com",
        .mtu_1_value = 1492,
    };
    message->size = tum_nal_data_gpb_encode_tum_session_context(&session, message->wire, sizeof message->wire);
}

int main(void)
{
    struct message message;
    struct worker workers[thread_count];
    fill(&message);
    for (unsigned i = 0; i < thread_count; ++i) {
        workers[i] = (struct worker){.shared = &message};
        const int error = pthread_create(&workers[i].thread, NULL, work, &workers[i]);
        if (error != 0) {
            fprintf(stderr, "sessions_in_threads: no thread %u: %s\n", i + 1, strerror(error));
            return 1;
        }
    }
    int failures = 0;
    for (unsigned i = 0; i < thread_count; ++i) {
        pthread_join(workers[i].thread, NULL);
        printf("thread %u: %u of %d unchanged\n", i + 1, workers[i].unchanged, rounds);
        failures += workers[i].unchanged != rounds;
    }
    return failures == 0 ? 0 : 1;
}
