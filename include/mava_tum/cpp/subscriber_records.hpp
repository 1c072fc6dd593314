// Classes over the records of mava_tum/subscriber_records.h, generated from it by bindings/cpp/make_cpp_layer.
//
// That header says what the fields are. Change it or the generator, not this file.
#ifndef MAVA_TUM_CPP_SUBSCRIBER_RECORDS_HPP
#define MAVA_TUM_CPP_SUBSCRIBER_RECORDS_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/field_access.hpp"
#include "mava_tum/cpp/field_change.hpp"
#include "mava_tum/cpp/owning_record.hpp"
#include "mava_tum/cpp/record_editor.hpp"
#include "mava_tum/cpp/record_view.hpp"
#include "mava_tum/subscriber_records.h"

// clang-format off
namespace mava_tum::cpp
{

// ---- subscriber_v4 -------------------------------------------------------------------------------------------------

class subscriber_v4;
class subscriber_v4_view;
class subscriber_v4_editor;

template <>
struct codec_of<mava_tum_subscriber_v4> {
    using owner = subscriber_v4;
    using view = subscriber_v4_view;
    using editor = subscriber_v4_editor;
    static constexpr const char *name = "subscriber_v4";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_v4_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_v4_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_v4_duplicate;
};

// The fields of subscriber_v4. Derived has c_record().
template <class Derived>
class subscriber_v4_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: fixed32; IPv4 address in network byte order
    std::optional<std::uint32_t> ipv4_address() const noexcept { return access::number_of<2>(c(), c().ipv4_address); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_v4_fields &other) const noexcept { return field_1() == other.field_1() && ipv4_address() == other.ipv4_address(); }

private:
    const mava_tum_subscriber_v4 &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_v4. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_v4_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_ipv4_address(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().ipv4_address, value); }

private:
    mava_tum_subscriber_v4 &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A subscriber_v4 that lies somewhere else, to be read.
class subscriber_v4_view : public record_view<subscriber_v4_view, mava_tum_subscriber_v4>,
    public subscriber_v4_fields<subscriber_v4_view>
{
public:
    using record_view::record_view;
};

// A subscriber_v4 that lies inside of another record, to be changed.
class subscriber_v4_editor : public record_editor<subscriber_v4_editor, mava_tum_subscriber_v4>,
    public subscriber_v4_fields<subscriber_v4_editor>, public subscriber_v4_changes<subscriber_v4_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_v4, to be read.
using subscriber_v4_list = record_list<subscriber_v4_view, mava_tum_subscriber_v4>;
// An array of subscriber_v4, to be changed.
using subscriber_v4_editors = editor_list<subscriber_v4_editor, mava_tum_subscriber_v4>;

// A subscriber's IPv4 address. Nested in session_context.
class subscriber_v4 : public owning_record<subscriber_v4, mava_tum_subscriber_v4>,
    public subscriber_v4_fields<subscriber_v4>, public subscriber_v4_changes<subscriber_v4>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_v6 -------------------------------------------------------------------------------------------------

class subscriber_v6;
class subscriber_v6_view;
class subscriber_v6_editor;

template <>
struct codec_of<mava_tum_subscriber_v6> {
    using owner = subscriber_v6;
    using view = subscriber_v6_view;
    using editor = subscriber_v6_editor;
    static constexpr const char *name = "subscriber_v6";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 9;
    static constexpr auto decode = mava_tum_subscriber_v6_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_v6_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_v6_duplicate;
};

// The fields of subscriber_v6. Derived has c_record().
template <class Derived>
class subscriber_v6_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: bytes
    std::optional<bytes_view> field_2() const & noexcept { return access::bytes_of<2>(c(), c().field_2); }
    std::optional<bytes_view> field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // 3: bytes
    std::optional<bytes_view> field_3() const & noexcept { return access::bytes_of<3>(c(), c().field_3); }
    std::optional<bytes_view> field_3() const && noexcept { return access::lasting<Derived>(*this).field_3(); }
    // 4: bytes
    std::optional<bytes_view> field_4() const & noexcept { return access::bytes_of<4>(c(), c().field_4); }
    std::optional<bytes_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // 5: varint
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
    // 6: bytes
    std::optional<bytes_view> field_6() const & noexcept { return access::bytes_of<6>(c(), c().field_6); }
    std::optional<bytes_view> field_6() const && noexcept { return access::lasting<Derived>(*this).field_6(); }
    // 7: varint
    std::optional<std::uint32_t> field_7() const noexcept { return access::number_of<7>(c(), c().field_7); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_v6_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7(); }

