#include "arrived_values.h"

#include "inspector/library/wire_walk.h"

#include <cstring>
#include <span>

namespace mava_tum_test
{

namespace
{

using namespace mava_tum_inspect;

uint64_t load_number(const uint8_t *member, std::size_t bytes)
{
    uint64_t number = 0;
    std::memcpy(&number, member, bytes); // the tests run on little-endian machines
    return number;
}

class arrival final : public wire_visitor
{
public:
    arrival(std::span<const member_limit> members, const uint8_t *record, const uint8_t *data) : data_(data)
    {
        frames_.push_back({members, record, 0});
    }

    void on_value(const occurrence &at) override
    {
        if (!has_arrived(at))
            lose(at);
    }

    void on_run(const occurrence &first, uint64_t elements) override
    {
        frame &inside = frames_.back();
        const member_limit *limit = find_limit(inside.members, first.path.number);
        inside.elements = 0;
        if (inside.record != nullptr && limit != nullptr)
            inside.elements = load_number(inside.record + limit->count_offset, limit->count_bits / 8);
        if (inside.elements != elements)
            lose(first);
    }

    void on_record(const occurrence &at) override
    {
        const frame &outer = frames_.back();
        const member_limit *limit = find_limit(outer.members, at.path.number);
        if (limit == nullptr || outer.record == nullptr) {
            frames_.push_back({{}, nullptr, 0});
            return;
        }
        const bool is_element = limit->kind == limit_kind::list;
        const bool is_beyond = is_element && at.path.index >= outer.elements;
        const std::size_t offset = limit->offset + (is_element ? at.path.index * limit->member_bytes : 0);
        frames_.push_back({limit->members, is_beyond ? nullptr : outer.record + offset, 0});
    }

    void on_record_end(const occurrence &, uint32_t) override
    {
        frames_.pop_back();
    }

    void on_unknown(const occurrence &at) override
    {
        lose(at);
    }

    std::vector<std::string> lost;

private:
    struct frame {
        std::span<const member_limit> members;
        const uint8_t *record; // null: it is beyond the slots
        uint64_t elements;
    };

    void lose(const occurrence &at)
    {
        path_text path;
        append_path(path, &at.path);
        lost.push_back(path.c_str());
    }

    bool has_arrived(const occurrence &at) const
    {
        const frame &inside = frames_.back();
        const member_limit *limit = find_limit(inside.members, at.path.number);
        const bool is_empty = at.number_value == 0 && (at.length.bytes == 0 || at.value.bytes == 0);
        if (limit == nullptr || inside.record == nullptr)
            return limit == nullptr && inside.record != nullptr && is_empty;
        const uint8_t *member = inside.record + limit->offset;
        switch (limit->kind) {
        case limit_kind::number:
            return load_number(member, limit->member_bytes) == number_of_wire(at);
        case limit_kind::text:
            return is_text(at, member, limit->member_bytes);
        case limit_kind::texts:
            return at.path.index < inside.elements &&
                   is_text(at, member + at.path.index * limit->member_bytes, limit->member_bytes);
        case limit_kind::bytes:
            return is_bytes(at, member, limit->member_bytes);
        default:
            return false;
        }
    }

    // Addresses are in host order there.
    static uint64_t number_of_wire(const occurrence &at)
    {
        const bool is_address = at.field->kind == field_kind::fixed32;
        return is_address ? __builtin_bswap32(static_cast<uint32_t>(at.number_value)) : at.number_value;
    }

    bool is_text(const occurrence &at, const uint8_t *member, std::size_t size) const
    {
        const std::size_t kept = strnlen(reinterpret_cast<const char *>(member), size);
        return kept == at.value.bytes && std::memcmp(member, data_ + at.value.offset, kept) == 0;
    }

    bool is_bytes(const occurrence &at, const uint8_t *member, std::size_t size) const
    {
        const std::vector<uint8_t> zeros(size);
        if (at.value.bytes == 0)
            return std::memcmp(member, zeros.data(), size) == 0;
        return at.value.bytes == size && std::memcmp(member, data_ + at.value.offset, size) == 0;
    }

    const uint8_t *data_;
    std::vector<frame> frames_;
};

} // namespace

std::vector<uint8_t> decode_record(const adapter_description &adapter, const byte_vector &input)
{
    std::vector<uint64_t> aligned(adapter.received->size_bytes / sizeof(uint64_t) + 1, ~uint64_t{0});
    adapter.decode(input.data(), static_cast<uint32_t>(input.size()), aligned.data());
    const uint8_t *record = reinterpret_cast<const uint8_t *>(aligned.data());
    return {record, record + adapter.received->size_bytes};
}

std::vector<std::string> lost_in(const adapter_description &adapter, const byte_vector &input)
{
    const std::vector<uint8_t> record = decode_record(adapter, input);
    arrival visitor(adapter.received->limits, record.data(), input.data());
    walk_message(*adapter.carried, input.data(), input.size(), visitor);
    return visitor.lost;
}

} // namespace mava_tum_test
