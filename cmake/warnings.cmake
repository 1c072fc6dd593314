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
    mava_tum_warnings_as_errors(${target})
endfunction()

function(mava_tum_warnings_as_errors target)
    if(MAVA_TUM_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()
