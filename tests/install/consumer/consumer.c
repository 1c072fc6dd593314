#include "round_trip.h"

/* The requested standard: the library must not raise it. */
#if CONSUMER_STANDARD == 11
_Static_assert(__STDC_VERSION__ == 201112L, "compiled as C11");
#elif CONSUMER_STANDARD == 17
_Static_assert(__STDC_VERSION__ == 201710L, "compiled as C17");
#else
#error "CONSUMER_STANDARD is not known"
#endif

int main(void)
{
    return round_trip();
}
