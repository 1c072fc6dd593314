#include "queue_runs.h"

#include "model/random_source.h"
#include "tum_nal/nal_queue.h"

namespace mava_tum_behaviour
{

namespace
{

constexpr std::size_t node_count = 5;
constexpr std::size_t queue_count = 2;

struct queue_state {
    nal_queue_t queues[queue_count] = {};
    nal_queue_node_t nodes[node_count] = {};

    uint64_t index_of(const nal_queue_node_t *node) const
    {
        return node == nullptr ? 0 : 1 + static_cast<uint64_t>(node - nodes);
    }

    void add_to(call_hash &hash) const
    {
        for (const nal_queue_t &queue : queues) {
            hash.add(index_of(queue.head));
            hash.add(index_of(queue.tail));
            hash.add(queue.count);
        }
        for (const nal_queue_node_t &node : nodes) {
            hash.add(index_of(node.prev));
            hash.add(index_of(node.next));
        }
    }
};

// Any other enqueue ends the process.
bool may_enqueue(const nal_queue_t &queue, const nal_queue_node_t &node)
{
    return node.prev == nullptr && node.next == nullptr && queue.head != &node;
}

} // namespace

void run_queue(behaviour_table &table)
{
    constexpr uint64_t sequences = 20000;
    behaviour_row &enqueue = table.new_row("nal_queue_enqueue", "sequences");
    behaviour_row &dequeue = table.new_row("nal_queue_dequeue", "sequences");
    behaviour_row &remove = table.new_row("nal_queue_delete", "sequences");
    for (uint64_t seed = 0; seed < sequences; ++seed) {
        mava_tum_model::random_source random(seed);
        queue_state state;
        for (uint64_t step = 0; step < 40; ++step) {
            // Mostly one queue: a node in the wrong queue damages both permanently.
            nal_queue_t &queue = state.queues[random.below(1 + seed % queue_count)];
            nal_queue_node_t &node = state.nodes[random.below(node_count)];
            const uint64_t operation = random.below(4);
            call_hash hash;
            if (operation < 2 && !may_enqueue(queue, node))
                continue;
            if (operation < 2)
                nal_queue_enqueue(&queue, &node);
            else if (operation == 2)
                hash.add(state.index_of(nal_queue_dequeue(&queue)));
            else
                hash.add(static_cast<uint64_t>(nal_queue_delete(&queue, &node)));
            state.add_to(hash);
            behaviour_row &row = operation < 2 ? enqueue : operation == 2 ? dequeue : remove;
            row.add({}, seed << 32 | step, hash);
        }
    }
}

} // namespace mava_tum_behaviour
