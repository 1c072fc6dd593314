// src/nal/nal_queue.cpp, line by line. What differs, and why: README.md.
#include "proof_nal_queue.h"

#include <stdbool.h>

/*@
  requires node: \valid_read(node) && valid_or_null(node->prev) && valid_or_null(node->next);
  terminates \true;
  exits \false;
  assigns \nothing;
  ensures answer: \result <==> !is_free(node);
*/
static bool has_neighbour(const nal_queue_node_t *node)
{
    return node->prev != NULL || node->next != NULL;
}

/*@
  requires node: \valid(node);
  terminates \true;
  exits \false;
  assigns node->prev, node->next;
  ensures free: is_free(node);
*/
static void clear_links(nal_queue_node_t *node)
{
    node->prev = NULL;
    node->next = NULL;
}

/*@
  requires node: \valid(node) && valid_or_null(node->prev) && valid_or_null(node->next);
  requires before: node->prev != \null ==> \separated(node, node->prev);
  requires after: node->next != \null ==> \separated(node, node->next);
  requires neighbours: node->prev != \null && node->next != \null ==> \separated(node->prev, node->next);
  terminates \true;
  exits \false;
  assigns node->prev->next, node->next->prev;
  ensures before: node->prev != \null ==> node->prev->next == node->next;
  ensures after: node->next != \null ==> node->next->prev == node->prev;
*/
static void join_neighbours(const nal_queue_node_t *node)
{
    if (node->prev != NULL)
        node->prev->next = node->next;
    if (node->next != NULL)
        node->next->prev = node->prev;
}

void proof_queue_enqueue(nal_queue_t *queue, nal_queue_node_t *node)
{
    if (has_neighbour(node) || queue->head == node)
        proof_queue_refuse();
    node->prev = queue->tail;
    if (queue->tail != NULL)
        queue->tail->next = node;
    else
        queue->head = node;
    queue->tail = node;
    ++queue->count;
}

nal_queue_node_t *proof_queue_dequeue(nal_queue_t *queue)
{
    nal_queue_node_t *const node = queue->head;
    if (node == NULL)
        return NULL;
    queue->head = node->next;
    clear_links(node);
    if (queue->head != NULL)
        queue->head->prev = NULL;
    else
        queue->tail = NULL;
    --queue->count;
    return node;
}

int32_t proof_queue_delete(nal_queue_t *queue, nal_queue_node_t *node)
{
    if (queue->head == NULL)
        return 0;
    const bool linked = has_neighbour(node);
    const bool at_an_end = queue->head == node || queue->tail == node;
    join_neighbours(node);
    if (queue->tail == node)
        queue->tail = node->prev;
    if (queue->head == node)
        queue->head = node->next;
    clear_links(node);
    if (!linked && !at_an_end)
        return 0;
    --queue->count;
    return 1;
}
