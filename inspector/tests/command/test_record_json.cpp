// Application records as JSON and back.
#include "app/record_json.h"
#include "random_documents.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <memory>

namespace
{

using mava_tum_catalogue::adapter;
using mava_tum_cli::json;
using mava_tum_cli::record_layout;

TEST(record_json, every_record_comes_back_as_the_json_it_was_made_from)
{
    mava_tum_test::random_documents random(4);
    for (const record_layout &layout : mava_tum_catalogue::tables::records) {
        for (int i = 0; i < 20; ++i) {
            const json document = random.record(layout);
            const auto record = std::make_unique<std::byte[]>(layout.size_bytes);
            mava_tum_cli::record_of_json(layout, document, "", record.get());
            ASSERT_EQ(mava_tum_cli::json_of_record(layout, record.get()), document) << layout.name;
        }
    }
}

TEST(record_json, addresses_are_in_host_byte_order_in_a_record)
{
    tum_nal_data_ipv4_route route{};
    mava_tum_cli::record_of_json(mava_tum_catalogue::layout_of<tum_nal_data_ipv4_route>(), {{"field_3", "192.0.2.1"}},
        "", reinterpret_cast<std::byte *>(&route));
    EXPECT_EQ(route.field_3, 0xC0000201u);
}

TEST(record_json, a_list_sets_its_count)
{
    tum_nal_data_service_start start{};
    mava_tum_cli::record_of_json(mava_tum_catalogue::layout_of<tum_nal_data_service_start>(),
        {{"field_5", {"gold", "silver"}}}, "", reinterpret_cast<std::byte *>(&start));
    EXPECT_EQ(start.field_5_count, 2);
    EXPECT_STREQ(start.field_5[1], "silver");
}

TEST(record_json, what_arrives_through_an_adapter_is_what_was_sent)
{
    for (const adapter &adapter : mava_tum_catalogue::all_adapters()) {
        const auto zero = std::make_unique<std::byte[]>(adapter.sent->size_bytes);
        mava_tum_cli::byte_vector wire(adapter.encode(zero.get(), nullptr, 0));
        adapter.encode(zero.get(), wire.data(), static_cast<uint32_t>(wire.size()));
        const auto arrived = std::make_unique<std::byte[]>(adapter.received->size_bytes);
        adapter.decode(wire.data(), static_cast<uint32_t>(wire.size()), arrived.get());
        // Both layouts of the one adapter that has two have the same names.
        const json sent = mava_tum_cli::json_of_record(*adapter.sent, zero.get());
        const json received = mava_tum_cli::json_of_record(*adapter.received, arrived.get());
        for (const auto &[name, value] : sent.items())
            EXPECT_EQ(received.at(name), value) << adapter.name << " " << name;
    }
}

} // namespace
