// Classes over the records of mava_tum/feature_records.h, generated from it by bindings/cpp/make_cpp_layer.
//
// That header says what the fields are. Change it or the generator, not this file.
#ifndef MAVA_TUM_CPP_FEATURE_RECORDS_HPP
#define MAVA_TUM_CPP_FEATURE_RECORDS_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/field_access.hpp"
#include "mava_tum/cpp/field_change.hpp"
#include "mava_tum/cpp/owning_record.hpp"
#include "mava_tum/cpp/record_editor.hpp"
#include "mava_tum/cpp/record_view.hpp"
#include "mava_tum/feature_records.h"

// clang-format off
namespace mava_tum::cpp
{

// ---- subscriber_qos ------------------------------------------------------------------------------------------------

class subscriber_qos;
class subscriber_qos_view;
class subscriber_qos_editor;

template <>
struct codec_of<mava_tum_subscriber_qos> {
    using owner = subscriber_qos;
    using view = subscriber_qos_view;
    using editor = subscriber_qos_editor;
    static constexpr const char *name = "subscriber_qos";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_qos_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_qos_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_qos_duplicate;
};

// The fields of subscriber_qos. Derived has c_record().
template <class Derived>
class subscriber_qos_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: text
    std::optional<std::string_view> field_3() const & noexcept { return access::text_of<3>(c(), c().field_3); }
    std::optional<std::string_view> field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // 4: text
    std::optional<std::string_view> field_4() const & noexcept { return access::text_of<4>(c(), c().field_4); }
    std::optional<std::string_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // 5: text
    std::optional<std::string_view> field_5() const & noexcept { return access::text_of<5>(c(), c().field_5); }
    std::optional<std::string_view> field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // 6: varint
    std::optional<std::uint32_t> field_6() const noexcept { return access::number_of<6>(c(), c().field_6); }
    // 7: varint
    std::optional<std::uint32_t> field_7() const noexcept { return access::number_of<7>(c(), c().field_7); }
    // 8: varint
    std::optional<std::uint32_t> field_8() const noexcept { return access::number_of<8>(c(), c().field_8); }
    // 9: text
    std::optional<std::string_view> field_9() const & noexcept { return access::text_of<9>(c(), c().field_9); }
    std::optional<std::string_view> field_9() const && noexcept { return access::lasting<Derived>(*this).field_9(); }
    // 10: text
    std::optional<std::string_view> field_10() const & noexcept { return access::text_of<10>(c(), c().field_10); }
    std::optional<std::string_view> field_10() const && noexcept { return access::lasting<Derived>(*this).field_10(); }
    // 11: text
    std::optional<std::string_view> field_11() const & noexcept { return access::text_of<11>(c(), c().field_11); }
    std::optional<std::string_view> field_11() const && noexcept { return access::lasting<Derived>(*this).field_11(); }
    // 12: text
    std::optional<std::string_view> field_12() const & noexcept { return access::text_of<12>(c(), c().field_12); }
    std::optional<std::string_view> field_12() const && noexcept { return access::lasting<Derived>(*this).field_12(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_qos_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8() && field_9() == other.field_9() && field_10() == other.field_10() && field_11() == other.field_11() && field_12() == other.field_12(); }

private:
    const mava_tum_subscriber_qos &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_qos. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_qos_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    result set_field_3(std::optional<std::string_view> text) noexcept { return change::set_text<3>(c(), c().field_3, blocks(), text); }
    result set_field_4(std::optional<std::string_view> text) noexcept { return change::set_text<4>(c(), c().field_4, blocks(), text); }
    result set_field_5(std::optional<std::string_view> text) noexcept { return change::set_text<5>(c(), c().field_5, blocks(), text); }
    void set_field_6(exact_number<std::uint32_t> value) noexcept { change::set_number<6>(c(), c().field_6, value); }
    void set_field_7(exact_number<std::uint32_t> value) noexcept { change::set_number<7>(c(), c().field_7, value); }
    void set_field_8(exact_number<std::uint32_t> value) noexcept { change::set_number<8>(c(), c().field_8, value); }
    result set_field_9(std::optional<std::string_view> text) noexcept { return change::set_text<9>(c(), c().field_9, blocks(), text); }
    result set_field_10(std::optional<std::string_view> text) noexcept { return change::set_text<10>(c(), c().field_10, blocks(), text); }
    result set_field_11(std::optional<std::string_view> text) noexcept { return change::set_text<11>(c(), c().field_11, blocks(), text); }
    result set_field_12(std::optional<std::string_view> text) noexcept { return change::set_text<12>(c(), c().field_12, blocks(), text); }

private:
    mava_tum_subscriber_qos &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_qos that lies somewhere else, to be read.
class subscriber_qos_view : public record_view<subscriber_qos_view, mava_tum_subscriber_qos>,
    public subscriber_qos_fields<subscriber_qos_view>
{
public:
    using record_view::record_view;
};

// A subscriber_qos that lies inside of another record, to be changed.
class subscriber_qos_editor : public record_editor<subscriber_qos_editor, mava_tum_subscriber_qos>,
    public subscriber_qos_fields<subscriber_qos_editor>, public subscriber_qos_changes<subscriber_qos_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_qos, to be read.
using subscriber_qos_list = record_list<subscriber_qos_view, mava_tum_subscriber_qos>;
// An array of subscriber_qos, to be changed.
using subscriber_qos_editors = editor_list<subscriber_qos_editor, mava_tum_subscriber_qos>;

// One quality-of-service entry. An element of session_context.
class subscriber_qos : public owning_record<subscriber_qos, mava_tum_subscriber_qos>,
    public subscriber_qos_fields<subscriber_qos>, public subscriber_qos_changes<subscriber_qos>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_acl ------------------------------------------------------------------------------------------------

class subscriber_acl;
class subscriber_acl_view;
class subscriber_acl_editor;

template <>
struct codec_of<mava_tum_subscriber_acl> {
    using owner = subscriber_acl;
    using view = subscriber_acl_view;
    using editor = subscriber_acl_editor;
    static constexpr const char *name = "subscriber_acl";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_acl_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_acl_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_acl_duplicate;
};

// The fields of subscriber_acl. Derived has c_record().
template <class Derived>
class subscriber_acl_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: text
    std::optional<std::string_view> field_2() const & noexcept { return access::text_of<2>(c(), c().field_2); }
    std::optional<std::string_view> field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // 3: text
    std::optional<std::string_view> field_3() const & noexcept { return access::text_of<3>(c(), c().field_3); }
    std::optional<std::string_view> field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // 4: text
    std::optional<std::string_view> field_4() const & noexcept { return access::text_of<4>(c(), c().field_4); }
    std::optional<std::string_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // 5: text
    std::optional<std::string_view> field_5() const & noexcept { return access::text_of<5>(c(), c().field_5); }
    std::optional<std::string_view> field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_acl_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5(); }

private:
    const mava_tum_subscriber_acl &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_acl. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_acl_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    result set_field_2(std::optional<std::string_view> text) noexcept { return change::set_text<2>(c(), c().field_2, blocks(), text); }
    result set_field_3(std::optional<std::string_view> text) noexcept { return change::set_text<3>(c(), c().field_3, blocks(), text); }
    result set_field_4(std::optional<std::string_view> text) noexcept { return change::set_text<4>(c(), c().field_4, blocks(), text); }
    result set_field_5(std::optional<std::string_view> text) noexcept { return change::set_text<5>(c(), c().field_5, blocks(), text); }

private:
    mava_tum_subscriber_acl &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_acl that lies somewhere else, to be read.
class subscriber_acl_view : public record_view<subscriber_acl_view, mava_tum_subscriber_acl>,
    public subscriber_acl_fields<subscriber_acl_view>
{
public:
    using record_view::record_view;
};

// A subscriber_acl that lies inside of another record, to be changed.
class subscriber_acl_editor : public record_editor<subscriber_acl_editor, mava_tum_subscriber_acl>,
    public subscriber_acl_fields<subscriber_acl_editor>, public subscriber_acl_changes<subscriber_acl_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_acl, to be read.
using subscriber_acl_list = record_list<subscriber_acl_view, mava_tum_subscriber_acl>;
// An array of subscriber_acl, to be changed.
using subscriber_acl_editors = editor_list<subscriber_acl_editor, mava_tum_subscriber_acl>;

// Access lists. Nested in session_context.
class subscriber_acl : public owning_record<subscriber_acl, mava_tum_subscriber_acl>,
    public subscriber_acl_fields<subscriber_acl>, public subscriber_acl_changes<subscriber_acl>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_httpr ----------------------------------------------------------------------------------------------

class subscriber_httpr;
class subscriber_httpr_view;
class subscriber_httpr_editor;

template <>
struct codec_of<mava_tum_subscriber_httpr> {
    using owner = subscriber_httpr;
    using view = subscriber_httpr_view;
    using editor = subscriber_httpr_editor;
    static constexpr const char *name = "subscriber_httpr";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_httpr_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_httpr_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_httpr_duplicate;
};

// The fields of subscriber_httpr. Derived has c_record().
template <class Derived>
class subscriber_httpr_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: text
    std::optional<std::string_view> field_2() const & noexcept { return access::text_of<2>(c(), c().field_2); }
    std::optional<std::string_view> field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_httpr_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2(); }

