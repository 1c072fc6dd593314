#include "verdict_agreement.h"

#include "inspector/library/decode_memory.h"
#include "inspector/library/wire_walk.h"
#include "model/raw_memory.h"

#include <cstdlib>
#include <sstream>
#include <vector>

namespace mava_tum_test
{

namespace
{

using namespace mava_tum_inspect;
using mava_tum_model::random_source;
using mava_tum_model::wire_bytes;

// ---- one input ----

struct outcome {
    int32_t result = 0;
    uint32_t present = 0;
    memory_asked_for asked;

    bool operator==(const outcome &other) const
    {
        return result == other.result && present == other.present && asked.blocks == other.asked.blocks &&
               asked.bytes == other.asked.bytes;
    }
};

std::ostream &operator<<(std::ostream &stream, const outcome &shown)
{
    return stream << "result " << shown.result << ", presence " << shown.present << ", " << shown.asked.blocks
                  << " blocks of " << shown.asked.bytes << " bytes";
}

// All blocks of the library, kept until the end: a record that occurs twice drops its blocks (L11).
struct counting_blocks {
    memory_asked_for asked;
    std::vector<void *> given;
    uint64_t fails_at = 0; // this call returns null; 0: none

    ~counting_blocks()
    {
        for (void *block : given)
            std::free(block);
    }

    static void *give(uint64_t size, void *context)
    {
        counting_blocks &self = *static_cast<counting_blocks *>(context);
        ++self.asked.blocks;
        self.asked.bytes += size;
        if (self.asked.blocks == self.fails_at)
            return nullptr;
        self.given.push_back(std::malloc(size + 1));
        return self.given.back();
    }
};

uint32_t mask_of(const message_description &message, const std::vector<uint64_t> &record)
{
    mava_tum_model::message layout{};
    layout.mask_offset = static_cast<uint32_t>(message.mask_offset);
    layout.mask_bytes = static_cast<uint32_t>(message.mask_bytes);
    return mava_tum_model::load_mask(layout, reinterpret_cast<const uint8_t *>(record.data()));
}

outcome of_library(const message_description &message, const uint8_t *data, uint64_t length, bool aliases)
{
    outcome seen;
    counting_blocks blocks;
    std::vector<uint64_t> record(message.record_bytes / sizeof(uint64_t) + 1);
    seen.result =
        message.decode(record.data(), data, length, counting_blocks::give, &blocks, aliases ? MAVA_TUM_ALIAS : 0);
    seen.present = mask_of(message, record);
    seen.asked = blocks.asked;
    return seen;
}

// The results without an allocator, and with one that fails at its second call.
bool only_memory_changes(const message_description &message, const uint8_t *data, uint64_t length, int32_t verdict)
{
    std::vector<uint64_t> record(message.record_bytes / sizeof(uint64_t) + 1);
    const int32_t without = message.decode(record.data(), data, length, nullptr, nullptr, MAVA_TUM_ALIAS);
    counting_blocks blocks;
    blocks.fails_at = 2;
    const int32_t failing = message.decode(record.data(), data, length, counting_blocks::give, &blocks, 0);
    const bool has_failed = blocks.asked.blocks >= blocks.fails_at;
    return (without == verdict || without == MAVA_TUM_NO_MEMORY) &&
           failing == (has_failed ? MAVA_TUM_NO_MEMORY : verdict);
}

outcome of_walk(const message_description &message, const uint8_t *data, uint64_t length, bool aliases)
{
    decode_memory memory(aliases);
    const walk_result walked = walk_message(message, data, length, memory);
    return {result_of(walked.rule), walked.present, memory.asked()};
}

std::string describe_difference(const message_description &message, const uint8_t *data, uint64_t length,
    const outcome &library, const outcome &walk)
{
    std::ostringstream text;
    text << message.name << ": library " << library << "; walk " << walk << "; input ";
    for (uint64_t i = 0; i < length; ++i)
        text << "0123456789ABCDEF"[data[i] >> 4] << "0123456789ABCDEF"[data[i] & 15];
    return text.str();
}

// ---- many ----

wire_bytes bytes_without_order(random_source &random)
{
    wire_bytes wire(random.below(24));
    for (uint8_t &byte : wire)
        byte = static_cast<uint8_t>(random.next());
    return wire;
}

void compare_message(const mava_tum_model::message &of, uint64_t rounds, uint64_t seed, agreement &sum)
{
    random_source random(seed);
    const std::vector<wire_bytes> seeds = mava_tum_model::seed_wires(of);
    const message_description &message = *find_message(of.name);
    for (uint64_t round = 0; round < rounds && sum.difference.empty(); ++round) {
        const wire_bytes wire = some_input(of, seeds, random);
        const comparison compared = compare_with_library(message, wire.data(), wire.size());
        sum.difference = compared.difference;
        ++sum.inputs;
        ++sum.results[-compared.result];
    }
}

} // namespace

wire_bytes some_input(const mava_tum_model::message &of, const std::vector<wire_bytes> &seeds, random_source &random)
{
    if (random.one_in(8))
        return bytes_without_order(random);
    wire_bytes wire = random.one_in(2) ? mava_tum_model::random_wire(of, random) : seeds[random.below(seeds.size())];
    for (uint64_t changes = random.below(6); changes > 0; --changes)
        mava_tum_model::mutate_wire(of, wire, random);
    return wire;
}

comparison compare_with_library(const message_description &message, const uint8_t *data, uint64_t length)
{
    comparison compared;
    for (const bool aliases : {false, true}) {
        const outcome library = of_library(message, data, length, aliases);
        const outcome walk = of_walk(message, data, length, aliases);
        compared.result = library.result;
        if (!(library == walk))
            compared.difference = describe_difference(message, data, length, library, walk);
    }
    if (compared.difference.empty() && !only_memory_changes(message, data, length, compared.result))
        compared.difference = std::string(message.name) + ": another result without memory";
    return compared;
}

agreement compare_many(uint64_t rounds, uint64_t seed)
{
    agreement sum;
    for (const mava_tum_model::message *of : mava_tum_model::all_messages())
        compare_message(*of, rounds, ++seed, sum);
    return sum;
}

} // namespace mava_tum_test
