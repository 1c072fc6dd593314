// The two frames that every adapter is built on.
//
//     encode   application record --a description of its fields--> the caller's buffer
//     decode   wire bytes --decode--> scratch codec record --from_codec--> application record, then _free_ext
//
// An encode builds no codec record and allocates nothing. A decode's scratch record lives on the stack of the one call;
// its bytes fields point into the input, its texts and arrays are blocks from calloc, all of which are given back
// before the call returns.
#pragma once

#include "mava_tum/codec_contract.h"
#include "messages/described_encode.h"
#include "messages/owned_decode.h"

#include <cstdint>
#include <cstdlib>
#include <cstring>

namespace mava_tum
{

// The callbacks of all decode adapters.
inline void *calloc_block(uint64_t size, void *)
{
    const size_t host_size = static_cast<size_t>(size);
    if (host_size != size) // where addresses have 32 bits: an array that no calloc could hold
        return nullptr;
    return calloc(1, host_size);
}

inline void free_block(void *pointer, void *)
{
    free(pointer);
}

// Clears a scratch record, spare presence bits included. Out of line, so that it is libc's memset: the string
// instruction that the compiler would put in its place takes twice as long for the large ones.
[[gnu::noinline]] inline void clear_scratch(void *scratch, size_t bytes)
{
    memset(scratch, 0, bytes);
}

// Frees a scratch record, whatever its free function takes: nothing more where the record owns no memory, the callback,
// or the callback and the flags.
template <class Codec>
void free_scratch(Codec &scratch, void (*free_ext)(Codec *))
{
    free_ext(&scratch);
}

template <class Codec>
void free_scratch(Codec &scratch, void (*free_ext)(Codec *, mava_tum_release_fn, void *))
{
    free_ext(&scratch, free_block, nullptr);
}

template <class Codec>
void free_scratch(Codec &scratch, void (*free_ext)(Codec *, mava_tum_release_fn, void *, uint32_t))
{
    free_ext(&scratch, free_block, nullptr, MAVA_TUM_ALIAS);
}

// `from_codec` fills a cleared record. L15: the decoder's result is dropped; of a malformed message the fields before
// the fault are delivered, and the caller is told nothing.
template <class Codec, class Application, class... Release>
void decode_frame(const uint8_t *data, uint32_t length, Application *record,
    void (*from_codec)(Application &, const Codec &), void (*free_ext)(Codec *, Release...))
{
    Codec scratch;
    clear_scratch(&scratch, sizeof scratch);
    decode_owned(scratch, data, length, calloc_block, free_block);
    memset(record, 0, sizeof(*record));
    from_codec(*record, scratch);
    free_scratch(scratch, free_ext);
}

} // namespace mava_tum
