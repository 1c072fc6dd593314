// The one copy of a received text into a char array of an application record.
#pragma once

#include <cstddef>
#include <cstring>

namespace mava_tum
{

// Copies `text` up to its NUL, at most `limit - 1` characters, and terminates it. What follows in the array stays as it
// is: zero, since a decode adapter clears its record first. Not snprintf, which walks the whole text however little of
// it fits and gives up on one of more than INT_MAX characters.
inline void copy_bounded_text(char *array, size_t limit, const char *text)
{
    const size_t kept = strnlen(text, limit - 1);
    memcpy(array, text, kept);
    array[kept] = '\0';
}

} // namespace mava_tum