private:
    const mava_tum_subscriber_httpr &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_httpr. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_httpr_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    result set_field_2(std::optional<std::string_view> text) noexcept { return change::set_text<2>(c(), c().field_2, blocks(), text); }

private:
    mava_tum_subscriber_httpr &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_httpr that lies somewhere else, to be read.
class subscriber_httpr_view : public record_view<subscriber_httpr_view, mava_tum_subscriber_httpr>,
    public subscriber_httpr_fields<subscriber_httpr_view>
{
public:
    using record_view::record_view;
};

// A subscriber_httpr that lies inside of another record, to be changed.
class subscriber_httpr_editor : public record_editor<subscriber_httpr_editor, mava_tum_subscriber_httpr>,
    public subscriber_httpr_fields<subscriber_httpr_editor>, public subscriber_httpr_changes<subscriber_httpr_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_httpr, to be read.
using subscriber_httpr_list = record_list<subscriber_httpr_view, mava_tum_subscriber_httpr>;
// An array of subscriber_httpr, to be changed.
using subscriber_httpr_editors = editor_list<subscriber_httpr_editor, mava_tum_subscriber_httpr>;

// HTTP redirect. Nested in session_context.
class subscriber_httpr : public owning_record<subscriber_httpr, mava_tum_subscriber_httpr>,
    public subscriber_httpr_fields<subscriber_httpr>, public subscriber_httpr_changes<subscriber_httpr>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_li -------------------------------------------------------------------------------------------------

