// Classes over the records of mava_tum/session_messages.h, generated from it by bindings/cpp/make_cpp_layer.
//
// That header says what the fields are. Change it or the generator, not this file.
#ifndef MAVA_TUM_CPP_SESSION_MESSAGES_HPP
#define MAVA_TUM_CPP_SESSION_MESSAGES_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/feature_records.hpp"
#include "mava_tum/cpp/field_access.hpp"
#include "mava_tum/cpp/field_change.hpp"
#include "mava_tum/cpp/owning_record.hpp"
#include "mava_tum/cpp/record_editor.hpp"
#include "mava_tum/cpp/record_view.hpp"
#include "mava_tum/cpp/statistics.hpp"
#include "mava_tum/cpp/subscriber_records.hpp"
#include "mava_tum/session_messages.h"

// clang-format off
namespace mava_tum::cpp
{

// ---- session_context -----------------------------------------------------------------------------------------------

class session_context;
class session_context_view;
class session_context_editor;

template <>
struct codec_of<mava_tum_session_context> {
    using owner = session_context;
    using view = session_context_view;
    using editor = session_context_editor;
    static constexpr const char *name = "session_context";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_session_context_decode_ext;
    static constexpr auto encode = mava_tum_session_context_encode_ext;
    static constexpr auto duplicate = mava_tum_session_context_duplicate;
};

// The fields of session_context. Derived has c_record().
template <class Derived>
class session_context_fields
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
    // 5: varint
    std::optional<std::uint32_t> feature_mask() const noexcept { return access::number_of<5>(c(), c().feature_mask); }
    // 6: bytes
    std::optional<bytes_view> field_6() const & noexcept { return access::bytes_of<6>(c(), c().field_6); }
    std::optional<bytes_view> field_6() const && noexcept { return access::lasting<Derived>(*this).field_6(); }
    // 7: varint
    std::optional<std::uint32_t> field_7() const noexcept { return access::number_of<7>(c(), c().field_7); }
    // 8: record
    subscriber_v4_view subscriber_v4() const & noexcept { return access::record_of<8, subscriber_v4_view>(c(), c().subscriber_v4); }
    subscriber_v4_view subscriber_v4() const && noexcept { return access::lasting<Derived>(*this).subscriber_v4(); }
    // 9: record
    subscriber_v6_view subscriber_v6() const & noexcept { return access::record_of<9, subscriber_v6_view>(c(), c().subscriber_v6); }
    subscriber_v6_view subscriber_v6() const && noexcept { return access::lasting<Derived>(*this).subscriber_v6(); }
    // 10: record
    session_data_view session_data() const & noexcept { return access::record_of<10, session_data_view>(c(), c().session_data); }
    session_data_view session_data() const && noexcept { return access::lasting<Derived>(*this).session_data(); }
    // 11: array of records
    subscriber_qos_list qos() const & noexcept { return access::list_of<11, subscriber_qos_list>(c(), c().qos, c().qos_count); }
    subscriber_qos_list qos() const && noexcept { return access::lasting<Derived>(*this).qos(); }
    // 12: record
    subscriber_acl_view acl() const & noexcept { return access::record_of<12, subscriber_acl_view>(c(), c().acl); }
    subscriber_acl_view acl() const && noexcept { return access::lasting<Derived>(*this).acl(); }
    // 13: record
    subscriber_httpr_view httpr() const & noexcept { return access::record_of<13, subscriber_httpr_view>(c(), c().httpr); }
    subscriber_httpr_view httpr() const && noexcept { return access::lasting<Derived>(*this).httpr(); }
    // 14: record
    subscriber_li_view li() const & noexcept { return access::record_of<14, subscriber_li_view>(c(), c().li); }
    subscriber_li_view li() const && noexcept { return access::lasting<Derived>(*this).li(); }
    // 15: record
    subscriber_urpf_view urpf_1() const & noexcept { return access::record_of<15, subscriber_urpf_view>(c(), c().urpf_1); }
    subscriber_urpf_view urpf_1() const && noexcept { return access::lasting<Derived>(*this).urpf_1(); }
    // 16: record
    subscriber_urpf_view urpf_2() const & noexcept { return access::record_of<16, subscriber_urpf_view>(c(), c().urpf_2); }
    subscriber_urpf_view urpf_2() const && noexcept { return access::lasting<Derived>(*this).urpf_2(); }
    // 17: record
    subscriber_icmp_view icmp_1() const & noexcept { return access::record_of<17, subscriber_icmp_view>(c(), c().icmp_1); }
    subscriber_icmp_view icmp_1() const && noexcept { return access::lasting<Derived>(*this).icmp_1(); }
    // 18: record
    subscriber_icmp_view icmp_2() const & noexcept { return access::record_of<18, subscriber_icmp_view>(c(), c().icmp_2); }
    subscriber_icmp_view icmp_2() const && noexcept { return access::lasting<Derived>(*this).icmp_2(); }
    // 19: record
    subscriber_mtu_view mtu_1() const & noexcept { return access::record_of<19, subscriber_mtu_view>(c(), c().mtu_1); }
    subscriber_mtu_view mtu_1() const && noexcept { return access::lasting<Derived>(*this).mtu_1(); }
    // 20: record
    subscriber_mtu_view mtu_2() const & noexcept { return access::record_of<20, subscriber_mtu_view>(c(), c().mtu_2); }
    subscriber_mtu_view mtu_2() const && noexcept { return access::lasting<Derived>(*this).mtu_2(); }
    // 21: record
    subscriber_mtu_view mtu_3() const & noexcept { return access::record_of<21, subscriber_mtu_view>(c(), c().mtu_3); }
    subscriber_mtu_view mtu_3() const && noexcept { return access::lasting<Derived>(*this).mtu_3(); }
    // 22: record
    subscriber_acct_view acct() const & noexcept { return access::record_of<22, subscriber_acct_view>(c(), c().acct); }
    subscriber_acct_view acct() const && noexcept { return access::lasting<Derived>(*this).acct(); }
    // 23: array of records
    subscriber_route_ipv4_list route_ipv4() const & noexcept { return access::list_of<23, subscriber_route_ipv4_list>(c(), c().route_ipv4, c().route_ipv4_count); }
    subscriber_route_ipv4_list route_ipv4() const && noexcept { return access::lasting<Derived>(*this).route_ipv4(); }
    // 24: array of records
    subscriber_route_ipv6_list route_ipv6() const & noexcept { return access::list_of<24, subscriber_route_ipv6_list>(c(), c().route_ipv6, c().route_ipv6_count); }
    subscriber_route_ipv6_list route_ipv6() const && noexcept { return access::lasting<Derived>(*this).route_ipv6(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const session_context_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && feature_mask() == other.feature_mask() && field_6() == other.field_6() && field_7() == other.field_7() && subscriber_v4() == other.subscriber_v4() && subscriber_v6() == other.subscriber_v6() && session_data() == other.session_data() && qos() == other.qos() && acl() == other.acl() && httpr() == other.httpr() && li() == other.li() && urpf_1() == other.urpf_1() && urpf_2() == other.urpf_2() && icmp_1() == other.icmp_1() && icmp_2() == other.icmp_2() && mtu_1() == other.mtu_1() && mtu_2() == other.mtu_2() && mtu_3() == other.mtu_3() && acct() == other.acct() && route_ipv4() == other.route_ipv4() && route_ipv6() == other.route_ipv6(); }

private:
    const mava_tum_session_context &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of session_context. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class session_context_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    void set_feature_mask(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().feature_mask, value); }
    result set_field_6(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<6>(c(), c().field_6, blocks(), bytes); }
    void set_field_7(exact_number<std::uint32_t> value) noexcept { change::set_number<7>(c(), c().field_7, value); }
    subscriber_v4_editor edit_subscriber_v4() & noexcept { return change::edit_record<8, subscriber_v4_editor>(c(), c().subscriber_v4, blocks()); }
    subscriber_v4_editor edit_subscriber_v4() && noexcept { return access::lasting<Derived>(*this).edit_subscriber_v4(); }
    void clear_subscriber_v4() noexcept { change::clear_record<8>(c(), c().subscriber_v4); }
    subscriber_v6_editor edit_subscriber_v6() & noexcept { return change::edit_record<9, subscriber_v6_editor>(c(), c().subscriber_v6, blocks()); }
    subscriber_v6_editor edit_subscriber_v6() && noexcept { return access::lasting<Derived>(*this).edit_subscriber_v6(); }
    void clear_subscriber_v6() noexcept { change::clear_record<9>(c(), c().subscriber_v6); }
    session_data_editor edit_session_data() & noexcept { return change::edit_record<10, session_data_editor>(c(), c().session_data, blocks()); }
    session_data_editor edit_session_data() && noexcept { return access::lasting<Derived>(*this).edit_session_data(); }
    void clear_session_data() noexcept { change::clear_record<10>(c(), c().session_data); }
    subscriber_qos_editors make_qos(exact_number<std::uint64_t> count) & noexcept { return change::make_list<11, subscriber_qos_editors>(c(), c().qos, c().qos_count, blocks(), count.number()); }
    subscriber_qos_editors make_qos(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_qos(count); }
    subscriber_qos_editors edit_qos() & noexcept { return change::edit_list<11, subscriber_qos_editors>(c(), c().qos, c().qos_count, blocks()); }
    subscriber_qos_editors edit_qos() && noexcept { return access::lasting<Derived>(*this).edit_qos(); }
    std::optional<subscriber_qos_editor> add_qos() & noexcept { return change::add_element<11, subscriber_qos_editor>(c(), c().qos, c().qos_count, blocks()); }
    std::optional<subscriber_qos_editor> add_qos() && noexcept { return access::lasting<Derived>(*this).add_qos(); }
    result resize_qos(exact_number<std::uint64_t> count) noexcept { return change::resize_list<11>(c(), c().qos, c().qos_count, blocks(), count.number()); }
    void clear_qos() noexcept { change::clear_list<11>(c(), c().qos, c().qos_count); }
    subscriber_acl_editor edit_acl() & noexcept { return change::edit_record<12, subscriber_acl_editor>(c(), c().acl, blocks()); }
    subscriber_acl_editor edit_acl() && noexcept { return access::lasting<Derived>(*this).edit_acl(); }
    void clear_acl() noexcept { change::clear_record<12>(c(), c().acl); }
    subscriber_httpr_editor edit_httpr() & noexcept { return change::edit_record<13, subscriber_httpr_editor>(c(), c().httpr, blocks()); }
    subscriber_httpr_editor edit_httpr() && noexcept { return access::lasting<Derived>(*this).edit_httpr(); }
    void clear_httpr() noexcept { change::clear_record<13>(c(), c().httpr); }
    subscriber_li_editor edit_li() & noexcept { return change::edit_record<14, subscriber_li_editor>(c(), c().li, blocks()); }
    subscriber_li_editor edit_li() && noexcept { return access::lasting<Derived>(*this).edit_li(); }
    void clear_li() noexcept { change::clear_record<14>(c(), c().li); }
    subscriber_urpf_editor edit_urpf_1() & noexcept { return change::edit_record<15, subscriber_urpf_editor>(c(), c().urpf_1, blocks()); }
    subscriber_urpf_editor edit_urpf_1() && noexcept { return access::lasting<Derived>(*this).edit_urpf_1(); }
    void clear_urpf_1() noexcept { change::clear_record<15>(c(), c().urpf_1); }
    subscriber_urpf_editor edit_urpf_2() & noexcept { return change::edit_record<16, subscriber_urpf_editor>(c(), c().urpf_2, blocks()); }
    subscriber_urpf_editor edit_urpf_2() && noexcept { return access::lasting<Derived>(*this).edit_urpf_2(); }
    void clear_urpf_2() noexcept { change::clear_record<16>(c(), c().urpf_2); }
    subscriber_icmp_editor edit_icmp_1() & noexcept { return change::edit_record<17, subscriber_icmp_editor>(c(), c().icmp_1, blocks()); }
    subscriber_icmp_editor edit_icmp_1() && noexcept { return access::lasting<Derived>(*this).edit_icmp_1(); }
    void clear_icmp_1() noexcept { change::clear_record<17>(c(), c().icmp_1); }
    subscriber_icmp_editor edit_icmp_2() & noexcept { return change::edit_record<18, subscriber_icmp_editor>(c(), c().icmp_2, blocks()); }
    subscriber_icmp_editor edit_icmp_2() && noexcept { return access::lasting<Derived>(*this).edit_icmp_2(); }
    void clear_icmp_2() noexcept { change::clear_record<18>(c(), c().icmp_2); }
    subscriber_mtu_editor edit_mtu_1() & noexcept { return change::edit_record<19, subscriber_mtu_editor>(c(), c().mtu_1, blocks()); }
    subscriber_mtu_editor edit_mtu_1() && noexcept { return access::lasting<Derived>(*this).edit_mtu_1(); }
    void clear_mtu_1() noexcept { change::clear_record<19>(c(), c().mtu_1); }
    subscriber_mtu_editor edit_mtu_2() & noexcept { return change::edit_record<20, subscriber_mtu_editor>(c(), c().mtu_2, blocks()); }
    subscriber_mtu_editor edit_mtu_2() && noexcept { return access::lasting<Derived>(*this).edit_mtu_2(); }
    void clear_mtu_2() noexcept { change::clear_record<20>(c(), c().mtu_2); }
    subscriber_mtu_editor edit_mtu_3() & noexcept { return change::edit_record<21, subscriber_mtu_editor>(c(), c().mtu_3, blocks()); }
    subscriber_mtu_editor edit_mtu_3() && noexcept { return access::lasting<Derived>(*this).edit_mtu_3(); }
    void clear_mtu_3() noexcept { change::clear_record<21>(c(), c().mtu_3); }
    subscriber_acct_editor edit_acct() & noexcept { return change::edit_record<22, subscriber_acct_editor>(c(), c().acct, blocks()); }
    subscriber_acct_editor edit_acct() && noexcept { return access::lasting<Derived>(*this).edit_acct(); }
    void clear_acct() noexcept { change::clear_record<22>(c(), c().acct); }
    subscriber_route_ipv4_editors make_route_ipv4(exact_number<std::uint64_t> count) & noexcept { return change::make_list<23, subscriber_route_ipv4_editors>(c(), c().route_ipv4, c().route_ipv4_count, blocks(), count.number()); }
    subscriber_route_ipv4_editors make_route_ipv4(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_route_ipv4(count); }
    subscriber_route_ipv4_editors edit_route_ipv4() & noexcept { return change::edit_list<23, subscriber_route_ipv4_editors>(c(), c().route_ipv4, c().route_ipv4_count, blocks()); }
    subscriber_route_ipv4_editors edit_route_ipv4() && noexcept { return access::lasting<Derived>(*this).edit_route_ipv4(); }
    std::optional<subscriber_route_ipv4_editor> add_route_ipv4() & noexcept { return change::add_element<23, subscriber_route_ipv4_editor>(c(), c().route_ipv4, c().route_ipv4_count, blocks()); }
    std::optional<subscriber_route_ipv4_editor> add_route_ipv4() && noexcept { return access::lasting<Derived>(*this).add_route_ipv4(); }
    result resize_route_ipv4(exact_number<std::uint64_t> count) noexcept { return change::resize_list<23>(c(), c().route_ipv4, c().route_ipv4_count, blocks(), count.number()); }
    void clear_route_ipv4() noexcept { change::clear_list<23>(c(), c().route_ipv4, c().route_ipv4_count); }
    subscriber_route_ipv6_editors make_route_ipv6(exact_number<std::uint64_t> count) & noexcept { return change::make_list<24, subscriber_route_ipv6_editors>(c(), c().route_ipv6, c().route_ipv6_count, blocks(), count.number()); }
    subscriber_route_ipv6_editors make_route_ipv6(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_route_ipv6(count); }
    subscriber_route_ipv6_editors edit_route_ipv6() & noexcept { return change::edit_list<24, subscriber_route_ipv6_editors>(c(), c().route_ipv6, c().route_ipv6_count, blocks()); }
    subscriber_route_ipv6_editors edit_route_ipv6() && noexcept { return access::lasting<Derived>(*this).edit_route_ipv6(); }
    std::optional<subscriber_route_ipv6_editor> add_route_ipv6() & noexcept { return change::add_element<24, subscriber_route_ipv6_editor>(c(), c().route_ipv6, c().route_ipv6_count, blocks()); }
    std::optional<subscriber_route_ipv6_editor> add_route_ipv6() && noexcept { return access::lasting<Derived>(*this).add_route_ipv6(); }
    result resize_route_ipv6(exact_number<std::uint64_t> count) noexcept { return change::resize_list<24>(c(), c().route_ipv6, c().route_ipv6_count, blocks(), count.number()); }
    void clear_route_ipv6() noexcept { change::clear_list<24>(c(), c().route_ipv6, c().route_ipv6_count); }

private:
    mava_tum_session_context &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A session_context that lies somewhere else, to be read.
class session_context_view : public record_view<session_context_view, mava_tum_session_context>,
    public session_context_fields<session_context_view>
{
public:
    using record_view::record_view;
};

// A session_context that lies inside of another record, to be changed.
class session_context_editor : public record_editor<session_context_editor, mava_tum_session_context>,
    public session_context_fields<session_context_editor>, public session_context_changes<session_context_editor>
{
public:
    using record_editor::record_editor;
};

// An array of session_context, to be read.
using session_context_list = record_list<session_context_view, mava_tum_session_context>;
// An array of session_context, to be changed.
using session_context_editors = editor_list<session_context_editor, mava_tum_session_context>;

// One subscriber session as a whole: identity, access and features.
class session_context : public owning_record<session_context, mava_tum_session_context>,
    public session_context_fields<session_context>, public session_context_changes<session_context>
{
public:
    using owning_record::owning_record;
};

// ---- session_delete ------------------------------------------------------------------------------------------------

class session_delete;
class session_delete_view;
class session_delete_editor;

template <>
struct codec_of<mava_tum_session_delete> {
    using owner = session_delete;
    using view = session_delete_view;
    using editor = session_delete_editor;
    static constexpr const char *name = "session_delete";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_session_delete_decode_ext;
    static constexpr auto encode = mava_tum_session_delete_encode_ext;
    static constexpr auto duplicate = mava_tum_session_delete_duplicate;
};

// The fields of session_delete. Derived has c_record().
template <class Derived>
class session_delete_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: 64-bit varint
    std::optional<std::uint64_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // 5: varint
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const session_delete_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5(); }

