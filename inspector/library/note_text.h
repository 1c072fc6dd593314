// The notes on a field that is accepted out of leniency, or whose value is lost.
#pragma once

#include "inspector/library/fault_text.h"
#include "inspector/library/wire_event.h"

namespace mava_tum_inspect
{

// In the order of the notes.
inline constexpr note all_notes[] = {note::over_long_tag, note::cut_tag, note::wire_type_in_run, note::unknown_field,
    note::number_zero, note::over_long_length, note::cut_length, note::over_long_value, note::cut_value,
    note::beyond_end, note::replaced_value, note::replaced_record, note::nul_in_text, note::no_utf8, note::no_address};

// `data` is the whole message.
void describe_note(sentence &text, note told, const occurrence &at, const uint8_t *data);

} // namespace mava_tum_inspect
