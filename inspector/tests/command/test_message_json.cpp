// Messages as JSON, both ways, against the library's own decoders and encoders.
#include "message/decoded_json.h"
#include "message/message_from_json.h"
#include "random_documents.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <memory>

namespace
{

using mava_tum_cli::byte_vector;
using mava_tum_cli::json;
using mava_tum_inspect::message_description;
using mava_tum_test::random_documents;

constexpr int documents_of_a_message = 50;

void *allocate(uint64_t size, void *)
{
    return std::calloc(1, size == 0 ? 1 : size);
}

void release(void *pointer, void *)
{
    std::free(pointer);
}

// What a process makes of the bytes: decoded into a record and encoded again.
byte_vector through_the_library(const message_description &message, const byte_vector &wire)
{
    const auto record = std::make_unique<std::byte[]>(message.record_bytes);
    EXPECT_EQ(message.decode(record.get(), wire.data(), wire.size(), allocate, nullptr, 0), MAVA_TUM_OK);
    byte_vector again(message.encode(record.get(), nullptr, 0, nullptr, nullptr, 0));
    message.encode(record.get(), again.data(), again.size(), nullptr, nullptr, 0);
    message.free(record.get(), release, nullptr, 0);
    return again;
}

class every_message : public testing::TestWithParam<const message_description *>
{
};

TEST_P(every_message, comes_back_from_the_wire_as_the_json_it_was_made_from)
{
    random_documents random(GetParam()->fields.size());
    for (int i = 0; i < documents_of_a_message; ++i) {
        const json document = random.message(*GetParam());
        const byte_vector wire = mava_tum_cli::encode_json(*GetParam(), document);
        const auto decoded = mava_tum_cli::decode_to_json(*GetParam(), wire, i % 2 == 0);
        ASSERT_TRUE(decoded.is_whole) << document;
        ASSERT_EQ(json::parse(decoded.text)["record"], document);
    }
}

TEST_P(every_message, is_encoded_again_to_the_same_bytes_from_what_decode_prints)
{
    random_documents random(1000 + GetParam()->fields.size());
    for (int i = 0; i < documents_of_a_message; ++i) {
        const byte_vector wire = mava_tum_cli::encode_json(*GetParam(), random.message(*GetParam()));
        ASSERT_EQ(through_the_library(*GetParam(), wire), wire);
        const auto decoded = mava_tum_cli::decode_to_json(*GetParam(), wire, false);
        ASSERT_EQ(mava_tum_cli::encode_json(*GetParam(), json::parse(decoded.text)), wire) << decoded.text;
    }
}

TEST_P(every_message, tells_of_each_field_whether_it_is_present)
{
    const auto decoded = mava_tum_cli::decode_to_json(*GetParam(), {}, true);
    const json fields = json::parse(decoded.text)["fields"];
    ASSERT_EQ(fields.size(), GetParam()->fields.size());
    for (size_t i = 0; i < fields.size(); ++i) {
        EXPECT_EQ(fields[i]["number"], i + 1);
        EXPECT_EQ(fields[i]["present"], false);
    }
}

std::vector<const message_description *> pointers_to_all()
{
    std::vector<const message_description *> all;
    for (const message_description &message : mava_tum_inspect::all_messages())
        all.push_back(&message);
    return all;
}

INSTANTIATE_TEST_SUITE_P(
    cli, every_message, testing::ValuesIn(pointers_to_all()), [](const auto &info) { return info.param->name; });

TEST(message_json, offsets_lead_to_the_bytes_of_each_value)
{
    const byte_vector wire = {0x08, 0x96, 0x01, 0x15, 0xC0, 0x00, 0x02, 0x01};
    const auto &message = *mava_tum_inspect::find_message("subscriber_v4");
    const json fields = json::parse(mava_tum_cli::decode_to_json(message, wire, true).text)["fields"];
    EXPECT_EQ(fields[0]["offset"], 0);
    EXPECT_EQ(fields[0]["bytes"], 3);
    EXPECT_EQ(fields[1]["value_offset"], 4);
    EXPECT_EQ(fields[1]["value_bytes"], 4);
}

TEST(message_json, of_a_broken_message_has_what_came_before_the_fault)
{
    const byte_vector wire = {0x08, 0x07, 0x15, 0xC0};
    const auto &message = *mava_tum_inspect::find_message("subscriber_v4");
    const auto decoded = mava_tum_cli::decode_to_json(message, wire, true);
    const json document = json::parse(decoded.text);
    EXPECT_FALSE(decoded.is_whole);
    EXPECT_EQ(document["result"], MAVA_TUM_TRUNCATED);
    EXPECT_EQ(document["record"], json({{"field_1", 7}}));
    EXPECT_EQ(document["fault"]["offset"], 3);
}

TEST(message_json, a_text_that_is_no_utf8_is_written_in_hex)
{
    const byte_vector wire = {0x0A, 0x02, 0xFF, 0x41};
    const auto &message = *mava_tum_inspect::find_message("service_stats");
    const json document = json::parse(mava_tum_cli::decode_to_json(message, wire, true).text);
    EXPECT_EQ(document["record"]["field_1"], json({{"hex", "ff41"}}));
    EXPECT_EQ(mava_tum_cli::encode_json(message, document), wire);
}

TEST(message_json, of_a_record_that_occurs_twice_the_last_counts)
{
    // field_2 {1: 5}, then field_2 {2: 6}
    const byte_vector wire = {0x12, 0x02, 0x08, 0x05, 0x12, 0x02, 0x10, 0x06};
    const auto &message = *mava_tum_inspect::find_message("service_stats");
    const json document = json::parse(mava_tum_cli::decode_to_json(message, wire, true).text);
    EXPECT_EQ(document["record"]["field_2"], json({{"field_2", 6}}));
}

} // namespace
