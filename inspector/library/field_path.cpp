#include "inspector/library/field_path.h"

namespace mava_tum_inspect
{

void append_step(path_text &text, const path_step &step)
{
    if (step.field == nullptr) {
        text.add("#").add_number(step.number);
        return;
    }
    text.add(step.field->name);
    if (step.index != path_step::no_index)
        text.add("[").add_number(step.index).add("]");
}

void append_path(path_text &text, const path_step *step)
{
    if (step == nullptr)
        return;
    append_path(text, step->parent);
    if (step->parent != nullptr)
        text.add(".");
    append_step(text, *step);
}

void append_pointer(path_text &text, const path_step &step)
{
    if (step.parent != nullptr)
        append_pointer(text, *step.parent);
    text.add("/");
    if (step.field == nullptr)
        text.add("#").add_number(step.number);
    else
        text.add(step.field->name);
    if (step.index != path_step::no_index)
        text.add("/").add_number(step.index);
}

} // namespace mava_tum_inspect
