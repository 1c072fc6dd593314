#include "model/record_compare.h"

#include "model/raw_memory.h"

#include <sstream>

namespace mava_tum_model
{

namespace
{

class comparison
{
public:
    comparison(const block_log &library_log, const block_log &model_log)
        : library_log_(library_log), model_log_(model_log)
    {
    }

    std::string record(const message &of, const record_pair &records);

private:
    std::string member(const field &described, const record_pair &records);
    std::string pointer(const record_pair &records, uint32_t offset);
    std::string bytes_member(const field &described, const record_pair &records);
    std::string text_at(const record_pair &records, uint32_t offset);
    std::string array_member(const field &described, const record_pair &records);
    std::string describe(const uint8_t *pointer, const block_log &log) const;

    const block_log &library_log_;
    const block_log &model_log_;
};

template <class value_type>
std::string value_at(const record_pair &records, uint32_t offset)
{
    const value_type expected = load<value_type>(records.model, offset);
    const value_type actual = load<value_type>(records.library, offset);
    if (expected == actual)
        return {};
    std::ostringstream text;
    text << std::hex << "expected 0x" << +expected << ", actual 0x" << +actual;
    return text.str();
}

std::string comparison::describe(const uint8_t *pointer, const block_log &log) const
{
    if (pointer == nullptr)
        return "null";
    const std::size_t index = log.index_of(pointer);
    if (index != block_log::unknown)
        return "block " + std::to_string(index + 1);
    std::ostringstream text;
    text << static_cast<const void *>(pointer);
    return text.str();
}

// Equal addresses (into the input, or null), or blocks of the same call.
std::string comparison::pointer(const record_pair &records, uint32_t offset)
{
    const uint8_t *expected = load_pointer(records.model, offset);
    const uint8_t *actual = load_pointer(records.library, offset);
    if (expected == actual)
        return {};
    const std::size_t index =
        expected == nullptr || actual == nullptr ? block_log::unknown : model_log_.index_of(expected);
    if (index != block_log::unknown && library_log_.index_of(actual) == index)
        return {};
    return "expected " + describe(expected, model_log_) + ", actual " + describe(actual, library_log_);
}

std::string comparison::bytes_member(const field &described, const record_pair &records)
{
    std::string found = pointer(records, described.offset);
    if (found.empty())
        found = value_at<uint64_t>(records, described.offset + bytes_length_offset);
    if (!found.empty())
        return ": " + found;
    const uint8_t *expected = load_pointer(records.model, described.offset);
    const uint8_t *actual = load_pointer(records.library, described.offset);
    if (expected == actual || std::memcmp(expected, actual, load_bytes_length(records.model, described)) == 0)
        return {};
    return ": other bytes";
}

// The whole block, also bytes after a NUL inside the text.
std::string comparison::text_at(const record_pair &records, uint32_t offset)
{
    const std::string found = pointer(records, offset);
    if (!found.empty())
        return ": " + found;
    const uint8_t *expected = load_pointer(records.model, offset);
    const uint8_t *actual = load_pointer(records.library, offset);
    if (expected == actual ||
        std::memcmp(expected, actual, model_log_.size_of_block(model_log_.index_of(expected))) == 0)
        return {};
    return ": other text";
}

std::string comparison::array_member(const field &described, const record_pair &records)
{
    std::string found = pointer(records, described.offset);
    if (!found.empty())
        return ": " + found;
    found = value_at<uint32_t>(records, described.count_offset);
    if (!found.empty())
        return "_count: " + found;
    record_pair element = {
        load_pointer(records.library, described.offset), load_pointer(records.model, described.offset)};
    const uint32_t count = element.model == element.library ? 0 : load<uint32_t>(records.model, described.count_offset);
    for (uint32_t index = 0; index < count; ++index) {
        found = described.kind == field_kind::text_array ? text_at(element, 0) : record(*described.nested, element);
        if (!found.empty())
            return "[" + std::to_string(index) + "]" + found;
        element.library += element_bytes(described);
        element.model += element_bytes(described);
    }
    return {};
}

std::string comparison::member(const field &described, const record_pair &records)
{
    std::string found;
    switch (described.kind) {
    case field_kind::varint32:
    case field_kind::fixed32:
        found = value_at<uint32_t>(records, described.offset);
        return found.empty() ? found : ": " + found;
    case field_kind::varint64:
        found = value_at<uint64_t>(records, described.offset);
        return found.empty() ? found : ": " + found;
    case field_kind::bytes:
        return bytes_member(described, records);
    case field_kind::text:
        return text_at(records, described.offset);
    case field_kind::record:
        return record(*described.nested, {records.library + described.offset, records.model + described.offset});
    default:
        return array_member(described, records);
    }
}

// Each level puts its own part in front of the path: ".qos[1].field_3: expected ..., actual ...".
std::string comparison::record(const message &of, const record_pair &records)
{
    for (const field &described : of.fields) {
        const std::string found = member(described, records);
        if (!found.empty())
            return "." + member_name(described) + found;
    }
    const uint32_t expected = load_mask(of, records.model);
    const uint32_t actual = load_mask(of, records.library);
    if (expected == actual)
        return {};
    std::ostringstream text;
    text << std::hex << ".presence_mask: expected 0x" << expected << ", actual 0x" << actual;
    return text.str();
}

} // namespace

std::string compare_records(
    const message &of, const record_pair &records, const block_log &library_log, const block_log &model_log)
{
    return comparison(library_log, model_log).record(of, records);
}

} // namespace mava_tum_model
