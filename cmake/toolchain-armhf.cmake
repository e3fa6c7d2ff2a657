# 32-bit ARM, hard float: the usual terminal processor.
set(ZE_CROSS_TRIPLE arm-linux-gnueabihf)
set(ZE_CROSS_MULTIARCH arm-linux-gnueabihf)
set(ZE_CROSS_DEBIAN_ARCH armhf)
set(ZE_CROSS_QEMU qemu-arm)
set(CMAKE_SYSTEM_PROCESSOR arm)
include(${CMAKE_CURRENT_LIST_DIR}/debian-cross.cmake)
