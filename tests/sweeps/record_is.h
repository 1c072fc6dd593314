// A concept for function templates per record type, const or not.
#pragma once

#include <concepts>
#include <type_traits>

namespace mava_tum_test
{

template <class type, class record_type>
concept record_is = std::same_as<std::remove_const_t<type>, record_type>;

} // namespace mava_tum_test
