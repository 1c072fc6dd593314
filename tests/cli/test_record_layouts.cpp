// The tables of application records against the records themselves.
#include "app/app_adapters.h"
#include "app/record_json.h"
#include "app/record_layouts.h"
#include "random_documents.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <fstream>
#include <map>
#include <memory>
#include <set>

namespace
{

using mava_tum_cli::app_adapter;
using mava_tum_cli::json;
using mava_tum_cli::member_kind;
using mava_tum_cli::record_layout;
using mava_tum_cli::record_member;

void collect(const record_layout &layout, std::map<std::string_view, const record_layout *> &found)
{
    found.emplace(layout.name, &layout);
    for (const record_member &member : layout.members)
        if (member.layout != nullptr)
            collect(*member.layout, found);
}

// Every record that an adapter takes, and those in it.
std::map<std::string_view, const record_layout *> all_layouts()
{
    std::map<std::string_view, const record_layout *> found;
    for (const app_adapter &adapter : mava_tum_cli::all_adapters()) {
        collect(*adapter.encode_layout, found);
        collect(*adapter.decode_layout, found);
    }
    return found;
}

struct extent {
    size_t offset;
    size_t bytes;
    size_t alignment; // of what stands there
};

size_t alignment_of(const record_member &member)
{
    switch (member.kind) {
    case member_kind::number:
    case member_kind::ipv4:
        return member.size_bytes;
    case member_kind::numbers:
        return sizeof(uint32_t);
    case member_kind::record:
    case member_kind::records: {
        size_t widest = 1;
        for (const record_member &inner : member.layout->members)
            widest = std::max({widest, alignment_of(inner), inner.count_bytes});
        return widest;
    }
    case member_kind::reserved:
        return member.size_bytes == sizeof(uint32_t) ? sizeof(uint32_t) : 1;
    default:
        return 1;
    }
}

std::vector<extent> extents_of(const record_layout &layout)
{
    std::vector<extent> extents;
    for (const record_member &member : layout.members) {
        extents.push_back({member.offset, member.size_bytes, alignment_of(member)});
        if (member.count_bytes != 0)
            extents.push_back({member.count_offset, member.count_bytes, member.count_bytes});
    }
    std::ranges::sort(extents, {}, &extent::offset);
    return extents;
}

TEST(record_layouts, the_members_of_each_record_cover_it_but_for_padding)
{
    const auto layouts = all_layouts();
    EXPECT_EQ(layouts.size(), 28u);
    for (const auto &[name, layout] : layouts) {
        size_t end = 0;
        size_t widest = 1;
        for (const extent &each : extents_of(*layout)) {
            const size_t padded = (end + each.alignment - 1) / each.alignment * each.alignment;
            EXPECT_EQ(each.offset, padded) << name << ": gap or overlap before byte " << each.offset;
            end = each.offset + each.bytes;
            widest = std::max(widest, each.alignment);
        }
        EXPECT_EQ((end + widest - 1) / widest * widest, layout->size_bytes) << name;
    }
}

TEST(record_layouts, no_member_stands_in_a_record_twice)
{
    for (const auto &[name, layout] : all_layouts()) {
        std::set<std::string_view> names;
        for (const record_member &member : layout->members)
            EXPECT_TRUE(names.insert(member.name).second) << name << " " << member.name;
    }
}

TEST(record_layouts, names_come_from_the_headers)
{
    const record_layout &layout = mava_tum_cli::layout_of<tum_nal_data_sub_route>();
    EXPECT_EQ(layout.name, "sub_route");
    EXPECT_EQ(layout.members.front().name, "field_1");
    EXPECT_EQ(layout.members[3].name, "ipv4_routes");
    EXPECT_EQ(layout.members[3].count_offset, offsetof(tum_nal_data_sub_route, ipv4_route_count));
}

// The names of the exported functions that begin so.
std::set<std::string> exported(const std::string &beginning)
{
    std::set<std::string> names;
    std::ifstream file(EXPORTS_FILE);
    for (std::string line; std::getline(file, line);)
        if (line.starts_with(beginning))
            names.insert(line.substr(beginning.size()));
    return names;
}

TEST(app_adapters, are_all_that_the_library_exports)
{
    std::set<std::string> names;
    for (const app_adapter &adapter : mava_tum_cli::all_adapters()) {
        names.emplace(adapter.name);
        EXPECT_NE(mava_tum_inspect::find_message(adapter.message), nullptr) << adapter.message;
    }
    EXPECT_EQ(names.size(), 19u);
    EXPECT_EQ(names, exported("tum_nal_data_gpb_encode_tum_"));
    EXPECT_EQ(names, exported("tum_nal_data_gpb_decode_tum_"));
}

TEST(record_json, every_record_comes_back_as_the_json_it_was_made_from)
{
    mava_tum_test::random_documents random(4);
    for (const auto &[name, layout] : all_layouts()) {
        for (int i = 0; i < 20; ++i) {
            const json document = random.record(*layout);
            const auto record = std::make_unique<std::byte[]>(layout->size_bytes);
            mava_tum_cli::record_of_json(*layout, document, "", record.get());
            ASSERT_EQ(mava_tum_cli::json_of_record(*layout, record.get()), document) << name;
        }
    }
}

TEST(record_json, addresses_are_in_host_byte_order_in_a_record)
{
    tum_nal_data_ipv4_route route{};
    mava_tum_cli::record_of_json(mava_tum_cli::layout_of<tum_nal_data_ipv4_route>(), {{"field_3", "192.0.2.1"}}, "",
        reinterpret_cast<std::byte *>(&route));
    EXPECT_EQ(route.field_3, 0xC0000201u);
}

TEST(record_json, a_list_sets_its_count)
{
    tum_nal_data_service_start start{};
    mava_tum_cli::record_of_json(mava_tum_cli::layout_of<tum_nal_data_service_start>(),
        {{"field_5", {"gold", "silver"}}}, "", reinterpret_cast<std::byte *>(&start));
    EXPECT_EQ(start.field_5_count, 2);
    EXPECT_STREQ(start.field_5[1], "silver");
}

TEST(record_json, what_arrives_through_an_adapter_is_what_was_sent)
{
    for (const app_adapter &adapter : mava_tum_cli::all_adapters()) {
        const auto zero = std::make_unique<std::byte[]>(adapter.encode_layout->size_bytes);
        mava_tum_cli::byte_vector wire(adapter.encode(zero.get(), nullptr, 0));
        adapter.encode(zero.get(), wire.data(), static_cast<uint32_t>(wire.size()));
        const auto arrived = std::make_unique<std::byte[]>(adapter.decode_layout->size_bytes);
        adapter.decode(wire.data(), static_cast<uint32_t>(wire.size()), arrived.get());
        // Both layouts of the one adapter that has two have the same names.
        const json sent = mava_tum_cli::json_of_record(*adapter.encode_layout, zero.get());
        const json received = mava_tum_cli::json_of_record(*adapter.decode_layout, arrived.get());
        for (const auto &[name, value] : sent.items())
            EXPECT_EQ(received.at(name), value) << adapter.name << " " << name;
    }
}

} // namespace
