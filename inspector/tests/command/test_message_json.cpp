// Messages as JSON, both ways, against the library's own decoders and encoders.
#include "message/decoded_json.h"
#include "message/message_from_json.h"
#include "random_documents.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdlib>
#include <memory>
#include <optional>
#include <vector>

namespace
{

using mava_tum_cli::byte_vector;
using mava_tum_cli::json;
using mava_tum_cli::json_style;
using mava_tum_cli::text_in_memory;
using layout = mava_tum_cli::json_writer::layout;
using mava_tum_inspect::message_description;
using mava_tum_test::random_documents;

constexpr int documents_of_a_message = 50;

// What a decoder allocates. Of a field that occurs again, the record no longer holds the first block.
using allocated_blocks = std::vector<std::unique_ptr<void, decltype(&std::free)>>;

void *allocate(uint64_t size, void *blocks)
{
    return static_cast<allocated_blocks *>(blocks)->emplace_back(std::calloc(1, size), std::free).get();
}

// What a process makes of the bytes: decoded into a record and encoded again. Nothing if they do not decode.
std::optional<byte_vector> decoded_and_encoded(const message_description &message, const byte_vector &wire)
{
    const auto record = std::make_unique<std::byte[]>(message.record_bytes);
    allocated_blocks blocks;
    const bool decodes = message.decode(record.get(), wire.data(), wire.size(), allocate, &blocks, 0) == MAVA_TUM_OK;
    byte_vector again(message.encode(record.get(), nullptr, 0, nullptr, nullptr, 0));
    message.encode(record.get(), again.data(), again.size(), nullptr, nullptr, 0);
    return decodes ? std::optional(again) : std::nullopt;
}

struct printed_json {
    std::string text;
    bool is_whole;
};

printed_json print(const message_description &message, const byte_vector &wire, const json_style &style)
{
    text_in_memory output;
    const bool is_whole = !mava_tum_cli::print_json(message, wire, {}, style, output);
    return {output.take(), is_whole};
}

// With all that can be printed.
json document_of(const message_description &message, const byte_vector &wire)
{
    return json::parse(print(message, wire, {layout::one_line, true, true}).text);
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
        const printed_json printed =
            print(*GetParam(), wire, {i % 2 == 0 ? layout::spread : layout::one_line, false, false});
        ASSERT_TRUE(printed.is_whole) << document;
        ASSERT_EQ(json::parse(printed.text)["record"], document);
    }
}

TEST_P(every_message, is_encoded_again_to_the_same_bytes_from_what_decode_prints)
{
    random_documents random(1000 + GetParam()->fields.size());
    for (int i = 0; i < documents_of_a_message; ++i) {
        const byte_vector wire = mava_tum_cli::encode_json(*GetParam(), random.message(*GetParam()));
        ASSERT_EQ(decoded_and_encoded(*GetParam(), wire), wire);
        const json document = document_of(*GetParam(), wire);
        ASSERT_EQ(mava_tum_cli::encode_json(*GetParam(), document), wire) << document;
    }
}

// Fields that occur a second time replace the first, or end the decode.
TEST_P(every_message, with_repeated_fields_is_printed_as_the_library_decodes_it)
{
    random_documents random(2000 + GetParam()->fields.size());
    for (int i = 0; i < documents_of_a_message; ++i) {
        byte_vector wire = mava_tum_cli::encode_json(*GetParam(), random.message(*GetParam()));
        const byte_vector behind = mava_tum_cli::encode_json(*GetParam(), random.message(*GetParam()));
        wire.insert(wire.end(), behind.begin(), behind.end());
        const json document = document_of(*GetParam(), wire);
        const std::optional<byte_vector> again = decoded_and_encoded(*GetParam(), wire);
        ASSERT_EQ(document["result"] == MAVA_TUM_OK, again.has_value());
        if (again) {
            ASSERT_EQ(mava_tum_cli::encode_json(*GetParam(), document), *again) << document;
        }
    }
}

TEST_P(every_message, tells_of_each_field_whether_it_is_present)
{
    const json fields = document_of(*GetParam(), {})["fields"];
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
    const json fields = document_of(message, wire)["fields"];
    EXPECT_EQ(fields[0]["offset"], 0);
    EXPECT_EQ(fields[0]["bytes"], 3);
    EXPECT_EQ(fields[1]["value_offset"], 4);
    EXPECT_EQ(fields[1]["value_bytes"], 4);
}

TEST(message_json, of_a_broken_message_has_what_came_before_the_fault)
{
    const byte_vector wire = {0x08, 0x07, 0x15, 0xC0};
    const auto &message = *mava_tum_inspect::find_message("subscriber_v4");
    const printed_json printed = print(message, wire, {layout::spread, true, true});
    const json document = json::parse(printed.text);
    EXPECT_FALSE(printed.is_whole);
    EXPECT_EQ(document["result"], MAVA_TUM_TRUNCATED);
    EXPECT_EQ(document["record"], json({{"field_1", 7}}));
    EXPECT_EQ(document["fault"]["offset"], 3);
}

TEST(message_json, a_text_that_is_no_utf8_is_written_in_hex)
{
    const byte_vector wire = {0x0A, 0x02, 0xFF, 0x41};
    const auto &message = *mava_tum_inspect::find_message("service_stats");
    const json document = document_of(message, wire);
    EXPECT_EQ(document["record"]["field_1"], json({{"hex", "ff41"}}));
    EXPECT_EQ(mava_tum_cli::encode_json(message, document), wire);
}

TEST(message_json, of_a_record_that_occurs_twice_the_last_counts)
{
    // field_2 {1: 5}, then field_2 {2: 6}
    const byte_vector wire = {0x12, 0x02, 0x08, 0x05, 0x12, 0x02, 0x10, 0x06};
    const auto &message = *mava_tum_inspect::find_message("service_stats");
    const json document = document_of(message, wire);
    EXPECT_EQ(document["record"]["field_2"], json({{"field_2", 6}}));
}

} // namespace
