// The operations that a peer offers for one corpus. Each is added with the call that is timed, and that very call is
// checked against the corpus first: an operation whose output is not ours is never timed.
//
// A call takes the number of a message. An operation has a name ("encode"), and a side: who does it, and how
// ("protobuf reused").
#ifndef MAVA_TUM_BENCH_SUITE_H
#define MAVA_TUM_BENCH_SUITE_H

#include "peers/harness/corpus.h"

#include <functional>
#include <memory>
#include <utility>

namespace bench
{

// The compiler must assume that the value, and all memory, is looked at.
template <class Value>
void keep(const Value &value)
{
    asm volatile("" : : "r,m"(value) : "memory");
}

class timed_operation
{
public:
    virtual ~timed_operation() = default;

    // Goes through all messages, `passes` times.
    virtual void run(uint64_t passes) = 0;

    std::string name;
    std::string side;
};

class suite
{
public:
    explicit suite(const corpus &content) : content_(content) {}

    const corpus &content() const
    {
        return content_;
    }

    // `call` returns whether it succeeded. What it leads to is checked by `wire_after`, which returns the bytes that
    // the peer writes from the outcome of the same work; they have to be the message's.
    template <class Call, class WireAfter>
    void add(const char *name, const char *side, Call call, WireAfter wire_after)
    {
        check(name, side, [&](size_t i) { return call(i) ? wire_difference(i, wire_after(i)) : "fails"; });
        keep_operation(name, side, std::move(call));
    }

    // `call` returns the bytes it wrote; they have to be the message's.
    template <class Call>
    void add_encode(const char *name, const char *side, Call call)
    {
        check(name, side, [&](size_t i) { return wire_difference(i, call(i)); });
        keep_operation(name, side, [call = std::move(call)](size_t i) mutable { return call(i).size(); });
    }

    // `call` returns the application record it filled; it has to be the one that our adapter fills.
    template <class Call>
    void add_decode_adapter(const char *side, Call call)
    {
        check("decode_adapter", side, [&](size_t i) { return record_difference(i, call(i)); });
        keep_operation("decode_adapter", side, [call = std::move(call)](size_t i) mutable { return &call(i); });
    }

    // For work whose outcome is no message and no record: the floors. `call` returns whether it succeeded.
    template <class Call>
    void add_floor(const char *name, const char *side, Call call)
    {
        check(name, side, [&](size_t i) { return call(i) ? "" : "fails"; });
        keep_operation(name, side, std::move(call));
    }

    // Empty, or where an operation first disagreed with the corpus, told for a person.
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

        void run(uint64_t passes) override
        {
            for (; passes != 0; --passes) {
                for (size_t i = 0; i < message_count_; ++i)
                    keep(call_(i));
            }
        }

    private:
        size_t message_count_;
        Call call_;
    };

    template <class Call>
    void keep_operation(const char *name, const char *side, Call call)
    {
        auto operation = std::make_unique<operation_of<Call>>(content_.message_count(), std::move(call));
        operation->name = name;
        operation->side = side;
        operations_.push_back(std::move(operation));
    }

    // `difference_of` returns an empty string for a message that is as it has to be.
    void check(const char *name, const char *side, const std::function<std::string(size_t)> &difference_of);

    std::string wire_difference(size_t i, byte_view written) const;
    std::string bytes_difference(byte_view wanted, byte_view got) const;

    template <class Record>
    std::string record_difference(size_t i, const Record &record) const
    {
        const byte_view wanted(content_.received.data() + i * sizeof record, sizeof record);
        return bytes_difference(wanted, byte_view(reinterpret_cast<const uint8_t *>(&record), sizeof record));
    }

    const corpus &content_;
    std::string disagreement_;
    std::vector<std::unique_ptr<timed_operation>> operations_;
};

// The corpus's application records to send, typed.
template <class Record>
std::vector<Record> records_to_send(const corpus &content)
{
    std::vector<Record> records(content.message_count());
    std::memcpy(static_cast<void *>(records.data()), content.sent.data(), content.sent.size());
    return records;
}

} // namespace bench

#endif
