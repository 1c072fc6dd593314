// Only in builds with coverage counters: a process that ends by an assertion writes its counters first. The report and
// the abort are those of libc.
#include <assert.h> // declares __assert_fail
#include <dlfcn.h>

#include <cstdlib>

extern "C" int __llvm_profile_write_file();

extern "C" void __assert_fail(
    const char *expression, const char *file, unsigned int line, const char *function) noexcept
{
    __llvm_profile_write_file();
    using assert_function = void (*)(const char *, const char *, unsigned int, const char *);
    if (void *own = dlsym(RTLD_NEXT, "__assert_fail"))
        reinterpret_cast<assert_function>(own)(expression, file, line, function);
    std::abort();
}
