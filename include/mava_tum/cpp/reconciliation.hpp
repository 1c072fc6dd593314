// Classes over the records of mava_tum/reconciliation.h, generated from it by bindings/cpp/make_cpp_layer.
//
// That header says what the fields are. Change it or the generator, not this file.
#ifndef MAVA_TUM_CPP_RECONCILIATION_HPP
#define MAVA_TUM_CPP_RECONCILIATION_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/field_access.hpp"
#include "mava_tum/cpp/field_change.hpp"
#include "mava_tum/cpp/owning_record.hpp"
#include "mava_tum/cpp/record_editor.hpp"
#include "mava_tum/cpp/record_view.hpp"
#include "mava_tum/cpp/session_messages.hpp"
#include "mava_tum/cpp/statistics.hpp"
#include "mava_tum/reconciliation.h"

// clang-format off
namespace mava_tum::cpp
{

// ---- rec_start_req -------------------------------------------------------------------------------------------------

class rec_start_req;
class rec_start_req_view;
class rec_start_req_editor;

template <>
struct codec_of<mava_tum_rec_start_req> {
    using owner = rec_start_req;
    using view = rec_start_req_view;
    using editor = rec_start_req_editor;
    static constexpr const char *name = "rec_start_req";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_start_req_decode_ext;
    static constexpr auto encode = mava_tum_rec_start_req_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_start_req_duplicate;
};

// The fields of rec_start_req. Derived has c_record().
template <class Derived>
class rec_start_req_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: text
    std::optional<std::string_view> field_4() const & noexcept { return access::text_of<4>(c(), c().field_4); }
    std::optional<std::string_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_start_req_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4(); }

private:
    const mava_tum_rec_start_req &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_start_req. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_start_req_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    result set_field_4(std::optional<std::string_view> text) noexcept { return change::set_text<4>(c(), c().field_4, blocks(), text); }

private:
    mava_tum_rec_start_req &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A rec_start_req that lies somewhere else, to be read.
class rec_start_req_view : public record_view<rec_start_req_view, mava_tum_rec_start_req>,
    public rec_start_req_fields<rec_start_req_view>
{
public:
    using record_view::record_view;
};

// A rec_start_req that lies inside of another record, to be changed.
class rec_start_req_editor : public record_editor<rec_start_req_editor, mava_tum_rec_start_req>,
    public rec_start_req_fields<rec_start_req_editor>, public rec_start_req_changes<rec_start_req_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_start_req, to be read.
using rec_start_req_list = record_list<rec_start_req_view, mava_tum_rec_start_req>;
// An array of rec_start_req, to be changed.
using rec_start_req_editors = editor_list<rec_start_req_editor, mava_tum_rec_start_req>;

// Opens a reconciliation run.
class rec_start_req : public owning_record<rec_start_req, mava_tum_rec_start_req>,
    public rec_start_req_fields<rec_start_req>, public rec_start_req_changes<rec_start_req>
{
public:
    using owning_record::owning_record;
};

// ---- rec_complete_req ----------------------------------------------------------------------------------------------

class rec_complete_req;
class rec_complete_req_view;
class rec_complete_req_editor;

template <>
struct codec_of<mava_tum_rec_complete_req> {
    using owner = rec_complete_req;
    using view = rec_complete_req_view;
    using editor = rec_complete_req_editor;
    static constexpr const char *name = "rec_complete_req";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_complete_req_decode_ext;
    static constexpr auto encode = mava_tum_rec_complete_req_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_complete_req_duplicate;
};

// The fields of rec_complete_req. Derived has c_record().
template <class Derived>
class rec_complete_req_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: text
    std::optional<std::string_view> field_4() const & noexcept { return access::text_of<4>(c(), c().field_4); }
    std::optional<std::string_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_complete_req_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4(); }

private:
    const mava_tum_rec_complete_req &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_complete_req. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_complete_req_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    result set_field_4(std::optional<std::string_view> text) noexcept { return change::set_text<4>(c(), c().field_4, blocks(), text); }

