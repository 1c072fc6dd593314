// Writes a corpus for the peers to work on:
//   mava_tum_bench_corpus <file> <workload> <set> <first number> <messages>
#include "peers/ours/corpus_content.h"

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 6) {
        std::fprintf(stderr, "usage: %s <file> <workload> <set> <first number> <messages>\n", argv[0]);
        return 2;
    }
    bench::corpus content;
    content.workload = argv[2];
    content.set = argv[3];
    if (!bench::fill_corpus(content, {std::stoull(argv[4]), std::stoull(argv[5])})) {
        std::fprintf(stderr, "%s: no messages for workload %s, set %s\n", argv[0], argv[2], argv[3]);
        return 2;
    }
    bench::write_corpus(argv[1], content);
    std::printf(
        "%zu messages, %llu bytes\n", content.message_count(), static_cast<unsigned long long>(content.wire_bytes()));
    return 0;
}
