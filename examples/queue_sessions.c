/* A work list of sessions on the queue: sessions wait for their set-up, one of them goes away while it waits, and the
 * others are worked off in the order in which they came. The list allocates nothing: its links lie in the objects.
 * Prints the list after each step, and the sessions as they are worked off. */
#include "tum_nal/nal_queue.h"

#include <stddef.h>
#include <stdio.h>

/* An object of ours. All of it is zeroed where it is made, so the node is free. */
struct waiting_session {
    uint32_t number;
    const char *user;
    nal_queue_node_t node; /* may stand anywhere; an object in two queues at a time has two nodes */
};

/* The queue knows nodes only. A node lies at a fixed distance from the begin of its object. */
static struct waiting_session *session_of(nal_queue_node_t *node)
{
    return (struct waiting_session *)((char *)node - offsetof(struct waiting_session, node));
}

static int failures;

static void check(int condition, const char *what)
{
    if (condition)
        return;
    ++failures;
    fprintf(stderr, "queue_sessions: not so: %s\n", what);
}

static void print_list(const nal_queue_t *list)
{
    printf("%u waiting:", (unsigned)list->count);
    for (nal_queue_node_t *node = list->head; node != NULL; node = node->next)
        printf(" %u", (unsigned)session_of(node)->number);
    printf("\n");
}

/* A subscriber hangs up while the session waits: no search, it is taken out where it stands. */
static void hang_up(nal_queue_t *list, struct waiting_session *session)
{
    check(nal_queue_delete(list, &session->node) == 1, "a waiting session can be taken out");
    check(nal_queue_delete(list, &session->node) == 0, "it cannot be taken out twice");
    printf("%u (%s) hung up\n", (unsigned)session->number, session->user);
}

static void work_off(nal_queue_t *list, const uint32_t *expected, uint32_t count)
{
    check(list->count == count, "no session was lost");
    for (uint32_t i = 0; i < count && list->count > 0; ++i) {
        const struct waiting_session *session = session_of(nal_queue_dequeue(list));
        check(session->number == expected[i], "the session that came first goes first");
        printf("set up %u (%s)\n", (unsigned)session->number, session->user);
    }
    check(nal_queue_dequeue(list) == NULL, "nothing is left");
    check(list->count == 0 && list->head == NULL && list->tail == NULL, "the list is empty");
}

int main(void)
{
    struct waiting_session sessions[] = {
        {.number = 1, .user = "user0001@example.com"},
        {.number = 2, .user = "user0002@example.com"},
        {.number = 3, .user = "user0003@example.net"},
        {.number = 4, .user = "user0004@example.com"},
    };
    nal_queue_t list = {0}; /* zeroed, it is an empty queue */
    for (uint32_t i = 0; i < 4; ++i)
        nal_queue_enqueue(&list, &sessions[i].node);
    print_list(&list);
    hang_up(&list, &sessions[1]);
    print_list(&list);
    nal_queue_enqueue(&list, &sessions[1].node); /* its node is free again: it may come back, at the end */
    print_list(&list);
    work_off(&list, (const uint32_t[]){1, 3, 4, 2}, 4);
    print_list(&list);
    return failures == 0 ? 0 : 1;
}
