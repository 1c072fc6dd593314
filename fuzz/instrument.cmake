# For MAVA_TUM_FUZZ: the library is instrumented for the engine and for the address and undefined sanitizers.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "MAVA_TUM_FUZZ needs clang: its engine is libFuzzer. scripts/check/fuzz sets everything up.")
endif()

# The engine traces edges only. Traced comparisons would cost a call each and do not help a mutator that knows the
# fields.
set(mava_tum_engine_eyes inline-8bit-counters,pc-table)
add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    -fsanitize-coverage=${mava_tum_engine_eyes})
add_link_options(-fsanitize=address,undefined)

# For all other code: the engine must look for new paths in the library only, and the rest must be fast.
set(mava_tum_unwatched -fno-sanitize=all -fno-sanitize-coverage=${mava_tum_engine_eyes})