class subscriber_li;
class subscriber_li_view;
class subscriber_li_editor;

template <>
struct codec_of<mava_tum_subscriber_li> {
    using owner = subscriber_li;
    using view = subscriber_li_view;
    using editor = subscriber_li_editor;
    static constexpr const char *name = "subscriber_li";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 5;
    static constexpr auto decode = mava_tum_subscriber_li_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_li_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_li_duplicate;
};

// The fields of subscriber_li. Derived has c_record().
template <class Derived>
class subscriber_li_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: bytes
    std::optional<bytes_view> field_4() const & noexcept { return access::bytes_of<4>(c(), c().field_4); }
    std::optional<bytes_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // 5: varint
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
    // 6: varint
    std::optional<std::uint32_t> field_6() const noexcept { return access::number_of<6>(c(), c().field_6); }
    // 7: fixed32; IPv4 address, network byte order
    std::optional<std::uint32_t> field_7() const noexcept { return access::number_of<7>(c(), c().field_7); }
    // 8: bytes
    std::optional<bytes_view> field_8() const & noexcept { return access::bytes_of<8>(c(), c().field_8); }
    std::optional<bytes_view> field_8() const && noexcept { return access::lasting<Derived>(*this).field_8(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_li_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8(); }

private:
    const mava_tum_subscriber_li &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_li. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_li_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    result set_field_4(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<4>(c(), c().field_4, blocks(), bytes); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }
    void set_field_6(exact_number<std::uint32_t> value) noexcept { change::set_number<6>(c(), c().field_6, value); }
    void set_field_7(exact_number<std::uint32_t> value) noexcept { change::set_number<7>(c(), c().field_7, value); }
    result set_field_8(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<8>(c(), c().field_8, blocks(), bytes); }

private:
    mava_tum_subscriber_li &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_li that lies somewhere else, to be read.
class subscriber_li_view : public record_view<subscriber_li_view, mava_tum_subscriber_li>,
    public subscriber_li_fields<subscriber_li_view>
{
public:
    using record_view::record_view;
};

// A subscriber_li that lies inside of another record, to be changed.
class subscriber_li_editor : public record_editor<subscriber_li_editor, mava_tum_subscriber_li>,
    public subscriber_li_fields<subscriber_li_editor>, public subscriber_li_changes<subscriber_li_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_li, to be read.
using subscriber_li_list = record_list<subscriber_li_view, mava_tum_subscriber_li>;
// An array of subscriber_li, to be changed.
using subscriber_li_editors = editor_list<subscriber_li_editor, mava_tum_subscriber_li>;

// Lawful intercept. Nested in session_context.
class subscriber_li : public owning_record<subscriber_li, mava_tum_subscriber_li>,
    public subscriber_li_fields<subscriber_li>, public subscriber_li_changes<subscriber_li>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_urpf -----------------------------------------------------------------------------------------------

class subscriber_urpf;
class subscriber_urpf_view;
class subscriber_urpf_editor;

template <>
struct codec_of<mava_tum_subscriber_urpf> {
    using owner = subscriber_urpf;
    using view = subscriber_urpf_view;
    using editor = subscriber_urpf_editor;
    static constexpr const char *name = "subscriber_urpf";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_urpf_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_urpf_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_urpf_duplicate;
};

// The fields of subscriber_urpf. Derived has c_record().
template <class Derived>
class subscriber_urpf_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_urpf_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2(); }

