// Classes over the records of mava_tum/statistics.h, generated from it by bindings/cpp/make_cpp_layer.
//
// That header says what the fields are. Change it or the generator, not this file.
#ifndef MAVA_TUM_CPP_STATISTICS_HPP
#define MAVA_TUM_CPP_STATISTICS_HPP
// SPDX-License-Identifier: Apache-2.0

#include "mava_tum/cpp/field_access.hpp"
#include "mava_tum/cpp/field_change.hpp"
#include "mava_tum/cpp/owning_record.hpp"
#include "mava_tum/cpp/record_editor.hpp"
#include "mava_tum/cpp/record_view.hpp"
#include "mava_tum/statistics.h"

// clang-format off
namespace mava_tum::cpp
{

// ---- stats ---------------------------------------------------------------------------------------------------------

class stats;
class stats_view;
class stats_editor;

template <>
struct codec_of<mava_tum_stats> {
    using owner = stats;
    using view = stats_view;
    using editor = stats_editor;
    static constexpr const char *name = "stats";
    static constexpr bool owns_memory = false;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_stats_decode_ext;
    static constexpr auto encode = mava_tum_stats_encode_ext;
    static constexpr auto duplicate = mava_tum_stats_duplicate;
};

// The fields of stats. Derived has c_record().
template <class Derived>
class stats_fields
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
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
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
    // Whether all fields are those of `other`.
    bool has_fields_of(const stats_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8() && field_9() == other.field_9() && field_10() == other.field_10() && field_11() == other.field_11() && field_12() == other.field_12() && field_13() == other.field_13() && field_14() == other.field_14() && field_15() == other.field_15() && field_16() == other.field_16() && field_17() == other.field_17() && field_18() == other.field_18(); }

private:
    const mava_tum_stats &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of stats. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class stats_changes
{
public:
    void set_field_1(exact_number<std::uint32_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }
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

private:
    mava_tum_stats &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
};

// A stats that lies somewhere else, to be read.
class stats_view : public record_view<stats_view, mava_tum_stats>,
    public stats_fields<stats_view>
{
public:
    using record_view::record_view;
};

// A stats that lies inside of another record, to be changed.
class stats_editor : public record_editor<stats_editor, mava_tum_stats>,
    public stats_fields<stats_editor>, public stats_changes<stats_editor>
{
public:
    using record_editor::record_editor;
};

// An array of stats, to be read.
using stats_list = record_list<stats_view, mava_tum_stats>;
// An array of stats, to be changed.
using stats_editors = editor_list<stats_editor, mava_tum_stats>;

// Eighteen traffic counters.
class stats : public owning_record<stats, mava_tum_stats>,
    public stats_fields<stats>, public stats_changes<stats>
{
public:
    using owning_record::owning_record;
};

// ---- service_stats -------------------------------------------------------------------------------------------------

class service_stats;
class service_stats_view;
class service_stats_editor;

template <>
struct codec_of<mava_tum_service_stats> {
    using owner = service_stats;
    using view = service_stats_view;
    using editor = service_stats_editor;
    static constexpr const char *name = "service_stats";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_service_stats_decode_ext;
    static constexpr auto encode = mava_tum_service_stats_encode_ext;
    static constexpr auto duplicate = mava_tum_service_stats_duplicate;
};

// The fields of service_stats. Derived has c_record().
template <class Derived>
class service_stats_fields
{
public:
    // 1: text
    std::optional<std::string_view> field_1() const & noexcept { return access::text_of<1>(c(), c().field_1); }
    std::optional<std::string_view> field_1() const && noexcept { return access::lasting<Derived>(*this).field_1(); }
    // 2: record
    stats_view field_2() const & noexcept { return access::record_of<2, stats_view>(c(), c().field_2); }
    stats_view field_2() const && noexcept { return access::lasting<Derived>(*this).field_2(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const service_stats_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2(); }

private:
    const mava_tum_service_stats &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of service_stats. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class service_stats_changes
{
public:
    result set_field_1(std::optional<std::string_view> text) noexcept { return change::set_text<1>(c(), c().field_1, blocks(), text); }
    stats_editor edit_field_2() & noexcept { return change::edit_record<2, stats_editor>(c(), c().field_2, blocks()); }
    stats_editor edit_field_2() && noexcept { return access::lasting<Derived>(*this).edit_field_2(); }
    void clear_field_2() noexcept { change::clear_record<2>(c(), c().field_2); }

private:
    mava_tum_service_stats &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A service_stats that lies somewhere else, to be read.
class service_stats_view : public record_view<service_stats_view, mava_tum_service_stats>,
    public service_stats_fields<service_stats_view>
{
public:
    using record_view::record_view;
};

// A service_stats that lies inside of another record, to be changed.
class service_stats_editor : public record_editor<service_stats_editor, mava_tum_service_stats>,
    public service_stats_fields<service_stats_editor>, public service_stats_changes<service_stats_editor>
{
public:
    using record_editor::record_editor;
};

// An array of service_stats, to be read.
using service_stats_list = record_list<service_stats_view, mava_tum_service_stats>;
// An array of service_stats, to be changed.
using service_stats_editors = editor_list<service_stats_editor, mava_tum_service_stats>;

// A named service and its counters. An element of subscriber_stats.
class service_stats : public owning_record<service_stats, mava_tum_service_stats>,
    public service_stats_fields<service_stats>, public service_stats_changes<service_stats>
{
public:
    using owning_record::owning_record;
};

// ---- subscriber_stats ----------------------------------------------------------------------------------------------

class subscriber_stats;
class subscriber_stats_view;
class subscriber_stats_editor;

template <>
struct codec_of<mava_tum_subscriber_stats> {
    using owner = subscriber_stats;
    using view = subscriber_stats_view;
    using editor = subscriber_stats_editor;
    static constexpr const char *name = "subscriber_stats";
    static constexpr bool owns_memory = true;
    static constexpr std::size_t most_segments = 0;
    static constexpr auto decode = mava_tum_subscriber_stats_decode_ext;
    static constexpr auto encode = mava_tum_subscriber_stats_encode_ext;
    static constexpr auto duplicate = mava_tum_subscriber_stats_duplicate;
};

// The fields of subscriber_stats. Derived has c_record().
template <class Derived>
class subscriber_stats_fields
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
    // 5: varint
    std::optional<std::uint32_t> field_5() const noexcept { return access::number_of<5>(c(), c().field_5); }
    // 6: varint
    std::optional<std::uint32_t> field_6() const noexcept { return access::number_of<6>(c(), c().field_6); }
    // 7: record
    stats_view field_7() const & noexcept { return access::record_of<7, stats_view>(c(), c().field_7); }
    stats_view field_7() const && noexcept { return access::lasting<Derived>(*this).field_7(); }
    // 8: array of records
    service_stats_list field_8() const & noexcept { return access::list_of<8, service_stats_list>(c(), c().field_8, c().field_8_count); }
    service_stats_list field_8() const && noexcept { return access::lasting<Derived>(*this).field_8(); }
    // 9: varint
    std::optional<std::uint32_t> field_9() const noexcept { return access::number_of<9>(c(), c().field_9); }
    // 10: record
    stats_view field_10() const & noexcept { return access::record_of<10, stats_view>(c(), c().field_10); }
    stats_view field_10() const && noexcept { return access::lasting<Derived>(*this).field_10(); }
    // 11: varint
    std::optional<std::uint32_t> field_11() const noexcept { return access::number_of<11>(c(), c().field_11); }
    // 12: record
    stats_view field_12() const & noexcept { return access::record_of<12, stats_view>(c(), c().field_12); }
    stats_view field_12() const && noexcept { return access::lasting<Derived>(*this).field_12(); }
    // Whether all fields are those of `other`.
    bool has_fields_of(const subscriber_stats_fields &other) const noexcept { return field_1() == other.field_1() && field_2() == other.field_2() && field_3() == other.field_3() && field_4() == other.field_4() && field_5() == other.field_5() && field_6() == other.field_6() && field_7() == other.field_7() && field_8() == other.field_8() && field_9() == other.field_9() && field_10() == other.field_10() && field_11() == other.field_11() && field_12() == other.field_12(); }

private:
    const mava_tum_subscriber_stats &c() const noexcept { return static_cast<const Derived &>(*this).c_record(); }
};

// Sets the fields of subscriber_stats. Derived has mutable_c_record() and own_blocks().
template <class Derived>
class subscriber_stats_changes
{
public:
    void set_field_1(exact_number<std::uint64_t> value) noexcept { change::set_number<1>(c(), c().field_1, value); }
    void set_field_2(exact_number<std::uint32_t> value) noexcept { change::set_number<2>(c(), c().field_2, value); }
    void set_field_3(exact_number<std::uint32_t> value) noexcept { change::set_number<3>(c(), c().field_3, value); }
    void set_field_4(exact_number<std::uint32_t> value) noexcept { change::set_number<4>(c(), c().field_4, value); }
    void set_field_5(exact_number<std::uint32_t> value) noexcept { change::set_number<5>(c(), c().field_5, value); }
    void set_field_6(exact_number<std::uint32_t> value) noexcept { change::set_number<6>(c(), c().field_6, value); }
    stats_editor edit_field_7() & noexcept { return change::edit_record<7, stats_editor>(c(), c().field_7, blocks()); }
    stats_editor edit_field_7() && noexcept { return access::lasting<Derived>(*this).edit_field_7(); }
    void clear_field_7() noexcept { change::clear_record<7>(c(), c().field_7); }
    service_stats_editors make_field_8(exact_number<std::uint64_t> count) & noexcept { return change::make_list<8, service_stats_editors>(c(), c().field_8, c().field_8_count, blocks(), count.number()); }
    service_stats_editors make_field_8(exact_number<std::uint64_t> count) && noexcept { return access::lasting<Derived>(*this).make_field_8(count); }
    service_stats_editors edit_field_8() & noexcept { return change::edit_list<8, service_stats_editors>(c(), c().field_8, c().field_8_count, blocks()); }
    service_stats_editors edit_field_8() && noexcept { return access::lasting<Derived>(*this).edit_field_8(); }
    std::optional<service_stats_editor> add_field_8() & noexcept { return change::add_element<8, service_stats_editor>(c(), c().field_8, c().field_8_count, blocks()); }
    std::optional<service_stats_editor> add_field_8() && noexcept { return access::lasting<Derived>(*this).add_field_8(); }
    result resize_field_8(exact_number<std::uint64_t> count) noexcept { return change::resize_list<8>(c(), c().field_8, c().field_8_count, blocks(), count.number()); }
    void clear_field_8() noexcept { change::clear_list<8>(c(), c().field_8, c().field_8_count); }
    void set_field_9(exact_number<std::uint32_t> value) noexcept { change::set_number<9>(c(), c().field_9, value); }
    stats_editor edit_field_10() & noexcept { return change::edit_record<10, stats_editor>(c(), c().field_10, blocks()); }
    stats_editor edit_field_10() && noexcept { return access::lasting<Derived>(*this).edit_field_10(); }
    void clear_field_10() noexcept { change::clear_record<10>(c(), c().field_10); }
    void set_field_11(exact_number<std::uint32_t> value) noexcept { change::set_number<11>(c(), c().field_11, value); }
    stats_editor edit_field_12() & noexcept { return change::edit_record<12, stats_editor>(c(), c().field_12, blocks()); }
    stats_editor edit_field_12() && noexcept { return access::lasting<Derived>(*this).edit_field_12(); }
    void clear_field_12() noexcept { change::clear_record<12>(c(), c().field_12); }

private:
    mava_tum_subscriber_stats &c() noexcept { return static_cast<Derived &>(*this).mutable_c_record(); }
    block_list *blocks() noexcept { return static_cast<Derived &>(*this).own_blocks(); }
};

// A subscriber_stats that lies somewhere else, to be read.
class subscriber_stats_view : public record_view<subscriber_stats_view, mava_tum_subscriber_stats>,
    public subscriber_stats_fields<subscriber_stats_view>
{
public:
    using record_view::record_view;
};

// A subscriber_stats that lies inside of another record, to be changed.
class subscriber_stats_editor : public record_editor<subscriber_stats_editor, mava_tum_subscriber_stats>,
    public subscriber_stats_fields<subscriber_stats_editor>, public subscriber_stats_changes<subscriber_stats_editor>
{
public:
    using record_editor::record_editor;
};

// An array of subscriber_stats, to be read.
using subscriber_stats_list = record_list<subscriber_stats_view, mava_tum_subscriber_stats>;
// An array of subscriber_stats, to be changed.
using subscriber_stats_editors = editor_list<subscriber_stats_editor, mava_tum_subscriber_stats>;

// A subscriber's statistics: totals, blocks of counters, services.
class subscriber_stats : public owning_record<subscriber_stats, mava_tum_subscriber_stats>,
    public subscriber_stats_fields<subscriber_stats>, public subscriber_stats_changes<subscriber_stats>
{
public:
    using owning_record::owning_record;
};

} // namespace mava_tum::cpp
// clang-format on

#endif
