/* An intrusive, doubly linked first-in first-out queue for the callers' own objects. It is independent of the
 * codec.
 *
 * Embed a `nal_queue_node_t` in each object; a zero-filled node is free. A zero-filled `nal_queue_t` is an empty queue;
 * there is nothing to initialise or to destroy. The queue only changes links: it owns no memory and calls nothing.
 * Every operation takes constant time. There is no lock: the caller serialises all operations on one queue. No argument
 * may be null. */
#ifndef TUM_NAL_NAL_QUEUE_H
#define TUM_NAL_NAL_QUEUE_H
/* SPDX-License-Identifier: Apache-2.0 */

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
 * ends the process through the standard assertion handler, in every build type. The only node of another queue is
 * not distinguished from a free one. The caller owns the node, which must live until it is removed. */
MAVA_TUM_API void nal_queue_enqueue(nal_queue_t *queue, nal_queue_node_t *node);

/* Removes the node at the head and returns it, free. Returns null when the queue is empty. */
MAVA_TUM_API nal_queue_node_t *nal_queue_dequeue(nal_queue_t *queue);

/* Removes `node` from any place in the queue. Returns 1 if it was removed and is now free. Returns 0 if `queue` is
 * empty (the node is then not read), or if the node has no neighbour and is neither head nor tail of this queue: it is
 * free, or alone in another queue and stays there. The call does not check that the node belongs to this queue: a node
 * inside another one is unlinked from its neighbours there, 1 is returned and the count of `queue` is reduced, while
 * head, tail and count of the other queue do not change. */
MAVA_TUM_API int32_t nal_queue_delete(nal_queue_t *queue, nal_queue_node_t *node);

#ifdef __cplusplus
}
#endif

#endif