private:
    const mava_tum_subscriber_urpf &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_urpf. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_urpf_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }

private:
    mava_tum_subscriber_urpf &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A subscriber_urpf that lies somewhere else, to be read.
class subscriber_urpf_view : public record_view<subscriber_urpf_view, mava_tum_subscriber_urpf>,
    public subscriber_urpf_fields<subscriber_urpf_view>
{
public:
    using record_view::record_view;
};

// A subscriber_urpf that lies inside of another record, to be changed.
class subscriber_urpf_editor : public record_editor<subscriber_urpf_editor, mava_tum_subscriber_urpf>,
    public subscriber_urpf_fields<subscriber_urpf_editor>, public subscriber_urpf_changes<subscriber_urpf_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_urpf, to be read.
using subscriber_urpf_list = record_list<subscriber_urpf_view, mava_tum_subscriber_urpf>;
// An array of subscriber_urpf, to be changed.
using subscriber_urpf_editors = editor_list<subscriber_urpf_editor, mava_tum_subscriber_urpf>;

// A unicast reverse-path-forwarding check. Nested in session_context.
class subscriber_urpf : public owning_record<subscriber_urpf, mava_tum_subscriber_urpf>,
    public subscriber_urpf_fields<subscriber_urpf>, public subscriber_urpf_changes<subscriber_urpf>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_icmp -----------------------------------------------------------------------------------------------

class subscriber_icmp;
class subscriber_icmp_view;
class subscriber_icmp_editor;

template <>
struct codec_of<mava_tum_subscriber_icmp> {
    using owner = subscriber_icmp;
    using view = subscriber_icmp_view;
    using editor = subscriber_icmp_editor;
    static constexpr const char *name = "subscriber_icmp";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_icmp_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_icmp_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_icmp_duplicate;
};

// The fields of subscriber_icmp. Derived has c_record().
template <class Derived>
class subscriber_icmp_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_icmp_fields &other) const noexcept { return field_1() == other.field_1(); }

private:
    const mava_tum_subscriber_icmp &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_icmp. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_icmp_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }

private:
    mava_tum_subscriber_icmp &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A subscriber_icmp that lies somewhere else, to be read.
class subscriber_icmp_view : public record_view<subscriber_icmp_view, mava_tum_subscriber_icmp>,
    public subscriber_icmp_fields<subscriber_icmp_view>
{
public:
    using record_view::record_view;
};

// A subscriber_icmp that lies inside of another record, to be changed.
class subscriber_icmp_editor : public record_editor<subscriber_icmp_editor, mava_tum_subscriber_icmp>,
    public subscriber_icmp_fields<subscriber_icmp_editor>, public subscriber_icmp_changes<subscriber_icmp_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_icmp, to be read.
