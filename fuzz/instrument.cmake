# What MAVA_TUM_FUZZ means: the library and the targets are watched by the engine, by address and by undefined.
if(NOT CMAKE_CXX_COMPILER_ID MATCHES "Clang")
    message(FATAL_ERROR "MAVA_TUM_FUZZ needs clang: its engine is libFuzzer. tools/check/fuzz sets everything up.")
endif()
add_compile_options(-fsanitize=fuzzer-no-link,address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
add_link_options(-fsanitize=address,undefined)
