#include "peers/protozero/protozero_records.h"

namespace bench
{
namespace
{

using application = tum_nal_data_session_context;

void read_qos(pbf_reader message, tum_nal_data_qos_element &entry)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, entry.value_1);
            break;
        case 2:
            read_value(message, entry.value_2);
            break;
        case 3:
            read_text(message, entry.text_3);
            break;
        case 4:
            read_text(message, entry.text_4);
            break;
        case 5:
            read_text(message, entry.text_5);
            break;
        case 6:
            read_value(message, entry.value_6);
            break;
        case 7:
            read_value(message, entry.value_7);
            break;
        case 8:
            read_value(message, entry.value_8);
            break;
        case 10:
            read_text(message, entry.text_10);
            break;
        case 11:
            read_text(message, entry.text_11);
            break;
        case 12:
            read_text(message, entry.text_12);
            break;
        default:
            message.skip();
        }
    }
}

void read_acl(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.acl_value_1);
            break;
        case 2:
            read_text(message, record.acl_text_2);
            break;
        case 3:
            read_text(message, record.acl_text_3);
            break;
        case 4:
            read_text(message, record.acl_text_4);
            break;
        case 5:
            read_text(message, record.acl_text_5);
            break;
        default:
            message.skip();
        }
    }
}

void read_redirect(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.redirect_value_1);
            break;
        case 2:
            read_text(message, record.redirect_text_2);
            break;
        default:
            message.skip();
        }
    }
}

void read_intercept(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.intercept_value_1);
            break;
        case 2:
            read_value(message, record.intercept_value_2);
            break;
        case 3:
            read_value(message, record.intercept_value_3);
            break;
        case 4:
            read_bytes(message, record.intercept_identifier);
            break;
        case 5:
            read_value(message, record.intercept_value_5);
            break;
        case 6:
            read_value(message, record.intercept_value_6);
            break;
        case 7:
            record.intercept_ipv4_address = read_ipv4(message);
            break;
        case 8:
            read_bytes(message, record.intercept_ipv6_address);
            break;
        default:
            message.skip();
        }
    }
}

// Up to three numbers: path checks, ICMP, MTU and accounting.
template <class... Values>
void read_numbers(pbf_reader message, Values &...values)
{
    uint32_t *const value_of_tag[] = {&values...};
    while (message.next()) {
        if (message.tag() <= sizeof...(values))
            *value_of_tag[message.tag() - 1] = message.get_uint32();
        else
            message.skip();
    }
}

template <class Entry, size_t Slots, class Read>
void read_entry(pbf_reader &message, Entry (&entries)[Slots], uint8_t &count, Read read)
{
    if (count < Slots)
        read(message.get_message(), entries[count++]);
    else
        message.skip();
}

void read_checks(pbf_reader &message, application &record)
{
    switch (message.tag()) {
    case 15:
        read_numbers(message.get_message(), record.urpf_1_value_1, record.urpf_1_value_2);
        break;
    case 16:
        read_numbers(message.get_message(), record.urpf_2_value_1, record.urpf_2_value_2);
        break;
    case 17:
        read_numbers(message.get_message(), record.icmp_1_value);
        break;
    case 18:
        read_numbers(message.get_message(), record.icmp_2_value);
        break;
    case 19:
        read_numbers(message.get_message(), record.mtu_1_value);
        break;
    case 20:
        read_numbers(message.get_message(), record.mtu_2_value);
        break;
    case 21:
        read_numbers(message.get_message(), record.mtu_3_value);
        break;
    case 22:
        read_numbers(
            message.get_message(), record.accounting_flags, record.accounting_value_2, record.accounting_value_3);
        break;
    default:
        message.skip();
    }
}

} // namespace

void read_record(pbf_reader message, tum_nal_data_session_context &record)
{
    const auto read_each_route = [](pbf_reader nested, auto &route) { read_route(nested, route); };
    std::memset(&record, 0, sizeof record);
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.session_value_1);
            break;
        case 2:
            read_value(message, record.session_value_2);
            break;
        case 3:
            read_value(message, record.session_value_3);
            break;
        case 4:
            read_value(message, record.session_value_4);
            break;
        case 5:
            read_value(message, record.feature_mask);
            break;
        case 7:
            read_value(message, record.session_value_7);
            break;
        case 8:
            read_v4(message.get_message(), record);
            break;
        case 9:
            read_v6(message.get_message(), record);
            break;
        case 10:
            read_session_data(message.get_message(), record);
            break;
        case 11:
            read_entry(message, record.qos, record.qos_count, read_qos);
            break;
        case 12:
            read_acl(message.get_message(), record);
            break;
        case 13:
            read_redirect(message.get_message(), record);
            break;
        case 14:
            read_intercept(message.get_message(), record);
            break;
        case 23:
            read_entry(message, record.ipv4_routes, record.ipv4_route_count, read_each_route);
            break;
        case 24:
            read_entry(message, record.ipv6_routes, record.ipv6_route_count, read_each_route);
            break;
        default:
            read_checks(message, record);
        }
    }
}

} // namespace bench
