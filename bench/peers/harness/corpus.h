// What all peers of a run work on: the messages of one workload, one set of content and one window of its numbers. The
// corpus writer makes the file with our library; a peer reads it, so that no peer needs more than its own library.
#ifndef MAVA_TUM_BENCH_CORPUS_H
#define MAVA_TUM_BENCH_CORPUS_H

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <vector>

namespace bench
{

using byte_view = std::span<const uint8_t>;

struct corpus {
    std::string workload; // for instance "typical_session": decides over the message
    std::string set;      // "fixed", "realistic" or "random"

    std::vector<std::vector<uint8_t>> wires;

    // One application record per message, or none where the workload has no adapter: what a sender starts from, and
    // what a receiver ends with (not the same: not all members travel).
    uint64_t application_bytes = 0;
    std::vector<uint8_t> sent;
    std::vector<uint8_t> received;

    size_t message_count() const
    {
        return wires.size();
    }

    uint64_t longest_wire() const;
    uint64_t wire_bytes() const;
};

// Both exit with a message when the file cannot be read or written whole.
corpus read_corpus(const std::string &path);
void write_corpus(const std::string &path, const corpus &content);

} // namespace bench

#endif
