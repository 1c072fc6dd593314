// Prints the facts for the pictures from the library: the bytes of a message, and the memory of a decoded one.
//   picture_facts wire      the message of examples/first_session.c, in hex
//   picture_facts memory    a session decoded with and without the alias bit: where each member lies and points to
#include "mava_tum/presence_bits.h"
#include "mava_tum/session_messages.h"
#include "tum_nal/nal_session_context.h"

#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace
{

using byte_vector = std::vector<uint8_t>;

// ---- wire ----

int print_wire()
{
    tum_nal_data_session_context sent = {};
    sent.feature_mask = TUM_NAL_FEATURE_IPV4 | TUM_NAL_FEATURE_MTU_1;
    sent.ipv4_address = 0xC0000211;
    std::strcpy(sent.session_name, "user@example.com");
    sent.mtu_1_value = 1492;
    uint8_t wire[1024];
    const uint64_t size = tum_nal_data_gpb_encode_tum_session_context(&sent, wire, sizeof wire);
    for (uint64_t i = 0; i < size; ++i)
        std::printf("%02X%c", wire[i], i % 16 == 15 || i + 1 == size ? '\n' : ' ');
    return 0;
}

// ---- memory ----

struct block {
    const uint8_t *start;
    uint64_t size;
};

// Allocates from one large array, so that no block is reused.
struct block_list {
    std::vector<block> blocks;
    alignas(16) uint8_t storage[4096];
    uint64_t used = 0;
};

void *take_block(uint64_t size, void *context)
{
    auto &list = *static_cast<block_list *>(context);
    uint8_t *start = list.storage + list.used;
    list.used += (size + 31) / 16 * 16; // a gap after each, so that an empty block also has its own address
    list.blocks.push_back({start, size});
    return start;
}

byte_vector session_wire()
{
    char gold[] = "gold", silver[] = "silver", user[] = "user@example.com";
    uint8_t mark[] = {0xAA, 0xBB, 0xCC, 0xDD};
    mava_tum_subscriber_qos qos[2] = {};
    qos[0].field_1 = 1, qos[0].field_3 = gold,
    qos[0].presence_mask = MAVA_TUM_SUBSCRIBER_QOS_HAS_FIELD_1 | MAVA_TUM_SUBSCRIBER_QOS_HAS_FIELD_3;
    qos[1].field_1 = 2, qos[1].field_3 = silver,
    qos[1].presence_mask = MAVA_TUM_SUBSCRIBER_QOS_HAS_FIELD_1 | MAVA_TUM_SUBSCRIBER_QOS_HAS_FIELD_3;
    mava_tum_session_context session = {};
    session.feature_mask = 1;
    session.field_6 = {mark, sizeof mark};
    session.subscriber_v4.ipv4_address = 0x110200C0; // 192.0.2.17 in network order
    session.subscriber_v4.presence_mask = MAVA_TUM_SUBSCRIBER_V4_HAS_IPV4_ADDRESS;
    session.session_data.field_5 = user;
    session.session_data.presence_mask = MAVA_TUM_SESSION_DATA_HAS_FIELD_5;
    session.qos = qos, session.qos_count = 2;
    session.presence_mask = MAVA_TUM_SESSION_CONTEXT_HAS_FEATURE_MASK | MAVA_TUM_SESSION_CONTEXT_HAS_FIELD_6 |
                            MAVA_TUM_SESSION_CONTEXT_HAS_QOS;
    byte_vector wire(mava_tum_session_context_encode_ext(&session, nullptr, 0, nullptr, nullptr, 0));
    mava_tum_session_context_encode_ext(&session, wire.data(), wire.size(), nullptr, nullptr, 0);
    return wire;
}

// The target of a pointer: "input+7", "block 2".
std::string place_of(const void *pointer, const byte_vector &wire, const block_list &list)
{
    const auto *at = static_cast<const uint8_t *>(pointer);
    if (at >= wire.data() && at < wire.data() + wire.size())
        return "input+" + std::to_string(at - wire.data());
    for (size_t i = 0; i < list.blocks.size(); ++i) {
        if (at == list.blocks[i].start)
            return "block " + std::to_string(i + 1);
    }
    return "-";
}

std::string hex_of(const void *start, size_t size)
{
    std::string hex;
    char digits[4];
    for (size_t i = 0; i < size; ++i) {
        std::snprintf(digits, sizeof digits, "%02X ", static_cast<const uint8_t *>(start)[i]);
        hex += digits;
    }
    hex.resize(hex.empty() ? 0 : hex.size() - 1);
    return hex;
}

// The same on every machine, independent of its byte order.
std::string hex_number(uint32_t number)
{
    char digits[16];
    std::snprintf(digits, sizeof digits, "0x%08X", number);
    return digits;
}

// A row of the table: what contains the member, its name, offset, size and content, and where it points to.
void print_row(const char *where, const char *name, size_t offset, size_t size, const std::string &content,
    const std::string &target)
{
    std::printf("%s\t%s\t%zu\t%zu\t%s\t%s\n", where, name, offset, size, content.c_str(), target.c_str());
}

#define ROW(where, record, type, member, content, target)                                                              \
    print_row(where, #member, offsetof(type, member), sizeof((record).member), content, target)

void print_record(const mava_tum_session_context &session, const byte_vector &wire, const block_list &list)
{
    using record = mava_tum_session_context;
    ROW("record", session, record, feature_mask, std::to_string(session.feature_mask), "-");
    ROW("record", session, record, field_6, "length " + std::to_string(session.field_6.length),
        place_of(session.field_6.data, wire, list));
    ROW("record", session, record, subscriber_v4.ipv4_address, hex_number(session.subscriber_v4.ipv4_address), "-");
    ROW("record", session, record, session_data.field_5, "text", place_of(session.session_data.field_5, wire, list));
    ROW("record", session, record, qos, "array", place_of(session.qos, wire, list));
    ROW("record", session, record, qos_count, std::to_string(session.qos_count), "-");
    ROW("record", session, record, presence_mask, hex_number(session.presence_mask), "-");
}

void print_array(const mava_tum_session_context &session, const byte_vector &wire, const block_list &list)
{
    const std::string where = place_of(session.qos, wire, list);
    for (size_t i = 0; i < session.qos_count; ++i) {
        const mava_tum_subscriber_qos &element = session.qos[i];
        const size_t start = i * sizeof element;
        const std::string name = "qos[" + std::to_string(i) + "].";
        print_row(where.c_str(), (name + "field_1").c_str(), start + offsetof(mava_tum_subscriber_qos, field_1),
            sizeof element.field_1, std::to_string(element.field_1), "-");
        print_row(where.c_str(), (name + "field_3").c_str(), start + offsetof(mava_tum_subscriber_qos, field_3),
            sizeof element.field_3, "text", place_of(element.field_3, wire, list));
    }
}

// The content of a block: an array of records, by its size, a text, or bytes.
std::string content_of(const block &taken, const mava_tum_session_context &session)
{
    if (taken.start == reinterpret_cast<const uint8_t *>(session.qos))
        return "2 x " + std::to_string(sizeof(mava_tum_subscriber_qos));
    if (taken.start == session.field_6.data)
        return hex_of(taken.start, taken.size);
    return "\"" + std::string(reinterpret_cast<const char *>(taken.start)) + "\"";
}

int print_memory()
{
    const byte_vector wire = session_wire();
    for (const uint32_t flags : {uint32_t{0}, uint32_t{MAVA_TUM_ALIAS}}) {
        block_list list;
        mava_tum_session_context session = {}; // a decode keeps the reserved bits of a mask
        if (mava_tum_session_context_decode_ext(&session, wire.data(), wire.size(), take_block, &list, flags) != 0)
            return 1;
        std::puts(flags == 0 ? "# without the alias bit" : "# with the alias bit");
        print_row("input", "whole", 0, wire.size(), hex_of(wire.data(), wire.size()), "-");
        print_row("record", "whole", 0, sizeof session, "mava_tum_session_context", "-");
        print_record(session, wire, list);
        for (size_t i = 0; i < list.blocks.size(); ++i)
            print_row(("block " + std::to_string(i + 1)).c_str(), "whole", 0, list.blocks[i].size,
                content_of(list.blocks[i], session), "-");
        print_array(session, wire, list);
    }
    return 0;
}

} // namespace

int main(int argument_count, char **arguments)
{
    const std::string what = argument_count == 2 ? arguments[1] : "";
    if (what == "wire")
        return print_wire();
    if (what == "memory")
        return print_memory();
    std::fputs("picture_facts wire|memory\n", stderr);
    return 2;
}
