# 32-bit x86: a 32-bit size_t, pointer and long on a little-endian PC.
set(ZE_CROSS_TRIPLE i686-linux-gnu)
set(ZE_CROSS_MULTIARCH i386-linux-gnu)
set(ZE_CROSS_DEBIAN_ARCH i386)
set(ZE_CROSS_QEMU qemu-i386)
set(CMAKE_SYSTEM_PROCESSOR i686)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