private:
    const mava_tum_subscriber_v6 &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_v6. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_v6_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    result set_field_2(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<2>(c(), c().field_2, blocks(), bytes); }
    result set_field_3(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<3>(c(), c().field_3, blocks(), bytes); }
    result set_field_4(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<4>(c(), c().field_4, blocks(), bytes); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }
    result set_field_6(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<6>(c(), c().field_6, blocks(), bytes); }
    void set_field_7(exact_number<std::uint32_t> value) noexcept { change::set_number<7>(c(), c().field_7, value); }

private:
    mava_tum_subscriber_v6 &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_v6 that lies somewhere else, to be read.
class subscriber_v6_view : public record_view<subscriber_v6_view, mava_tum_subscriber_v6>,
    public subscriber_v6_fields<subscriber_v6_view>
{
public:
    using record_view::record_view;
};

// A subscriber_v6 that lies inside of another record, to be changed.
class subscriber_v6_editor : public record_editor<subscriber_v6_editor, mava_tum_subscriber_v6>,
    public subscriber_v6_fields<subscriber_v6_editor>, public subscriber_v6_changes<subscriber_v6_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_v6, to be read.
using subscriber_v6_list = record_list<subscriber_v6_view, mava_tum_subscriber_v6>;
// An array of subscriber_v6, to be changed.
using subscriber_v6_editors = editor_list<subscriber_v6_editor, mava_tum_subscriber_v6>;

// A subscriber's IPv6 addresses and prefixes. Nested in session_context.
class subscriber_v6 : public owning_record<subscriber_v6, mava_tum_subscriber_v6>,
    public subscriber_v6_fields<subscriber_v6>, public subscriber_v6_changes<subscriber_v6>
{
public:
    using owning_record::owning_record;
};

// ---- ppp_data ------------------------------------------------------------------------------------------------------

class ppp_data;
class ppp_data_view;
class ppp_data_editor;

template <>
struct codec_of<mava_tum_ppp_data> {
    using owner = ppp_data;
    using view = ppp_data_view;
    using editor = ppp_data_editor;
    static constexpr const char *name = "ppp_data";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 3;
    static constexpr auto decode = mava_tum_ppp_data_decode_ext;
    static constexpr auto encode = mava_tum_ppp_data_encode_ext;
    static constexpr auto duplicate = mava_tum_ppp_data_duplicate;
};

// The fields of ppp_data. Derived has c_record().
template <class Derived>
class ppp_data_fields
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
    // 5: bytes
    std::optional<bytes_view> field_5() const & noexcept { return access::bytes_of<5>(c(), c().field_5); }
    std::optional<bytes_view> field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // 6: varint
    std::optional<std::uint32_t> field_6() const noexcept { return access::number_of<6>(c(), c().field_6); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const ppp_data_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6(); }

private:
    const mava_tum_ppp_data &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of ppp_data. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class ppp_data_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    result set_field_5(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<5>(c(), c().field_5, blocks(), bytes); }
    void set_field_6(exact_number<std::uint32_t> value) noexcept { change::set_number<6>(c(), c().field_6, value); }

private:
    mava_tum_ppp_data &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A ppp_data that lies somewhere else, to be read.
class ppp_data_view : public record_view<ppp_data_view, mava_tum_ppp_data>,
    public ppp_data_fields<ppp_data_view>
{
public:
    using record_view::record_view;
};

// A ppp_data that lies inside of another record, to be changed.
class ppp_data_editor : public record_editor<ppp_data_editor, mava_tum_ppp_data>,
    public ppp_data_fields<ppp_data_editor>, public ppp_data_changes<ppp_data_editor>
{
public:
    using record_editor::record_editor;
};

// An array of ppp_data, to be read.
using ppp_data_list = record_list<ppp_data_view, mava_tum_ppp_data>;
// An array of ppp_data, to be changed.
using ppp_data_editors = editor_list<ppp_data_editor, mava_tum_ppp_data>;

// PPP access values. Nested in session_data.
class ppp_data : public owning_record<ppp_data, mava_tum_ppp_data>,
    public ppp_data_fields<ppp_data>, public ppp_data_changes<ppp_data>
{
public:
    using owning_record::owning_record;
};

// ---- l2tp_data -----------------------------------------------------------------------------------------------------

class l2tp_data;
class l2tp_data_view;
class l2tp_data_editor;

template <>
struct codec_of<mava_tum_l2tp_data> {
    using owner = l2tp_data;
    using view = l2tp_data_view;
    using editor = l2tp_data_editor;
    static constexpr const char *name = "l2tp_data";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 5;
    static constexpr auto decode = mava_tum_l2tp_data_decode_ext;
    static constexpr auto encode = mava_tum_l2tp_data_encode_ext;
    static constexpr auto duplicate = mava_tum_l2tp_data_duplicate;
};

