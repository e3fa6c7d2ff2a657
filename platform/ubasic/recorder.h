// The recorder's hooks in the host platform libraries: each sends one call
// through `send` and, while a recording is on, writes it as one line. A call
// made inside another recorded call (the ioctls of a datapath library call on
// a device node) is part of that call and gets no line of its own.
#pragma once

#include <cstdint>

namespace zehost {

using IoctlSend = uint32_t (*)(const char *node, uint32_t cmd, uintptr_t arg);
using KernelCallSend = uint32_t (*)(const char *name, void *payload, uint32_t len, uint32_t *out_len);
using DpBlockSend = int32_t (*)(const char *name, uint32_t cmd, void *block);
using DpOpSend = int32_t (*)(const char *name, uint32_t index);

uint32_t recorded_ioctl(const char *node, uint32_t cmd, uintptr_t arg, IoctlSend send);
uint32_t recorded_kernel_call(const char *name, void *payload, uint32_t len, uint32_t *out_len,
                              KernelCallSend send);
int32_t recorded_dp_block(const char *name, uint32_t cmd, void *block, DpBlockSend send);
int32_t recorded_dp_op(const char *name, uint32_t index, DpOpSend send);

}  // namespace zehost
