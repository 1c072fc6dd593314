// Can any number of threads send one application record and receive one message, each into its own record?
#include "nal/adapter_list.h"
#include "threads/eight_threads.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

class adapters_in_threads : public testing::TestWithParam<adapter>
{
};

TEST_P(adapters_in_threads, share_one_record_and_one_message)
{
    const adapter &tested = GetParam();
    byte_vector wire(tested.encode(tested.sent.data(), nullptr, 0));
    tested.encode(tested.sent.data(), wire.data(), static_cast<uint32_t>(wire.size()));
    ASSERT_FALSE(wire.empty());
    EXPECT_EQ(failures_in_eight_threads([&] {
        byte_vector own_wire(wire.size());
        tested.encode(tested.sent.data(), own_wire.data(), static_cast<uint32_t>(own_wire.size()));
        byte_vector own_record(tested.received.size());
        tested.decode(wire.data(), static_cast<uint32_t>(wire.size()), own_record.data());
        return own_wire == wire && own_record == tested.received;
    }),
        0);
}

INSTANTIATE_TEST_SUITE_P(of, adapters_in_threads, testing::ValuesIn(all_adapters()),
    [](const testing::TestParamInfo<adapter> &info) { return std::string(info.param.name); });

} // namespace
} // namespace mava_tum_test
