#include "check_adapter.h"

#include "model/application_transfer.h"
#include "model/block_log.h"
#include "model/model.h"
#include "model/random_source.h"
#include "support/guarded_buffer.h"
#include "support/heap_count.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <vector>

namespace mava_tum_fuzz
{

namespace
{

using namespace mava_tum_model;

constexpr std::size_t largest_application_record = 17620;
constexpr std::size_t largest_codec_record = 656;

// Guard bytes before and after the buffer.
constexpr std::ptrdiff_t guard_bytes = 16;
constexpr uint8_t untouched = 0xEE;

// `size` bytes directly before an inaccessible page.
uint8_t *before_the_page(std::size_t size)
{
    static mava_tum_test::page_end_buffer memory(largest_application_record);
    return memory.data() + memory.size() - size;
}

struct adapter_layouts {
    const application_layout *received;
    const application_layout *sent;
};

const adapter_layouts &layouts_of_adapter(std::size_t index)
{
    static const auto layouts = [] {
        std::array<adapter_layouts, adapter_count> found;
        for (std::size_t each = 0; each < adapter_count; ++each)
            found[each] = {received_layout(adapter_at(each).name), sent_layout(adapter_at(each).name)};
        return found;
    }();
    return layouts[index];
}

// The operation of a short check after the first decode.
enum part : uint64_t { part_none, part_send, part_cut, part_count };

class adapter_check
{
public:
    explicit adapter_check(const adapter_case &checked)
        : checked_(checked), adapter_(adapter_at(checked.adapter_index)),
          message_(message_of_adapter(checked.adapter_index)), layouts_(layouts_of_adapter(checked.adapter_index)),
          random_(checked.seed)
    {
    }

    std::string run();

private:
    bool wants(uint64_t part) const
    {
        return checked_.every_part || part_ == part;
    }

    std::string receive();
    std::string compare_received(const uint8_t *codec_record);
    void place_record_to_send();
    uint64_t encode(uint8_t *buffer, uint64_t capacity);
    std::string send();
    std::string compare_sent(uint64_t size, uint64_t capacity);

    const adapter_case &checked_;
    const adapter &adapter_;
    const message &message_;
    const adapter_layouts &layouts_;
    random_source random_;
    uint8_t *sent_ = nullptr;
    std::size_t calls_of_encodes_ = 0;
    uint64_t part_ = part_count;

