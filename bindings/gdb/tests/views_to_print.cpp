// Classes of the C++ layer, for gdb to print. It stops in look().
#include "mava_tum/cpp/mava_tum.hpp"

namespace tum = mava_tum::cpp;

namespace
{

volatile std::size_t looked_at;

void look(const tum::session_context *owner, tum::session_data_view view, tum::subscriber_qos_list list,
    tum::subscriber_mtu_view absent, tum::session_data_editor editor, tum::text_list texts, tum::bytes_view bytes)
{
    looked_at = owner->encoded_size() + view.encoded_size() + list.size() + absent.encoded_size() +
                editor.encoded_size() + texts.size() + bytes.size();
}

} // namespace

int main()
{
    tum::session_context session;
    session.set_field_1(7);
    session.edit_session_data().edit_vlan().set_field_1(100);
    const auto qos = session.make_qos(2);
    tum::sess_svc_start services;
    const std::string_view names[] = {"voice", "video"};
    const std::uint8_t bytes[] = {1, 2, 255};
    if (qos.size() != 2 || qos[0].set_field_3("gold") != tum::result::ok ||
        services.set_field_5(names) != tum::result::ok)
        return 1;
    look(&session, session.session_data(), session.qos(), session.mtu_1(), session.edit_session_data(),
        services.field_5(), bytes);
}
