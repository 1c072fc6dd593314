// Classes over the records of mava_tum/routes.h, generated from it by bindings/cpp/make_cpp_layer.
//
// That header says what the fields are. Change it or the generator, not this file.
#ifndef MAVA_TUM_CPP_ROUTES_HPP
#define MAVA_TUM_CPP_ROUTES_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/feature_records.hpp"
#include "mava_tum/cpp/field_access.hpp"
#include "mava_tum/cpp/field_change.hpp"
#include "mava_tum/cpp/owning_record.hpp"
#include "mava_tum/cpp/record_editor.hpp"
#include "mava_tum/cpp/record_view.hpp"
#include "mava_tum/routes.h"

// clang-format off
namespace mava_tum::cpp
{

// ---- sub_route -----------------------------------------------------------------------------------------------------

class sub_route;
class sub_route_view;
class sub_route_editor;

template <>
struct codec_of<mava_tum_sub_route> {
    using owner = sub_route;
    using view = sub_route_view;
    using editor = sub_route_editor;
    static constexpr const char *name = "sub_route";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_sub_route_decode_ext;
    static constexpr auto encode = mava_tum_sub_route_encode_ext;
    static constexpr auto duplicate = mava_tum_sub_route_duplicate;
};

// The fields of sub_route. Derived has c_record().
template <class Derived>
class sub_route_fields
{
public:
    // 1: varint
    std::optional<std::uint32_t> field_1() const noexcept { return access::number_of<1>(c(), c().field_1); }
    // 2: varint
    std::optional<std::uint32_t> field_2() const noexcept { return access::number_of<2>(c(), c().field_2); }
    // 3: varint
    std::optional<std::uint32_t> field_3() const noexcept { return access::number_of<3>(c(), c().field_3); }
    // 4: array of records
    subscriber_route_ipv4_list ipv4_routes() const & noexcept { return access::list_of<4, subscriber_route_ipv4_list>(c(), c().ipv4_routes, c().ipv4_route_count); }
    subscriber_route_ipv4_list ipv4_routes() const && noexcept { return access::lasting<Derived>(*this).ipv4_routes(); }
    // 5: array of records
    subscriber_route_ipv6_list ipv6_routes() const & noexcept { return access::list_of<5, subscriber_route_ipv6_list>(c(), c().ipv6_routes, c().ipv6_route_count); }
    subscriber_route_ipv6_list ipv6_routes() const && noexcept { return access::lasting<Derived>(*this).ipv6_routes(); }
    // 6: varint
    std::optional<std::uint32_t> field_6() const noexcept { return access::number_of<6>(c(), c().field_6); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const sub_route_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && ipv4_routes() == other.ipv4_routes() && ipv6_routes() == other.ipv6_routes() && field_6() == other.field_6(); }

private:
    const mava_tum_sub_route &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of sub_route. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class sub_route_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    subscriber_route_ipv4_editors make_ipv4_routes(exact_number<std::uint64_t> count) & noexcept { return change::make_list<4, subscriber_route_ipv4_editors>(c(), c().ipv4_routes, c().ipv4_route_count, blocks(), count.number()); }
    subscriber_route_ipv4_editors make_ipv4_routes(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_ipv4_routes(count); }
    subscriber_route_ipv4_editors edit_ipv4_routes() & noexcept { return change::edit_list<4, subscriber_route_ipv4_editors>(c(), c().ipv4_routes, c().ipv4_route_count, blocks()); }
    subscriber_route_ipv4_editors edit_ipv4_routes() && noexcept { return access::lasting<Derived>(*this).edit_ipv4_routes(); }
    std::optional<subscriber_route_ipv4_editor> add_ipv4_routes() & noexcept { return change::add_element<4, subscriber_route_ipv4_editor>(c(), c().ipv4_routes, c().ipv4_route_count, blocks()); }
    std::optional<subscriber_route_ipv4_editor> add_ipv4_routes() && noexcept { return access::lasting<Derived>(*this).add_ipv4_routes(); }
    result resize_ipv4_routes(exact_number<std::uint64_t> count) noexcept { return change::resize_list<4>(c(), c().ipv4_routes, c().ipv4_route_count, blocks(), count.number()); }
    void clear_ipv4_routes() noexcept { change::clear_list<4>(c(), c().ipv4_routes, c().ipv4_route_count); }
    subscriber_route_ipv6_editors make_ipv6_routes(exact_number<std::uint64_t> count) & noexcept { return change::make_list<5, subscriber_route_ipv6_editors>(c(), c().ipv6_routes, c().ipv6_route_count, blocks(), count.number()); }
    subscriber_route_ipv6_editors make_ipv6_routes(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_ipv6_routes(count); }
    subscriber_route_ipv6_editors edit_ipv6_routes() & noexcept { return change::edit_list<5, subscriber_route_ipv6_editors>(c(), c().ipv6_routes, c().ipv6_route_count, blocks()); }
    subscriber_route_ipv6_editors edit_ipv6_routes() && noexcept { return access::lasting<Derived>(*this).edit_ipv6_routes(); }
    std::optional<subscriber_route_ipv6_editor> add_ipv6_routes() & noexcept { return change::add_element<5, subscriber_route_ipv6_editor>(c(), c().ipv6_routes, c().ipv6_route_count, blocks()); }
    std::optional<subscriber_route_ipv6_editor> add_ipv6_routes() && noexcept { return access::lasting<Derived>(*this).add_ipv6_routes(); }
    result resize_ipv6_routes(exact_number<std::uint64_t> count) noexcept { return change::resize_list<5>(c(), c().ipv6_routes, c().ipv6_route_count, blocks(), count.number()); }
    void clear_ipv6_routes() noexcept { change::clear_list<5>(c(), c().ipv6_routes, c().ipv6_route_count); }
    void set_field_6(exact_number<std::uint32_t> value) noexcept { change::set_number<6>(c(), c().field_6, value); }

private:
    mava_tum_sub_route &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A sub_route that lies somewhere else, to be read.
class sub_route_view : public record_view<sub_route_view, mava_tum_sub_route>,
    public sub_route_fields<sub_route_view>
{
public:
    using record_view::record_view;
};

// A sub_route that lies inside of another record, to be changed.
class sub_route_editor : public record_editor<sub_route_editor, mava_tum_sub_route>,
    public sub_route_fields<sub_route_editor>, public sub_route_changes<sub_route_editor>
{
public:
    using record_editor::record_editor;
};

// An array of sub_route, to be read.
using sub_route_list = record_list<sub_route_view, mava_tum_sub_route>;
// An array of sub_route, to be changed.
using sub_route_editors = editor_list<sub_route_editor, mava_tum_sub_route>;

// A batch of subscriber routes.
class sub_route : public owning_record<sub_route, mava_tum_sub_route>,
    public sub_route_fields<sub_route>, public sub_route_changes<sub_route>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_route_resp -----------------------------------------------------------------------------------------

class subscriber_route_resp;
class subscriber_route_resp_view;
class subscriber_route_resp_editor;

template <>
struct codec_of<mava_tum_subscriber_route_resp> {
    using owner = subscriber_route_resp;
    using view = subscriber_route_resp_view;
    using editor = subscriber_route_resp_editor;
    static constexpr const char *name = "subscriber_route_resp";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_route_resp_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_route_resp_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_route_resp_duplicate;
};

// The fields of subscriber_route_resp. Derived has c_record().
template <class Derived>
class subscriber_route_resp_fields
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
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_route_resp_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4(); }

private:
    const mava_tum_subscriber_route_resp &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_route_resp. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_route_resp_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    result set_field_3(std::optional<std::string_view> text) noexcept { return change::set_text<3>(c(), c().field_3, blocks(), text); }
    result set_field_4(std::optional<std::string_view> text) noexcept { return change::set_text<4>(c(), c().field_4, blocks(), text); }

private:
    mava_tum_subscriber_route_resp &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_route_resp that lies somewhere else, to be read.
class subscriber_route_resp_view : public record_view<subscriber_route_resp_view, mava_tum_subscriber_route_resp>,
    public subscriber_route_resp_fields<subscriber_route_resp_view>
{
public:
    using record_view::record_view;
};

// A subscriber_route_resp that lies inside of another record, to be changed.
class subscriber_route_resp_editor : public record_editor<subscriber_route_resp_editor, mava_tum_subscriber_route_resp>,
    public subscriber_route_resp_fields<subscriber_route_resp_editor>, public subscriber_route_resp_changes<subscriber_route_resp_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_route_resp, to be read.
using subscriber_route_resp_list = record_list<subscriber_route_resp_view, mava_tum_subscriber_route_resp>;
// An array of subscriber_route_resp, to be changed.
using subscriber_route_resp_editors = editor_list<subscriber_route_resp_editor, mava_tum_subscriber_route_resp>;

// The answer to a batch of subscriber routes.
class subscriber_route_resp : public owning_record<subscriber_route_resp, mava_tum_subscriber_route_resp>,
    public subscriber_route_resp_fields<subscriber_route_resp>, public subscriber_route_resp_changes<subscriber_route_resp>
{
public:
    using owning_record::owning_record;
};

} // namespace mava_tum::cpp
// clang-format on

#endif
