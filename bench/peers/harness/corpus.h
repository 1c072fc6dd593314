// The messages of a measurement: one workload, one set of content and one range of numbers, made with our library.
#ifndef MAVA_TUM_BENCH_CORPUS_H
#define MAVA_TUM_BENCH_CORPUS_H

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <functional>
#include <span>
#include <string>
#include <vector>

namespace bench
{

using byte_view = std::span<const uint8_t>;

struct corpus {
    std::string workload; // for instance "typical_session": defines the message
    std::string set;      // "fixed", "realistic" or "random"

    std::vector<std::vector<uint8_t>> wires;

    // One application record per message, the sender's input; none if the workload has no adapter.
    std::vector<uint8_t> sent;

    // The record that our decode adapter makes of message `i`; valid until the next call. Not equal to the sent record:
    // not all members are sent.
    std::function<byte_view(size_t i)> received;

    size_t message_count() const
    {
        return wires.size();
    }

    uint64_t longest_wire() const
    {
        uint64_t longest = 0;
        for (const std::vector<uint8_t> &wire : wires)
            longest = std::max<uint64_t>(longest, wire.size());
        return longest;
    }

    uint64_t wire_bytes() const
    {
        uint64_t sum = 0;
        for (const std::vector<uint8_t> &wire : wires)
            sum += wire.size();
        return sum;
    }
};

// The application records to send, typed.
template <class Record>
std::span<const Record> records_to_send(const corpus &content)
{
    return {reinterpret_cast<const Record *>(content.sent.data()), content.sent.size() / sizeof(Record)};
}

} // namespace bench

#endif
