#include "peers/harness/corpus.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <numeric>

namespace bench
{
namespace
{

// Written and read by programs of one build on one machine: numbers stand as they stand in memory.
class corpus_stream
{
public:
    corpus_stream(const std::string &path, const char *mode) : path_(path), file_(std::fopen(path.c_str(), mode))
    {
        if (!file_)
            fail("cannot be opened");
    }

    ~corpus_stream()
    {
        std::fclose(file_);
    }

    corpus_stream(const corpus_stream &) = delete;
    corpus_stream &operator=(const corpus_stream &) = delete;

    void write(const void *data, size_t bytes)
    {
        if (std::fwrite(data, 1, bytes, file_) != bytes)
            fail("cannot be written");
    }

    void read(void *data, size_t bytes)
    {
        if (std::fread(data, 1, bytes, file_) != bytes)
            fail("ends too early");
    }

    void write_number(uint64_t number)
    {
        write(&number, sizeof number);
    }

    uint64_t read_number()
    {
        uint64_t number = 0;
        read(&number, sizeof number);
        return number;
    }

    template <class Sequence>
    void write_sequence(const Sequence &sequence)
    {
        write_number(sequence.size());
        write(sequence.data(), sequence.size());
    }

    template <class Sequence>
    Sequence read_sequence()
    {
        Sequence sequence(read_number(), 0);
        read(sequence.data(), sequence.size());
        return sequence;
    }

    void flush()
    {
        if (std::fflush(file_) != 0)
            fail("cannot be written");
    }

private:
    [[noreturn]] void fail(const char *what) const
    {
        std::fprintf(stderr, "corpus %s %s\n", path_.c_str(), what);
        std::exit(2);
    }

    std::string path_;
    std::FILE *file_;
};

} // namespace

uint64_t corpus::longest_wire() const
{
    uint64_t longest = 0;
    for (const std::vector<uint8_t> &wire : wires)
        longest = std::max<uint64_t>(longest, wire.size());
    return longest;
}

uint64_t corpus::wire_bytes() const
{
    return std::accumulate(wires.begin(), wires.end(), uint64_t{0},
        [](uint64_t sum, const std::vector<uint8_t> &wire) { return sum + wire.size(); });
}

corpus read_corpus(const std::string &path)
{
    corpus_stream stream(path, "rb");
    corpus content;
    content.workload = stream.read_sequence<std::string>();
    content.set = stream.read_sequence<std::string>();
    content.wires.resize(stream.read_number());
    for (std::vector<uint8_t> &wire : content.wires)
        wire = stream.read_sequence<std::vector<uint8_t>>();
    content.application_bytes = stream.read_number();
    content.sent = stream.read_sequence<std::vector<uint8_t>>();
    content.received = stream.read_sequence<std::vector<uint8_t>>();
    return content;
}

void write_corpus(const std::string &path, const corpus &content)
{
    corpus_stream stream(path, "wb");
    stream.write_sequence(content.workload);
    stream.write_sequence(content.set);
    stream.write_number(content.wires.size());
    for (const std::vector<uint8_t> &wire : content.wires)
        stream.write_sequence(wire);
    stream.write_number(content.application_bytes);
    stream.write_sequence(content.sent);
    stream.write_sequence(content.received);
    stream.flush();
}

} // namespace bench
