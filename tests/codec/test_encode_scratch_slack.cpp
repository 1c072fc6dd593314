// The slack of the scratch buffer: the fast path tests for room only before blocks and elements. Between two tests, a
// message must not write more than its field list allows.
#include "catalogue.h"
#include "codec/message_encode.h"
#include "messages/feature_records_schema.h"
#include "messages/reconciliation_schema.h"
#include "messages/redundancy_group_schema.h"
#include "messages/routes_schema.h"
#include "messages/session_messages_schema.h"
#include "messages/statistics_schema.h"
#include "messages/subscriber_records_schema.h"
#include "support/guarded_buffer.h"

#include <gtest/gtest.h>

#include <limits>
#include <string>

namespace mava_tum_test
{
namespace
{

// The longest text that is written without a test.
char *longest_short_text()
{
    static std::string text(mava_tum::short_block_bytes, 'x');
    return text.data();
}

template <class Record>
void fill(Record &record);

// Each field with the longest value that is written without a test. An array has one element: there is a test before
// each other element.
template <uint32_t Number, auto Member, class Format>
void fill_field(mava_tum::kind::number_field<Number, Member, Format>, auto &record)
{
    record.*Member = std::numeric_limits<typename Format::value>::max();
}

template <uint32_t Number, auto Member>
void fill_field(mava_tum::kind::text<Number, Member>, auto &record)
{
    record.*Member = longest_short_text();
}

template <uint32_t Number, auto Member>
void fill_field(mava_tum::kind::bytes<Number, Member>, auto &record)
{
    record.*Member = {reinterpret_cast<uint8_t *>(longest_short_text()), mava_tum::short_block_bytes};
}

template <uint32_t Number, auto Member>
void fill_field(mava_tum::kind::record<Number, Member>, auto &record)
{
    fill(record.*Member);
}

template <uint32_t Number, auto Member, auto CountMember>
void fill_field(mava_tum::kind::record_array<Number, Member, CountMember>, auto &record)
{
    static typename mava_tum::kind::record_array<Number, Member, CountMember>::nested element{};
    fill(element);
    record.*Member = &element;
    record.*CountMember = 1;
}

template <uint32_t Number, auto Member, auto CountMember>
void fill_field(mava_tum::kind::text_array<Number, Member, CountMember>, auto &record)
{
    static char *element = longest_short_text();
    record.*Member = &element;
    record.*CountMember = 1;
}

template <class Record, class... Field>
void fill_list(mava_tum::field_list<Field...>, Record &record)
{
    (fill_field(Field{}, record), ...);
}

template <class Record>
void fill(Record &record)
{
    fill_list(mava_tum::fields_of<Record>{}, record);
    mava_tum::set_presence(record, mava_tum::own_bits<Record>, mava_tum::own_bits<Record>);
}

// Each of these lengths may take one byte of the two that are reserved.
template <class Field>
constexpr uint32_t lengths_in_field();

template <class... Field>
constexpr uint32_t lengths_in(mava_tum::field_list<Field...>)
{
    return (0 + ... + lengths_in_field<Field>());
}

template <class Field>
constexpr uint32_t lengths_in_field()
{
    if constexpr (requires { typename Field::nested; })
        return 1 + lengths_in(mava_tum::fields_of<typename Field::nested>{});
    else
        return 0;
}

template <class Record>
void expect_the_slack_to_be_what_is_written(const char *name)
{
    Record record{};
    fill(record);
    const uint32_t slack = mava_tum::max_put_bytes<Record>();
    page_end_buffer storage(slack + mava_tum::spill_bytes);
    mava_tum::encode_scratch scratch{storage.data(), storage.data() + slack, nullptr, 0, 0};
    const uint8_t *const end = mava_tum::put_described<Record, mava_tum::codec_description<Record>>(
        record, storage.data(), scratch, mava_tum::nesting::nested);
    EXPECT_FALSE(scratch.failed) << name;
    const std::ptrdiff_t written = end - storage.data();
    EXPECT_LE(written, slack) << name;
    EXPECT_GE(written + lengths_in(mava_tum::fields_of<Record>{}), slack) << name;
}

TEST(encode_slack, every_message_writes_at_most_what_its_field_list_allows_for)
{
    mava_tum_catalogue::for_each_type(mava_tum_catalogue::message_records(), [](auto type) {
        using record = typename decltype(type)::type;
        expect_the_slack_to_be_what_is_written<record>(mava_tum_catalogue::message_of<record>().name);
    });
}

TEST(encode_slack, every_scratch_buffer_has_its_slack_behind_its_limit)
{
    mava_tum_catalogue::for_each_type(mava_tum_catalogue::message_records(), [](auto type) {
        using record = typename decltype(type)::type;
        EXPECT_EQ(mava_tum::scratch_bytes<record> - mava_tum::block_room<record>,
            mava_tum::max_put_bytes<record>() + mava_tum::spill_bytes)
            << mava_tum_catalogue::message_of<record>().name;
    });
}

} // namespace
} // namespace mava_tum_test
