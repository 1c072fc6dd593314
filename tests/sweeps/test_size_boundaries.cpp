// Are records correct at the sizes where an encoder changes its method: where a length gets one byte longer, where a
// buffer on the stack ends, where a list becomes long?
#include "sweeps/check_round_trip.h"
#include "sweeps/expected_wire.h"
#include "sweeps/message_list.h"
#include "sweeps/random_records.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{

namespace
{

constexpr uint64_t boundary_seed = 7919;

class size_boundaries : public testing::TestWithParam<message>
{
};

class list_boundaries : public testing::TestWithParam<message>
{
};

bool is_block(field_kind kind)
{
    return kind == field_kind::bytes || kind == field_kind::text;
}

// The path to a field: an index into the fields of each record.
using field_path = std::vector<std::size_t>;

void find_paths(const record_value &skeleton, bool lists, field_path &path, std::vector<field_path> &found)
{
    for (std::size_t i = 0; i < skeleton.fields.size(); ++i) {
        const field_value &field = skeleton.fields[i];
        path.push_back(i);
        const bool has_length = field.kind != field_kind::records && (is_list(field.kind) || is_block(field.kind));
        if (lists ? is_list(field.kind) : has_length)
            found.push_back(path);
        if (field.kind == field_kind::records)
            find_paths(*field.element_skeleton, lists, path, found);
        if (field.kind == field_kind::record)
            find_paths(field.records.front(), lists, path, found);
        path.pop_back();
    }
}

// All texts, bytes fields and lists of texts at any depth, or all lists.
std::vector<field_path> paths_to(const record_value &skeleton, bool lists)
{
    std::vector<field_path> found;
    field_path path;
    find_paths(skeleton, lists, path, found);
    return found;
}

// The field at the end of the path, in the first element of each list; an empty list gets one element.
field_value &field_at(record_value &record, const field_path &path)
{
    record_value *holder = &record;
    for (std::size_t step = 0; step + 1 < path.size(); ++step) {
        field_value &field = holder->fields[path[step]];
        if (field.records.empty())
            fill_list_with_empty_elements(field, 1);
        holder = &field.records.front();
    }
    return holder->fields[path.back()];
}

void set_length(record_value &record, const field_path &path, std::size_t length, random_source &random)
{
    field_value &field = field_at(record, path);
    if (field.kind == field_kind::texts) {
        fill_list_with_empty_elements(field, 1);
        field.texts.front() = random_text(length, random);
        return;
    }
    field.present = true;
    field.content = random_text(length, random);
    if (field.kind == field_kind::bytes)
        field.integer = length;
}

std::string shown(const record_value &skeleton, const field_path &path)
{
    std::string text;
    const record_value *holder = &skeleton;
    for (const std::size_t index : path) {
        const field_value &field = holder->fields[index];
        text += "." + std::to_string(field.number);
        holder = field.kind == field_kind::record ? &field.records.front() : field.element_skeleton;
    }
    return text;
}

struct length_range {
    std::size_t first;
    std::size_t last;
};

// A few bytes of tags and length prefixes are added at each level: each range crosses its boundary at every depth.
constexpr length_range lengths_near_boundaries[] = {{118, 130}, {2030, 2050}, {8174, 8194}, {16366, 16386}};

constexpr std::size_t length_step = MAVA_TUM_WORK_DIVISOR == 1 ? 1 : 4;

TEST_P(size_boundaries, of_every_enclosing_record_are_crossed_by_a_field_that_grows_alone)
{
    const message &tested = GetParam();
    random_source random(boundary_seed);
    for (const field_path &path : paths_to(*tested.skeleton, false)) {
        for (const length_range &range : lengths_near_boundaries) {
            for (std::size_t length = range.first; length <= range.last; length += length_step) {
                SCOPED_TRACE(shown(*tested.skeleton, path) + " of " + std::to_string(length) + " bytes, alone");
                record_value value = *tested.skeleton;
                set_length(value, path, length, random);
                check_round_trip(tested, value, random);
                if (HasFailure())
                    return;
            }
        }
    }
}

TEST_P(size_boundaries, of_the_whole_message_are_crossed_by_a_field_of_a_full_record)
{
    const message &tested = GetParam();
    random_source random(boundary_seed);
    for (const field_path &path : paths_to(*tested.skeleton, false)) {
        record_value value = full_record(*tested.skeleton);
        set_length(value, path, 0, random);
        const std::size_t rest_bytes = wire_of(value).bytes.size();
        for (const std::size_t boundary : {std::size_t{2048}, std::size_t{8192}, std::size_t{16384}}) {
            const std::size_t room = boundary > rest_bytes + 12 ? boundary - rest_bytes : 12;
            for (std::size_t length = room - 12; length <= room + 2; length += length_step) {
                SCOPED_TRACE(shown(*tested.skeleton, path) + " of " + std::to_string(length) + " bytes, in full");
                set_length(value, path, length, random);
                check_round_trip(tested, value, random);
                if (HasFailure())
                    return;
            }
        }
    }
}

// A list of session contexts has a hundred times the fields of a list of texts: its longest counts would take minutes
// and a gigabyte, and are left out.
bool is_affordable(const field_value &list, std::size_t count)
{
    const std::size_t field_count = list.element_skeleton == nullptr ? 1 : field_count_of(*list.element_skeleton);
    return count * field_count <= 200'000 / MAVA_TUM_WORK_DIVISOR;
}

TEST_P(list_boundaries, are_crossed_by_the_count)
{
    const message &tested = GetParam();
    random_source random(boundary_seed);
    for (const field_path &path : paths_to(*tested.skeleton, true)) {
        for (const std::size_t count :
            {1, 2, 31, 32, 33, 63, 64, 65, 127, 128, 129, 200, 255, 256, 257, 511, 512, 513, 1023, 1024, 1025, 4097}) {
            SCOPED_TRACE(shown(*tested.skeleton, path) + " with " + std::to_string(count) + " elements");
            record_value value = *tested.skeleton;
            field_value &list = field_at(value, path);
            if (!is_affordable(list, count))
                break;
            fill_list(list, count, random);
            check_round_trip(tested, value, random);
            if (HasFailure())
                return;
        }
    }
}

TEST_P(list_boundaries, of_the_whole_message_are_crossed_by_empty_elements)
{
    const message &tested = GetParam();
    random_source random(boundary_seed);
    for (const field_path &path : paths_to(*tested.skeleton, true)) {
        for (const std::size_t boundary : {std::size_t{2048}, std::size_t{8192}, std::size_t{16384}}) {
            // An empty element takes 2 or 3 bytes.
            for (std::size_t count = boundary / 3 - 2; count <= boundary / 2 + 1; count += boundary / 24) {
                SCOPED_TRACE(shown(*tested.skeleton, path) + " with " + std::to_string(count) + " empty elements");
                record_value value = full_record(*tested.skeleton);
                field_value &list = field_at(value, path);
                if (!is_affordable(list, count))
                    break;
                fill_list_with_empty_elements(list, count);
                check_round_trip(tested, value, random);
                if (HasFailure())
                    return;
            }
        }
    }
}

bool has_field_with_length(const message &tested)
{
    return !paths_to(*tested.skeleton, false).empty();
}

bool has_list(const message &tested)
{
    return !paths_to(*tested.skeleton, true).empty();
}

INSTANTIATE_TEST_SUITE_P(
    of, size_boundaries, testing::ValuesIn(messages_where(has_field_with_length)), name_of_message);
INSTANTIATE_TEST_SUITE_P(of, list_boundaries, testing::ValuesIn(messages_where(has_list)), name_of_message);

} // namespace

} // namespace mava_tum_test
