# Debian's cross compilers: the toolchain file for -DDEBIAN_TRIPLET=aarch64-linux-gnu, i686-linux-gnu or
# s390x-linux-gnu (g++-<triplet>).
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES DEBIAN_TRIPLET)
string(REGEX REPLACE "-.*" "" CMAKE_SYSTEM_PROCESSOR "${DEBIAN_TRIPLET}")
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER ${DEBIAN_TRIPLET}-gcc)
set(CMAKE_CXX_COMPILER ${DEBIAN_TRIPLET}-g++)

# Programs such as protoc are those of this machine, libraries and headers those of the target. A package whose folder
# is given (-DGTest_DIR=...) is used from there.
set(CMAKE_FIND_ROOT_PATH "/usr/${DEBIAN_TRIPLET}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)

if(CMAKE_SYSTEM_PROCESSOR STREQUAL "i686")
    # An x86-64 kernel runs the programs, if they name the loader and the libraries of the cross compiler's packages.
    set(CMAKE_EXE_LINKER_FLAGS_INIT "-Wl,--dynamic-linker=${CMAKE_FIND_ROOT_PATH}/lib/ld-linux.so.2 -Wl,-rpath,${CMAKE_FIND_ROOT_PATH}/lib")
else()
    set(CMAKE_CROSSCOMPILING_EMULATOR qemu-${CMAKE_SYSTEM_PROCESSOR};-L;${CMAKE_FIND_ROOT_PATH})
endif()
