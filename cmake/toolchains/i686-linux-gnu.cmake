# 32-bit x86 by Debian's g++-i686-linux-gnu. An x86-64 kernel runs the programs, if they name the loader and the
# libraries of the cross compiler's packages.
set(triplet i686-linux-gnu)
include("${CMAKE_CURRENT_LIST_DIR}/debian_cross.cmake")
set(CMAKE_EXE_LINKER_FLAGS_INIT
    "-Wl,--dynamic-linker=/usr/${triplet}/lib/ld-linux.so.2 -Wl,-rpath,/usr/${triplet}/lib")
