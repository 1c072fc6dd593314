// The parts of compare_session that have a file of their own. The rules: session_compare.h.
#ifndef SESSION_SETUP_COMPARE_PARTS_H
#define SESSION_SETUP_COMPARE_PARTS_H

#include "member_check.h"
#include "tum_nal/nal_session_context.h"

namespace examples::session_setup
{

void compare_access(member_check &check, const subscriber &who, const tum_nal_data_session_context &received);
void compare_features(member_check &check, const subscriber &who, const tum_nal_data_session_context &received);
void compare_qos(member_check &check, const subscriber &who, const tum_nal_data_session_context &received);
void compare_routes(member_check &check, const subscriber &who, const tum_nal_data_session_context &received);

} // namespace examples::session_setup

#endif
