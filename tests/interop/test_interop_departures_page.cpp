// Does every row of docs/departures.md agree with the library and the official protobuf runtime?
#include "interop/page_rows.h"
#include "interop/peer_record.h"
#include "support/recording_allocator.h"
#include "sweeps/message_list.h"

#include <google/protobuf/descriptor.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace mava_tum_test
{

void PrintTo(const page_row &row, std::ostream *stream)
{
    *stream << row.name;
}

namespace
{

class departures_page : public testing::TestWithParam<page_row>
{
};

const message &message_called(const std::string &name)
{
    const auto found = std::find_if(
        all_messages().begin(), all_messages().end(), [&name](const message &each) { return name == each.name; });
    if (found == all_messages().end())
        throw std::logic_error("there is no message " + name);
    return *found;
}

TEST_P(departures_page, says_what_we_make_of_the_bytes)
{
    const page_row &row = GetParam();
    const message &tested = message_called(row.message);
    recording_allocator memory;
    // This test does not check dropped blocks.
    memory.allow_outstanding();
    std::vector<uint64_t> record(tested.record_bytes / sizeof(uint64_t) + 1);
    const int32_t result = tested.decode(
        record.data(), row.wire.data(), row.wire.size(), recording_allocator::allocate, memory.context(), 0);
    EXPECT_EQ(result, row.result);
    byte_vector again(tested.encode(record.data(), nullptr, 0, nullptr, nullptr, 0));
    tested.encode(record.data(), again.data(), again.size(), nullptr, nullptr, 0);
    EXPECT_EQ(again, row.here);
    tested.free(record.data(), recording_allocator::release, memory.context(), 0);
}

TEST_P(departures_page, says_what_the_runtime_makes_of_the_bytes)
{
    const page_row &row = GetParam();
    const auto *described =
        google::protobuf::DescriptorPool::generated_pool()->FindMessageTypeByName(row.package + "." + row.message);
    ASSERT_NE(described, nullptr);
    const std::unique_ptr<peer_message> peer(
        google::protobuf::MessageFactory::generated_factory()->GetPrototype(described)->New());
    const bool accepted = peer->ParseFromArray(row.wire.data(), static_cast<int>(row.wire.size()));
    EXPECT_EQ(accepted, row.there.has_value());
    if (!row.there.has_value())
        return;
    const std::string again = peer->SerializeAsString();
    EXPECT_EQ(byte_vector(again.begin(), again.end()), *row.there);
}

// Rows D must differ, rows S must not.
TEST_P(departures_page, calls_a_difference_a_difference)
{
    const page_row &row = GetParam();
    const bool accepted = row.result == MAVA_TUM_OK;
    const bool same = accepted == row.there.has_value() && (!accepted || row.here == *row.there);
    EXPECT_EQ(same, row.name[0] == 'S');
}

TEST(departures_page, has_its_rows)
{
    EXPECT_EQ(rows_of_page(DEPARTURES_PAGE).size(), 27u);
}

std::string name_of_row(const testing::TestParamInfo<page_row> &info)
{
    return info.param.name;
}

INSTANTIATE_TEST_SUITE_P(row, departures_page, testing::ValuesIn(rows_of_page(DEPARTURES_PAGE)), name_of_row);

} // namespace

} // namespace mava_tum_test
