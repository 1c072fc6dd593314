// Encoding in pieces: a bytes field is not copied, its piece points at the record's memory.
#ifndef MAVA_TUM_BENCH_GATHER_OPERATIONS_H
#define MAVA_TUM_BENCH_GATHER_OPERATIONS_H

#include "peers/ours/codec_operations.h"

#include <array>

namespace bench
{

inline void add_gathering_encode(suite &operations)
{
    struct output {
        std::array<uint8_t, 64 * 1024> buffer;
        std::array<mava_tum_segment, 64> pieces;
        uint32_t piece_count;
    };
    auto decoded = std::make_shared<decoded_corpus<session_codec>>(operations.content());
    auto out = std::make_shared<output>();
    const auto encode = [decoded, out](size_t i) {
        out->piece_count = static_cast<uint32_t>(out->pieces.size());
        return mava_tum_session_context_encode_ext(&decoded->records[i], out->buffer.data(), out->buffer.size(),
                   out->pieces.data(), &out->piece_count, MAVA_TUM_ALIAS) <= out->buffer.size();
    };
    operations.add("encode", "ours", encode, [encode, out](size_t i) {
        std::vector<uint8_t> wire;
        encode(i);
        for (uint32_t piece = 0; piece < out->piece_count; ++piece)
            wire.insert(wire.end(), out->pieces[piece].data, out->pieces[piece].data + out->pieces[piece].length);
        return wire;
    });
}

} // namespace bench

#endif