private:
    mava_tum_rec_complete_req &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A rec_complete_req that lies somewhere else, to be read.
class rec_complete_req_view : public record_view<rec_complete_req_view, mava_tum_rec_complete_req>,
    public rec_complete_req_fields<rec_complete_req_view>
{
public:
    using record_view::record_view;
};

// A rec_complete_req that lies inside of another record, to be changed.
class rec_complete_req_editor : public record_editor<rec_complete_req_editor, mava_tum_rec_complete_req>,
    public rec_complete_req_fields<rec_complete_req_editor>, public rec_complete_req_changes<rec_complete_req_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_complete_req, to be read.
using rec_complete_req_list = record_list<rec_complete_req_view, mava_tum_rec_complete_req>;
// An array of rec_complete_req, to be changed.
using rec_complete_req_editors = editor_list<rec_complete_req_editor, mava_tum_rec_complete_req>;

// Closes a reconciliation run.
class rec_complete_req : public owning_record<rec_complete_req, mava_tum_rec_complete_req>,
    public rec_complete_req_fields<rec_complete_req>, public rec_complete_req_changes<rec_complete_req>
{
public:
    using owning_record::owning_record;
};

// ---- rec_resp ------------------------------------------------------------------------------------------------------

class rec_resp;
class rec_resp_view;
class rec_resp_editor;

template <>
struct codec_of<mava_tum_rec_resp> {
    using owner = rec_resp;
    using view = rec_resp_view;
    using editor = rec_resp_editor;
    static constexpr const char *name = "rec_resp";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_resp_decode_ext;
    static constexpr auto encode = mava_tum_rec_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_resp_duplicate;
};

// The fields of rec_resp. Derived has c_record().
template <class Derived>
class rec_resp_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: text
    std::optional<std::string_view> field_2() const & noexcept { return access::text_of<2>(c(), c().field_2); }
    std::optional<std::string_view> field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_resp_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3(); }

private:
    const mava_tum_rec_resp &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_resp. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_resp_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    result set_field_2(std::optional<std::string_view> text) noexcept { return change::set_text<2>(c(), c().field_2, blocks(), text); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }

private:
    mava_tum_rec_resp &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A rec_resp that lies somewhere else, to be read.
class rec_resp_view : public record_view<rec_resp_view, mava_tum_rec_resp>,
    public rec_resp_fields<rec_resp_view>
{
public:
    using record_view::record_view;
};

// A rec_resp that lies inside of another record, to be changed.
class rec_resp_editor : public record_editor<rec_resp_editor, mava_tum_rec_resp>,
    public rec_resp_fields<rec_resp_editor>, public rec_resp_changes<rec_resp_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_resp, to be read.
using rec_resp_list = record_list<rec_resp_view, mava_tum_rec_resp>;
// An array of rec_resp, to be changed.
using rec_resp_editors = editor_list<rec_resp_editor, mava_tum_rec_resp>;

// Answers rec_start_req and rec_complete_req.
class rec_resp : public owning_record<rec_resp, mava_tum_rec_resp>,
    public rec_resp_fields<rec_resp>, public rec_resp_changes<rec_resp>
{
public:
    using owning_record::owning_record;
};

// ---- rec_session_state ---------------------------------------------------------------------------------------------

class rec_session_state;
class rec_session_state_view;
class rec_session_state_editor;

template <>
struct codec_of<mava_tum_rec_session_state> {
    using owner = rec_session_state;
    using view = rec_session_state_view;
    using editor = rec_session_state_editor;
    static constexpr const char *name = "rec_session_state";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_session_state_decode_ext;
    static constexpr auto encode = mava_tum_rec_session_state_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_session_state_duplicate;
};

// The fields of rec_session_state. Derived has c_record().
template <class Derived>
class rec_session_state_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: 64-bit varint
    std::optional<std::uint64_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_session_state_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3(); }

private:
    const mava_tum_rec_session_state &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_session_state. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_session_state_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint64_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }

