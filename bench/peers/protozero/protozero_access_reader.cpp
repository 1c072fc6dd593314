#include "peers/protozero/protozero_records.h"

namespace bench
{

using application = tum_nal_data_session_context;

void read_v4(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.ipv4_value_1);
            break;
        case 2:
            record.ipv4_address = read_ipv4(message);
            break;
        default:
            message.skip();
        }
    }
}

void read_v6(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.ipv6_value_1);
            break;
        case 2:
            read_bytes(message, record.ipv6_part_2);
            break;
        case 3:
            read_bytes(message, record.ipv6_part_3);
            break;
        case 4:
            read_bytes(message, record.ipv6_part_4);
            break;
        case 5:
            read_value(message, record.ipv6_value_5);
            break;
        case 6:
            read_bytes(message, record.ipv6_part_6);
            break;
        case 7:
            read_value(message, record.ipv6_value_7);
            break;
        default:
            message.skip();
        }
    }
}

namespace
{

void read_ppp(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.ppp_value_1);
            break;
        case 2:
            read_value(message, record.ppp_value_2);
            break;
        case 3:
            read_value(message, record.ppp_value_3);
            break;
        case 4:
            read_value(message, record.ppp_value_4);
            break;
        case 5:
            read_bytes(message, record.ppp_identifier);
            break;
        case 6:
            read_value(message, record.ppp_value_6);
            break;
        default:
            message.skip();
        }
    }
}

void read_l2tp(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.l2tp_kind);
            break;
        case 2:
            record.l2tp_ipv4_2 = read_ipv4(message);
            break;
        case 3:
            record.l2tp_ipv4_3 = read_ipv4(message);
            break;
        case 4:
            read_bytes(message, record.l2tp_ipv6_4);
            break;
        case 5:
            read_bytes(message, record.l2tp_ipv6_5);
            break;
        case 6:
            read_value(message, record.l2tp_value_6);
            break;
        case 7:
            read_value(message, record.l2tp_value_7);
            break;
        case 8:
            read_value(message, record.l2tp_value_8);
            break;
        case 9:
            read_value(message, record.l2tp_value_9);
            break;
        case 10:
            read_value(message, record.l2tp_value_10);
            break;
        case 11:
            read_value(message, record.l2tp_value_11);
            break;
        case 12:
            read_value(message, record.l2tp_value_12);
            break;
        case 13:
            read_value(message, record.l2tp_value_13);
            break;
        case 14:
            read_value(message, record.l2tp_value_14);
            break;
        case 15:
            read_value(message, record.l2tp_value_15);
            break;
        case 16:
            read_value(message, record.l2tp_value_16);
            break;
        case 17:
            read_value(message, record.l2tp_value_17);
            break;
        case 18:
            read_value(message, record.l2tp_value_18);
            break;
        case 19:
            read_text(message, record.l2tp_name);
            break;
        default:
            message.skip();
        }
    }
}

void read_vlan(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.vlan_value_1);
            break;
        case 2:
            read_value(message, record.vlan_value_2);
            break;
        default:
            message.skip();
        }
    }
}

} // namespace

void read_session_data(pbf_reader message, application &record)
{
    while (message.next()) {
        switch (message.tag()) {
        case 1:
            read_value(message, record.session_data_value_1);
            break;
        case 2:
            record.session_data_value_2 = message.get_uint64();
            break;
        case 3:
            read_ppp(message.get_message(), record);
            break;
        case 4:
            read_l2tp(message.get_message(), record);
            break;
        case 5:
            read_text(message, record.session_name);
            break;
        case 6:
            read_bytes(message, record.session_identifier);
            break;
        case 7:
            read_text(message, record.session_label);
            break;
        case 8:
            read_text(message, record.session_text);
            break;
        case 9:
            read_value(message, record.session_value_9);
            break;
        case 10:
            read_vlan(message.get_message(), record);
            break;
        case 11:
            read_value(message, record.session_data_value_11);
            break;
        default:
            message.skip();
        }
    }
}

} // namespace bench
