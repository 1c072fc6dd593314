// A session through the classes of the C++ layer: filled, encoded, decoded into a buffer without a call of the heap,
// and read field by field. Nothing has to be freed by hand. Prints what came back, and the segments of a record for
// writev(); then what a decode into a buffer that is too small says.
#include "mava_tum/cpp/ipv4.hpp"
#include "mava_tum/cpp/session_messages.hpp"

#include <array>
#include <cstdio>
#include <string>
#include <sys/uio.h>

namespace tum = mava_tum::cpp;

namespace
{

// Empty if there was no memory. Wire bytes can be in any container of bytes.
std::string make_message()
{
    tum::session_context session;
    session.set_feature_mask(5);
    session.edit_subscriber_v4().set_ipv4_address(tum::address_of({192, 0, 2, 1}));
    if (session.edit_session_data().set_field_5("user@example.com") != tum::result::ok)
        return {};
    std::uint32_t number = 0;
    for (auto qos : session.make_qos(2))
        qos.set_field_1(++number);
    if (session.edit_session_data().edit_ppp().set_field_5(std::string(9, '#')) != tum::result::ok)
        return {};
    std::string wire;
    session.encode_to(wire);
    return wire;
}

// All fields of a record that is absent are absent: no need to ask for each record on the way.
void print(const tum::session_context_view &session)
{
    std::printf("name: %s\n", session.session_data().field_5().value_or("(none)").data());
    std::printf("VLAN: %u\n", session.session_data().vlan().field_1().value_or(0));
    if (const auto address = session.subscriber_v4().ipv4_address()) {
        const tum::ipv4_octets octets = tum::octets_of(*address);
        std::printf("address: %u.%u.%u.%u\n", octets[0], octets[1], octets[2], octets[3]);
    }
    for (const auto qos : session.qos())
        std::printf("QoS: %u\n", qos.field_1().value_or(0));
    std::uint8_t buffer[32];
    for (const iovec &segment : session.session_data().ppp().gather<iovec>(buffer))
        std::printf("segment: %zu bytes\n", segment.iov_len);
}

// The buffer is all the memory that the message can get.
template <std::size_t size>
tum::result receive(const std::string &wire)
{
    std::array<std::byte, size> buffer;
    std::pmr::monotonic_buffer_resource resource(buffer.data(), buffer.size(), std::pmr::null_memory_resource());
    tum::session_context session(tum::memory(tum::monotonic, &resource));
    const tum::result result = session.decode(tum::alias, wire);
    const std::string_view text = tum::text_of(result);
    std::printf("decode into %zu bytes: %.*s\n", size, static_cast<int>(text.size()), text.data());
    if (result == tum::result::ok)
        print(session);
    return result;
}

} // namespace

int main()
{
    const std::string wire = make_message();
    std::printf("%zu bytes\n", wire.size());
    const bool decoded = receive<1024>(wire) == tum::result::ok;
    const bool refused = receive<64>(wire) == tum::result::no_memory;
    if (!decoded || !refused)
        std::fputs("session_in_cpp: not the results that were expected\n", stderr);
    return decoded && refused ? 0 : 1;
}