    // Reused by all checks: the largest records fill several pages.
    static inline std::vector<uint8_t> received_;
    static inline std::vector<uint8_t> expected_;
    static inline std::vector<uint8_t> before_send_;
    static inline std::vector<uint8_t> sent_bytes_;
};

// Compares every byte, also those that the adapter must clear.
std::string adapter_check::compare_received(const uint8_t *codec_record)
{
    const uint32_t size = layouts_.received->extent.bytes;
    if (size != adapter_.received->size_bytes)
        return "the record has " + std::to_string(adapter_.received->size_bytes) + " bytes, expected " +
               std::to_string(size);
    expected_.resize(size);
    model_receive(message_, codec_record, *layouts_.received, expected_.data());
    if (received_ == expected_)
        return {};
    const auto [expected, actual] = std::mismatch(expected_.begin(), expected_.end(), received_.begin());
    return "received " + member_at(*layouts_.received, static_cast<uint32_t>(expected - expected_.begin())) +
           ": expected " + std::to_string(*expected) + ", actual " + std::to_string(*actual);
}

std::string adapter_check::receive()
{
    constexpr uint8_t not_written = 0xDD;
    uint8_t *record = before_the_page(adapter_.received->size_bytes);
    std::memset(record, not_written, adapter_.received->size_bytes);
    const std::size_t before = mava_tum_test::heap_calls();
    adapter_.decode(checked_.wire.data(), static_cast<uint32_t>(checked_.wire.size()), record);
    if (mava_tum_test::heap_calls() != before)
        return "a decode called an allocator";
    received_.assign(record, record + adapter_.received->size_bytes);

    alignas(8) uint8_t codec_record[largest_codec_record] = {};
    block_log blocks({}, block_memory::plain);
    model_decode(message_, codec_record, checked_.wire.data(), checked_.wire.size(), blocks.source(), alias_flag);
    return compare_received(codec_record);
}

// Texts must keep their NUL: zero bytes stay, others become random.
void adapter_check::place_record_to_send()
{
    sent_ = before_the_page(adapter_.sent->size_bytes);
    make_record_to_send(adapter_, sent_, received_.data());
    if (random_.one_in(2))
        return;
    for (std::size_t index = 0; index < adapter_.sent->size_bytes; ++index) {
        if (sent_[index] != 0 && random_.one_in(8))
            sent_[index] = static_cast<uint8_t>(random_.one_in(6) ? 0 : random_.next() | 1);
    }
}

uint64_t adapter_check::encode(uint8_t *buffer, uint64_t capacity)
{
    const std::size_t before = mava_tum_test::heap_calls();
    const uint64_t size = adapter_.encode(sent_, buffer, static_cast<uint32_t>(capacity));
    calls_of_encodes_ += mava_tum_test::heap_calls() - before;
    return size;
}

// Into exactly the needed size, less or more.
std::string adapter_check::send()
{
    before_send_.assign(sent_, sent_ + adapter_.sent->size_bytes);
    const uint64_t size = encode(nullptr, 0);
    const uint64_t capacity = wants(part_cut) ? random_.below(size + 2) : size;
    sent_bytes_.assign(capacity + 2 * guard_bytes, untouched);
    if (encode(sent_bytes_.data() + guard_bytes, capacity) != size)
        return "two sizes for one record";
    if (calls_of_encodes_ != 0)
        return "an encode called an allocator";
    if (!std::equal(before_send_.begin(), before_send_.end(), sent_))
        return "an encode wrote into its record";
    return compare_sent(size, capacity);
}

std::string adapter_check::compare_sent(uint64_t size, uint64_t capacity)
{
    alignas(8) uint8_t codec_record[largest_codec_record] = {};
    send_scratch scratch;
    model_send(message_, codec_record, *layouts_.sent, sent_, scratch);
    expected_.assign(capacity + 2 * guard_bytes, untouched);
    uint8_t *buffer = expected_.data() + guard_bytes;
    const uint64_t expected_size =
        model_encode(message_, codec_record, {buffer, buffer, capacity, nullptr, nullptr}, 0);
    if (size != expected_size)
        return "sent " + std::to_string(size) + " bytes, expected " + std::to_string(expected_size);
    if (sent_bytes_ == expected_)
        return {};
    const auto [expected, actual] = std::mismatch(expected_.begin(), expected_.end(), sent_bytes_.begin());
    return "sent byte " + std::to_string(expected - expected_.begin() - guard_bytes) + " of " +
           std::to_string(capacity) + ": expected " + std::to_string(*expected) + ", actual " + std::to_string(*actual);
}

std::string adapter_check::run()
{
    std::string found = receive();
    if (!checked_.every_part)
        part_ = random_.below(part_count);
    if (found.empty() && (wants(part_send) || wants(part_cut))) {
        place_record_to_send();
        found = send();
    }
    return found.empty() ? found : std::string(adapter_.name) + ": " + found;
}

} // namespace

const message &message_of_adapter(std::size_t index)
{
    static const auto messages = [] {
        std::array<const message *, adapter_count> found;
        for (std::size_t each = 0; each < adapter_count; ++each)
            found[each] = mava_tum_model::find_message(adapter_at(each).carried->name);
        return found;
    }();
    return *messages[index];
}

bool read_adapter_case(std::span<const uint8_t> bytes, adapter_case &read)
{
    constexpr std::size_t header_bytes = 8;
    if (bytes.size() < header_bytes)
        return false;
    read.adapter_index = bytes[0] % adapter_count;
    // Only fuzz_messages uses bytes 1 to 3. Little-endian on every machine.
    read.seed = bytes[4] | uint32_t{bytes[5]} << 8 | uint32_t{bytes[6]} << 16 | uint32_t{bytes[7]} << 24;
    read.wire = bytes.subspan(header_bytes);
    return true;
}

std::string check_adapter(const adapter_case &checked)
{
    return adapter_check(checked).run();
}

} // namespace mava_tum_fuzz
