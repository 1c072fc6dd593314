# 64-bit ARM by Debian's g++-aarch64-linux-gnu; programs run under qemu-user.
set(triplet aarch64-linux-gnu)
include("${CMAKE_CURRENT_LIST_DIR}/debian_cross.cmake")
set(CMAKE_CROSSCOMPILING_EMULATOR qemu-aarch64;-L;/usr/${triplet})
