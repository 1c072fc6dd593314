// Do we and the official protobuf runtime read and write the same bytes for the same values?
#include "interop/peer_record.h"
#include "support/guarded_buffer.h"
#include "support/recording_allocator.h"
#include "sweeps/expected_record.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"
#include "sweeps/record_storage.h"

#include <google/protobuf/descriptor.h>
#include <gtest/gtest.h>

namespace mava_tum_test
{

namespace
{

using google::protobuf::FieldDescriptor;

constexpr uint64_t first_seed = 1000003;
constexpr uint64_t record_count = 500;

class interop : public testing::TestWithParam<message>
{
};

// Seeds and random records, each with the values that a receiver gets.
struct sent_record {
    std::string name;
    record_value sent;
    record_value received;
};

std::vector<sent_record> records_of(const message &tested)
{
    std::vector<named_record> all = seeds_of(*tested.skeleton);
    for (uint64_t seed = first_seed; seed < first_seed + record_count; ++seed) {
        random_source random(seed);
        all.push_back({"seed " + std::to_string(seed), random_record(*tested.skeleton, random)});
    }
    std::vector<sent_record> records;
    for (const named_record &record : all) {
        records.push_back({record.name, record.value, *tested.skeleton});
        allocation_plan plan;
        expect_decode(records.back().received, record.value, plan, false);
    }
    return records;
}

byte_vector encoded(const message &tested, const record_value &value)
{
    record_storage record(tested, value);
    byte_vector wire(tested.encode(record.get(), nullptr, 0, nullptr, nullptr, 0));
    EXPECT_EQ(tested.encode(record.get(), wire.data(), wire.size(), nullptr, nullptr, 0), wire.size());
    return wire;
}

TEST_P(interop, our_bytes_arrive_with_the_same_values_and_presence)
{
    const message &tested = GetParam();
    for (const sent_record &record : records_of(tested)) {
        SCOPED_TRACE(record.name);
        const byte_vector wire = encoded(tested, record.sent);
        const std::unique_ptr<peer_message> peer = new_peer(tested.name);
        ASSERT_TRUE(peer->ParseFromArray(wire.data(), static_cast<int>(wire.size())));
        ASSERT_TRUE(is_same_record(read_peer(*peer, *tested.skeleton), record.received));
        ASSERT_TRUE(peer->GetReflection()->GetUnknownFields(*peer).empty());
    }
}

TEST_P(interop, their_bytes_arrive_with_the_same_values_and_presence)
{
    const message &tested = GetParam();
    for (const sent_record &record : records_of(tested)) {
        SCOPED_TRACE(record.name);
        const std::unique_ptr<peer_message> peer = new_peer(tested.name);
        fill_peer(*peer, record.sent);
        const std::string serialised = peer->SerializeAsString();
        page_end_buffer wire(byte_vector(serialised.begin(), serialised.end()));
        record_storage ours(tested);
        recording_allocator memory;
        ASSERT_EQ(
            tested.decode(ours.get(), wire.data(), wire.size(), recording_allocator::allocate, memory.context(), 0),
            MAVA_TUM_OK);
        EXPECT_TRUE(is_same_record(ours.value(), record.received));
        tested.free(ours.get(), recording_allocator::release, memory.context(), 0);
        if (HasFailure())
            return;
    }
}

TEST_P(interop, both_write_the_same_bytes)
{
    const message &tested = GetParam();
    for (const sent_record &record : records_of(tested)) {
        SCOPED_TRACE(record.name);
        const std::unique_ptr<peer_message> peer = new_peer(tested.name);
        fill_peer(*peer, record.sent);
        const std::string theirs = peer->SerializeAsString();
        ASSERT_EQ(hex_of(encoded(tested, record.sent)), hex_of(byte_vector(theirs.begin(), theirs.end())));
    }
}

FieldDescriptor::Type schema_type_of(field_kind kind)
{
    switch (kind) {
    case field_kind::varint32:
        return FieldDescriptor::TYPE_UINT32;
    case field_kind::varint64:
        return FieldDescriptor::TYPE_UINT64;
    case field_kind::fixed32:
        return FieldDescriptor::TYPE_FIXED32;
    case field_kind::bytes:
    case field_kind::text:
    case field_kind::texts:
        return FieldDescriptor::TYPE_BYTES;
    default:
        return FieldDescriptor::TYPE_MESSAGE;
    }
}

TEST_P(interop, the_schema_has_the_fields_of_the_record_and_no_others)
{
    const std::unique_ptr<peer_message> peer = new_peer(GetParam().name);
    const google::protobuf::Descriptor &schema = *peer->GetDescriptor();
    const record_value &skeleton = *GetParam().skeleton;
    ASSERT_EQ(static_cast<std::size_t>(schema.field_count()), skeleton.fields.size());
    for (const field_value &field : skeleton.fields) {
        const FieldDescriptor *described = schema.FindFieldByNumber(static_cast<int>(field.number));
        ASSERT_NE(described, nullptr) << "field " << field.number;
        EXPECT_EQ(described->type(), schema_type_of(field.kind)) << described->full_name();
        EXPECT_EQ(described->is_repeated(), is_list(field.kind)) << described->full_name();
    }
}

INSTANTIATE_TEST_SUITE_P(of, interop, testing::ValuesIn(all_messages()), name_of_message);

} // namespace

} // namespace mava_tum_test
