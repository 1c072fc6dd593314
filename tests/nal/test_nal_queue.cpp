// The queue: order, links and count after each operation, nodes of other queues, and the report of a refused node.
#include "tum_nal/nal_queue.h"

#include <gtest/gtest.h>

#include <errno.h>
#include <signal.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <initializer_list>
#include <string>
#include <vector>

namespace mava_tum_test
{
namespace
{

using queue = nal_queue_t;
using node = nal_queue_node_t;

// The queue holds exactly `nodes`, in this order, linked both ways.
void expect_holds(const queue &held, std::initializer_list<const node *> nodes)
{
    const std::vector<const node *> expected(nodes);
    EXPECT_EQ(held.count, expected.size());
    EXPECT_EQ(held.head, expected.empty() ? nullptr : expected.front());
    EXPECT_EQ(held.tail, expected.empty() ? nullptr : expected.back());
    for (std::size_t i = 0; i < expected.size(); ++i) {
        EXPECT_EQ(expected[i]->prev, i == 0 ? nullptr : expected[i - 1]) << "node " << i;
        EXPECT_EQ(expected[i]->next, i + 1 == expected.size() ? nullptr : expected[i + 1]) << "node " << i;
    }
}

void expect_free(const node &released)
{
    EXPECT_EQ(released.prev, nullptr);
    EXPECT_EQ(released.next, nullptr);
}

struct three_nodes {
    queue held = {};
    node n1 = {};
    node n2 = {};
    node n3 = {};

