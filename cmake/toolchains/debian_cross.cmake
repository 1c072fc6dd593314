# Common settings of Debian's cross compilers. A toolchain file sets `triplet` and includes this file.
set(CMAKE_SYSTEM_NAME Linux)
string(REGEX REPLACE "-.*" "" CMAKE_SYSTEM_PROCESSOR "${triplet}")
set(CMAKE_C_COMPILER ${triplet}-gcc)
set(CMAKE_CXX_COMPILER ${triplet}-g++)

# Programs such as protoc are those of this machine, libraries and headers those of the target. A package whose folder
# is given (-DGTest_DIR=...) is used from there.
set(CMAKE_FIND_ROOT_PATH "/usr/${triplet}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
