# What MAVA_TUM_FUZZ means: the library is watched by the engine, by address and by undefined.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "MAVA_TUM_FUZZ needs clang: its engine is libFuzzer. scripts/check/fuzz sets everything up.")
endif()

# Of what the engine can be told, only which edges ran: its guesses at compared values do not help a mutator that knows
# the fields, and every comparison would cost a call.
set(mava_tum_engine_eyes inline-8bit-counters,pc-table)
add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer
    -fsanitize-coverage=${mava_tum_engine_eyes})
add_link_options(-fsanitize=address,undefined)

# For what is not the library: the engine is to look for new ways through the library alone, and the rest is to be fast.
set(mava_tum_unwatched -fno-sanitize=all -fno-sanitize-coverage=${mava_tum_engine_eyes})
