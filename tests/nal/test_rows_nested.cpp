// A nested record that occurs twice arrives as its last occurrence alone, with its values among those of its parent or
// in a separate member.
#include "messages/session_messages_schema.h"
#include "nal/rows.h"
#include "nal/small_records.h"
#include "support/wire_builder.h"

#include <gtest/gtest.h>

namespace mava_tum_test
{
namespace
{

using mava_tum::number;
using mava_tum::row_list;

// ---- statistics: a number, nested numbers, a list with texts and nested numbers ----

struct service {
    char name[8];
    uint32_t counter;
};

template <class Record, auto Member>
struct counter_rows {
    using message = mava_tum_stats;
    using record = Record;
    using rows = row_list<number<3, Member>>;
};

struct service_rows {
    using message = mava_tum_service_stats;
    using record = service;
    using rows =
        row_list<mava_tum::text<1, &service::name>, mava_tum::nested<2, counter_rows<service, &service::counter>>>;
};

template <class Record>
struct statistics_rows {
    using message = mava_tum_subscriber_stats;
    using record = Record;
    using rows = row_list<number<2, &Record::value>, mava_tum::nested<7, counter_rows<Record, &Record::counter>>,
        mava_tum::list<8, &Record::services, &Record::count, service_rows>,
        mava_tum::nested<10, counter_rows<Record, &Record::counter_10>>,
        mava_tum::nested<12, counter_rows<Record, &Record::counter_12>>>;
};

// Its members are between those of the parent.
struct spread_record {
    uint32_t first;
    uint8_t count;
    uint32_t value;
    uint32_t last;
    service services[2];
    uint32_t counter;
    uint32_t counter_10;
    uint32_t counter_12;
};

struct spread_rows {
    using message = mava_tum_sess_oper_resp;
    using record = spread_record;
    using rows = row_list<number<1, &record::first>, number<2, &record::last>,
        mava_tum::nested<9, statistics_rows<spread_record>>>;
};

struct statistics {
    uint32_t value;
    uint32_t counter;
    uint32_t counter_10;
    uint32_t counter_12;
    uint8_t count;
    service services[2];
};

struct member_record {
    uint32_t first;
    statistics nested;
    uint32_t last;
};

struct member_rows {
    using message = mava_tum_sess_oper_resp;
    using record = member_record;
    using rows = row_list<number<1, &record::first>, number<2, &record::last>,
        mava_tum::nested_in<9, &record::nested, statistics_rows<statistics>>>;
};

const char *const whole_statistics[] = {
    "",
    "10 05",
    "3A 02 18 06",
    "42 07 0A 01 61 12 02 18 07",
    "42 00 42 03 0A 01 62 42 05 0A 03 63 63 63",
    "10 05 3A 02 18 06 42 0A 0A 04 61 61 61 61 12 02 18 07 42 02 12 00 52 02 18 08 62 02 18 09",
};

const char *const faulty_statistics[] = {
    "80",
    "10 08 15",
    "10 08 3A 03 18 09 80",
    "3A 02 18 06 42 03 0A 01 78 42 01 0A",
    "42 03 0A 01 78 10 08 42 03 0A 01 79",
};

// Fields of the parent are between the two, and stay.
template <class Rows>
void expect_the_last_one(uint32_t field, const char *earlier, const char *last)
{
    const byte_vector fields = bytes_of("08 07 10 09 9A 06 00");
    const byte_vector once = wire_builder().raw(fields).length_delimited(field, bytes_of(last)).raw("10 0B");
    const byte_vector twice = wire_builder()
                                  .length_delimited(field, bytes_of(earlier))
                                  .raw(fields)
                                  .length_delimited(field, bytes_of(last))
                                  .raw("10 0B");
    const byte_vector thrice = wire_builder().length_delimited(field, bytes_of(earlier)).raw(twice);
    EXPECT_EQ(received_bytes<Rows>(twice), received_bytes<Rows>(once)) << earlier << ", then " << last;
    EXPECT_EQ(received_bytes<Rows>(thrice), received_bytes<Rows>(once)) << earlier << ", then " << last;
}

template <class Rows>
void expect_the_last_statistics()
{
    for (const char *earlier : whole_statistics) {
        for (const char *last : whole_statistics)
            expect_the_last_one<Rows>(9, earlier, last);
        for (const char *last : faulty_statistics)
            expect_the_last_one<Rows>(9, earlier, last);
    }
}

TEST(rows_nested, of_a_record_spread_over_its_parent_that_occurs_twice_the_last_arrives)
{
    expect_the_last_statistics<spread_rows>();
}

TEST(rows_nested, of_a_record_in_a_member_that_occurs_twice_the_last_arrives)
{
    expect_the_last_statistics<member_rows>();
}

TEST(rows_nested, all_members_of_a_spread_record_are_cleared_and_those_of_its_parent_are_not)
{
    small_record<spread_record> expected;
    expected->first = 7;
    expected->last = 9;
    expected->value = 5;
    const byte_vector wire = wire_builder()
                                 .raw("08 07")
                                 .length_delimited(9, bytes_of(whole_statistics[5]))
                                 .raw("10 09")
                                 .length_delimited(9, bytes_of("10 05"));
    EXPECT_EQ(received_bytes<spread_rows>(wire), expected.bytes());
}

// ---- texts and octets: each may occur once in an occurrence of its record, and again in the next ----

struct names_record {
    char name[8];
    uint32_t kind;
    uint8_t identifier[4];
    char label[8];
    uint8_t address[4];
    uint32_t value;
    uint32_t vlan;
};

struct tunnel_rows {
    using message = mava_tum_l2tp_data;
    using record = names_record;
    using rows =
        row_list<number<1, &record::kind>, mava_tum::octets<4, &record::address>, mava_tum::text<19, &record::label>>;
};

struct access_rows {
    using message = mava_tum_ppp_data;
    using record = names_record;
    using rows = row_list<number<6, &record::value>>;
};

struct vlan_rows {
    using message = mava_tum_vlan_info;
    using record = names_record;
    using rows = row_list<number<1, &record::vlan>>;
};

struct names_rows {
    using message = mava_tum_session_data;
    using record = names_record;
    using rows = row_list<mava_tum::nested<3, access_rows>, mava_tum::nested<4, tunnel_rows>,
        mava_tum::text<5, &record::name>, mava_tum::octets<6, &record::identifier>, mava_tum::nested<10, vlan_rows>>;
};

const char *const tunnels[] = {
    "",
    "08 05",
    "22 04 A1 A2 A3 A4",
    "22 01 EE",
    "9A 01 07 61 61 61 61 61 61 61",
    "9A 01 02 62 00",
    "08 05 22 02 B1 B2 9A 01 03 63 63 63",
};

const char *const faulty_tunnels[] = {
    "22 02 C1 C2 80",
    "9A 01 01 63 9A 01 01 64", // a second text
    "22 01 C3 22 01 C4",       // a second address
    "08 06 9A 01 05 65",
};

void expect_the_last_tunnel(const char *earlier, const char *last)
{
    // The fields around the tunnel stay.
    const byte_vector around = bytes_of("1A 02 30 03 2A 02 61 62 32 02 D1 D2 52 02 08 04");
    const byte_vector once = wire_builder().raw(around).length_delimited(4, bytes_of(last));
    const byte_vector twice =
        wire_builder().length_delimited(4, bytes_of(earlier)).raw(around).length_delimited(4, bytes_of(last));
    EXPECT_EQ(received_bytes<names_rows>(twice), received_bytes<names_rows>(once)) << earlier << ", then " << last;
}

TEST(rows_nested, of_texts_and_octets_in_records_that_occur_twice_the_last_arrive)
{
    for (const char *earlier : tunnels) {
        for (const char *last : tunnels)
            expect_the_last_tunnel(earlier, last);
        for (const char *last : faulty_tunnels)
            expect_the_last_tunnel(earlier, last);
    }
}

TEST(rows_nested, of_a_record_with_texts_that_occurs_twice_only_its_own_members_are_cleared)
{
    small_record<names_record> expected;
    std::memcpy(expected->name, "ab", 2);
    expected->address[0] = 0xA1;
    const byte_vector wire =
        wire_builder().raw("22 08 08 05 9A 01 03 61 61 61").raw("2A 02 61 62").raw("22 03 22 01 A1");
    EXPECT_EQ(received_bytes<names_rows>(wire), expected.bytes());
}

} // namespace
} // namespace mava_tum_test
