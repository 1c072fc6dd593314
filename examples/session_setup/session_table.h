// Received sessions as a table that a person can read.
#ifndef SESSION_SETUP_SESSION_TABLE_H
#define SESSION_SETUP_SESSION_TABLE_H

#include "tum_nal/nal_session_context.h"

#include <cstddef>
#include <string>
#include <vector>

namespace examples::session_setup
{

class session_table
{
public:
    session_table();
    void add(const tum_nal_data_session_context &session, size_t wire_bytes);
    std::string text() const;

private:
    std::vector<std::vector<std::string>> m_rows; // the first one is the heading
};

} // namespace examples::session_setup

#endif
