// The parameter of a setter of a number. A number of another type could lose bits or its sign unnoticed, so the
// compiler rejects it:
//
//     vlan.set_field_1(5);             // a constant that is not negative
//     vlan.set_field_1(number);        // std::uint32_t, or an unsigned type that is narrower
//     vlan.set_field_1(std::nullopt);  // absent
//     vlan.set_field_1(number_64);     // does not compile
//     vlan.set_field_1(-1);            // nor this
//
// C++20 and clang know a constant from a variable. So does g++ in C++17 when it optimises; when it does not, an int is
// accepted, and a negative one ends the program.
#ifndef MAVA_TUM_CPP_EXACT_NUMBER_HPP
#define MAVA_TUM_CPP_EXACT_NUMBER_HPP
// SPDX-License-Identifier: Apache-2.0

#include <cstdint>
#include <cstdlib>
#include <optional>
#include <type_traits>

namespace mava_tum::cpp
{

// ---- which types are accepted --------------------------------------------------------------------------------------

// One of the types.
template <class Given, class... Types>
inline constexpr bool is_one_of = (std::is_same_v<Given, Types> || ...);

// Not for characters and truth values, which are unsigned here and there. An enumeration without `class` counts as the
// type that it is made of.
template <class Given, class Number>
constexpr bool fits_exactly() noexcept
{
    if constexpr (std::is_enum_v<Given> && std::is_convertible_v<Given, Number>)
        return fits_exactly<std::underlying_type_t<Given>, Number>();
    else
        return is_one_of<Given, unsigned char, unsigned short, unsigned int, unsigned long, unsigned long long> &&
               sizeof(Given) <= sizeof(Number);
}

// ---- what is called for an int that is refused ---------------------------------------------------------------------

#if defined(__cpp_consteval)
void the_number_is_negative(); // not a constant expression, which ends the compilation
#elif !defined(__clang__) && defined(__OPTIMIZE__)
[[gnu::error("the number may be negative: convert it to the type of the field first")]] void
the_number_may_be_negative();
#endif

// Number is std::uint32_t or std::uint64_t.
template <class Number>
class exact_number
{
    template <class Given>
    using if_it_fits = std::enable_if_t<fits_exactly<Given, Number>()>;

public:
    // Absent.
    constexpr exact_number() noexcept = default;

    // Absent.
    constexpr exact_number(std::nullopt_t) noexcept {}

    // A number of the type of the field, or of a narrower one.
    template <class Given, class = if_it_fits<Given>>
    constexpr exact_number(Given number) noexcept : number_(number), is_present_(true)
    {
    }

    // What a getter returns.
    template <class Given, class = if_it_fits<Given>>
    constexpr exact_number(const std::optional<Given> &number) noexcept
        : number_(number.value_or(0)), is_present_(number.has_value())
    {
    }

#if defined(__cpp_consteval)
    // A constant.
    consteval exact_number(int constant) noexcept : number_(static_cast<Number>(constant)), is_present_(true)
    {
        if (constant < 0)
            the_number_is_negative();
    }
#elif defined(__clang__)
#pragma clang diagnostic push
#pragma clang diagnostic ignored "-Wgcc-compat"
    // A constant.
    constexpr exact_number(int constant) noexcept __attribute__((enable_if(constant >= 0, "it is not negative")))
    : number_(static_cast<Number>(constant)), is_present_(true)
    {
    }
#pragma clang diagnostic pop
#else
    // A constant.
    [[gnu::always_inline]] exact_number(int constant) noexcept
        : number_(static_cast<Number>(constant)), is_present_(true)
    {
#if defined(__OPTIMIZE__)
        if (!__builtin_constant_p(constant) || constant < 0)
            the_number_may_be_negative();
#else
        if (constant < 0)
            std::abort();
#endif
    }
#endif

    // Any other type.
    template <class Given, std::enable_if_t<!fits_exactly<Given, Number>(), int> = 0>
    exact_number(Given) = delete; // the value may not fit: convert it to the type of the field first

    // 0 if it is absent.
    constexpr Number number() const noexcept
    {
        return number_;
    }

    // False: absent.
    constexpr bool is_present() const noexcept
    {
        return is_present_;
    }

private:
    Number number_ = 0;
    bool is_present_ = false;
};

} // namespace mava_tum::cpp

#endif
