#include "check_adapter.h"

#include "adapters.h"
#include "calloc_log.h"
#include "model/application_receive.h"
#include "model/model.h"
#include "model/random_source.h"
#include "support/guarded_buffer.h"

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

// On the sides of what a buffer may receive.
constexpr std::ptrdiff_t guard_bytes = 16;
constexpr uint8_t untouched = 0xEE;

// `size` bytes directly before an inaccessible page.
uint8_t *before_the_page(std::size_t size)
{
    static mava_tum_test::page_end_buffer memory(largest_application_record);
    return memory.data() + memory.size() - size;
}

const application_layout &layout_of_adapter(std::size_t index)
{
    static const auto layouts = [] {
        std::array<const application_layout *, adapter_count> found;
        for (std::size_t each = 0; each < adapter_count; ++each)
            found[each] = received_layout(adapter_at(each).name);
        return found;
    }();
    return *layouts[index];
}

// What a short check does after the first decode: one of these.
enum part : uint64_t { part_none, part_send, part_cut, part_count };

class adapter_check
{
public:
    explicit adapter_check(const adapter_case &checked)
        : checked_(checked), adapter_(adapter_at(checked.adapter_index)),
          message_(message_of_adapter(checked.adapter_index)), layout_(layout_of_adapter(checked.adapter_index)),
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
    std::string send();
    std::string check_message_sent(const std::vector<uint8_t> &wire);
    std::string check_cut(const uint8_t *codec_record, uint64_t size);

    const adapter_case &checked_;
    const adapter &adapter_;
    const message &message_;
    const application_layout &layout_;
    random_source random_;
    uint8_t *sent_ = nullptr;
    uint64_t part_ = part_count;

    // Kept from check to check: the largest records fill several pages.
    static inline std::vector<uint8_t> received_;
    static inline std::vector<uint8_t> expected_;
    static inline std::vector<uint8_t> before_send_;
};

// Every byte: also those that the adapter has to clear.
std::string adapter_check::compare_received(const uint8_t *codec_record)
{
    const uint32_t size = extent_of(layout_).bytes;
    if (size != adapter_.received_bytes)
        return "the record has " + std::to_string(adapter_.received_bytes) + " bytes, expected " + std::to_string(size);
    expected_.resize(size);
    model_receive(message_, codec_record, layout_, expected_.data());
    if (received_ == expected_)
        return {};
    const auto [expected, actual] = std::mismatch(expected_.begin(), expected_.end(), received_.begin());
    return "received " + member_at(layout_, static_cast<uint32_t>(expected - expected_.begin())) + ": expected " +
           std::to_string(*expected) + ", actual " + std::to_string(*actual);
}

std::string adapter_check::receive()
{
    constexpr uint8_t not_written = 0xDD;
    uint8_t *record = before_the_page(adapter_.received_bytes);
    std::memset(record, not_written, adapter_.received_bytes);
    block_log asked(checked_.plan);
    {
        const calloc_log live(asked);
        adapter_.decode(checked_.wire.data(), static_cast<uint32_t>(checked_.wire.size()), record);
    }
    received_.assign(record, record + adapter_.received_bytes);
    if (asked.released_wrongly())
        return "a block was freed twice";
    if (asked.outstanding() != 0)
        return std::to_string(asked.outstanding()) + " blocks were never freed";

    alignas(8) uint8_t codec_record[largest_codec_record] = {};
    block_log predicted(checked_.plan, block_memory::plain);
    model_decode(message_, codec_record, checked_.wire.data(), checked_.wire.size(), predicted.source(), alias_flag);
    const std::string calls = block_log::compare_allocations(asked, predicted);
    return calls.empty() ? compare_received(codec_record) : calls;
}

// Texts must keep their NUL: bytes that are zero stay so, others become anything.
void adapter_check::place_record_to_send()
{
    sent_ = before_the_page(adapter_.sent_bytes);
    if (adapter_.to_sent != nullptr)
        adapter_.to_sent(sent_, received_.data());
    else
        std::copy(received_.begin(), received_.end(), sent_);
    if (random_.one_in(2))
        return;
    for (std::size_t index = 0; index < adapter_.sent_bytes; ++index) {
        if (sent_[index] != 0 && random_.one_in(8))
            sent_[index] = static_cast<uint8_t>(random_.one_in(6) ? 0 : random_.next() | 1);
    }
}

std::string adapter_check::send()
{
    before_send_.assign(sent_, sent_ + adapter_.sent_bytes);
    block_log asked;
    uint64_t size = 0;
    std::vector<uint8_t> wire;
    {
        const calloc_log live(asked);
        size = adapter_.encode(sent_, nullptr, 0);
    }
    wire.assign(size + guard_bytes, untouched);
    {
        const calloc_log live(asked);
        if (adapter_.encode(sent_, wire.data(), static_cast<uint32_t>(size)) != size)
            return "two sizes for one record";
    }
    if (std::count(wire.end() - guard_bytes, wire.end(), untouched) != guard_bytes)
        return "an encode wrote behind its buffer";
    wire.resize(size);
    if (asked.made_any_call())
        return "an encode allocated";
    if (!std::equal(before_send_.begin(), before_send_.end(), sent_))
        return "an encode wrote into its record";
    return check_message_sent(wire);
}

std::string adapter_check::check_message_sent(const std::vector<uint8_t> &wire)
{
    alignas(8) uint8_t codec_record[largest_codec_record] = {};
    block_log blocks({}, block_memory::plain);
    const int32_t result = model_decode(message_, codec_record, wire.data(), wire.size(), blocks.source(), 0);
    if (result != 0)
        return "what was sent decodes with result " + std::to_string(result);
    std::vector<uint8_t> again(wire.size());
    encode_output output = {again.data(), again.data(), again.size(), nullptr, nullptr};
    if (model_encode(message_, codec_record, output, 0) != wire.size() || again != wire)
        return "what was sent is not what the model writes of it";
    return wants(part_cut) ? check_cut(codec_record, wire.size()) : std::string();
}

std::string adapter_check::check_cut(const uint8_t *codec_record, uint64_t size)
{
    const uint64_t capacity = random_.below(size + 2);
    std::vector<uint8_t> actual(capacity + 2 * guard_bytes, untouched);
    std::vector<uint8_t> expected = actual;
    uint8_t *model_bytes = expected.data() + guard_bytes;
    const encode_output output = {model_bytes, model_bytes, capacity, nullptr, nullptr};
    model_encode(message_, codec_record, output, 0);
    if (adapter_.encode(sent_, actual.data() + guard_bytes, static_cast<uint32_t>(capacity)) != size)
        return "another size for a short buffer";
    return actual == expected ? "" : "other bytes in a buffer of " + std::to_string(capacity);
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
            found[each] = find_message(adapter_at(each).message);
        return found;
    }();
    return *messages[index];
}

bool read_adapter_case(std::span<const uint8_t> bytes, adapter_case &read)
{
    constexpr std::size_t header_bytes = 8;
    if (bytes.size() < header_bytes)
        return false;
    // An adapter cannot be without an allocator, and asks for no empty block.
    constexpr failing plans[] = {failing::never, failing::once, failing::from_then};
    read.adapter_index = bytes[0] % adapter_count;
    read.plan = {plans[bytes[2] % std::size(plans)], bytes[3]};
    uint32_t seed = 0;
    std::memcpy(&seed, bytes.data() + 4, sizeof seed);
    read.seed = seed;
    read.wire = bytes.subspan(header_bytes);
    return true;
}

std::string check_adapter(const adapter_case &checked)
{
    return adapter_check(checked).run();
}

} // namespace mava_tum_fuzz
