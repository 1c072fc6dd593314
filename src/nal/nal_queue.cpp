// The intrusive queue.
#include "tum_nal/nal_queue.h"

// Declared here because <assert.h> does not offer it where assertions are off, and ours are never off.
extern "C" [[noreturn]] void __assert_fail(
    const char *expression, const char *file, unsigned int line, const char *function) noexcept;

namespace mava_tum
{

namespace
{

// What the report of a refused node says. Fixed texts, known to those who watch the logs: the assert macro would give
// this file's name and line.
constexpr char refused_expression[] = "!node->prev && !node->next && queue->head != node";
constexpr char refused_file[] = "subscriber/tarvo_nal/quen/src/nal_queue";
constexpr unsigned int refused_line = 21;
constexpr char refused_function[] = "void nal_queue_enqueue(nal_queue_t *, nal_queue_node_t *)";

bool has_neighbour(const nal_queue_node_t &node)
{
    return node.prev != nullptr || node.next != nullptr;
}

void clear_links(nal_queue_node_t &node)
{
    node.prev = nullptr;
    node.next = nullptr;
}

// Joins the neighbours of `node`, which keeps its own links.
void join_neighbours(const nal_queue_node_t &node)
{
    if (node.prev != nullptr)
        node.prev->next = node.next;
    if (node.next != nullptr)
        node.next->prev = node.prev;
}

} // namespace

} // namespace mava_tum

extern "C" void nal_queue_enqueue(nal_queue_t *queue, nal_queue_node_t *node)
{
    using namespace mava_tum;
    if (has_neighbour(*node) || queue->head == node) // L40: the only node of another queue passes
        __assert_fail(refused_expression, refused_file, refused_line, refused_function);
    node->prev = queue->tail;
    if (queue->tail != nullptr)
        queue->tail->next = node;
    else
        queue->head = node;
    queue->tail = node;
    ++queue->count;
}

extern "C" nal_queue_node_t *nal_queue_dequeue(nal_queue_t *queue)
{
    nal_queue_node_t *const node = queue->head;
    if (node == nullptr)
        return nullptr;
    queue->head = node->next;
    mava_tum::clear_links(*node);
    if (queue->head != nullptr)
        queue->head->prev = nullptr;
    else
        queue->tail = nullptr;
    --queue->count;
    return node;
}

// L38: does not ask whether the node is in this queue: one from the middle of another is unlinked there and counted
// here. L39: so the count may go below zero.
extern "C" int32_t nal_queue_delete(nal_queue_t *queue, nal_queue_node_t *node)
{
    using namespace mava_tum;
    if (queue->head == nullptr)
        return 0;
    const bool linked = has_neighbour(*node);
    const bool at_an_end = queue->head == node || queue->tail == node;
    join_neighbours(*node);
    if (queue->tail == node)
        queue->tail = node->prev;
    if (queue->head == node)
        queue->head = node->next;
    clear_links(*node);
    if (!linked && !at_an_end)
        return 0;
    --queue->count;
    return 1;
}