private:
    const mava_tum_session_delete &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of session_delete. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class session_delete_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint64_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }

private:
    mava_tum_session_delete &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A session_delete that lies somewhere else, to be read.
class session_delete_view : public record_view<session_delete_view, mava_tum_session_delete>,
    public session_delete_fields<session_delete_view>
{
public:
    using record_view::record_view;
};

// A session_delete that lies inside of another record, to be changed.
class session_delete_editor : public record_editor<session_delete_editor, mava_tum_session_delete>,
    public session_delete_fields<session_delete_editor>, public session_delete_changes<session_delete_editor>
{
public:
    using record_editor::record_editor;
};

// An array of session_delete, to be read.
using session_delete_list = record_list<session_delete_view, mava_tum_session_delete>;
// An array of session_delete, to be changed.
using session_delete_editors = editor_list<session_delete_editor, mava_tum_session_delete>;

// A request to remove a session.
class session_delete : public owning_record<session_delete, mava_tum_session_delete>,
    public session_delete_fields<session_delete>, public session_delete_changes<session_delete>
{
public:
    using owning_record::owning_record;
};

// ---- sess_oper_resp ------------------------------------------------------------------------------------------------

class sess_oper_resp;
class sess_oper_resp_view;
class sess_oper_resp_editor;

template <>
struct codec_of<mava_tum_sess_oper_resp> {
    using owner = sess_oper_resp;
    using view = sess_oper_resp_view;
    using editor = sess_oper_resp_editor;
    static constexpr const char *name = "sess_oper_resp";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_sess_oper_resp_decode_ext;
    static constexpr auto encode = mava_tum_sess_oper_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_sess_oper_resp_duplicate;
};

