# 32-bit little-endian MIPS terminals.
set(ZE_CROSS_TRIPLE mipsel-linux-gnu)
set(ZE_CROSS_MULTIARCH mipsel-linux-gnu)
set(ZE_CROSS_DEBIAN_ARCH mipsel)
set(ZE_CROSS_QEMU qemu-mipsel)
set(CMAKE_SYSTEM_PROCESSOR mips)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