using subscriber_icmp_list = record_list<subscriber_icmp_view, mava_tum_subscriber_icmp>;
// An array of subscriber_icmp, to be changed.
using subscriber_icmp_editors = editor_list<subscriber_icmp_editor, mava_tum_subscriber_icmp>;

// An ICMP setting. Nested in session_context.
class subscriber_icmp : public owning_record<subscriber_icmp, mava_tum_subscriber_icmp>,
    public subscriber_icmp_fields<subscriber_icmp>, public subscriber_icmp_changes<subscriber_icmp>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_mtu ------------------------------------------------------------------------------------------------

class subscriber_mtu;
class subscriber_mtu_view;
class subscriber_mtu_editor;

template <>
struct codec_of<mava_tum_subscriber_mtu> {
    using owner = subscriber_mtu;
    using view = subscriber_mtu_view;
    using editor = subscriber_mtu_editor;
    static constexpr const char *name = "subscriber_mtu";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_mtu_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_mtu_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_mtu_duplicate;
};

// The fields of subscriber_mtu. Derived has c_record().
template <class Derived>
class subscriber_mtu_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_mtu_fields &other) const noexcept { return field_1() == other.field_1(); }

private:
    const mava_tum_subscriber_mtu &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_mtu. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_mtu_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }

private:
    mava_tum_subscriber_mtu &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A subscriber_mtu that lies somewhere else, to be read.
class subscriber_mtu_view : public record_view<subscriber_mtu_view, mava_tum_subscriber_mtu>,
    public subscriber_mtu_fields<subscriber_mtu_view>
{
public:
    using record_view::record_view;
};

// A subscriber_mtu that lies inside of another record, to be changed.
class subscriber_mtu_editor : public record_editor<subscriber_mtu_editor, mava_tum_subscriber_mtu>,
    public subscriber_mtu_fields<subscriber_mtu_editor>, public subscriber_mtu_changes<subscriber_mtu_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_mtu, to be read.
using subscriber_mtu_list = record_list<subscriber_mtu_view, mava_tum_subscriber_mtu>;
// An array of subscriber_mtu, to be changed.
using subscriber_mtu_editors = editor_list<subscriber_mtu_editor, mava_tum_subscriber_mtu>;

// An MTU setting. Nested in session_context.
class subscriber_mtu : public owning_record<subscriber_mtu, mava_tum_subscriber_mtu>,
    public subscriber_mtu_fields<subscriber_mtu>, public subscriber_mtu_changes<subscriber_mtu>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_acct -----------------------------------------------------------------------------------------------

class subscriber_acct;
class subscriber_acct_view;
class subscriber_acct_editor;

template <>
struct codec_of<mava_tum_subscriber_acct> {
    using owner = subscriber_acct;
    using view = subscriber_acct_view;
    using editor = subscriber_acct_editor;
    static constexpr const char *name = "subscriber_acct";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_acct_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_acct_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_acct_duplicate;
};

// The fields of subscriber_acct. Derived has c_record().
template <class Derived>
class subscriber_acct_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_acct_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3(); }

private:
    const mava_tum_subscriber_acct &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_acct. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_acct_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }

private:
    mava_tum_subscriber_acct &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A subscriber_acct that lies somewhere else, to be read.
class subscriber_acct_view : public record_view<subscriber_acct_view, mava_tum_subscriber_acct>,
    public subscriber_acct_fields<subscriber_acct_view>
{
public:
    using record_view::record_view;
};

// A subscriber_acct that lies inside of another record, to be changed.
class subscriber_acct_editor : public record_editor<subscriber_acct_editor, mava_tum_subscriber_acct>,
    public subscriber_acct_fields<subscriber_acct_editor>, public subscriber_acct_changes<subscriber_acct_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_acct, to be read.
using subscriber_acct_list = record_list<subscriber_acct_view, mava_tum_subscriber_acct>;
// An array of subscriber_acct, to be changed.
using subscriber_acct_editors = editor_list<subscriber_acct_editor, mava_tum_subscriber_acct>;

// Accounting settings. Nested in session_context.
class subscriber_acct : public owning_record<subscriber_acct, mava_tum_subscriber_acct>,
    public subscriber_acct_fields<subscriber_acct>, public subscriber_acct_changes<subscriber_acct>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_route_ipv4 -----------------------------------------------------------------------------------------

