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
