// Classes over the records of mava_tum/redundancy_group.h, generated from it by bindings/cpp/make_cpp_layer.
//
// That header says what the fields are. Change it or the generator, not this file.
#ifndef MAVA_TUM_CPP_REDUNDANCY_GROUP_HPP
#define MAVA_TUM_CPP_REDUNDANCY_GROUP_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/field_access.hpp"
#include "mava_tum/cpp/field_change.hpp"
#include "mava_tum/cpp/owning_record.hpp"
#include "mava_tum/cpp/record_editor.hpp"
#include "mava_tum/cpp/record_view.hpp"
#include "mava_tum/redundancy_group.h"

// clang-format off
namespace mava_tum::cpp
{

// ---- srg_group_rec_start_req ---------------------------------------------------------------------------------------

class srg_group_rec_start_req;
class srg_group_rec_start_req_view;
class srg_group_rec_start_req_editor;

template <>
struct codec_of<mava_tum_srg_group_rec_start_req> {
    using owner = srg_group_rec_start_req;
    using view = srg_group_rec_start_req_view;
    using editor = srg_group_rec_start_req_editor;
    static constexpr const char *name = "srg_group_rec_start_req";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_srg_group_rec_start_req_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_start_req_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_start_req_duplicate;
};

// The fields of srg_group_rec_start_req. Derived has c_record().
template <class Derived>
class srg_group_rec_start_req_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const srg_group_rec_start_req_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3(); }

private:
    const mava_tum_srg_group_rec_start_req &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of srg_group_rec_start_req. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class srg_group_rec_start_req_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }

private:
    mava_tum_srg_group_rec_start_req &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A srg_group_rec_start_req that lies somewhere else, to be read.
class srg_group_rec_start_req_view : public record_view<srg_group_rec_start_req_view, mava_tum_srg_group_rec_start_req>,
    public srg_group_rec_start_req_fields<srg_group_rec_start_req_view>
{
public:
    using record_view::record_view;
};

// A srg_group_rec_start_req that lies inside of another record, to be changed.
class srg_group_rec_start_req_editor : public record_editor<srg_group_rec_start_req_editor, mava_tum_srg_group_rec_start_req>,
    public srg_group_rec_start_req_fields<srg_group_rec_start_req_editor>, public srg_group_rec_start_req_changes<srg_group_rec_start_req_editor>
{
public:
    using record_editor::record_editor;
};

// An array of srg_group_rec_start_req, to be read.
using srg_group_rec_start_req_list = record_list<srg_group_rec_start_req_view, mava_tum_srg_group_rec_start_req>;
// An array of srg_group_rec_start_req, to be changed.
using srg_group_rec_start_req_editors = editor_list<srg_group_rec_start_req_editor, mava_tum_srg_group_rec_start_req>;

// Opens the reconciliation of a redundancy group.
class srg_group_rec_start_req : public owning_record<srg_group_rec_start_req, mava_tum_srg_group_rec_start_req>,
    public srg_group_rec_start_req_fields<srg_group_rec_start_req>, public srg_group_rec_start_req_changes<srg_group_rec_start_req>
{
public:
    using owning_record::owning_record;
};

// ---- srg_group_rec_resp --------------------------------------------------------------------------------------------

class srg_group_rec_resp;
class srg_group_rec_resp_view;
class srg_group_rec_resp_editor;

template <>
struct codec_of<mava_tum_srg_group_rec_resp> {
    using owner = srg_group_rec_resp;
    using view = srg_group_rec_resp_view;
    using editor = srg_group_rec_resp_editor;
    static constexpr const char *name = "srg_group_rec_resp";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_srg_group_rec_resp_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_resp_duplicate;
};

// The fields of srg_group_rec_resp. Derived has c_record().
template <class Derived>
class srg_group_rec_resp_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const srg_group_rec_resp_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2(); }

private:
    const mava_tum_srg_group_rec_resp &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of srg_group_rec_resp. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class srg_group_rec_resp_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }

