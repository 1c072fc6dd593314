// Lists that do not fit their slots or their count, and lists with a fault.
#include "messages/reconciliation_schema.h"
#include "messages/redundancy_group_schema.h"
#include "nal/rows.h"
#include "nal/small_records.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

#include <string>

namespace mava_tum_test
{
namespace
{

using mava_tum::number;
using mava_tum::row_list;

// ---- a list of records ----

struct entry {
    uint32_t value;
    char text[12];
    uint32_t mark;
};

struct entry_rows {
    using message = mava_tum_srg_group_data;
    using record = entry;
    using rows = row_list<number<1, &entry::value>, number<4, &entry::mark>, mava_tum::text<5, &entry::text>>;
};

template <class Count, std::size_t Slots>
struct list_record {
    uint32_t before;
    Count count;
    entry slots[Slots];
    uint32_t after;
};

template <class Count, std::size_t Slots>
struct list_rows {
    using message = mava_tum_srg_group_rec_replay_req;
    using record = list_record<Count, Slots>;
    using rows = row_list<number<1, &record::before>, mava_tum::list<3, &record::slots, &record::count, entry_rows>,
        number<4, &record::after>>;
};

// Later elements are longer or shorter than earlier ones, to detect content of an earlier element in a slot.
std::string text_of(std::size_t index)
{
    return std::string(11 - index * 4 % 11, static_cast<char>('a' + index % 26));
}

byte_vector element(std::size_t index)
{
    wire_builder wire;
    wire.varint(1, index + 1);
    if (index % 2 == 0)
        wire.varint(4, index + 1000);
    return wire.text(5, text_of(index));
}

void set_entry(entry &slot, std::size_t index)
{
    slot.value = static_cast<uint32_t>(index + 1);
    std::memcpy(slot.text, text_of(index).c_str(), text_of(index).size() + 1);
    slot.mark = index % 2 == 0 ? static_cast<uint32_t>(index + 1000) : 0;
}

wire_builder list_of(std::size_t elements)
{
    wire_builder wire;
    wire.varint(1, 7);
    for (std::size_t i = 0; i < elements; ++i)
        wire.length_delimited(3, element(i));
    return wire;
}

// The record when the first `kept` elements arrive.
template <class Count, std::size_t Slots>
small_record<list_record<Count, Slots>> with_elements(std::size_t kept)
{
    small_record<list_record<Count, Slots>> record;
    record->before = 7;
    record->count = static_cast<Count>(kept);
    for (std::size_t i = 0; i < kept; ++i)
        set_entry(record->slots[i], i);
    return record;
}

template <class Count, std::size_t Slots>
void expect_kept(std::size_t sent, std::size_t kept)
{
    auto expected = with_elements<Count, Slots>(kept);
    expected->after = 9;
    EXPECT_EQ((received_bytes<list_rows<Count, Slots>>(list_of(sent).varint(4, 9))), expected.bytes())
        << sent << " elements, " << Slots << " slots, a count of " << sizeof(Count) << " bytes";
}

TEST(rows_lists, of_more_elements_than_slots_the_first_arrive_each_in_its_own_slot)
{
    for (std::size_t sent = 0; sent <= 12; ++sent) {
        expect_kept<uint8_t, 1>(sent, std::min<std::size_t>(sent, 1));
        expect_kept<uint8_t, 3>(sent, std::min<std::size_t>(sent, 3));
        expect_kept<uint32_t, 3>(sent, std::min<std::size_t>(sent, 3));
        expect_kept<uint16_t, 5>(sent, std::min<std::size_t>(sent, 5));
    }
}

TEST(rows_lists, a_count_of_8_bits_wraps_and_the_slots_beyond_it_are_zero)
{
    for (const std::size_t sent : {254u, 255u, 256u, 257u, 258u, 259u, 260u, 511u, 512u, 513u, 515u, 600u}) {
        expect_kept<uint8_t, 1>(sent, std::min<std::size_t>(sent % 256, 1));
        expect_kept<uint8_t, 3>(sent, std::min<std::size_t>(sent % 256, 3));
        expect_kept<uint8_t, 255>(sent, std::min<std::size_t>(sent % 256, 255));
        expect_kept<uint16_t, 3>(sent, 3);
        expect_kept<uint32_t, 300>(sent, std::min<std::size_t>(sent, 300));
    }
}

// ---- faults: nothing of the list arrives, nor anything behind it ----

template <std::size_t Slots>
void expect_no_list(const byte_vector &wire, const std::string &what)
{
    EXPECT_EQ((received_bytes<list_rows<uint8_t, Slots>>(wire)), (with_elements<uint8_t, Slots>(0).bytes()))
        << what << ", " << Slots << " slots";
}

void expect_no_list(const byte_vector &wire, const std::string &what)
{
    expect_no_list<1>(wire, what);
    expect_no_list<3>(wire, what);
    expect_no_list<20>(wire, what);
}

TEST(rows_lists, a_fault_in_any_element_clears_all_of_them)
{
    for (std::size_t good = 0; good <= 8; ++good) {
        const std::string after = " after " + std::to_string(good) + " elements";
        for (const char *malformed :
            {"08 05 80", "08 05 7B", "08 05 15 00 00 00 00", "2A 01 61 2A 01 62", "2A 05 61"}) {
            wire_builder wire = list_of(good);
            wire.length_delimited(3, bytes_of(malformed));
            for (std::size_t i = 0; i < 3; ++i)
                wire.length_delimited(3, element(i));
            expect_no_list(wire.varint(4, 9), malformed + after);
        }
    }
}

TEST(rows_lists, an_element_that_is_cut_clears_all_of_them)
{
    for (std::size_t whole = 0; whole <= 8; ++whole) {
        const std::size_t start = list_of(whole).bytes().size();
        const byte_vector wire = list_of(whole + 1);
        for (std::size_t cut = start + 1; cut < wire.size(); ++cut)
            expect_no_list(byte_vector(wire.begin(), wire.begin() + static_cast<std::ptrdiff_t>(cut)),
                "cut at " + std::to_string(cut));
    }
}

TEST(rows_lists, a_tag_that_is_cut_behind_a_list_clears_it)
{
    for (std::size_t elements = 1; elements <= 8; ++elements) {
        for (const char *cut_tag : {"80", "9A", "A0 80", "FF FF FF FF FF"})
            expect_no_list(list_of(elements).raw(cut_tag), cut_tag);
    }
}

TEST(rows_lists, a_fault_behind_a_list_leaves_it)
{
    for (const char *fault : {"25 00 00 00 00", "7B", "20", "20 80"}) {
        EXPECT_EQ(
            (received_bytes<list_rows<uint8_t, 3>>(list_of(2).raw(fault))), (with_elements<uint8_t, 3>(2).bytes()))
            << fault;
        EXPECT_EQ(
            (received_bytes<list_rows<uint8_t, 3>>(list_of(5).raw(fault))), (with_elements<uint8_t, 3>(3).bytes()))
            << fault;
    }
}

TEST(rows_lists, a_second_run_is_refused_and_the_first_stays)
{
    for (const std::size_t elements : {1u, 2u, 3u, 4u, 9u}) {
        auto expected = with_elements<uint8_t, 3>(std::min<std::size_t>(elements, 3));
        expected->after = 9;
        for (const char *second : {"1A 02 08 63", "1A 00", "1A 7F", "1A 05 80 80 80 80 80"}) {
            const wire_builder wire = list_of(elements).varint(4, 9).raw(second).varint(1, 99).varint(4, 98);
            EXPECT_EQ((received_bytes<list_rows<uint8_t, 3>>(wire)), expected.bytes()) << second;
        }
    }
}

TEST(rows_lists, an_unknown_field_ends_a_run_too)
{
    auto expected = with_elements<uint8_t, 3>(2);
    const wire_builder wire = list_of(2).varint(100, 1).length_delimited(3, element(2)).varint(4, 9);
    EXPECT_EQ((received_bytes<list_rows<uint8_t, 3>>(wire)), expected.bytes());
}

// ---- a list of a few numbers each, which are decoded inline ----

struct state {
    uint64_t identifier;
    uint32_t value;
};

struct state_rows {
    using message = mava_tum_rec_session_state;
    using record = state;
    using rows = row_list<number<1, &state::identifier>, number<2, &state::value>>;
};

struct states_record {
    uint32_t before;
    uint8_t count;
    state slots[3];
    uint8_t after;
};

struct states_rows {
    using message = mava_tum_rec_sess_req;
    using record = states_record;
    using rows = row_list<number<1, &record::before>, mava_tum::list<3, &record::slots, &record::count, state_rows>,
        number<6, &record::after>>;
};

wire_builder states(std::size_t elements)
{
    wire_builder wire;
    wire.varint(1, 7);
    for (std::size_t i = 0; i < elements; ++i)
        wire.length_delimited(
            3, i % 2 == 0 ? wire_builder().varint(2, i + 1) : wire_builder().varint(1, i + 1000).varint(3, 5));
    return wire;
}

small_record<states_record> with_states(std::size_t kept)
{
    small_record<states_record> record;
    record->before = 7;
    record->count = static_cast<uint8_t>(kept);
    for (std::size_t i = 0; i < kept; ++i) {
        record->slots[i].identifier = i % 2 == 0 ? 0 : i + 1000;
        record->slots[i].value = i % 2 == 0 ? static_cast<uint32_t>(i + 1) : 0;
    }
    return record;
}

TEST(rows_lists, of_more_states_than_slots_the_first_arrive_each_in_its_own_slot)
{
    for (const std::size_t sent : {0u, 1u, 2u, 3u, 4u, 5u, 6u, 7u, 255u, 256u, 257u, 258u, 259u}) {
        auto expected = with_states(std::min<std::size_t>(sent % 256, 3));
        expected->after = 9;
        EXPECT_EQ(received_bytes<states_rows>(states(sent).varint(6, 9)), expected.bytes()) << sent;
    }
}

TEST(rows_lists, a_fault_in_any_state_or_a_cut_tag_behind_states_clears_all_of_them)
{
    for (std::size_t whole = 0; whole <= 6; ++whole) {
        for (const char *fault : {"1A 02 08 80", "1A 05 08 05 15 00 00", "1A 03 08 05 1B", "1A 7F 08"}) {
            const byte_vector wire = states(whole).raw(fault).raw("1A 02 08 01 30 09");
            EXPECT_EQ(received_bytes<states_rows>(wire), with_states(0).bytes()) << fault << " after " << whole;
        }
        if (whole != 0) {
            EXPECT_EQ(received_bytes<states_rows>(states(whole).raw("80")), with_states(0).bytes()) << whole;
        }
    }
}

// ---- a list of texts ----

struct texts_record {
    uint32_t before;
    uint8_t count;
    char texts[3][6];
    uint32_t after;
};

struct texts_rows {
    using message = mava_tum_sess_svc_start;
    using record = texts_record;
    using rows = row_list<number<2, &texts_record::before>, number<4, &texts_record::after>,
        mava_tum::text_list<5, &texts_record::texts, &texts_record::count>>;
};

wire_builder texts(std::size_t elements)
{
    wire_builder wire;
    wire.varint(2, 7);
    for (std::size_t i = 0; i < elements; ++i)
        wire.text(5, text_of(i));
    return wire;
}

small_record<texts_record> with_texts(std::size_t kept)
{
    small_record<texts_record> record;
    record->before = 7;
    record->count = static_cast<uint8_t>(kept);
    for (std::size_t i = 0; i < kept; ++i) {
        const std::string text = text_of(i).substr(0, 5);
        std::memcpy(record->texts[i], text.data(), text.size());
    }
    return record;
}

TEST(rows_lists, of_more_texts_than_slots_the_first_arrive_each_cut_to_its_own_slot)
{
    for (const std::size_t sent : {0u, 1u, 2u, 3u, 4u, 5u, 6u, 20u, 255u, 256u, 257u, 258u, 259u, 300u, 512u}) {
        auto expected = with_texts(std::min<std::size_t>(sent % 256, 3));
        expected->after = 9;
        EXPECT_EQ(received_bytes<texts_rows>(texts(sent).varint(4, 9)), expected.bytes()) << sent;
    }
}

TEST(rows_lists, a_text_that_is_cut_or_a_cut_tag_behind_texts_clears_all_of_them)
{
    for (std::size_t whole = 0; whole <= 8; ++whole) {
        EXPECT_EQ(received_bytes<texts_rows>(texts(whole).raw("2A 05 61")), with_texts(0).bytes()) << whole;
        if (whole != 0) {
            EXPECT_EQ(received_bytes<texts_rows>(texts(whole).raw("80")), with_texts(0).bytes()) << whole;
        }
    }
}

TEST(rows_lists, a_second_run_of_texts_is_refused_and_the_first_stays)
{
    auto expected = with_texts(2);
    expected->after = 9;
    EXPECT_EQ(received_bytes<texts_rows>(texts(2).varint(4, 9).text(5, "x").varint(4, 8)), expected.bytes());
}

} // namespace
} // namespace mava_tum_test