// The fields of sess_oper_resp. Derived has c_record().
template <class Derived>
class sess_oper_resp_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: 64-bit varint
    std::optional<std::uint64_t> field_4() const noexcept { return access::number_of<4>(c(), c().field_4); }
    // 5: varint
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
    // 6: text
    std::optional<std::string_view> field_6() const & noexcept { return access::text_of<6>(c(), c().field_6); }
    std::optional<std::string_view> field_6() const && noexcept { return access::lasting<Derived>(*this).field_6(); }
    // 7: text
    std::optional<std::string_view> field_7() const & noexcept { return access::text_of<7>(c(), c().field_7); }
    std::optional<std::string_view> field_7() const && noexcept { return access::lasting<Derived>(*this).field_7(); }
    // 8: text
    std::optional<std::string_view> field_8() const & noexcept { return access::text_of<8>(c(), c().field_8); }
    std::optional<std::string_view> field_8() const && noexcept { return access::lasting<Derived>(*this).field_8(); }
    // 9: record
    subscriber_stats_view field_9() const & noexcept { return access::record_of<9, subscriber_stats_view>(c(), c().field_9); }
    subscriber_stats_view field_9() const && noexcept { return access::lasting<Derived>(*this).field_9(); }
    // 10: bytes
    std::optional<bytes_view> field_10() const & noexcept { return access::bytes_of<10>(c(), c().field_10); }
    std::optional<bytes_view> field_10() const && noexcept { return access::lasting<Derived>(*this).field_10(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const sess_oper_resp_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8() && field_9() == other.field_9() && field_10() == other.field_10(); }

private:
    const mava_tum_sess_oper_resp &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of sess_oper_resp. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class sess_oper_resp_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint64_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }
    result set_field_6(std::optional<std::string_view> text) noexcept { return change::set_text<6>(c(), c().field_6, blocks(), text); }
    result set_field_7(std::optional<std::string_view> text) noexcept { return change::set_text<7>(c(), c().field_7, blocks(), text); }
    result set_field_8(std::optional<std::string_view> text) noexcept { return change::set_text<8>(c(), c().field_8, blocks(), text); }
    subscriber_stats_editor edit_field_9() & noexcept { return change::edit_record<9, subscriber_stats_editor>(c(), c().field_9, blocks()); }
    subscriber_stats_editor edit_field_9() && noexcept { return access::lasting<Derived>(*this).edit_field_9(); }
    void clear_field_9() noexcept { change::clear_record<9>(c(), c().field_9); }
    result set_field_10(std::optional<bytes_argument> bytes) noexcept { return change::set_bytes<10>(c(), c().field_10, blocks(), bytes); }