private:
    mava_tum_srg_group_rec_resp &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A srg_group_rec_resp that lies somewhere else, to be read.
class srg_group_rec_resp_view : public record_view<srg_group_rec_resp_view, mava_tum_srg_group_rec_resp>,
    public srg_group_rec_resp_fields<srg_group_rec_resp_view>
{
public:
    using record_view::record_view;
};

// A srg_group_rec_resp that lies inside of another record, to be changed.
class srg_group_rec_resp_editor : public record_editor<srg_group_rec_resp_editor, mava_tum_srg_group_rec_resp>,
    public srg_group_rec_resp_fields<srg_group_rec_resp_editor>, public srg_group_rec_resp_changes<srg_group_rec_resp_editor>
{
public:
    using record_editor::record_editor;
};

// An array of srg_group_rec_resp, to be read.
using srg_group_rec_resp_list = record_list<srg_group_rec_resp_view, mava_tum_srg_group_rec_resp>;
// An array of srg_group_rec_resp, to be changed.
using srg_group_rec_resp_editors = editor_list<srg_group_rec_resp_editor, mava_tum_srg_group_rec_resp>;

// Answers srg_group_rec_start_req and srg_group_rec_complete_req.
class srg_group_rec_resp : public owning_record<srg_group_rec_resp, mava_tum_srg_group_rec_resp>,
    public srg_group_rec_resp_fields<srg_group_rec_resp>, public srg_group_rec_resp_changes<srg_group_rec_resp>
{
public:
    using owning_record::owning_record;
};

// ---- srg_group_rec_complete_req ------------------------------------------------------------------------------------

class srg_group_rec_complete_req;
class srg_group_rec_complete_req_view;
class srg_group_rec_complete_req_editor;

template <>
struct codec_of<mava_tum_srg_group_rec_complete_req> {
    using owner = srg_group_rec_complete_req;
    using view = srg_group_rec_complete_req_view;
    using editor = srg_group_rec_complete_req_editor;
    static constexpr const char *name = "srg_group_rec_complete_req";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_srg_group_rec_complete_req_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_complete_req_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_complete_req_duplicate;
};

// The fields of srg_group_rec_complete_req. Derived has c_record().
template <class Derived>
class srg_group_rec_complete_req_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const srg_group_rec_complete_req_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3(); }

private:
    const mava_tum_srg_group_rec_complete_req &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of srg_group_rec_complete_req. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class srg_group_rec_complete_req_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }

private:
    mava_tum_srg_group_rec_complete_req &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A srg_group_rec_complete_req that lies somewhere else, to be read.
class srg_group_rec_complete_req_view : public record_view<srg_group_rec_complete_req_view, mava_tum_srg_group_rec_complete_req>,
    public srg_group_rec_complete_req_fields<srg_group_rec_complete_req_view>
{
public:
    using record_view::record_view;
};

// A srg_group_rec_complete_req that lies inside of another record, to be changed.
class srg_group_rec_complete_req_editor : public record_editor<srg_group_rec_complete_req_editor, mava_tum_srg_group_rec_complete_req>,
    public srg_group_rec_complete_req_fields<srg_group_rec_complete_req_editor>, public srg_group_rec_complete_req_changes<srg_group_rec_complete_req_editor>
{
public:
    using record_editor::record_editor;
};

// An array of srg_group_rec_complete_req, to be read.
using srg_group_rec_complete_req_list = record_list<srg_group_rec_complete_req_view, mava_tum_srg_group_rec_complete_req>;
// An array of srg_group_rec_complete_req, to be changed.
using srg_group_rec_complete_req_editors = editor_list<srg_group_rec_complete_req_editor, mava_tum_srg_group_rec_complete_req>;

// Closes the reconciliation of a redundancy group.
class srg_group_rec_complete_req : public owning_record<srg_group_rec_complete_req, mava_tum_srg_group_rec_complete_req>,
    public srg_group_rec_complete_req_fields<srg_group_rec_complete_req>, public srg_group_rec_complete_req_changes<srg_group_rec_complete_req>
{
public:
    using owning_record::owning_record;
};

