// One call of the library, ready to be repeated on one input.
#ifndef MAVA_TUM_BENCH_MEASURED_CALL_H
#define MAVA_TUM_BENCH_MEASURED_CALL_H

#include "bump_allocator.h"
#include "growth/wire_pieces.h"
#include "model/library_calls.h"

#include <memory>

namespace bench
{

class measured_call
{
public:
    virtual ~measured_call() = default;

    // `wire` must outlive the calls. Returns false if the call would not read all of it.
    virtual bool prepare(const wire_bytes &wire) = 0;
    virtual void call() = 0;

    // The memory that the call requests from its allocator, if known.
    virtual uint64_t memory_bytes() const = 0;
};

// Decode and free, with the alias bit and an allocator that is emptied before each call.
std::unique_ptr<measured_call> decode_call(const mava_tum_model::library_message &of);

// Encode of the decoded input, into a buffer of exactly the size.
std::unique_ptr<measured_call> encode_call(const mava_tum_model::library_message &of);

// Decode through the adapter.
std::unique_ptr<measured_call> adapter_call(const mava_tum_catalogue::adapter &adapter);

} // namespace bench

#endif
