// How often this program has asked for memory of the heap. It is linked with --wrap for each function that can.
#pragma once

#include <cstddef>

namespace mava_tum_test
{

std::size_t heap_calls();

} // namespace mava_tum_test