// The fields of l2tp_data. Derived has c_record().
template <class Derived>
class l2tp_data_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: fixed32; IPv4 end point, network byte order
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: fixed32; IPv4 end point, network byte order
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: bytes
    std::optional<bytes_view> field_4() const & noexcept { return access::bytes_of<4>(c(), c().field_4); }
    std::optional<bytes_view> field_4() const && noexcept { return access::lasting<Derived>(*this).field_4(); }
    // 5: bytes
    std::optional<bytes_view> field_5() const & noexcept { return access::bytes_of<5>(c(), c().field_5); }
    std::optional<bytes_view> field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // 6: varint
    std::optional<std::uint32_t> field_6() const noexcept { return access::number_of<6>(c(), c().field_6); }
    // 7: varint
    std::optional<std::uint32_t> field_7() const noexcept { return access::number_of<7>(c(), c().field_7); }
    // 8: varint
    std::optional<std::uint32_t> field_8() const noexcept { return access::number_of<8>(c(), c().field_8); }
    // 9: varint
    std::optional<std::uint32_t> field_9() const noexcept { return access::number_of<9>(c(), c().field_9); }
    // 10: varint
    std::optional<std::uint32_t> field_10() const noexcept { return access::number_of<10>(c(), c().field_10); }
    // 11: varint
    std::optional<std::uint32_t> field_11() const noexcept { return access::number_of<11>(c(), c().field_11); }
    // 12: varint
    std::optional<std::uint32_t> field_12() const noexcept { return access::number_of<12>(c(), c().field_12); }
    // 13: varint
    std::optional<std::uint32_t> field_13() const noexcept { return access::number_of<13>(c(), c().field_13); }
    // 14: varint
    std::optional<std::uint32_t> field_14() const noexcept { return access::number_of<14>(c(), c().field_14); }
    // 15: varint
    std::optional<std::uint32_t> field_15() const noexcept { return access::number_of<15>(c(), c().field_15); }
    // 16: varint
    std::optional<std::uint32_t> field_16() const noexcept { return access::number_of<16>(c(), c().field_16); }
    // 17: varint
    std::optional<std::uint32_t> field_17() const noexcept { return access::number_of<17>(c(), c().field_17); }
    // 18: varint
    std::optional<std::uint32_t> field_18() const noexcept { return access::number_of<18>(c(), c().field_18); }
    // 19: text
    std::optional<std::string_view> field_19() const & noexcept { return access::text_of<19>(c(), c().field_19); }
    std::optional<std::string_view> field_19() const && noexcept { return access::lasting<Derived>(*this).field_19(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const l2tp_data_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8() && field_9() == other.field_9() && field_10() == other.field_10() && field_11() == other.field_11() && field_12() == other.field_12() && field_13() == other.field_13() && field_14() == other.field_14() && field_15() == other.field_15() && field_16() == other.field_16() && field_17() == other.field_17() && field_18() == other.field_18() && field_19() == other.field_19(); }

private:
    const mava_tum_l2tp_data &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of l2tp_data. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class l2tp_data_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    result set_field_4(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<4>(c(), c().field_4, blocks(), bytes); }
    result set_field_5(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<5>(c(), c().field_5, blocks(), bytes); }
    void set_field_6(exact_number<std::uint32_t> value) noexcept { change::set_number<6>(c(), c().field_6, value); }
    void set_field_7(exact_number<std::uint32_t> value) noexcept { change::set_number<7>(c(), c().field_7, value); }
    void set_field_8(exact_number<std::uint32_t> value) noexcept { change::set_number<8>(c(), c().field_8, value); }
    void set_field_9(exact_number<std::uint32_t> value) noexcept { change::set_number<9>(c(), c().field_9, value); }
    void set_field_10(exact_number<std::uint32_t> value) noexcept { change::set_number<10>(c(), c().field_10, value); }
    void set_field_11(exact_number<std::uint32_t> value) noexcept { change::set_number<11>(c(), c().field_11, value); }
    void set_field_12(exact_number<std::uint32_t> value) noexcept { change::set_number<12>(c(), c().field_12, value); }
    void set_field_13(exact_number<std::uint32_t> value) noexcept { change::set_number<13>(c(), c().field_13, value); }
    void set_field_14(exact_number<std::uint32_t> value) noexcept { change::set_number<14>(c(), c().field_14, value); }
    void set_field_15(exact_number<std::uint32_t> value) noexcept { change::set_number<15>(c(), c().field_15, value); }
    void set_field_16(exact_number<std::uint32_t> value) noexcept { change::set_number<16>(c(), c().field_16, value); }
    void set_field_17(exact_number<std::uint32_t> value) noexcept { change::set_number<17>(c(), c().field_17, value); }
    void set_field_18(exact_number<std::uint32_t> value) noexcept { change::set_number<18>(c(), c().field_18, value); }
    result set_field_19(std::optional<std::string_view> text) noexcept { return change::set_text<19>(c(), c().field_19, blocks(), text); }

private:
    mava_tum_l2tp_data &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A l2tp_data that lies somewhere else, to be read.
class l2tp_data_view : public record_view<l2tp_data_view, mava_tum_l2tp_data>,
    public l2tp_data_fields<l2tp_data_view>
{
public:
    using record_view::record_view;
};

// A l2tp_data that lies inside of another record, to be changed.
class l2tp_data_editor : public record_editor<l2tp_data_editor, mava_tum_l2tp_data>,
    public l2tp_data_fields<l2tp_data_editor>, public l2tp_data_changes<l2tp_data_editor>
{
public:
    using record_editor::record_editor;
};

// An array of l2tp_data, to be read.
using l2tp_data_list = record_list<l2tp_data_view, mava_tum_l2tp_data>;
// An array of l2tp_data, to be changed.
using l2tp_data_editors = editor_list<l2tp_data_editor, mava_tum_l2tp_data>;

// L2TP access values and tunnel end points. Nested in session_data.
class l2tp_data : public owning_record<l2tp_data, mava_tum_l2tp_data>,
    public l2tp_data_fields<l2tp_data>, public l2tp_data_changes<l2tp_data>
{
public:
    using owning_record::owning_record;
};

// ---- vlan_info -----------------------------------------------------------------------------------------------------

class vlan_info;
class vlan_info_view;
class vlan_info_editor;

template <>
struct codec_of<mava_tum_vlan_info> {
    using owner = vlan_info;
    using view = vlan_info_view;
    using editor = vlan_info_editor;
    static constexpr const char *name = "vlan_info";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_vlan_info_decode_ext;
    static constexpr auto encode = mava_tum_vlan_info_encode_ext;
    static constexpr auto duplicate = mava_tum_vlan_info_duplicate;
};

// The fields of vlan_info. Derived has c_record().
template <class Derived>
class vlan_info_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const vlan_info_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2(); }

