// The model alone, compared with results known by hand.
#include "model/block_log.h"
#include "model/model.h"
#include "model/raw_memory.h"
#include "model/wire_maker.h"
#include "support/hex.h"

#include <gtest/gtest.h>

#include <cstring>

namespace mava_tum_model
{

namespace
{

using mava_tum_test::bytes_of;

// One decode by the model into a record of ones.
struct decoded {
    decoded(const char *name, const char *wire_hex, uint32_t flags = 0, failure_plan plan = {})
        : of(*find_message(name)), wire(bytes_of(wire_hex)), log(plan)
    {
        std::memset(record, 0xFF, sizeof record);
        result = model_decode(of, record, wire.data(), wire.size(), log.source(), flags);
    }

    const message &of;
    wire_bytes wire;
    block_log log;
    alignas(8) uint8_t record[656];
    int32_t result;
};

struct row {
    const char *name;
    const char *wire;
    int32_t result;
};

constexpr row rows[] = {
    {"subscriber_v4", "08 96 01 15 01 02 03 04", 0},
    {"subscriber_v4", "", 0},
    {"subscriber_v4", "08 96", -1},
    {"subscriber_v4", "0D 01 02 03 04", -3},
    {"subscriber_v4", "10 05", -3},
    {"subscriber_v4", "15 01 02 03", -1},
    {"subscriber_v4", "18 05 08 07", 0},
    {"subscriber_v4", "1B 08 07", -2},
    {"subscriber_v4", "1F", -2},
    {"subscriber_v4", "19 01 08 07", 0},
    {"subscriber_v4", "1A 7F 08 07", 0},
    {"subscriber_v4", "1A", -1},
    {"subscriber_v4", "18", -1},
    {"subscriber_v4", "00 00", 0},
    {"subscriber_v4", "08 80 80 80 80 80", -1},
    {"subscriber_v6", "12 00 12 00", -1},
    {"subscriber_v6", "0A 00", -3},
    {"session_data", "1A 02 0A 00", -3},
    {"session_context", "5A 00 58 00", 0},
    {"session_context", "5A 00 08 01 5A 00", -1},
    {"session_context", "5A 00 5A", -1},
    {"sess_svc_start", "2A 01 41 2A 00", 0},
    {"subscriber_qos", "1A 01 41 1A 01 42", -1},
};

TEST(model, gives_the_results_known_by_hand)
{
    for (const row &known : rows)
        EXPECT_EQ(decoded(known.name, known.wire).result, known.result) << known.name << " " << known.wire;
}

TEST(model, decodes_values_known_by_hand)
{
    const decoded address("subscriber_v4", "08 96 01 15 01 02 03 04");
    EXPECT_EQ(load<uint32_t>(address.record, 0), 150u);
    EXPECT_EQ(load<uint32_t>(address.record, 4), 0x04030201u);
    EXPECT_EQ(load_mask(address.of, address.record), 0xFFu);
    const decoded negative("subscriber_v4", "08 FF FF FF FF FF FF FF FF FF 01");
    EXPECT_EQ(load<uint32_t>(negative.record, 0), 0xFFFFFFFFu);
    EXPECT_EQ(load_mask(negative.of, negative.record), 0xFDu);
    const decoded wide("session_data", "10 FF FF FF FF FF FF FF FF FF 01");
    EXPECT_EQ(load<uint64_t>(wide.record, 8), ~uint64_t{0});
    const decoded run("session_context", "5A 00 58 00");
    EXPECT_EQ(load<uint32_t>(run.record, 392), 2u);
    EXPECT_EQ(run.log.size_of_block(0), 2u * 88);
}

TEST(model, says_memory_is_missing_where_it_is_needed)
{
    const failure_plan none = {failing::no_allocator, 0};
    EXPECT_EQ(decoded("subscriber_v6", "12 00", 0, none).result, -4);
    EXPECT_EQ(decoded("subscriber_v6", "12 00", alias_flag, none).result, 0);
    EXPECT_EQ(decoded("session_data", "2A 01 41", alias_flag, none).result, -4);
    EXPECT_EQ(decoded("subscriber_v6", "12 00", 0, {failing::empty, 0}).result, -4);
}

std::string encoded_in_hex(const decoded &source, uint64_t capacity, uint32_t flags = 0)
{
    uint8_t buffer[32];
    std::memset(buffer, 0xEE, sizeof buffer);
    encode_output output;
    output.buffer = buffer;
    output.claimed_buffer = buffer;
    output.capacity = capacity;
    const uint64_t size = model_encode(source.of, source.record, output, flags);
    return mava_tum_test::hex_of(buffer, size);
}

TEST(model, encodes_bytes_known_by_hand)
{
    EXPECT_EQ(encoded_in_hex(decoded("subscriber_v4", "08 96 01 15 01 02 03 04"), 3), "08 96 01 EE EE EE EE EE");
    EXPECT_EQ(encoded_in_hex(decoded("session_data", "1A 00"), 8), "1A 00");
    // A block that does not fit completely leaves a hole; in gather mode, it is not in the buffer.
    EXPECT_EQ(encoded_in_hex(decoded("subscriber_v6", "12 02 AA BB"), 3), "12 02 EE EE");
    EXPECT_EQ(encoded_in_hex(decoded("subscriber_v6", "12 02 AA BB 38 01"), 8, alias_flag), "12 02 38 01");
}

TEST(model, gathers_segments_known_by_hand)
{
    const decoded source("subscriber_v6", "12 02 AA BB 38 01");
    uint8_t buffer[8];
    model_segment model_segments[4];
    uint32_t count = 4;
    encode_output output = {buffer, buffer, sizeof buffer, model_segments, &count};
    EXPECT_EQ(model_encode(source.of, source.record, output, alias_flag), 4u);
    ASSERT_EQ(count, 3u);
    EXPECT_EQ(model_segments[0].data, buffer);
    EXPECT_EQ(model_segments[0].length, 2u);
    EXPECT_EQ(model_segments[1].data, load_pointer(source.record, 8));
    EXPECT_EQ(model_segments[2].data, buffer + 2);
    EXPECT_EQ(model_segments[2].length, 2u);
}

} // namespace

} // namespace mava_tum_model