private:
    mava_tum_rec_session_state &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A rec_session_state that lies somewhere else, to be read.
class rec_session_state_view : public record_view<rec_session_state_view, mava_tum_rec_session_state>,
    public rec_session_state_fields<rec_session_state_view>
{
public:
    using record_view::record_view;
};

// A rec_session_state that lies inside of another record, to be changed.
class rec_session_state_editor : public record_editor<rec_session_state_editor, mava_tum_rec_session_state>,
    public rec_session_state_fields<rec_session_state_editor>, public rec_session_state_changes<rec_session_state_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_session_state, to be read.
using rec_session_state_list = record_list<rec_session_state_view, mava_tum_rec_session_state>;
// An array of rec_session_state, to be changed.
using rec_session_state_editors = editor_list<rec_session_state_editor, mava_tum_rec_session_state>;

// The state of one session. An element of rec_sess_req and rec_sess_resp.
class rec_session_state : public owning_record<rec_session_state, mava_tum_rec_session_state>,
    public rec_session_state_fields<rec_session_state>, public rec_session_state_changes<rec_session_state>
{
public:
    using owning_record::owning_record;
};

// ---- rec_sess_req --------------------------------------------------------------------------------------------------

class rec_sess_req;
class rec_sess_req_view;
class rec_sess_req_editor;

template <>
struct codec_of<mava_tum_rec_sess_req> {
    using owner = rec_sess_req;
    using view = rec_sess_req_view;
    using editor = rec_sess_req_editor;
    static constexpr const char *name = "rec_sess_req";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_sess_req_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_req_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_req_duplicate;
};

// The fields of rec_sess_req. Derived has c_record().
template <class Derived>
class rec_sess_req_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: array of records
    rec_session_state_list field_3() const & noexcept { return access::list_of<3, rec_session_state_list>(c(), c().field_3, c().field_3_count); }
    rec_session_state_list field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // 4: text
    std::optional<std::string_view> field_4() const & noexcept { return access::text_of<4>(c(), c().field_4); }
    std::optional<std::string_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // 5: text
    std::optional<std::string_view> field_5() const & noexcept { return access::text_of<5>(c(), c().field_5); }
    std::optional<std::string_view> field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // 6: varint
    std::optional<std::uint32_t> field_6() const noexcept { return access::number_of<6>(c(), c().field_6); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_sess_req_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6(); }

private:
    const mava_tum_rec_sess_req &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_sess_req. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_sess_req_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    rec_session_state_editors make_field_3(exact_number<std::uint64_t> count) & noexcept { return change::make_list<3, rec_session_state_editors>(c(), c().field_3, c().field_3_count, blocks(), count.number()); }
    rec_session_state_editors make_field_3(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_3(count); }
    rec_session_state_editors edit_field_3() & noexcept { return change::edit_list<3, rec_session_state_editors>(c(), c().field_3, c().field_3_count, blocks()); }
    rec_session_state_editors edit_field_3() && noexcept { return access::lasting<Derived>(*this).edit_field_3(); }
    std::optional<rec_session_state_editor> add_field_3() & noexcept { return change::add_element<3, rec_session_state_editor>(c(), c().field_3, c().field_3_count, blocks()); }
    std::optional<rec_session_state_editor> add_field_3() && noexcept { return access::lasting<Derived>(*this).add_field_3(); }
    result resize_field_3(exact_number<std::uint64_t> count) noexcept { return change::resize_list<3>(c(), c().field_3, c().field_3_count, blocks(), count.number()); }
    void clear_field_3() noexcept { change::clear_list<3>(c(), c().field_3, c().field_3_count); }
    result set_field_4(std::optional<std::string_view> text) noexcept { return change::set_text<4>(c(), c().field_4, blocks(), text); }
    result set_field_5(std::optional<std::string_view> text) noexcept { return change::set_text<5>(c(), c().field_5, blocks(), text); }
    void set_field_6(exact_number<std::uint32_t> value) noexcept { change::set_number<6>(c(), c().field_6, value); }

