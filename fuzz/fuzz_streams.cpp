// Does tum_nal/message_stream.h return the messages of a stream, for all lengths and all parts in which the stream
// arrives? An input, of any bytes:
//   byte 0      bit 0: the rest is sent as messages (set) or is the stream itself; the other bits, times 8: the limit
//   byte 1      how many bytes of cuts follow, modulo 16
//   cuts        the sizes in which the stream arrives, again and again; none: all at once
//   the rest    the stream; or, for each message, a byte with a fourth of its length, and as much of it as follows
#include "fuzz_target.h"
#include "tum_nal/message_stream.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

namespace mava_tum_fuzz
{
namespace
{

using byte_span = std::span<const uint8_t>;
using byte_vector = std::vector<uint8_t>;

void expect(bool holds, const char *what)
{
    if (holds)
        return;
    std::fprintf(stderr, "message_stream: %s\n", what);
    std::abort();
}

// A block of exactly this size, so that the address sanitizer detects every access behind it; no block for size 0.
class exact_block
{
public:
    explicit exact_block(std::size_t size) : bytes_(size == 0 ? nullptr : new uint8_t[size]()), size_(size) {}

    explicit exact_block(byte_span content) : exact_block(content.size())
    {
        std::copy(content.begin(), content.end(), bytes_.get());
    }

    uint8_t *data() const
    {
        return bytes_.get();
    }

    bool has(const uint8_t *at, std::size_t count) const
    {
        return at >= data() && count <= size_ && at - data() <= static_cast<std::ptrdiff_t>(size_ - count);
    }

private:
    std::unique_ptr<uint8_t[]> bytes_;
    std::size_t size_;
};

// The content of a stream, computed from the whole of it without the tested functions.
struct expected_stream {
    std::vector<byte_vector> messages;
    std::size_t taken = 0; // at the last result: all, or up to the rejected length
    bool refused = false;
    bool may_end = false;
};

expected_stream read_whole(byte_span stream, uint32_t limit)
{
    expected_stream result;
    std::size_t at = 0;
    while (stream.size() - at >= TUM_NAL_MESSAGE_LENGTH_BYTES) {
        const uint64_t length = uint64_t{stream[at]} * 0x1000000 + uint64_t{stream[at + 1]} * 0x10000 +
                                uint64_t{stream[at + 2]} * 0x100 + stream[at + 3];
        if (length > limit) {
            result.refused = true;
            result.taken = at + TUM_NAL_MESSAGE_LENGTH_BYTES;
            return result;
        }
        if (stream.size() - at - TUM_NAL_MESSAGE_LENGTH_BYTES < length)
            break;
        const byte_span message = stream.subspan(at + TUM_NAL_MESSAGE_LENGTH_BYTES, length);
        result.messages.emplace_back(message.begin(), message.end());
        at += TUM_NAL_MESSAGE_LENGTH_BYTES + message.size();
    }
    result.taken = stream.size();
    result.may_end = at == stream.size();
    return result;
}

// The receiver and its results.
class receiver
{
public:
    explicit receiver(uint32_t limit) : buffer_(limit)
    {
        tum_nal_message_stream_init(&stream_, buffer_.data(), limit);
    }

    // A part can be at any address; an empty part has a null pointer.
    void take(byte_span arrival)
    {
        const exact_block block(arrival);
        const uint8_t *bytes = block.data();
        uint64_t count = arrival.size();
        do {
            const uint8_t *message = nullptr;
            uint32_t length = 0;
            result_ = tum_nal_message_stream_next(&stream_, &bytes, &count, &message, &length);
            expect(count <= arrival.size() && bytes == block.data() + (arrival.size() - count), "what is left moved");
            if (result_ == TUM_NAL_MESSAGE_COMPLETE)
                keep(message, length, block);
        } while (result_ == TUM_NAL_MESSAGE_COMPLETE);
        taken_ += arrival.size() - count;
        expect(count == 0 || result_ == TUM_NAL_MESSAGE_TOO_LONG, "bytes are left, but no length was refused");
    }

    bool refused() const
    {
        return result_ == TUM_NAL_MESSAGE_TOO_LONG;
    }

    void compare(const expected_stream &with) const
    {
        expect(received_ == with.messages, "other messages than were sent");
        expect(refused() == with.refused, "refused a good length or took a bad one");
        expect(taken_ == with.taken, "took more or less than there is before a refused length");
        expect((tum_nal_message_stream_may_end(&stream_) != 0) == with.may_end, "may end elsewhere");
    }

private:
    void keep(const uint8_t *message, uint32_t length, const exact_block &arrival)
    {
        expect(length == 0 || arrival.has(message, length) || buffer_.has(message, length), "a message from elsewhere");
        received_.emplace_back(message, message + length);
    }

    exact_block buffer_;
    tum_nal_message_stream_t stream_{};
    int32_t result_ = TUM_NAL_MESSAGE_INCOMPLETE;
    std::size_t taken_ = 0;
    std::vector<byte_vector> received_;
};

// A cut of 0 is an empty arrival, then one of 1 byte.
void check_cut_stream(byte_span stream, byte_span cuts, uint32_t limit)
{
    receiver receives(limit);
    std::size_t at = 0;
    for (std::size_t index = 0; at < stream.size() && !receives.refused(); ++index) {
        std::size_t size = cuts.empty() ? stream.size() : cuts[index % cuts.size()];
        if (size == 0) {
            receives.take({});
            size = 1;
        }
        size = std::min(size, stream.size() - at);
        if (!receives.refused())
            receives.take(stream.subspan(at, size));
        at += size;
    }
    receives.compare(read_whole(stream, limit));
    const bool refused = receives.refused();
    receives.take({});
    expect(receives.refused() == refused, "nothing more arrived, and the result changed");
}

// The stream of a sender that has these messages. A length may be above the limit.
byte_vector sent(byte_span messages)
{
    byte_vector stream;
    while (!messages.empty()) {
        const std::size_t length = std::min<std::size_t>(messages[0] * 4U, messages.size() - 1);
        uint8_t front[TUM_NAL_MESSAGE_LENGTH_BYTES];
        tum_nal_message_stream_put_length(front, static_cast<uint32_t>(length));
        stream.insert(stream.end(), front, front + sizeof front);
        stream.insert(stream.end(), messages.begin() + 1, messages.begin() + 1 + static_cast<std::ptrdiff_t>(length));
        messages = messages.subspan(1 + length);
    }
    return stream;
}

} // namespace

bool check_input(byte_span bytes, depth how)
{
    if (bytes.size() < 2 || bytes.size() - 2 < bytes[1] % 16U)
        return false;
    const uint32_t limit = bytes[0] / 2 * 8U; // lengths of two octets
    const byte_span cuts = bytes.subspan(2, bytes[1] % 16U);
    const byte_span rest = bytes.subspan(2 + cuts.size());
    const byte_vector stream = bytes[0] % 2 == 1 ? sent(rest) : byte_vector(rest.begin(), rest.end());
    check_cut_stream(stream, cuts, limit);
    if (how == depth::every_part) {
        for (uint8_t size = 0; size < 8; ++size)
            check_cut_stream(stream, {&size, 1}, limit);
    }
    return true;
}

} // namespace mava_tum_fuzz
