/* One translation unit for each public header, made at configure time: the header must need nothing before it. */
#include "@PUBLIC_HEADER@"
#include "@PUBLIC_HEADER@" /* a second time: the include guard holds */

typedef int a_header_of_macros_is_no_translation_unit;