private:
    mava_tum_rec_sess_req &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A rec_sess_req that lies somewhere else, to be read.
class rec_sess_req_view : public record_view<rec_sess_req_view, mava_tum_rec_sess_req>,
    public rec_sess_req_fields<rec_sess_req_view>
{
public:
    using record_view::record_view;
};

// A rec_sess_req that lies inside of another record, to be changed.
class rec_sess_req_editor : public record_editor<rec_sess_req_editor, mava_tum_rec_sess_req>,
    public rec_sess_req_fields<rec_sess_req_editor>, public rec_sess_req_changes<rec_sess_req_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_sess_req, to be read.
using rec_sess_req_list = record_list<rec_sess_req_view, mava_tum_rec_sess_req>;
// An array of rec_sess_req, to be changed.
using rec_sess_req_editors = editor_list<rec_sess_req_editor, mava_tum_rec_sess_req>;

// Asks for, or announces, the states of a batch of sessions.
class rec_sess_req : public owning_record<rec_sess_req, mava_tum_rec_sess_req>,
    public rec_sess_req_fields<rec_sess_req>, public rec_sess_req_changes<rec_sess_req>
{
public:
    using owning_record::owning_record;
};

// ---- rec_sess_resp -------------------------------------------------------------------------------------------------

class rec_sess_resp;
class rec_sess_resp_view;
class rec_sess_resp_editor;

template <>
struct codec_of<mava_tum_rec_sess_resp> {
    using owner = rec_sess_resp;
    using view = rec_sess_resp_view;
    using editor = rec_sess_resp_editor;
    static constexpr const char *name = "rec_sess_resp";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_sess_resp_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_resp_duplicate;
};

// The fields of rec_sess_resp. Derived has c_record().
template <class Derived>
class rec_sess_resp_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: array of records
    rec_session_state_list field_2() const & noexcept { return access::list_of<2, rec_session_state_list>(c(), c().field_2, c().field_2_count); }
    rec_session_state_list field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: varint
    std::optional<std::uint32_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_sess_resp_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4(); }

private:
    const mava_tum_rec_sess_resp &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_sess_resp. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_sess_resp_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    rec_session_state_editors make_field_2(exact_number<std::uint64_t> count) & noexcept { return change::make_list<2, rec_session_state_editors>(c(), c().field_2, c().field_2_count, blocks(), count.number()); }
    rec_session_state_editors make_field_2(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_2(count); }
    rec_session_state_editors edit_field_2() & noexcept { return change::edit_list<2, rec_session_state_editors>(c(), c().field_2, c().field_2_count, blocks()); }
    rec_session_state_editors edit_field_2() && noexcept { return access::lasting<Derived>(*this).edit_field_2(); }
    std::optional<rec_session_state_editor> add_field_2() & noexcept { return change::add_element<2, rec_session_state_editor>(c(), c().field_2, c().field_2_count, blocks()); }
    std::optional<rec_session_state_editor> add_field_2() && noexcept { return access::lasting<Derived>(*this).add_field_2(); }
    result resize_field_2(exact_number<std::uint64_t> count) noexcept { return change::resize_list<2>(c(), c().field_2, c().field_2_count, blocks(), count.number()); }
    void clear_field_2() noexcept { change::clear_list<2>(c(), c().field_2, c().field_2_count); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }

private:
    mava_tum_rec_sess_resp &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A rec_sess_resp that lies somewhere else, to be read.
class rec_sess_resp_view : public record_view<rec_sess_resp_view, mava_tum_rec_sess_resp>,
    public rec_sess_resp_fields<rec_sess_resp_view>
{
public:
    using record_view::record_view;
};

// A rec_sess_resp that lies inside of another record, to be changed.
class rec_sess_resp_editor : public record_editor<rec_sess_resp_editor, mava_tum_rec_sess_resp>,
    public rec_sess_resp_fields<rec_sess_resp_editor>, public rec_sess_resp_changes<rec_sess_resp_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_sess_resp, to be read.