private:
    mava_tum_sess_oper_resp &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A sess_oper_resp that lies somewhere else, to be read.
class sess_oper_resp_view : public record_view<sess_oper_resp_view, mava_tum_sess_oper_resp>,
    public sess_oper_resp_fields<sess_oper_resp_view>
{
public:
    using record_view::record_view;
};

// A sess_oper_resp that lies inside of another record, to be changed.
class sess_oper_resp_editor : public record_editor<sess_oper_resp_editor, mava_tum_sess_oper_resp>,
    public sess_oper_resp_fields<sess_oper_resp_editor>, public sess_oper_resp_changes<sess_oper_resp_editor>
{
public:
    using record_editor::record_editor;
};

// An array of sess_oper_resp, to be read.
using sess_oper_resp_list = record_list<sess_oper_resp_view, mava_tum_sess_oper_resp>;
// An array of sess_oper_resp, to be changed.
using sess_oper_resp_editors = editor_list<sess_oper_resp_editor, mava_tum_sess_oper_resp>;

// The answer to an operation on a session.
class sess_oper_resp : public owning_record<sess_oper_resp, mava_tum_sess_oper_resp>,
    public sess_oper_resp_fields<sess_oper_resp>, public sess_oper_resp_changes<sess_oper_resp>
{
public:
    using owning_record::owning_record;
};

} // namespace mava_tum::cpp
// clang-format on

#endif