private:
    const mava_tum_vlan_info &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of vlan_info. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class vlan_info_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }

private:
    mava_tum_vlan_info &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A vlan_info that lies somewhere else, to be read.
class vlan_info_view : public record_view<vlan_info_view, mava_tum_vlan_info>,
    public vlan_info_fields<vlan_info_view>
{
public:
    using record_view::record_view;
};

// A vlan_info that lies inside of another record, to be changed.
class vlan_info_editor : public record_editor<vlan_info_editor, mava_tum_vlan_info>,
    public vlan_info_fields<vlan_info_editor>, public vlan_info_changes<vlan_info_editor>
{
public:
    using record_editor::record_editor;
};

// An array of vlan_info, to be read.
using vlan_info_list = record_list<vlan_info_view, mava_tum_vlan_info>;
// An array of vlan_info, to be changed.
using vlan_info_editors = editor_list<vlan_info_editor, mava_tum_vlan_info>;

// VLAN access values. Nested in session_data.
class vlan_info : public owning_record<vlan_info, mava_tum_vlan_info>,
    public vlan_info_fields<vlan_info>, public vlan_info_changes<vlan_info>
{
public:
    using owning_record::owning_record;
};

// ---- session_data --------------------------------------------------------------------------------------------------

class session_data;
class session_data_view;
class session_data_editor;

template <>
struct codec_of<mava_tum_session_data> {
    using owner = session_data;
    using view = session_data_view;
    using editor = session_data_editor;
    static constexpr const char *name = "session_data";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_session_data_decode_ext;
    static constexpr auto encode = mava_tum_session_data_encode_ext;
    static constexpr auto duplicate = mava_tum_session_data_duplicate;
};

