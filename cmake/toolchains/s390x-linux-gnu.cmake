# IBM Z by Debian's g++-s390x-linux-gnu: 64 bits, big-endian. Programs run under qemu-user.
set(triplet s390x-linux-gnu)
include("${CMAKE_CURRENT_LIST_DIR}/debian_cross.cmake")
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-s390x;-L;/usr/${triplet})
