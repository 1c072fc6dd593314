# How the compiler and the linker are called: warnings, hardening, sanitizers and coverage.

# Warnings are errors in the developer preset only: a new warning of a newer compiler must not stop a user's build.

# For the library: narrowing must be explicit. clang counts a change of sign as a conversion, g++ does not; with these
# options both mean narrowing.
function(mava_tum_library_warnings target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wno-sign-conversion -Wcast-qual -Wold-style-cast -Wundef -Wvla)
    # clang does not know noclone, which keeps g++ from making a second copy of a frame.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:Clang>:-Wno-unknown-attributes>)
    mava_tum_warnings_as_errors(${target})
endfunction()

# For tests, examples and benchmarks.
function(mava_tum_program_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra)
    # clang does not know an attribute of src/, and warns of what the standard library itself uses.
    target_compile_options(${target} PRIVATE
        $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wno-unknown-attributes>
        $<$<COMPILE_LANG_AND_ID:CXX,Clang>:-Wno-deprecated-declarations>)
    mava_tum_warnings_as_errors(${target})
endfunction()

function(mava_tum_warnings_as_errors target)
    if(MAVA_TUM_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

# The hardening that Debian gives its packages, plus bind-now, stack-clash protection and control-flow protection.
include(CheckCXXCompilerFlag)
include(CheckLinkerFlag)

# Not every compiler and processor has these two.
check_cxx_compiler_flag(-fstack-clash-protection MAVA_TUM_HAS_STACK_CLASH_PROTECTION)
check_cxx_compiler_flag(-fcf-protection MAVA_TUM_HAS_CF_PROTECTION)

function(mava_tum_harden target)
    target_compile_options(${target} PRIVATE
        -fstack-protector-strong -Wformat -Werror=format-security
        $<$<BOOL:${MAVA_TUM_HAS_STACK_CLASH_PROTECTION}>:-fstack-clash-protection>
        $<$<BOOL:${MAVA_TUM_HAS_CF_PROTECTION}>:-fcf-protection>)
    # Fortified calls need an optimised build, and they would hide the sanitizers' own interceptors.
    if(NOT MAVA_TUM_SANITIZE)
        target_compile_options(${target} PRIVATE
            $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-U_FORTIFY_SOURCE>
            $<$<CONFIG:Release,RelWithDebInfo,MinSizeRel>:-D_FORTIFY_SOURCE=3>)
    endif()
    target_link_options(${target} PRIVATE -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack)
endfunction()

# Instrumented builds: library, tests and examples have the same flags.
if(MAVA_TUM_SANITIZE)
    set(sanitizers "${MAVA_TUM_SANITIZE}")
    if(sanitizers MATCHES "^(ON|TRUE|YES|1)$")
        set(sanitizers address,undefined,leak)
    endif()
    add_compile_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${sanitizers} -fno-sanitize-recover=all)
endif()
# clang counts lines, branches and conditions (MC/DC) of the library's own files, wherever they are compiled; gcc counts
# all files.
if(MAVA_TUM_COVERAGE AND CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    set(counted_files "${PROJECT_BINARY_DIR}/counted_files.list")
    file(CONFIGURE OUTPUT "${counted_files}" CONTENT
        "[clang]\ndefault:skip\nsource:${PROJECT_SOURCE_DIR}/src/*=allow\nsource:${PROJECT_SOURCE_DIR}/include/*=allow\n")
    add_compile_options(
        -fprofile-instr-generate -fcoverage-mapping -fcoverage-mcdc "-fprofile-list=${counted_files}")
    add_link_options(-fprofile-instr-generate)
elseif(MAVA_TUM_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
