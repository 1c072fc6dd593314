// The text arrays of the application records.
#ifndef RECONCILIATION_TEXT_MEMBER_H
#define RECONCILIATION_TEXT_MEMBER_H

#include <cstdio>
#include <string_view>

namespace examples::reconciliation
{

// What does not fit is cut; the array always ends in NUL, which the encode adapters rely on.
template <size_t Size>
void set_text(char (&array)[Size], std::string_view text)
{
    std::snprintf(array, Size, "%.*s", static_cast<int>(text.size()), text.data());
}

} // namespace examples::reconciliation

#endif