class subscriber_route_ipv4;
class subscriber_route_ipv4_view;
class subscriber_route_ipv4_editor;

template <>
struct codec_of<mava_tum_subscriber_route_ipv4> {
    using owner = subscriber_route_ipv4;
    using view = subscriber_route_ipv4_view;
    using editor = subscriber_route_ipv4_editor;
    static constexpr const char *name = "subscriber_route_ipv4";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_route_ipv4_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_route_ipv4_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_route_ipv4_duplicate;
};

// The fields of subscriber_route_ipv4. Derived has c_record().
template <class Derived>
class subscriber_route_ipv4_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: text
    std::optional<std::string_view> field_2() const & noexcept { return access::text_of<2>(c(), c().field_2); }
    std::optional<std::string_view> field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // 3: fixed32; IPv4 address, network byte order
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: varint
    std::optional<std::uint32_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // 5: fixed32; IPv4 address, network byte order
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
    // 6: text
    std::optional<std::string_view> field_6() const & noexcept { return access::text_of<6>(c(), c().field_6); }
    std::optional<std::string_view> field_6() const && noexcept { return access::lasting<Derived>(*this).field_6(); }
    // 7: varint
    std::optional<std::uint32_t> field_7() const noexcept { return access::number_of<7>(c(), c().field_7); }
    // 8: varint
    std::optional<std::uint32_t> field_8() const noexcept { return access::number_of<8>(c(), c().field_8); }
    // 9: text
    std::optional<std::string_view> field_9() const & noexcept { return access::text_of<9>(c(), c().field_9); }
    std::optional<std::string_view> field_9() const && noexcept { return access::lasting<Derived>(*this).field_9(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_route_ipv4_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8() && field_9() == other.field_9(); }

private:
    const mava_tum_subscriber_route_ipv4 &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_route_ipv4. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_route_ipv4_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    result set_field_2(std::optional<std::string_view> text) noexcept { return change::set_text<2>(c(), c().field_2, blocks(), text); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }
    result set_field_6(std::optional<std::string_view> text) noexcept { return change::set_text<6>(c(), c().field_6, blocks(), text); }
    void set_field_7(exact_number<std::uint32_t> value) noexcept { change::set_number<7>(c(), c().field_7, value); }
    void set_field_8(exact_number<std::uint32_t> value) noexcept { change::set_number<8>(c(), c().field_8, value); }
    result set_field_9(std::optional<std::string_view> text) noexcept { return change::set_text<9>(c(), c().field_9, blocks(), text); }

private:
    mava_tum_subscriber_route_ipv4 &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_route_ipv4 that lies somewhere else, to be read.
class subscriber_route_ipv4_view : public record_view<subscriber_route_ipv4_view, mava_tum_subscriber_route_ipv4>,
    public subscriber_route_ipv4_fields<subscriber_route_ipv4_view>
{
public:
    using record_view::record_view;
};

// A subscriber_route_ipv4 that lies inside of another record, to be changed.
class subscriber_route_ipv4_editor : public record_editor<subscriber_route_ipv4_editor, mava_tum_subscriber_route_ipv4>,
    public subscriber_route_ipv4_fields<subscriber_route_ipv4_editor>, public subscriber_route_ipv4_changes<subscriber_route_ipv4_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_route_ipv4, to be read.
using subscriber_route_ipv4_list = record_list<subscriber_route_ipv4_view, mava_tum_subscriber_route_ipv4>;
// An array of subscriber_route_ipv4, to be changed.
using subscriber_route_ipv4_editors = editor_list<subscriber_route_ipv4_editor, mava_tum_subscriber_route_ipv4>;

// One IPv4 route. An element of session_context and of sub_route.
class subscriber_route_ipv4 : public owning_record<subscriber_route_ipv4, mava_tum_subscriber_route_ipv4>,
    public subscriber_route_ipv4_fields<subscriber_route_ipv4>, public subscriber_route_ipv4_changes<subscriber_route_ipv4>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_route_ipv6 -----------------------------------------------------------------------------------------

class subscriber_route_ipv6;
class subscriber_route_ipv6_view;
class subscriber_route_ipv6_editor;

template <>
struct codec_of<mava_tum_subscriber_route_ipv6> {
    using owner = subscriber_route_ipv6;
    using view = subscriber_route_ipv6_view;
    using editor = subscriber_route_ipv6_editor;
    static constexpr const char *name = "subscriber_route_ipv6";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 5;
    static constexpr auto decode = mava_tum_subscriber_route_ipv6_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_route_ipv6_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_route_ipv6_duplicate;
};

// The fields of subscriber_route_ipv6. Derived has c_record().
template <class Derived>
class subscriber_route_ipv6_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: text
    std::optional<std::string_view> field_2() const & noexcept { return access::text_of<2>(c(), c().field_2); }
    std::optional<std::string_view> field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // 3: bytes
    std::optional<bytes_view> field_3() const & noexcept { return access::bytes_of<3>(c(), c().field_3); }
    std::optional<bytes_view> field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // 4: varint
    std::optional<std::uint32_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // 5: bytes
    std::optional<bytes_view> field_5() const & noexcept { return access::bytes_of<5>(c(), c().field_5); }
    std::optional<bytes_view> field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // 6: text
    std::optional<std::string_view> field_6() const & noexcept { return access::text_of<6>(c(), c().field_6); }
    std::optional<std::string_view> field_6() const && noexcept { return access::lasting<Derived>(*this).field_6(); }
    // 7: varint
    std::optional<std::uint32_t> field_7() const noexcept { return access::number_of<7>(c(), c().field_7); }
    // 8: varint
    std::optional<std::uint32_t> field_8() const noexcept { return access::number_of<8>(c(), c().field_8); }
    // 9: text
    std::optional<std::string_view> field_9() const & noexcept { return access::text_of<9>(c(), c().field_9); }
    std::optional<std::string_view> field_9() const && noexcept { return access::lasting<Derived>(*this).field_9(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_route_ipv6_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8() && field_9() == other.field_9(); }

private:
    const mava_tum_subscriber_route_ipv6 &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_route_ipv6. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_route_ipv6_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    result set_field_2(std::optional<std::string_view> text) noexcept { return change::set_text<2>(c(), c().field_2, blocks(), text); }
    result set_field_3(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<3>(c(), c().field_3, blocks(), bytes); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    result set_field_5(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<5>(c(), c().field_5, blocks(), bytes); }
    result set_field_6(std::optional<std::string_view> text) noexcept { return change::set_text<6>(c(), c().field_6, blocks(), text); }
    void set_field_7(exact_number<std::uint32_t> value) noexcept { change::set_number<7>(c(), c().field_7, value); }
    void set_field_8(exact_number<std::uint32_t> value) noexcept { change::set_number<8>(c(), c().field_8, value); }
    result set_field_9(std::optional<std::string_view> text) noexcept { return change::set_text<9>(c(), c().field_9, blocks(), text); }

private:
    mava_tum_subscriber_route_ipv6 &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_route_ipv6 that lies somewhere else, to be read.
class subscriber_route_ipv6_view : public record_view<subscriber_route_ipv6_view, mava_tum_subscriber_route_ipv6>,
    public subscriber_route_ipv6_fields<subscriber_route_ipv6_view>
{
public:
    using record_view::record_view;
};

// A subscriber_route_ipv6 that lies inside of another record, to be changed.
class subscriber_route_ipv6_editor : public record_editor<subscriber_route_ipv6_editor, mava_tum_subscriber_route_ipv6>,
    public subscriber_route_ipv6_fields<subscriber_route_ipv6_editor>, public subscriber_route_ipv6_changes<subscriber_route_ipv6_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_route_ipv6, to be read.
using subscriber_route_ipv6_list = record_list<subscriber_route_ipv6_view, mava_tum_subscriber_route_ipv6>;
// An array of subscriber_route_ipv6, to be changed.
using subscriber_route_ipv6_editors = editor_list<subscriber_route_ipv6_editor, mava_tum_subscriber_route_ipv6>;

// One IPv6 route. An element of session_context and of sub_route.
class subscriber_route_ipv6 : public owning_record<subscriber_route_ipv6, mava_tum_subscriber_route_ipv6>,
    public subscriber_route_ipv6_fields<subscriber_route_ipv6>, public subscriber_route_ipv6_changes<subscriber_route_ipv6>
{
public:
    using owning_record::owning_record;
};

} // namespace mava_tum::cpp
// clang-format on

#endif
