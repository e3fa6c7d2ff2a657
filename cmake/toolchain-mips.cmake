# 32-bit big-endian MIPS. Debian 12 has no port for it, so no multiarch libraries:
# GoogleTest is built from source and the shell has no line editing.
set(ZE_CROSS_TRIPLE mips-linux-gnu)
set(ZE_CROSS_MULTIARCH mips-linux-gnu)
set(ZE_CROSS_DEBIAN_ARCH "")
set(ZE_CROSS_QEMU qemu-mips)
set(CMAKE_SYSTEM_PROCESSOR mips)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
