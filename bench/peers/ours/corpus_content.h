// Makes a corpus with our library.
#ifndef MAVA_TUM_BENCH_CORPUS_CONTENT_H
#define MAVA_TUM_BENCH_CORPUS_CONTENT_H

#include "peers/harness/corpus.h"

namespace bench
{

// By their numbers. The fixed set has one message for all numbers.
struct message_window {
    uint64_t first;
    uint64_t count;
};

// Fills in the messages of the workload and set of `content`. A message depends on workload, set and number only.
// Returns false if the name does not exist. `content` must not be moved afterwards.
bool fill_corpus(corpus &content, const message_window &numbers);

} // namespace bench

#endif
