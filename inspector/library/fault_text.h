// The sentence with the reason and place of a failed decode.
#pragma once

#include "inspector/library/text_builder.h"
#include "inspector/library/wire_event.h"
#include "mava_tum_inspect.h"

namespace mava_tum_inspect
{

using sentence = text_builder<MAVA_TUM_INSPECT_SENTENCE_BYTES>;

// "`field_3` occurs in a second, separate run at byte 41: result -1"
void describe_fault(sentence &text, const wire_fault &fault);

// The field with the fault: the array if the rule is about an array, the record if a tag is truncated.
void describe_fault_path(path_text &path, const wire_fault &fault);

// "varint", "length-delimited", ..., "wire type 6".
const char *wire_type_name(uint32_t wire_type);

} // namespace mava_tum_inspect
