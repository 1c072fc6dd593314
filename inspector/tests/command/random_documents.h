// Random JSON of messages and of application records, as `decode --json` and `app ... decode` print it.
#pragma once

#include "app/record_json.h"
#include "inspector/library/message_table.h"
#include "json/json_values.h"

#include <random>

namespace mava_tum_test
{

using mava_tum_cli::json;

class random_documents
{
public:
    explicit random_documents(uint32_t seed) : m_random(seed) {}

    // Fields are in order; each is there with a chance of one half.
    json message(const mava_tum_inspect::message_description &message);

    // Every member.
    json record(const mava_tum_cli::record_layout &layout);

    // Mostly small, of all sizes that matter.
    uint64_t number(unsigned bits);

private:
    json field(const mava_tum_inspect::field_description &field);
    json member(const mava_tum_cli::record_member &member);
    json elements(const mava_tum_cli::record_member &member);
    json text(size_t longest);
    json bytes(size_t count);
    json ipv4();
    json ipv6();
    size_t below(size_t limit);

    std::mt19937 m_random;
};

} // namespace mava_tum_test
