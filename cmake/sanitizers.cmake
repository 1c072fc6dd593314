# Instrumented builds: everything in the tree is built alike, library, tests and examples.
if(MAVA_TUM_SANITIZE)
    add_compile_options(-fsanitize=address,undefined,leak -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined,leak -fno-sanitize-recover=all)
endif()
if(MAVA_TUM_COVERAGE)
    add_compile_options(--coverage)
    add_link_options(--coverage)
endif()
