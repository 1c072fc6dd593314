// A replay is rebuilt with one session changed. A keeper has stored the last replay as wire bytes; now a subscriber
// gets another VLAN and a QoS entry. Another replay has only what changed, and a session of its own. Nothing calls C.
// Prints both replays.
#include "mava_tum/cpp/reconciliation.hpp"

#include <cstdio>
#include <string>

namespace tum = mava_tum::cpp;

namespace
{

tum::result add_session(tum::rec_sess_replay_req &replay, std::string_view name, std::uint32_t vlan)
{
    auto session = replay.add_field_4(); // an optional editor: nothing if there is no memory
    if (!session)
        return tum::result::no_memory;
    session->edit_session_data().edit_vlan().set_field_1(vlan);
    return session->edit_session_data().set_field_5(name);
}

// True if the session has a new VLAN and a QoS entry more.
bool change(tum::session_context_editor session)
{
    session.edit_session_data().edit_vlan().set_field_1(200);
    auto qos = session.add_qos();
    return qos && qos->set_field_3("gold") == tum::result::ok;
}

void print(const char *title, const tum::rec_sess_replay_req &replay)
{
    std::printf("%s, %u:\n", title, replay.field_1().value_or(0));
    for (const auto session : replay.field_4()) {
        const auto data = session.session_data();
        std::printf("  %s, VLAN %u, %zu QoS entries\n", data.field_5().value_or("(none)").data(),
            data.vlan().field_1().value_or(0), session.qos().size());
    }
}

} // namespace

int main()
{
    tum::rec_sess_replay_req made;
    made.set_field_1(1);
    bool done = true;
    for (const char *name : {"ann@example.com", "bob@example.com", "eve@example.com"})
        done = done && add_session(made, name, 100) == tum::result::ok;
    std::string stored; // any container of bytes
    made.encode_to(stored);

    tum::rec_sess_replay_req last, current;
    done = done && last.decode(stored) == tum::result::ok && current.copy_from(last) == tum::result::ok;
    for (auto session : current.edit_field_4())
        if (session.session_data().field_5() == "bob@example.com")
            done = done && change(session);
    print("stored replay, changed", current);

    tum::rec_sess_replay_req update;
    update.set_field_1(2);
    for (std::size_t i = 0; i < current.field_4().size(); ++i)
        if (current.field_4()[i] != last.field_4()[i]) // compares contents
            done = done && update.add_field_4()->copy_from(current.field_4()[i]) == tum::result::ok;
    const auto kept = last.field_4()[0].clone(); // outlives its replay
    last.clear();
    done = done && kept && update.add_field_4()->copy_from(*kept) == tum::result::ok;
    print("replay of what changed", update);

    done = done && current.compact() == tum::result::ok; // releases what was replaced: for a record that is kept
    if (!done)
        std::fputs("replay_in_cpp: no memory\n", stderr);
    return done ? 0 : 1;
}
