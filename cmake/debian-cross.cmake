# Cross compilation with Debian's cross compilers (g++-TRIPLE) and, for the
# target's libraries, Debian's multiarch packages (libedit-dev:ARCH, ...).
# A target's toolchain file sets ZE_CROSS_TRIPLE (the compilers' prefix),
# ZE_CROSS_MULTIARCH (the multiarch library directory), ZE_CROSS_DEBIAN_ARCH
# (empty where Debian has no port), ZE_CROSS_QEMU (the qemu-user program) and
# CMAKE_SYSTEM_PROCESSOR, then includes this file. scripts/cross reads the
# same settings.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER ${ZE_CROSS_TRIPLE}-gcc)
set(CMAKE_CXX_COMPILER ${ZE_CROSS_TRIPLE}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE ${ZE_CROSS_MULTIARCH})

# The cross C library lives under /usr/TRIPLE; multiarch libraries under
# /usr/lib/MULTIARCH, found from / through CMAKE_LIBRARY_ARCHITECTURE.
set(CMAKE_FIND_ROOT_PATH /usr/${ZE_CROSS_TRIPLE} /)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Target programs (tests, test discovery, the shell) run under qemu-user,
# with the target's C library and multiarch libraries. /lib comes first and,
# under -L, is the cross C library's directory: the C library must be the one
# that matches the cross dynamic loader, not a multiarch or multilib copy of
# another build (such as i386's /lib32), which breaks fork and exec.
set(CMAKE_CROSSCOMPILING_EMULATOR ${ZE_CROSS_QEMU} -L /usr/${ZE_CROSS_TRIPLE}
  -E LD_LIBRARY_PATH=/lib:/usr/lib/${ZE_CROSS_MULTIARCH}:/lib/${ZE_CROSS_MULTIARCH})
