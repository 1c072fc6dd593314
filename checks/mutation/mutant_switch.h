// Included in every mutated source. All mutants are in one build; the environment selects one:
//     MUTANT=<number>         this one; none when it is not set
//     MUTANT_TRACE=<file>     none; byte n of the file becomes 1 when the place of mutant n is reached
// Compile-time code is never mutated.
#pragma once

#include <cstdlib>
#include <fcntl.h>
#include <sys/mman.h>
#include <type_traits>
#include <unistd.h>

namespace mut
{

inline constexpr unsigned max_mutants = 1u << 14;
inline constexpr unsigned tracing = ~0u;

// Shared with child processes, and kept when the program aborts.
inline unsigned char *open_trace()
{
    const char *const file = std::getenv("MUTANT_TRACE");
    if (file == nullptr)
        return nullptr;
    const int descriptor = ::open(file, O_RDWR | O_CREAT, 0644);
    if (descriptor < 0 || ::ftruncate(descriptor, max_mutants) != 0)
        std::abort();
    void *const trace = ::mmap(nullptr, max_mutants, PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    ::close(descriptor);
    if (trace == MAP_FAILED)
        std::abort();
    return static_cast<unsigned char *>(trace);
}

inline unsigned read_choice()
{
    if (std::getenv("MUTANT_TRACE") != nullptr)
        return tracing;
    const char *const choice = std::getenv("MUTANT");
    return choice == nullptr ? 0 : static_cast<unsigned>(std::atoi(choice));
}

inline unsigned char *trace = open_trace();
inline unsigned alive = read_choice();

[[gnu::noinline]] inline bool record(unsigned mutant)
{
    trace[mutant] = 1;
    return false;
}

[[gnu::always_inline]] constexpr bool is(unsigned mutant)
{
    if (std::is_constant_evaluated())
        return false;
    return alive == mutant || (alive == tracing && record(mutant));
}

constexpr bool truth(bool value)
{
    return value;
}

template <class Value>
constexpr Value literal(unsigned first, Value value)
{
    return is(first) ? static_cast<Value>(value + 1) : is(first + 1) ? static_cast<Value>(value - 1) : value;
}

template <class Value>
constexpr Value zero(unsigned mutant, Value value)
{
    return is(mutant) ? static_cast<Value>(value + 1) : value;
}

// Comparisons: mutant `first` is the opposite; `first + 1` moves the boundary by one, if there is one.
template <class A, class B>
constexpr bool equal(unsigned first, A a, B b)
{
    return is(first) ? a != b : a == b;
}

template <class A, class B>
constexpr bool unequal(unsigned first, A a, B b)
{
    return is(first) ? a == b : a != b;
}

template <class A, class B>
constexpr bool less(unsigned first, A a, B b)
{
    return is(first) ? a >= b : is(first + 1) ? a <= b : a < b;
}

template <class A, class B>
constexpr bool less_or_equal(unsigned first, A a, B b)
{
    return is(first) ? a > b : is(first + 1) ? a < b : a <= b;
}

template <class A, class B>
constexpr bool greater(unsigned first, A a, B b)
{
    return is(first) ? a <= b : is(first + 1) ? a >= b : a > b;
}

template <class A, class B>
constexpr bool greater_or_equal(unsigned first, A a, B b)
{
    return is(first) ? a < b : is(first + 1) ? a > b : a >= b;
}

// The constraint reports a mutant that does not compile (a sum of two pointers) at its place.
template <class A, class B>
    requires requires(A a, B b) { true ? a - b : a + b; }
constexpr auto plus(unsigned mutant, A a, B b)
{
    return is(mutant) ? a - b : a + b;
}

template <class A, class B>
    requires requires(A a, B b) { true ? a + b : a - b; }
constexpr auto minus(unsigned mutant, A a, B b)
{
    return is(mutant) ? a + b : a - b;
}

template <class A, class B>
constexpr auto times(unsigned mutant, A a, B b)
{
    return is(mutant) ? a / b : a * b;
}

template <class A, class B>
constexpr auto divided(unsigned mutant, A a, B b)
{
    return is(mutant) ? a * b : a / b;
}

template <class A, class B>
constexpr auto remainder(unsigned mutant, A a, B b)
{
    return is(mutant) ? a * b : a % b;
}

template <class A, class B>
constexpr auto both_bits(unsigned mutant, A a, B b)
{
    return is(mutant) ? a | b : a & b;
}

template <class A, class B>
constexpr auto any_bits(unsigned mutant, A a, B b)
{
    return is(mutant) ? a & b : a | b;
}

template <class A, class B>
constexpr auto other_bits(unsigned mutant, A a, B b)
{
    return is(mutant) ? a & b : a ^ b;
}

template <class A, class B>
constexpr auto shifted_left(unsigned mutant, A a, B b)
{
    return is(mutant) ? a >> b : a << b;
}

template <class A, class B>
constexpr auto shifted_right(unsigned mutant, A a, B b)
{
    return is(mutant) ? a << b : a >> b;
}

template <class A, class B>
constexpr A &add(unsigned mutant, A &a, B b)
{
    return is(mutant) ? a -= b : a += b;
}

template <class A, class B>
constexpr A &subtract(unsigned mutant, A &a, B b)
{
    return is(mutant) ? a += b : a -= b;
}

template <class A, class B>
constexpr A &set_bits(unsigned mutant, A &a, B b)
{
    return is(mutant) ? a &= b : a |= b;
}

template <class A, class B>
constexpr A &keep_bits(unsigned mutant, A &a, B b)
{
    return is(mutant) ? a |= b : a &= b;
}

template <class A, class B>
constexpr A &shift_left(unsigned mutant, A &a, B b)
{
    return is(mutant) ? a >>= b : a <<= b;
}

template <class A, class B>
constexpr A &shift_right(unsigned mutant, A &a, B b)
{
    return is(mutant) ? a <<= b : a >>= b;
}

template <class A>
constexpr A &step_up(unsigned mutant, A &a)
{
    return is(mutant) ? --a : ++a;
}

template <class A>
constexpr A &step_down(unsigned mutant, A &a)
{
    return is(mutant) ? ++a : --a;
}

template <class A>
constexpr A step_up_after(unsigned mutant, A &a)
{
    return is(mutant) ? a-- : a++;
}

template <class A>
constexpr A step_down_after(unsigned mutant, A &a)
{
    return is(mutant) ? a++ : a--;
}

template <class A>
constexpr auto complement(unsigned mutant, A a)
{
    return is(mutant) ? +a : ~a;
}

template <class A>
constexpr auto negated(unsigned mutant, A a)
{
    return is(mutant) ? +a : -a;
}

} // namespace mut
