# 64-bit ARM.
set(ZE_CROSS_TRIPLE aarch64-linux-gnu)
set(ZE_CROSS_MULTIARCH aarch64-linux-gnu)
set(ZE_CROSS_DEBIAN_ARCH arm64)
set(ZE_CROSS_QEMU qemu-aarch64)
set(CMAKE_SYSTEM_PROCESSOR aarch64)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
