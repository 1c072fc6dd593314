// Wire bytes of a message from JSON: a codec record is filled from it and encoded by the library.
#pragma once

#include "inspector/library/message_table.h"
#include "json/json_values.h"

namespace mava_tum_cli
{

// `document` is an object that names the fields that are present, or one that has such an object as its member "record"
// (what `decode --json` prints). Throws bad_use that names the path of what is wrong.
byte_vector encode_json(const mava_tum_inspect::message_description &message, const json &document);

} // namespace mava_tum_cli
