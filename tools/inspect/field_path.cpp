#include "inspect/field_path.h"

namespace mava_tum_inspect
{

namespace
{

bool is_array(const field_description &field)
{
    return field.kind == field_kind::record_array || field.kind == field_kind::text_array;
}

} // namespace

void append_path(path_text &text, const path_step *step)
{
    if (step == nullptr)
        return;
    append_path(text, step->parent);
    if (step->parent != nullptr)
        text.add(".");
    if (step->field == nullptr) {
        text.add("#").add_number(step->number);
        return;
    }
    text.add(step->field->name);
    if (is_array(*step->field))
        text.add("[").add_number(step->index).add("]");
}

} // namespace mava_tum_inspect