// ---- srg_group_data ------------------------------------------------------------------------------------------------

class srg_group_data;
class srg_group_data_view;
class srg_group_data_editor;

template <>
struct codec_of<mava_tum_srg_group_data> {
    using owner = srg_group_data;
    using view = srg_group_data_view;
    using editor = srg_group_data_editor;
    static constexpr const char *name = "srg_group_data";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_srg_group_data_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_data_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_data_duplicate;
};

// The fields of srg_group_data. Derived has c_record().
template <class Derived>
class srg_group_data_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: varint
    std::optional<std::uint32_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // 5: text
    std::optional<std::string_view> field_5() const & noexcept { return access::text_of<5>(c(), c().field_5); }
    std::optional<std::string_view> field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const srg_group_data_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5(); }

private:
    const mava_tum_srg_group_data &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of srg_group_data. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class srg_group_data_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    result set_field_5(std::optional<std::string_view> text) noexcept { return change::set_text<5>(c(), c().field_5, blocks(), text); }

private:
    mava_tum_srg_group_data &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A srg_group_data that lies somewhere else, to be read.
class srg_group_data_view : public record_view<srg_group_data_view, mava_tum_srg_group_data>,
    public srg_group_data_fields<srg_group_data_view>
{
public:
    using record_view::record_view;
};

// A srg_group_data that lies inside of another record, to be changed.
class srg_group_data_editor : public record_editor<srg_group_data_editor, mava_tum_srg_group_data>,
    public srg_group_data_fields<srg_group_data_editor>, public srg_group_data_changes<srg_group_data_editor>
{
public:
    using record_editor::record_editor;
};

// An array of srg_group_data, to be read.
using srg_group_data_list = record_list<srg_group_data_view, mava_tum_srg_group_data>;
// An array of srg_group_data, to be changed.
using srg_group_data_editors = editor_list<srg_group_data_editor, mava_tum_srg_group_data>;

// One group's data. An element of the two replay messages.
class srg_group_data : public owning_record<srg_group_data, mava_tum_srg_group_data>,
    public srg_group_data_fields<srg_group_data>, public srg_group_data_changes<srg_group_data>
{
public:
    using owning_record::owning_record;
};

// ---- srg_group_rec_replay_req --------------------------------------------------------------------------------------

class srg_group_rec_replay_req;
class srg_group_rec_replay_req_view;
class srg_group_rec_replay_req_editor;

template <>
struct codec_of<mava_tum_srg_group_rec_replay_req> {
    using owner = srg_group_rec_replay_req;
    using view = srg_group_rec_replay_req_view;
    using editor = srg_group_rec_replay_req_editor;
    static constexpr const char *name = "srg_group_rec_replay_req";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_srg_group_rec_replay_req_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_replay_req_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_replay_req_duplicate;
};

// The fields of srg_group_rec_replay_req. Derived has c_record().
template <class Derived>
class srg_group_rec_replay_req_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: array of records
    srg_group_data_list field_3() const & noexcept { return access::list_of<3, srg_group_data_list>(c(), c().field_3, c().field_3_count); }
    srg_group_data_list field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // 4: varint
    std::optional<std::uint32_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const srg_group_rec_replay_req_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4(); }

