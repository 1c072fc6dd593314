// The operations that a peer offers for one corpus. Each is added with the call that is timed. The same call is first
// checked against the corpus: an operation with another output than ours is never timed.
//
// A call takes the number of a message. An operation has a name ("encode") and a side, which is an implementation and
// its method ("protobuf reused").
#ifndef MAVA_TUM_BENCH_SUITE_H
#define MAVA_TUM_BENCH_SUITE_H

#include "peers/harness/corpus.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <utility>

namespace bench
{

// The compiler must assume that the value and all memory are read.
template <class Value>
void keep(const Value &value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}

class timed_operation
{
public:
    virtual ~timed_operation() = default;

    // Calls once for each message from number `first`, and continues with number 0 after the last.
    virtual void run(size_t first, uint64_t calls) = 0;

    std::string name;
    std::string side;
};

class suite
{
public:
    // With a name, only the operations of that name are checked and kept.
    explicit suite(const corpus &content, std::string only = {}) : content_(content), only_(std::move(only)) {}

    const corpus &content() const
    {
        return content_;
    }

    // Whether an operation is wanted, before its data are made.
    bool wants(const std::string &name) const
    {
        return only_.empty() || name == only_;
    }

    // `call` returns whether it succeeded. Its outcome is checked by `wire_after`: it does the same work and encodes
    // the result, which must have the bytes of the message.
    template <class Call, class WireAfter>
    void add(const char *name, const char *side, Call call, WireAfter wire_after)
    {
        check(name, side, [&](size_t i) { return call(i) ? wire_difference(i, wire_after(i)) : "fails"; });
        keep_operation(name, side, std::move(call));
    }

    // `call` returns the bytes that it wrote; they must be those of the message.
    template <class Call>
    void add_encode(const char *name, const char *side, Call call)
    {
        check(name, side, [&](size_t i) { return wire_difference(i, call(i)); });
        keep_operation(name, side, [call = std::move(call)](size_t i) mutable { return call(i).size(); });
    }

    // `call` returns the application record that it filled; it must be equal to ours.
    template <class Call>
    void add_decode_adapter(const char *side, Call call)
    {
        check("decode_adapter", side, [&](size_t i) { return record_difference(i, call(i)); });
        keep_operation("decode_adapter", side, [call = std::move(call)](size_t i) mutable { return &call(i); });
    }

    // For lower bounds, such as heap calls alone, which have no message or record. `call` returns whether it succeeded.
    template <class Call>
    void add_floor(const char *name, const char *side, Call call)
    {
        check(name, side, [&](size_t i) { return call(i) ? "" : "fails"; });
        keep_operation(name, side, std::move(call));
    }

    // Empty, or a description of the first difference from the corpus.
    const std::string &first_disagreement() const
    {
        return disagreement_;
    }

    const std::vector<std::unique_ptr<timed_operation>> &operations() const
    {
        return operations_;
    }

private:
    template <class Call>
    class operation_of final : public timed_operation
    {
    public:
        operation_of(size_t message_count, Call call) : message_count_(message_count), call_(std::move(call)) {}

        void run(size_t first, uint64_t calls) override
        {
            for (size_t i = first % message_count_; calls != 0; --calls) {
                keep(call_(i));
                if (++i == message_count_)
                    i = 0;
            }
        }

    private:
        size_t message_count_;
        Call call_;
    };

    template <class Call>
    void keep_operation(const char *name, const char *side, Call call)
    {
        if (!wants(name))
            return;
        auto operation = std::make_unique<operation_of<Call>>(content_.message_count(), std::move(call));
        operation->name = name;
        operation->side = side;
        operations_.push_back(std::move(operation));
    }

    // `difference_of` returns an empty string for a correct message.
    void check(const char *name, const char *side, const std::function<std::string(size_t)> &difference_of);

    std::string wire_difference(size_t i, byte_view written) const;
    std::string bytes_difference(byte_view wanted, byte_view got) const;

    template <class Record>
    std::string record_difference(size_t i, const Record &record) const
    {
        const byte_view got(reinterpret_cast<const uint8_t *>(&record), sizeof record);
        return bytes_difference(content_.received(i), got);
    }

    const corpus &content_;
    std::string only_;
    std::string disagreement_;
    std::vector<std::unique_ptr<timed_operation>> operations_;
};

inline void suite::check(const char *name, const char *side, const std::function<std::string(size_t)> &difference_of)
{
    if (!wants(name))
        return;
    for (size_t i = 0; i < content_.message_count() && disagreement_.empty(); ++i) {
        const std::string difference = difference_of(i);
        if (!difference.empty()) {
            disagreement_ = std::string(side) + " " + name + " of message " + std::to_string(i) + " of " +
                            content_.workload + ", " + content_.set + ": " + difference;
        }
    }
}

inline std::string suite::wire_difference(size_t i, byte_view written) const
{
    return bytes_difference(content_.wires[i], written);
}

inline std::string suite::bytes_difference(byte_view wanted, byte_view got) const
{
    if (std::ranges::equal(wanted, got))
        return {};
    const auto first = std::ranges::mismatch(wanted, got).in1 - wanted.begin();
    return std::to_string(got.size()) + " bytes where " + std::to_string(wanted.size()) +
           " are due, the first difference at byte " + std::to_string(first);
}

} // namespace bench

#endif
