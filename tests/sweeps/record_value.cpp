#include "sweeps/record_value.h"

#include <algorithm>

namespace mava_tum_test
{

namespace
{

std::string difference_of(const record_value &actual, const record_value &expected);

std::string numbers_differ(const char *what, uint64_t actual, uint64_t expected)
{
    if (actual == expected)
        return "";
    return std::string(what) + " is " + std::to_string(actual) + ", expected " + std::to_string(expected);
}

std::string shown(const std::optional<byte_vector> &content)
{
    if (!content)
        return "null";
    const std::size_t shown_bytes = std::min<std::size_t>(content->size(), 32);
    return std::to_string(content->size()) + " bytes " + hex_of(content->data(), shown_bytes);
}

std::string texts_differ(
    const std::vector<std::optional<byte_vector>> &actual, const std::vector<std::optional<byte_vector>> &expected)
{
    if (actual.size() != expected.size())
        return numbers_differ("texts reached through the pointer", actual.size(), expected.size());
    for (std::size_t i = 0; i < actual.size(); ++i) {
        if (actual[i] != expected[i])
            return "text " + std::to_string(i) + " is " + shown(actual[i]) + ", expected " + shown(expected[i]);
    }
    return "";
}

std::string difference_of(const field_value &actual, const field_value &expected)
{
    std::string found = numbers_differ("presence bit", actual.present, expected.present);
    if (found.empty())
        found = numbers_differ("number, length or count", actual.integer, expected.integer);
    if (found.empty() && actual.content != expected.content)
        found = "content is " + shown(actual.content) + ", expected " + shown(expected.content);
    if (found.empty())
        found = numbers_differ("records reached through the pointer", actual.records.size(), expected.records.size());
    if (found.empty())
        found = texts_differ(actual.texts, expected.texts);
    if (!found.empty())
        return ": " + found;
    for (std::size_t i = 0; i < actual.records.size(); ++i) {
        found = difference_of(actual.records[i], expected.records[i]);
        if (!found.empty())
            return actual.kind == field_kind::records ? "[" + std::to_string(i) + "]" + found : found;
    }
    return "";
}

std::string difference_of(const record_value &actual, const record_value &expected)
{
    std::string found = numbers_differ("number of fields", actual.fields.size(), expected.fields.size());
    if (found.empty())
        found = numbers_differ("set of spare mask bits", actual.spare_bits, expected.spare_bits);
    if (!found.empty())
        return ": " + found;
    for (std::size_t i = 0; i < actual.fields.size(); ++i) {
        found = difference_of(actual.fields[i], expected.fields[i]);
        if (!found.empty())
            return "." + std::to_string(actual.fields[i].number) + found;
    }
    return "";
}

} // namespace

bool holds_bytes(const record_value &skeleton)
{
    return std::any_of(skeleton.fields.begin(), skeleton.fields.end(), [](const field_value &field) {
        switch (field.kind) {
        case field_kind::bytes:
            return true;
        case field_kind::record:
            return holds_bytes(field.records.front());
        case field_kind::records:
            return holds_bytes(*field.element_skeleton);
        default:
            return false;
        }
    });
}

testing::AssertionResult is_same_record(const record_value &actual, const record_value &expected)
{
    const std::string found = difference_of(actual, expected);
    if (found.empty())
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "record" << found;
}

} // namespace mava_tum_test
