/* An intrusive, doubly linked first-in first-out queue for the callers' own objects. It stands beside the codec and
 * shares nothing with it.
 *
 * Embed a `nal_queue_node_t` in each object; a zero-filled node is free. A zero-filled `nal_queue_t` is an empty queue;
 * there is nothing to initialise or to destroy. The queue only rewires links: it owns no memory and calls nothing.
 * Every operation takes constant time. There is no lock: the caller serialises all operations on one queue. No argument
 * may be null. */
#ifndef TUM_NAL_NAL_QUEUE_H
#define TUM_NAL_NAL_QUEUE_H

#include "mava_tum/codec_contract.h"

#ifdef __cplusplus
extern "C" {
#endif

/* The link in a queued object. Both members are null while it is in no queue. */
typedef struct nal_queue_node {
    struct nal_queue_node *prev; /* the node before; null at the head */
    struct nal_queue_node *next; /* the node after; null at the tail */
} nal_queue_node_t;

/* The queue. `count` is kept by the three operations; nothing guards it against going below zero. */
typedef struct nal_queue {
    nal_queue_node_t *head; /* null when empty */
    nal_queue_node_t *tail; /* null when empty */
    uint32_t count;         /* nodes in the queue */
} nal_queue_t;

/* Appends `node` at the tail. The node must be free: with a link that is not null, or as the head of this queue, it
 * ends the process through the standard assertion handler, in every build type. The only node of another queue cannot
 * be told from a free one. The node stays the caller's and must live until it is taken out. */
MAVA_TUM_API void nal_queue_enqueue(nal_queue_t *queue, nal_queue_node_t *node);

/* Takes the node at the head out and returns it, free. Returns null when the queue is empty. */
MAVA_TUM_API nal_queue_node_t *nal_queue_dequeue(nal_queue_t *queue);

/* Takes `node` out, wherever it stands. Returns 1 when it was taken out and is free now; 0 when `queue` is empty, and
 * then the node is not touched, or when the node has no neighbour and is neither head nor tail of this queue: it is
 * free, or alone in another queue and stays there. It does not check that the node belongs to this queue: a node inside
 * another one is unlinked from its neighbours there, 1 is returned and the count of `queue` goes down, while head, tail
 * and count of the other queue stay. */
MAVA_TUM_API int32_t nal_queue_delete(nal_queue_t *queue, nal_queue_node_t *node);

#ifdef __cplusplus
}
#endif

#endif