using rec_sess_resp_list = record_list<rec_sess_resp_view, mava_tum_rec_sess_resp>;
// An array of rec_sess_resp, to be changed.
using rec_sess_resp_editors = editor_list<rec_sess_resp_editor, mava_tum_rec_sess_resp>;

// Answers rec_sess_req with a batch of session states.
class rec_sess_resp : public owning_record<rec_sess_resp, mava_tum_rec_sess_resp>,
    public rec_sess_resp_fields<rec_sess_resp>, public rec_sess_resp_changes<rec_sess_resp>
{
public:
    using owning_record::owning_record;
};

// ---- rec_sess_replay_req -------------------------------------------------------------------------------------------

class rec_sess_replay_req;
class rec_sess_replay_req_view;
class rec_sess_replay_req_editor;

template <>
struct codec_of<mava_tum_rec_sess_replay_req> {
    using owner = rec_sess_replay_req;
    using view = rec_sess_replay_req_view;
    using editor = rec_sess_replay_req_editor;
    static constexpr const char *name = "rec_sess_replay_req";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_sess_replay_req_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_replay_req_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_replay_req_duplicate;
};

// The fields of rec_sess_replay_req. Derived has c_record().
template <class Derived>
class rec_sess_replay_req_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: array of records
    session_context_list field_4() const & noexcept { return access::list_of<4, session_context_list>(c(), c().field_4, c().field_4_count); }
    session_context_list field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // 5: varint
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
    // 6: text
    std::optional<std::string_view> field_6() const & noexcept { return access::text_of<6>(c(), c().field_6); }
    std::optional<std::string_view> field_6() const && noexcept { return access::lasting<Derived>(*this).field_6(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_sess_replay_req_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6(); }

private:
    const mava_tum_rec_sess_replay_req &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_sess_replay_req. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_sess_replay_req_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    session_context_editors make_field_4(exact_number<std::uint64_t> count) & noexcept { return change::make_list<4, session_context_editors>(c(), c().field_4, c().field_4_count, blocks(), count.number()); }
    session_context_editors make_field_4(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_4(count); }
    session_context_editors edit_field_4() & noexcept { return change::edit_list<4, session_context_editors>(c(), c().field_4, c().field_4_count, blocks()); }
    session_context_editors edit_field_4() && noexcept { return access::lasting<Derived>(*this).edit_field_4(); }
    std::optional<session_context_editor> add_field_4() & noexcept { return change::add_element<4, session_context_editor>(c(), c().field_4, c().field_4_count, blocks()); }
    std::optional<session_context_editor> add_field_4() && noexcept { return access::lasting<Derived>(*this).add_field_4(); }
    result resize_field_4(exact_number<std::uint64_t> count) noexcept { return change::resize_list<4>(c(), c().field_4, c().field_4_count, blocks(), count.number()); }
    void clear_field_4() noexcept { change::clear_list<4>(c(), c().field_4, c().field_4_count); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }
    result set_field_6(std::optional<std::string_view> text) noexcept { return change::set_text<6>(c(), c().field_6, blocks(), text); }

private:
    mava_tum_rec_sess_replay_req &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A rec_sess_replay_req that lies somewhere else, to be read.
class rec_sess_replay_req_view : public record_view<rec_sess_replay_req_view, mava_tum_rec_sess_replay_req>,
    public rec_sess_replay_req_fields<rec_sess_replay_req_view>
{
public:
    using record_view::record_view;
};

// A rec_sess_replay_req that lies inside of another record, to be changed.
class rec_sess_replay_req_editor : public record_editor<rec_sess_replay_req_editor, mava_tum_rec_sess_replay_req>,
    public rec_sess_replay_req_fields<rec_sess_replay_req_editor>, public rec_sess_replay_req_changes<rec_sess_replay_req_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_sess_replay_req, to be read.
using rec_sess_replay_req_list = record_list<rec_sess_replay_req_view, mava_tum_rec_sess_replay_req>;
// An array of rec_sess_replay_req, to be changed.
using rec_sess_replay_req_editors = editor_list<rec_sess_replay_req_editor, mava_tum_rec_sess_replay_req>;

// Replays whole sessions.
class rec_sess_replay_req : public owning_record<rec_sess_replay_req, mava_tum_rec_sess_replay_req>,
    public rec_sess_replay_req_fields<rec_sess_replay_req>, public rec_sess_replay_req_changes<rec_sess_replay_req>
{
public:
    using owning_record::owning_record;
};

// ---- rec_sess_replay_fail ------------------------------------------------------------------------------------------

class rec_sess_replay_fail;
class rec_sess_replay_fail_view;
class rec_sess_replay_fail_editor;

template <>
struct codec_of<mava_tum_rec_sess_replay_fail> {
    using owner = rec_sess_replay_fail;
    using view = rec_sess_replay_fail_view;
    using editor = rec_sess_replay_fail_editor;
    static constexpr const char *name = "rec_sess_replay_fail";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_sess_replay_fail_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_replay_fail_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_replay_fail_duplicate;
};

// The fields of rec_sess_replay_fail. Derived has c_record().
template <class Derived>
class rec_sess_replay_fail_fields
{
public:
    // 1: 64-bit varint
    std::optional<std::uint64_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: record
    subscriber_stats_view field_3() const & noexcept { return access::record_of<3, subscriber_stats_view>(c(), c().field_3); }
    subscriber_stats_view field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_sess_replay_fail_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3(); }

private:
    const mava_tum_rec_sess_replay_fail &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_sess_replay_fail. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_sess_replay_fail_changes
{
public:
    void set_field_1(exact_number<std::uint64_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    subscriber_stats_editor edit_field_3() & noexcept { return change::edit_record<3, subscriber_stats_editor>(c(), c().field_3, blocks()); }
    subscriber_stats_editor edit_field_3() && noexcept { return access::lasting<Derived>(*this).edit_field_3(); }
    void clear_field_3() noexcept { change::clear_record<3>(c(), c().field_3); }

private:
    mava_tum_rec_sess_replay_fail &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A rec_sess_replay_fail that lies somewhere else, to be read.
class rec_sess_replay_fail_view : public record_view<rec_sess_replay_fail_view, mava_tum_rec_sess_replay_fail>,
    public rec_sess_replay_fail_fields<rec_sess_replay_fail_view>
{
public:
    using record_view::record_view;
};

// A rec_sess_replay_fail that lies inside of another record, to be changed.
class rec_sess_replay_fail_editor : public record_editor<rec_sess_replay_fail_editor, mava_tum_rec_sess_replay_fail>,
    public rec_sess_replay_fail_fields<rec_sess_replay_fail_editor>, public rec_sess_replay_fail_changes<rec_sess_replay_fail_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_sess_replay_fail, to be read.
using rec_sess_replay_fail_list = record_list<rec_sess_replay_fail_view, mava_tum_rec_sess_replay_fail>;
// An array of rec_sess_replay_fail, to be changed.
using rec_sess_replay_fail_editors = editor_list<rec_sess_replay_fail_editor, mava_tum_rec_sess_replay_fail>;

// One session that could not be replayed. An element of rec_sess_replay_resp.
class rec_sess_replay_fail : public owning_record<rec_sess_replay_fail, mava_tum_rec_sess_replay_fail>,
    public rec_sess_replay_fail_fields<rec_sess_replay_fail>, public rec_sess_replay_fail_changes<rec_sess_replay_fail>
{
public:
    using owning_record::owning_record;
};

// ---- sess_svc_start ------------------------------------------------------------------------------------------------

class sess_svc_start;
class sess_svc_start_view;
class sess_svc_start_editor;

template <>
struct codec_of<mava_tum_sess_svc_start> {
    using owner = sess_svc_start;
    using view = sess_svc_start_view;
    using editor = sess_svc_start_editor;
    static constexpr const char *name = "sess_svc_start";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_sess_svc_start_decode_ext;
    static constexpr auto encode = mava_tum_sess_svc_start_encode_ext;
    static constexpr auto duplicate = mava_tum_sess_svc_start_duplicate;
};

// The fields of sess_svc_start. Derived has c_record().
template <class Derived>
class sess_svc_start_fields
{
public:
    // 1: 64-bit varint
    std::optional<std::uint64_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: varint
    std::optional<std::uint32_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // 5: array of texts
    text_list field_5() const & noexcept { return access::list_of<5, text_list>(c(), c().field_5, c().field_5_count); }
    text_list field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const sess_svc_start_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5(); }

private:
    const mava_tum_sess_svc_start &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of sess_svc_start. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class sess_svc_start_changes
{
public:
    void set_field_1(exact_number<std::uint64_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    result set_field_5(argument_span<const std::string_view> texts) noexcept { return change::set_texts<5>(c(), c().field_5, c().field_5_count, blocks(), texts); }

private:
    mava_tum_sess_svc_start &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A sess_svc_start that lies somewhere else, to be read.
class sess_svc_start_view : public record_view<sess_svc_start_view, mava_tum_sess_svc_start>,
    public sess_svc_start_fields<sess_svc_start_view>
{
public:
    using record_view::record_view;
};

// A sess_svc_start that lies inside of another record, to be changed.
class sess_svc_start_editor : public record_editor<sess_svc_start_editor, mava_tum_sess_svc_start>,
    public sess_svc_start_fields<sess_svc_start_editor>, public sess_svc_start_changes<sess_svc_start_editor>
{
public:
    using record_editor::record_editor;
};

// An array of sess_svc_start, to be read.
using sess_svc_start_list = record_list<sess_svc_start_view, mava_tum_sess_svc_start>;
// An array of sess_svc_start, to be changed.
using sess_svc_start_editors = editor_list<sess_svc_start_editor, mava_tum_sess_svc_start>;

// Services started for one session. An element of rec_sess_replay_resp.
class sess_svc_start : public owning_record<sess_svc_start, mava_tum_sess_svc_start>,
    public sess_svc_start_fields<sess_svc_start>, public sess_svc_start_changes<sess_svc_start>
{
public:
    using owning_record::owning_record;
};

// ---- rec_sess_replay_resp ------------------------------------------------------------------------------------------

class rec_sess_replay_resp;
class rec_sess_replay_resp_view;
class rec_sess_replay_resp_editor;

template <>
struct codec_of<mava_tum_rec_sess_replay_resp> {
    using owner = rec_sess_replay_resp;
    using view = rec_sess_replay_resp_view;
    using editor = rec_sess_replay_resp_editor;
    static constexpr const char *name = "rec_sess_replay_resp";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_rec_sess_replay_resp_decode_ext;
    static constexpr auto encode = mava_tum_rec_sess_replay_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_rec_sess_replay_resp_duplicate;
};

// The fields of rec_sess_replay_resp. Derived has c_record().
template <class Derived>
class rec_sess_replay_resp_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: array of records
    rec_sess_replay_fail_list field_2() const & noexcept { return access::list_of<2, rec_sess_replay_fail_list>(c(), c().field_2, c().field_2_count); }
    rec_sess_replay_fail_list field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // 3: array of records
    sess_svc_start_list field_3() const & noexcept { return access::list_of<3, sess_svc_start_list>(c(), c().field_3, c().field_3_count); }
    sess_svc_start_list field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // 4: text
    std::optional<std::string_view> field_4() const & noexcept { return access::text_of<4>(c(), c().field_4); }
    std::optional<std::string_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // 5: varint
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const rec_sess_replay_resp_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5(); }

private:
    const mava_tum_rec_sess_replay_resp &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of rec_sess_replay_resp. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class rec_sess_replay_resp_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    rec_sess_replay_fail_editors make_field_2(exact_number<std::uint64_t> count) & noexcept { return change::make_list<2, rec_sess_replay_fail_editors>(c(), c().field_2, c().field_2_count, blocks(), count.number()); }
    rec_sess_replay_fail_editors make_field_2(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_2(count); }
    rec_sess_replay_fail_editors edit_field_2() & noexcept { return change::edit_list<2, rec_sess_replay_fail_editors>(c(), c().field_2, c().field_2_count, blocks()); }
    rec_sess_replay_fail_editors edit_field_2() && noexcept { return access::lasting<Derived>(*this).edit_field_2(); }
    std::optional<rec_sess_replay_fail_editor> add_field_2() & noexcept { return change::add_element<2, rec_sess_replay_fail_editor>(c(), c().field_2, c().field_2_count, blocks()); }
    std::optional<rec_sess_replay_fail_editor> add_field_2() && noexcept { return access::lasting<Derived>(*this).add_field_2(); }
    result resize_field_2(exact_number<std::uint64_t> count) noexcept { return change::resize_list<2>(c(), c().field_2, c().field_2_count, blocks(), count.number()); }
    void clear_field_2() noexcept { change::clear_list<2>(c(), c().field_2, c().field_2_count); }
    sess_svc_start_editors make_field_3(exact_number<std::uint64_t> count) & noexcept { return change::make_list<3, sess_svc_start_editors>(c(), c().field_3, c().field_3_count, blocks(), count.number()); }
    sess_svc_start_editors make_field_3(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_3(count); }
    sess_svc_start_editors edit_field_3() & noexcept { return change::edit_list<3, sess_svc_start_editors>(c(), c().field_3, c().field_3_count, blocks()); }
    sess_svc_start_editors edit_field_3() && noexcept { return access::lasting<Derived>(*this).edit_field_3(); }
    std::optional<sess_svc_start_editor> add_field_3() & noexcept { return change::add_element<3, sess_svc_start_editor>(c(), c().field_3, c().field_3_count, blocks()); }
    std::optional<sess_svc_start_editor> add_field_3() && noexcept { return access::lasting<Derived>(*this).add_field_3(); }
    result resize_field_3(exact_number<std::uint64_t> count) noexcept { return change::resize_list<3>(c(), c().field_3, c().field_3_count, blocks(), count.number()); }
    void clear_field_3() noexcept { change::clear_list<3>(c(), c().field_3, c().field_3_count); }
    result set_field_4(std::optional<std::string_view> text) noexcept { return change::set_text<4>(c(), c().field_4, blocks(), text); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }

private:
    mava_tum_rec_sess_replay_resp &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A rec_sess_replay_resp that lies somewhere else, to be read.
class rec_sess_replay_resp_view : public record_view<rec_sess_replay_resp_view, mava_tum_rec_sess_replay_resp>,
    public rec_sess_replay_resp_fields<rec_sess_replay_resp_view>
{
public:
    using record_view::record_view;
};

// A rec_sess_replay_resp that lies inside of another record, to be changed.
class rec_sess_replay_resp_editor : public record_editor<rec_sess_replay_resp_editor, mava_tum_rec_sess_replay_resp>,
    public rec_sess_replay_resp_fields<rec_sess_replay_resp_editor>, public rec_sess_replay_resp_changes<rec_sess_replay_resp_editor>
{
public:
    using record_editor::record_editor;
};

// An array of rec_sess_replay_resp, to be read.
using rec_sess_replay_resp_list = record_list<rec_sess_replay_resp_view, mava_tum_rec_sess_replay_resp>;
// An array of rec_sess_replay_resp, to be changed.
using rec_sess_replay_resp_editors = editor_list<rec_sess_replay_resp_editor, mava_tum_rec_sess_replay_resp>;

// Answers a replay: what failed and which services started.
class rec_sess_replay_resp : public owning_record<rec_sess_replay_resp, mava_tum_rec_sess_replay_resp>,
    public rec_sess_replay_resp_fields<rec_sess_replay_resp>, public rec_sess_replay_resp_changes<rec_sess_replay_resp>
{
public:
    using owning_record::owning_record;
};

} // namespace mava_tum::cpp
// clang-format on

#endif
