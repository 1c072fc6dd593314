// The contracts of the queue: src/nal/nal_queue.cpp. They say for any node with any neighbours, in this queue or in
// another, which links change, and to what; nothing else does. A queue of any length is covered: an operation sees no
// more of it than these nodes.
#ifndef PROOF_NAL_QUEUE_H
#define PROOF_NAL_QUEUE_H

#include "tum_nal/nal_queue.h"

#include <stddef.h>

/*@
  predicate is_free{L}(nal_queue_node_t *node) = node->prev == \null && node->next == \null;

  predicate valid_or_null{L}(nal_queue_node_t *node) = node == \null || \valid(node);
*/

/*@
  requires queue: \valid(queue) && valid_or_null(queue->head) && valid_or_null(queue->tail);
  requires node: \valid(node) && \separated(queue, node) && valid_or_null(node->prev) && valid_or_null(node->next);
  requires tail: queue->tail != \null ==> \separated(queue, queue->tail, node);
  terminates \true;
  exits refused: !is_free{Pre}(node) || \old(queue->head) == node;
  assigns queue->head, queue->tail, queue->count, node->prev, queue->tail->next;
  ensures accepted: is_free{Pre}(node) && \old(queue->head) != node;
  ensures place: queue->tail == node && node->prev == \old(queue->tail) && node->next == \null;
  ensures joined: \old(queue->tail) != \null ==>
    \old(queue->tail)->next == node && queue->head == \old(queue->head);
  ensures first: \old(queue->tail) == \null ==> queue->head == node;
  ensures count: queue->count == (uint32_t)(\old(queue->count) + 1);
*/
void proof_queue_enqueue(nal_queue_t *queue, nal_queue_node_t *node);

/*@
  requires queue: \valid(queue) && valid_or_null(queue->head);
  requires head: queue->head != \null ==> \separated(queue, queue->head) && valid_or_null(queue->head->next);
  requires next: queue->head != \null && queue->head->next != \null ==>
    \separated(queue, queue->head, queue->head->next);
  terminates \true;
  exits \false;
  assigns queue->head, queue->tail, queue->count, queue->head->prev, queue->head->next, queue->head->next->prev;
  ensures result: \result == \old(queue->head);
  ensures empty: \result == \null ==> queue->head == \null && queue->tail == \old(queue->tail) &&
    queue->count == \old(queue->count);
  ensures free: \result != \null ==> is_free(\result) && queue->head == \old(queue->head->next) &&
    queue->count == (uint32_t)(\old(queue->count) - 1);
  ensures last: \result != \null && \old(queue->head->next) == \null ==> queue->tail == \null;
  ensures next: \result != \null && \old(queue->head->next) != \null ==>
    \old(queue->head->next)->prev == \null && queue->tail == \old(queue->tail);
*/
nal_queue_node_t *proof_queue_dequeue(nal_queue_t *queue);

/*@
  requires queue: \valid(queue) && valid_or_null(queue->head) && valid_or_null(queue->tail);
  requires node: queue->head != \null ==> \valid(node) && \separated(queue, node) &&
    valid_or_null(node->prev) && valid_or_null(node->next);
  requires neighbours: queue->head != \null ==>
    (node->prev != \null ==> \separated(queue, node, node->prev)) &&
    (node->next != \null ==> \separated(queue, node, node->next)) &&
    (node->prev != \null && node->next != \null ==> \separated(node->prev, node->next));
  terminates \true;
  exits \false;
  assigns queue->head, queue->tail, queue->count, node->prev, node->next, node->prev->next, node->next->prev;
  ensures nothing_in_an_empty_queue: \old(queue->head) == \null ==>
    \result == 0 && queue->head == \null && queue->tail == \old(queue->tail) && queue->count == \old(queue->count);
  ensures untouched: \old(queue->head) == \null && \valid{Pre}(node) && \separated(queue, node) ==>
    node->prev == \old(node->prev) && node->next == \old(node->next);
  ensures result: \old(queue->head) != \null ==> (\result == 0 || \result == 1) &&
    (\result == 0 <==> is_free{Pre}(node) && \old(queue->head) != node && \old(queue->tail) != node);
  ensures count: queue->count == (uint32_t)(\old(queue->count) - \result);
  ensures free: \old(queue->head) != \null ==> is_free(node);
  ensures before: \old(queue->head) != \null && \old(node->prev) != \null ==>
    \old(node->prev)->next == \old(node->next);
  ensures after: \old(queue->head) != \null && \old(node->next) != \null ==>
    \old(node->next)->prev == \old(node->prev);
  ensures head: \old(queue->head) != \null ==>
    queue->head == (\old(queue->head) == node ? \old(node->next) : \old(queue->head));
  ensures tail: \old(queue->head) != \null ==>
    queue->tail == (\old(queue->tail) == node ? \old(node->prev) : \old(queue->tail));
*/
int32_t proof_queue_delete(nal_queue_t *queue, nal_queue_node_t *node);

/*@
  terminates \true;
  exits refused: \true;
  assigns \nothing;
  ensures never: \false;
*/
void proof_queue_refuse(void) __attribute__((noreturn));

#endif
