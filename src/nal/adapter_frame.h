// The two frames that every adapter is built on.
//
//     encode   application record --to_codec--> scratch codec record --_encode_ext--> the caller's buffer
//     decode   wire bytes --decode--> scratch codec record --from_codec--> application record, then _free_ext
//
// The scratch record lives on the stack of the one call. When encoding it borrows from the application record and
// nothing is allocated; when decoding its bytes fields point into the input, its texts and arrays are blocks from
// calloc, all of which are given back before the call returns.
#pragma once

#include "mava_tum/codec_contract.h"
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

// `to_codec` fills a cleared record; `slots` holds the elements of its lists. The scratch record is cleared as a whole
// because the encoder reads the presence mask of a nested record even when the parent does not mark it. The slots are
// not: each is cleared when it is used. `Flags` is what the encoder takes behind its segments: the flags, here 0, or
// nothing if the message holds no bytes field.
template <class Codec, class Slots, class Application, class... Flags>
uint64_t encode_frame(const Application *record, uint8_t *buffer, uint32_t capacity,
    void (*to_codec)(Codec &, Slots &, const Application &),
    uint64_t (*encode_ext)(const Codec *, uint8_t *, uint64_t, mava_tum_segment *, uint32_t *, Flags...))
{
    Codec scratch;
    clear_scratch(&scratch, sizeof scratch);
    Slots slots;
    to_codec(scratch, slots, *record);
    return encode_ext(&scratch, buffer, capacity, nullptr, nullptr, Flags{}...);
}

// The same for a message without lists.
template <class Codec, class Application, class... Flags>
uint64_t encode_frame(const Application *record, uint8_t *buffer, uint32_t capacity,
    void (*to_codec)(Codec &, const Application &),
    uint64_t (*encode_ext)(const Codec *, uint8_t *, uint64_t, mava_tum_segment *, uint32_t *, Flags...))
{
    Codec scratch;
    clear_scratch(&scratch, sizeof scratch);
    to_codec(scratch, *record);
    return encode_ext(&scratch, buffer, capacity, nullptr, nullptr, Flags{}...);
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
