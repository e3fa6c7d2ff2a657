# The library's shared object against musl's C library (Debian's musl-tools),
# for terminals whose firmware uses musl. The library includes only C headers
# and needs no C++ runtime, so g++ compiles it against musl's headers and the
# compiler's own freestanding ones (nothing from glibc or libstdc++), and
# musl-gcc links it. Only the library builds (ZE_BUILD_HOST_TOOLS=OFF): the
# host platform and the tools use the C++ standard library.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_C_COMPILER musl-gcc)
set(CMAKE_CXX_COMPILER g++)
execute_process(COMMAND g++ -print-file-name=include
  OUTPUT_VARIABLE ZE_GCC_FREESTANDING_INCLUDE OUTPUT_STRIP_TRAILING_WHITESPACE)
set(CMAKE_CXX_FLAGS_INIT "-nostdinc -isystem /usr/include/${CMAKE_HOST_SYSTEM_PROCESSOR}-linux-musl -isystem ${ZE_GCC_FREESTANDING_INCLUDE}")
# A C++ test program cannot link without a C++ runtime for musl; the
# compiler checks stop at compiling.
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)
set(ZE_BUILD_HOST_TOOLS OFF CACHE BOOL "" FORCE)