// The fields of session_data. Derived has c_record().
template <class Derived>
class session_data_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: 64-bit varint
    std::optional<std::uint64_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: record
    ppp_data_view ppp() const & noexcept { return access::record_of<3, ppp_data_view>(c(), c().ppp); }
    ppp_data_view ppp() const && noexcept { return access::lasting<Derived>(*this).ppp(); }
    // 4: record
    l2tp_data_view l2tp() const & noexcept { return access::record_of<4, l2tp_data_view>(c(), c().l2tp); }
    l2tp_data_view l2tp() const && noexcept { return access::lasting<Derived>(*this).l2tp(); }
    // 5: text
    std::optional<std::string_view> field_5() const & noexcept { return access::text_of<5>(c(), c().field_5); }
    std::optional<std::string_view> field_5() const && noexcept { return access::lasting<Derived>(*this).field_5(); }
    // 6: bytes
    std::optional<bytes_view> field_6() const & noexcept { return access::bytes_of<6>(c(), c().field_6); }
    std::optional<bytes_view> field_6() const && noexcept { return access::lasting<Derived>(*this).field_6(); }
    // 7: text
    std::optional<std::string_view> field_7() const & noexcept { return access::text_of<7>(c(), c().field_7); }
    std::optional<std::string_view> field_7() const && noexcept { return access::lasting<Derived>(*this).field_7(); }
    // 8: text
    std::optional<std::string_view> field_8() const & noexcept { return access::text_of<8>(c(), c().field_8); }
    std::optional<std::string_view> field_8() const && noexcept { return access::lasting<Derived>(*this).field_8(); }
    // 9: varint
    std::optional<std::uint32_t> field_9() const noexcept { return access::number_of<9>(c(), c().field_9); }
    // 10: record
    vlan_info_view vlan() const & noexcept { return access::record_of<10, vlan_info_view>(c(), c().vlan); }
    vlan_info_view vlan() const && noexcept { return access::lasting<Derived>(*this).vlan(); }
    // 11: varint
    std::optional<std::uint32_t> field_11() const noexcept { return access::number_of<11>(c(), c().field_11); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const session_data_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && ppp() == other.ppp() && l2tp() == other.l2tp() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8() && field_9() == other.field_9() && vlan() == other.vlan() && field_11() == other.field_11(); }

private:
    const mava_tum_session_data &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of session_data. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class session_data_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint64_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    ppp_data_editor edit_ppp() & noexcept { return change::edit_record<3, ppp_data_editor>(c(), c().ppp, blocks()); }
    ppp_data_editor edit_ppp() && noexcept { return access::lasting<Derived>(*this).edit_ppp(); }
    void clear_ppp() noexcept { change::clear_record<3>(c(), c().ppp); }
    l2tp_data_editor edit_l2tp() & noexcept { return change::edit_record<4, l2tp_data_editor>(c(), c().l2tp, blocks()); }
    l2tp_data_editor edit_l2tp() && noexcept { return access::lasting<Derived>(*this).edit_l2tp(); }
    void clear_l2tp() noexcept { change::clear_record<4>(c(), c().l2tp); }
    result set_field_5(std::optional<std::string_view> text) noexcept { return change::set_text<5>(c(), c().field_5, blocks(), text); }
    result set_field_6(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<6>(c(), c().field_6, blocks(), bytes); }
    result set_field_7(std::optional<std::string_view> text) noexcept { return change::set_text<7>(c(), c().field_7, blocks(), text); }
    result set_field_8(std::optional<std::string_view> text) noexcept { return change::set_text<8>(c(), c().field_8, blocks(), text); }
    void set_field_9(exact_number<std::uint32_t> value) noexcept { change::set_number<9>(c(), c().field_9, value); }
    vlan_info_editor edit_vlan() & noexcept { return change::edit_record<10, vlan_info_editor>(c(), c().vlan, blocks()); }
    vlan_info_editor edit_vlan() && noexcept { return access::lasting<Derived>(*this).edit_vlan(); }
    void clear_vlan() noexcept { change::clear_record<10>(c(), c().vlan); }
    void set_field_11(exact_number<std::uint32_t> value) noexcept { change::set_number<11>(c(), c().field_11, value); }

private:
    mava_tum_session_data &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A session_data that lies somewhere else, to be read.
class session_data_view : public record_view<session_data_view, mava_tum_session_data>,
    public session_data_fields<session_data_view>
{
public:
    using record_view::record_view;
};

// A session_data that lies inside of another record, to be changed.
class session_data_editor : public record_editor<session_data_editor, mava_tum_session_data>,
    public session_data_fields<session_data_editor>, public session_data_changes<session_data_editor>
{
public:
    using record_editor::record_editor;
};

// An array of session_data, to be read.
using session_data_list = record_list<session_data_view, mava_tum_session_data>;
// An array of session_data, to be changed.
using session_data_editors = editor_list<session_data_editor, mava_tum_session_data>;

// Per-session values and access records. Nested in session_context.
class session_data : public owning_record<session_data, mava_tum_session_data>,
    public session_data_fields<session_data>, public session_data_changes<session_data>
{
public:
    using owning_record::owning_record;
};

} // namespace mava_tum::cpp
// clang-format on

#endif
