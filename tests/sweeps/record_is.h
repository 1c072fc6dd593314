// Lets one function template be written per record type, for the record and the constant record alike.
#pragma once

#include <concepts>
#include <type_traits>

namespace mava_tum_test
{

template <class type, class record_type>
concept record_is = std::same_as<std::remove_const_t<type>, record_type>;

} // namespace mava_tum_test