private:
    const mava_tum_srg_group_rec_replay_req &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of srg_group_rec_replay_req. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class srg_group_rec_replay_req_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    srg_group_data_editors make_field_3(exact_number<std::uint64_t> count) & noexcept { return change::make_list<3, srg_group_data_editors>(c(), c().field_3, c().field_3_count, blocks(), count.number()); }
    srg_group_data_editors make_field_3(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_3(count); }
    srg_group_data_editors edit_field_3() & noexcept { return change::edit_list<3, srg_group_data_editors>(c(), c().field_3, c().field_3_count, blocks()); }
    srg_group_data_editors edit_field_3() && noexcept { return access::lasting<Derived>(*this).edit_field_3(); }
    std::optional<srg_group_data_editor> add_field_3() & noexcept { return change::add_element<3, srg_group_data_editor>(c(), c().field_3, c().field_3_count, blocks()); }
    std::optional<srg_group_data_editor> add_field_3() && noexcept { return access::lasting<Derived>(*this).add_field_3(); }
    result resize_field_3(exact_number<std::uint64_t> count) noexcept { return change::resize_list<3>(c(), c().field_3, c().field_3_count, blocks(), count.number()); }
    void clear_field_3() noexcept { change::clear_list<3>(c(), c().field_3, c().field_3_count); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }

private:
    mava_tum_srg_group_rec_replay_req &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A srg_group_rec_replay_req that lies somewhere else, to be read.
class srg_group_rec_replay_req_view : public record_view<srg_group_rec_replay_req_view, mava_tum_srg_group_rec_replay_req>,
    public srg_group_rec_replay_req_fields<srg_group_rec_replay_req_view>
{
public:
    using record_view::record_view;
};

// A srg_group_rec_replay_req that lies inside of another record, to be changed.
class srg_group_rec_replay_req_editor : public record_editor<srg_group_rec_replay_req_editor, mava_tum_srg_group_rec_replay_req>,
    public srg_group_rec_replay_req_fields<srg_group_rec_replay_req_editor>, public srg_group_rec_replay_req_changes<srg_group_rec_replay_req_editor>
{
public:
    using record_editor::record_editor;
};

// An array of srg_group_rec_replay_req, to be read.
using srg_group_rec_replay_req_list = record_list<srg_group_rec_replay_req_view, mava_tum_srg_group_rec_replay_req>;
// An array of srg_group_rec_replay_req, to be changed.
using srg_group_rec_replay_req_editors = editor_list<srg_group_rec_replay_req_editor, mava_tum_srg_group_rec_replay_req>;

// Replays the data of redundancy groups.
class srg_group_rec_replay_req : public owning_record<srg_group_rec_replay_req, mava_tum_srg_group_rec_replay_req>,
    public srg_group_rec_replay_req_fields<srg_group_rec_replay_req>, public srg_group_rec_replay_req_changes<srg_group_rec_replay_req>
{
public:
    using owning_record::owning_record;
};

// ---- srg_group_rec_replay_resp -------------------------------------------------------------------------------------

class srg_group_rec_replay_resp;
class srg_group_rec_replay_resp_view;
class srg_group_rec_replay_resp_editor;

template <>
struct codec_of<mava_tum_srg_group_rec_replay_resp> {
    using owner = srg_group_rec_replay_resp;
    using view = srg_group_rec_replay_resp_view;
    using editor = srg_group_rec_replay_resp_editor;
    static constexpr const char *name = "srg_group_rec_replay_resp";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_srg_group_rec_replay_resp_decode_ext;
    static constexpr auto encode = mava_tum_srg_group_rec_replay_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_srg_group_rec_replay_resp_duplicate;
};

// The fields of srg_group_rec_replay_resp. Derived has c_record().
template <class Derived>
class srg_group_rec_replay_resp_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: array of records
    srg_group_data_list field_2() const & noexcept { return access::list_of<2, srg_group_data_list>(c(), c().field_2, c().field_2_count); }
    srg_group_data_list field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // 3: array of records
    srg_group_data_list field_3() const & noexcept { return access::list_of<3, srg_group_data_list>(c(), c().field_3, c().field_3_count); }
    srg_group_data_list field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // 4: varint
    std::optional<std::uint32_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const srg_group_rec_replay_resp_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4(); }

