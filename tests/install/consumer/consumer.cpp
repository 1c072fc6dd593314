#include "round_trip.h"

// The requested standard: the library must not raise it. Compilers use different numbers for C++23.
#if CONSUMER_STANDARD == 11
static_assert(__cplusplus == 201103L, "compiled as C++11");
#elif CONSUMER_STANDARD == 17
static_assert(__cplusplus == 201703L, "compiled as C++17");
#elif CONSUMER_STANDARD == 20
static_assert(__cplusplus == 202002L, "compiled as C++20");
#elif CONSUMER_STANDARD == 23
static_assert(__cplusplus > 202002L, "compiled as C++23");
#else
#error "CONSUMER_STANDARD is not known"
#endif

int main()
{
    return round_trip();
}