    three_nodes()
    {
        nal_queue_enqueue(&held, &n1);
        nal_queue_enqueue(&held, &n2);
        nal_queue_enqueue(&held, &n3);
    }
};

// ---- first in, first out ----

TEST(nal_queue, nodes_stand_in_the_order_they_came)
{
    queue held = {};
    node n1 = {};
    node n2 = {};
    node n3 = {};
    expect_holds(held, {});
    nal_queue_enqueue(&held, &n1);
    expect_holds(held, {&n1});
    nal_queue_enqueue(&held, &n2);
    expect_holds(held, {&n1, &n2});
    nal_queue_enqueue(&held, &n3);
    expect_holds(held, {&n1, &n2, &n3});
}

TEST(nal_queue, nodes_leave_in_the_order_they_came_and_are_free_then)
{
    three_nodes t;
    EXPECT_EQ(nal_queue_dequeue(&t.held), &t.n1);
    expect_free(t.n1);
    expect_holds(t.held, {&t.n2, &t.n3});
    EXPECT_EQ(nal_queue_dequeue(&t.held), &t.n2);
    expect_holds(t.held, {&t.n3});
    EXPECT_EQ(nal_queue_dequeue(&t.held), &t.n3);
    expect_holds(t.held, {});
    EXPECT_EQ(nal_queue_dequeue(&t.held), nullptr);
    expect_holds(t.held, {});
    expect_free(t.n3);
}

TEST(nal_queue, a_node_that_left_can_come_again)
{
    three_nodes t;
    nal_queue_enqueue(&t.held, nal_queue_dequeue(&t.held));
    expect_holds(t.held, {&t.n2, &t.n3, &t.n1});
    EXPECT_EQ(nal_queue_delete(&t.held, &t.n3), 1);
    nal_queue_enqueue(&t.held, &t.n3);
    expect_holds(t.held, {&t.n2, &t.n1, &t.n3});
}

// ---- delete ----

TEST(nal_queue, delete_takes_out_the_only_node)
{
    queue held = {};
    node only = {};
    nal_queue_enqueue(&held, &only);
    EXPECT_EQ(nal_queue_delete(&held, &only), 1);
    expect_holds(held, {});
    expect_free(only);
}

TEST(nal_queue, delete_takes_out_the_middle_node)
{
    three_nodes t;
    EXPECT_EQ(nal_queue_delete(&t.held, &t.n2), 1);
    expect_holds(t.held, {&t.n1, &t.n3});
    expect_free(t.n2);
}

TEST(nal_queue, delete_takes_out_the_head)
{
    three_nodes t;
    EXPECT_EQ(nal_queue_delete(&t.held, &t.n1), 1);
    expect_holds(t.held, {&t.n2, &t.n3});
    expect_free(t.n1);
}

TEST(nal_queue, delete_takes_out_the_tail)
{
    three_nodes t;
    EXPECT_EQ(nal_queue_delete(&t.held, &t.n3), 1);
    expect_holds(t.held, {&t.n1, &t.n2});
    expect_free(t.n3);
}

TEST(nal_queue, delete_of_a_free_node_changes_nothing)
{
    three_nodes t;
    node free_node = {};
    EXPECT_EQ(nal_queue_delete(&t.held, &free_node), 0);
    expect_holds(t.held, {&t.n1, &t.n2, &t.n3});
    expect_free(free_node);
}

TEST(nal_queue, delete_from_an_empty_queue_does_not_touch_the_node)
{
    queue empty = {};
    node before = {};
    node after = {};
    node linked = {&before, &after};
    EXPECT_EQ(nal_queue_delete(&empty, &linked), 0);
    EXPECT_EQ(linked.prev, &before);
    EXPECT_EQ(linked.next, &after);
    expect_free(before);
    expect_free(after);
    expect_holds(empty, {});
}

// ---- nodes of another queue ----

TEST(nal_queue, delete_takes_a_node_out_of_the_middle_of_another_queue_and_counts_it_here)
{
    three_nodes q;
    three_nodes r;
    EXPECT_EQ(nal_queue_delete(&q.held, &r.n2), 1);
    expect_free(r.n2);
    EXPECT_EQ(r.n1.next, &r.n3);
    EXPECT_EQ(r.n3.prev, &r.n1);
    EXPECT_EQ(q.held.count, 2u);
    EXPECT_EQ(r.held.count, 3u);
    EXPECT_EQ(r.held.head, &r.n1);
    EXPECT_EQ(r.held.tail, &r.n3);
    EXPECT_EQ(q.held.head, &q.n1);
    EXPECT_EQ(q.held.tail, &q.n3);
}

TEST(nal_queue, delete_of_the_head_of_another_queue_leaves_that_head_pointing_at_it)
{
    three_nodes q;
    three_nodes r;
    EXPECT_EQ(nal_queue_delete(&q.held, &r.n1), 1);
    expect_free(r.n1);
    EXPECT_EQ(r.n2.prev, nullptr);
    EXPECT_EQ(r.held.head, &r.n1);
    EXPECT_EQ(r.held.count, 3u);
    EXPECT_EQ(q.held.count, 2u);
}

TEST(nal_queue, delete_counts_a_head_that_lost_its_links_through_another_queue)
{
    three_nodes q;
    three_nodes r;
    nal_queue_delete(&q.held, &r.n1);
    EXPECT_EQ(nal_queue_delete(&r.held, &r.n1), 1);
    EXPECT_EQ(r.held.head, nullptr);
    EXPECT_EQ(r.held.tail, &r.n3);
    EXPECT_EQ(r.held.count, 2u);
}

TEST(nal_queue, delete_of_the_only_node_of_another_queue_takes_nothing_out)
{
    three_nodes q;
    queue r = {};
    node only = {};
    nal_queue_enqueue(&r, &only);
    EXPECT_EQ(nal_queue_delete(&q.held, &only), 0);
    expect_holds(q.held, {&q.n1, &q.n2, &q.n3});
    expect_holds(r, {&only});
}

TEST(nal_queue, the_count_goes_below_zero_without_a_guard)
{
    queue q = {};
    node only = {};
    nal_queue_enqueue(&q, &only);
    three_nodes r;
    EXPECT_EQ(nal_queue_delete(&q, &r.n2), 1);
    EXPECT_EQ(q.count, 0u);
    EXPECT_EQ(nal_queue_dequeue(&q), &only);
    EXPECT_EQ(q.count, 0xFFFFFFFFu);
}

TEST(nal_queue, a_delete_takes_the_count_below_zero_too)
{
    queue q = {};
    node only = {};
    nal_queue_enqueue(&q, &only);
    three_nodes r;
    three_nodes s;
    EXPECT_EQ(nal_queue_delete(&q, &r.n2), 1);
    EXPECT_EQ(nal_queue_delete(&q, &s.n2), 1);
    EXPECT_EQ(q.count, 0xFFFFFFFFu);
    EXPECT_EQ(q.head, &only);
    EXPECT_EQ(nal_queue_delete(&q, &only), 1);
    EXPECT_EQ(q.count, 0xFFFFFFFEu);
    EXPECT_EQ(q.head, nullptr);
    EXPECT_EQ(q.tail, nullptr);
}

// ---- refused nodes ----

struct child_end {
    int status = 0;
    std::string errors; // all it wrote to stderr
};

// Runs `enqueue` in another process.
template <class enqueue_call>
child_end run_in_child(enqueue_call &&enqueue)
{
    int ends[2];
    EXPECT_EQ(::pipe(ends), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit no_core = {0, 0};
        ::setrlimit(RLIMIT_CORE, &no_core);
        ::signal(SIGABRT, SIG_DFL);
        ::dup2(ends[1], STDERR_FILENO);
        ::close(ends[0]);
        ::close(ends[1]);
        enqueue();
        ::_exit(0);
    }
    ::close(ends[1]);
    child_end ended;
    char part[256];
    for (ssize_t got; (got = ::read(ends[0], part, sizeof part)) > 0;)
        ended.errors.append(part, static_cast<std::size_t>(got));
    ::close(ends[0]);
    EXPECT_EQ(::waitpid(child, &ended.status, 0), child);
    return ended;
}

// The output of the program itself: an emulator adds a line.
std::string without_emulator(const std::string &errors)
{
    const std::string added = "qemu: uncaught target signal 6 (Aborted) - core dumped\n";
    const std::size_t at = errors.rfind(added);
    return at != std::string::npos && at + added.size() == errors.size() ? errors.substr(0, at) : errors;
}

template <class enqueue_call>
void expect_refused(const char *what, enqueue_call &&enqueue)
{
    const child_end ended = run_in_child(enqueue);
    EXPECT_TRUE(WIFSIGNALED(ended.status)) << what;
    EXPECT_EQ(WTERMSIG(ended.status), SIGABRT) << what;
    EXPECT_EQ(without_emulator(ended.errors),
        std::string(program_invocation_short_name) +
            ": subscriber/tarvo_nal/quen/src/nal_queue:21: void nal_queue_enqueue(nal_queue_t *, nal_queue_node_t *): "
            "Assertion `!node->prev && !node->next && queue->head != node' failed.\n")
        << what;
}

TEST(nal_queue, a_node_that_is_not_free_ends_the_process_with_the_assertion)
{
    expect_refused("a node with a next", [] {
        three_nodes t;
        queue other = {};
        node refused = {nullptr, &t.n1};
        nal_queue_enqueue(&other, &refused);
    });
    expect_refused("a node with a prev", [] {
        three_nodes t;
        queue other = {};
        node refused = {&t.n1, nullptr};
        nal_queue_enqueue(&other, &refused);
    });
    expect_refused("the middle node of this queue", [] {
        three_nodes t;
        nal_queue_enqueue(&t.held, &t.n2);
    });
    expect_refused("the only node of this queue", [] {
        queue held = {};
        node only = {};
        nal_queue_enqueue(&held, &only);
        nal_queue_enqueue(&held, &only);
    });
}

TEST(nal_queue, a_free_node_is_taken_without_a_word)
{
    const child_end ended = run_in_child([] { three_nodes t; });
    EXPECT_TRUE(WIFEXITED(ended.status));
    EXPECT_EQ(WEXITSTATUS(ended.status), 0);
    EXPECT_EQ(ended.errors, "");
}

TEST(nal_queue, the_only_node_of_another_queue_cannot_be_told_from_a_free_one)
{
    queue q = {};
    queue r = {};
    node only = {};
    nal_queue_enqueue(&r, &only);
    nal_queue_enqueue(&q, &only);
    expect_holds(q, {&only});
    EXPECT_EQ(r.head, &only);
}

} // namespace
} // namespace mava_tum_test