private:
    const mava_tum_srg_group_rec_replay_resp &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of srg_group_rec_replay_resp. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class srg_group_rec_replay_resp_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    srg_group_data_editors make_field_2(exact_number<std::uint64_t> count) & noexcept { return change::make_list<2, srg_group_data_editors>(c(), c().field_2, c().field_2_count, blocks(), count.number()); }
    srg_group_data_editors make_field_2(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_2(count); }
    srg_group_data_editors edit_field_2() & noexcept { return change::edit_list<2, srg_group_data_editors>(c(), c().field_2, c().field_2_count, blocks()); }
    srg_group_data_editors edit_field_2() && noexcept { return access::lasting<Derived>(*this).edit_field_2(); }
    std::optional<srg_group_data_editor> add_field_2() & noexcept { return change::add_element<2, srg_group_data_editor>(c(), c().field_2, c().field_2_count, blocks()); }
    std::optional<srg_group_data_editor> add_field_2() && noexcept { return access::lasting<Derived>(*this).add_field_2(); }
    result resize_field_2(exact_number<std::uint64_t> count) noexcept { return change::resize_list<2>(c(), c().field_2, c().field_2_count, blocks(), count.number()); }
    void clear_field_2() noexcept { change::clear_list<2>(c(), c().field_2, c().field_2_count); }
    srg_group_data_editors make_field_3(exact_number<std::uint64_t> count) & noexcept { return change::make_list<3, srg_group_data_editors>(c(), c().field_3, c().field_3_count, blocks(), count.number()); }
    srg_group_data_editors make_field_3(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_3(count); }
    srg_group_data_editors edit_field_3() & noexcept { return change::edit_list<3, srg_group_data_editors>(c(), c().field_3, c().field_3_count, blocks()); }
    srg_group_data_editors edit_field_3() && noexcept { return access::lasting<Derived>(*this).edit_field_3(); }
    std::optional<srg_group_data_editor> add_field_3() & noexcept { return change::add_element<3, srg_group_data_editor>(c(), c().field_3, c().field_3_count, blocks()); }
    std::optional<srg_group_data_editor> add_field_3() && noexcept { return access::lasting<Derived>(*this).add_field_3(); }
    result resize_field_3(exact_number<std::uint64_t> count) noexcept { return change::resize_list<3>(c(), c().field_3, c().field_3_count, blocks(), count.number()); }
    void clear_field_3() noexcept { change::clear_list<3>(c(), c().field_3, c().field_3_count); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }

private:
    mava_tum_srg_group_rec_replay_resp &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A srg_group_rec_replay_resp that lies somewhere else, to be read.
class srg_group_rec_replay_resp_view : public record_view<srg_group_rec_replay_resp_view, mava_tum_srg_group_rec_replay_resp>,
    public srg_group_rec_replay_resp_fields<srg_group_rec_replay_resp_view>
{
public:
    using record_view::record_view;
};

// A srg_group_rec_replay_resp that lies inside of another record, to be changed.
class srg_group_rec_replay_resp_editor : public record_editor<srg_group_rec_replay_resp_editor, mava_tum_srg_group_rec_replay_resp>,
    public srg_group_rec_replay_resp_fields<srg_group_rec_replay_resp_editor>, public srg_group_rec_replay_resp_changes<srg_group_rec_replay_resp_editor>
{
public:
    using record_editor::record_editor;
};

// An array of srg_group_rec_replay_resp, to be read.
using srg_group_rec_replay_resp_list = record_list<srg_group_rec_replay_resp_view, mava_tum_srg_group_rec_replay_resp>;
// An array of srg_group_rec_replay_resp, to be changed.
using srg_group_rec_replay_resp_editors = editor_list<srg_group_rec_replay_resp_editor, mava_tum_srg_group_rec_replay_resp>;

// Answers a replay with two lists of group data.
class srg_group_rec_replay_resp : public owning_record<srg_group_rec_replay_resp, mava_tum_srg_group_rec_replay_resp>,
    public srg_group_rec_replay_resp_fields<srg_group_rec_replay_resp>, public srg_group_rec_replay_resp_changes<srg_group_rec_replay_resp>
{
public:
    using owning_record::owning_record;
};

} // namespace mava_tum::cpp
// clang-format on

#endif
