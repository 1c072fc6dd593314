// Does the proved C of the queue do the same as the library? Every sequence of operations on two queues and three
// nodes: the same results, refusals, links and counts.
extern "C" {
#include "proof_nal_queue.h"
}

#include <gtest/gtest.h>

#include <array>
#include <csetjmp>
#include <string>

namespace
{

std::jmp_buf refused;

} // namespace

extern "C" void proof_queue_refuse(void)
{
    std::longjmp(refused, 1);
}

extern "C" [[noreturn]] void __wrap___assert_fail(const char *, const char *, unsigned int, const char *)
{
    std::longjmp(refused, 1);
}

namespace mava_tum_test
{

namespace
{

constexpr std::size_t queue_count = 2;
constexpr std::size_t node_count = 3;
constexpr std::size_t operation_count = queue_count * (2 * node_count + 1);
constexpr std::size_t longest_sequence = 5;

struct implementation {
    void (*enqueue)(nal_queue_t *queue, nal_queue_node_t *node);
    nal_queue_node_t *(*dequeue)(nal_queue_t *queue);
    int32_t (*remove)(nal_queue_t *queue, nal_queue_node_t *node);
};

constexpr implementation library = {nal_queue_enqueue, nal_queue_dequeue, nal_queue_delete};
constexpr implementation proved = {proof_queue_enqueue, proof_queue_dequeue, proof_queue_delete};

// The visible state: links as numbers of nodes, and the result of the last operation.
using observation = std::array<int64_t, 3 * queue_count + 2 * node_count + 1>;

class world
{
public:
    explicit world(const implementation &used) : used_(used) {}

    void apply(std::size_t operation)
    {
        nal_queue_t *queue = &queues_[operation % queue_count];
        const std::size_t what = operation / queue_count;
        nal_queue_node_t *node = &nodes_[what % node_count];
        if (what < node_count)
            result_ = enqueue(queue, node);
        else if (what < 2 * node_count)
            result_ = used_.remove(queue, node);
        else
            result_ = number_of(used_.dequeue(queue));
    }

    observation observed() const
    {
        observation seen = {result_};
        std::size_t at = 1;
        for (const nal_queue_t &queue : queues_) {
            seen[at++] = number_of(queue.head);
            seen[at++] = number_of(queue.tail);
            seen[at++] = queue.count;
        }
        for (const nal_queue_node_t &node : nodes_) {
            seen[at++] = number_of(node.prev);
            seen[at++] = number_of(node.next);
        }
        return seen;
    }

private:
    // 1 if the node was refused.
    int64_t enqueue(nal_queue_t *queue, nal_queue_node_t *node)
    {
        if (setjmp(refused) != 0)
            return 1;
        used_.enqueue(queue, node);
        return 0;
    }

    int64_t number_of(const nal_queue_node_t *node) const
    {
        return node == nullptr ? -1 : node - nodes_.data();
    }

    const implementation &used_;
    std::array<nal_queue_t, queue_count> queues_ = {};
    std::array<nal_queue_node_t, node_count> nodes_ = {};
    int64_t result_ = 0;
};

TEST(proof_nal_queue, every_sequence_of_five_operations_does_the_same_as_in_the_library)
{
    std::size_t sequence_count = 1;
    for (std::size_t i = 0; i < longest_sequence; ++i)
        sequence_count *= operation_count;
    for (std::size_t sequence = 0; sequence < sequence_count; ++sequence) {
        world expected(library);
        world transcription(proved);
        for (std::size_t left = sequence, i = 0; i < longest_sequence; ++i, left /= operation_count) {
            expected.apply(left % operation_count);
            transcription.apply(left % operation_count);
            ASSERT_EQ(transcription.observed(), expected.observed()) << "sequence " << sequence << ", operation " << i;
        }
    }
}

} // namespace

} // namespace mava_tum_test
