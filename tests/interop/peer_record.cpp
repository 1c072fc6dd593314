#include "interop/peer_record.h"

#include "sweeps/expected_wire.h"

#include <google/protobuf/descriptor.h>

#include <stdexcept>

namespace mava_tum_test
{

namespace
{

using google::protobuf::FieldDescriptor;
using google::protobuf::Reflection;

const FieldDescriptor *descriptor_of(const peer_message &peer, const field_value &field)
{
    const FieldDescriptor *found = peer.GetDescriptor()->FindFieldByNumber(static_cast<int>(field.number));
    if (found == nullptr)
        throw std::logic_error(peer.GetTypeName() + " has no field " + std::to_string(field.number));
    return found;
}

byte_vector to_bytes(const std::string &content)
{
    return byte_vector(content.begin(), content.end());
}

void fill_field(peer_message &peer, const field_value &field)
{
    const Reflection &access = *peer.GetReflection();
    const FieldDescriptor *descriptor = descriptor_of(peer, field);
    switch (field.kind) {
    case field_kind::varint64:
        access.SetUInt64(&peer, descriptor, field.integer);
        break;
    case field_kind::varint32:
    case field_kind::fixed32:
        access.SetUInt32(&peer, descriptor, static_cast<uint32_t>(field.integer));
        break;
    case field_kind::bytes:
    case field_kind::text: {
        const byte_vector content = field.content.value_or(byte_vector());
        access.SetString(&peer, descriptor, std::string(content.begin(), content.end()));
        break;
    }
    case field_kind::record:
        fill_peer(*access.MutableMessage(&peer, descriptor), field.records.front());
        break;
    case field_kind::records:
        for (const record_value &element : field.records)
            fill_peer(*access.AddMessage(&peer, descriptor), element);
        break;
    case field_kind::texts:
        for (const byte_vector &text : texts_on_wire(field))
            access.AddString(&peer, descriptor, std::string(text.begin(), text.end()));
        break;
    }
}

void read_list(const peer_message &peer, const FieldDescriptor *descriptor, field_value &field)
{
    const int count = peer.GetReflection()->FieldSize(peer, descriptor);
    field.present = count != 0;
    field.integer = static_cast<uint64_t>(count);
    for (int i = 0; i < count; ++i) {
        if (field.kind == field_kind::texts) {
            field.texts.push_back(to_bytes(peer.GetReflection()->GetRepeatedString(peer, descriptor, i)));
            continue;
        }
        const peer_message &element = peer.GetReflection()->GetRepeatedMessage(peer, descriptor, i);
        field.records.push_back(read_peer(element, *field.element_skeleton));
    }
}

void read_field(const peer_message &peer, field_value &field)
{
    const Reflection &access = *peer.GetReflection();
    const FieldDescriptor *descriptor = descriptor_of(peer, field);
    if (is_list(field.kind)) {
        read_list(peer, descriptor, field);
        return;
    }
    field.present = access.HasField(peer, descriptor);
    if (!field.present)
        return;
    switch (field.kind) {
    case field_kind::varint64:
        field.integer = access.GetUInt64(peer, descriptor);
        break;
    case field_kind::varint32:
    case field_kind::fixed32:
        field.integer = access.GetUInt32(peer, descriptor);
        break;
    case field_kind::bytes:
    case field_kind::text:
        field.content = to_bytes(access.GetString(peer, descriptor));
        if (field.kind == field_kind::bytes)
            field.integer = field.content->size();
        break;
    default:
        field.records.front() = read_peer(access.GetMessage(peer, descriptor), field.records.front());
        break;
    }
}

} // namespace

std::unique_ptr<peer_message> new_peer(const std::string &name)
{
    const google::protobuf::Descriptor *descriptor =
        google::protobuf::DescriptorPool::generated_pool()->FindMessageTypeByName("mava_tum_interop." + name);
    if (descriptor == nullptr)
        throw std::logic_error("the schema has no message " + name);
    const peer_message *prototype = google::protobuf::MessageFactory::generated_factory()->GetPrototype(descriptor);
    return std::unique_ptr<peer_message>(prototype->New());
}

void fill_peer(peer_message &peer, const record_value &value)
{
    for (const field_value &field : value.fields) {
        if (is_written(field))
            fill_field(peer, field);
    }
}

record_value read_peer(const peer_message &peer, const record_value &skeleton)
{
    record_value value = skeleton;
    for (field_value &field : value.fields)
        read_field(peer, field);
    return value;
}

bool peer_accepts(peer_message &peer, std::string_view hex)
{
    const byte_vector wire = bytes_of(hex);
    return peer.ParseFromArray(wire.data(), static_cast<int>(wire.size()));
}

} // namespace mava_tum_test
