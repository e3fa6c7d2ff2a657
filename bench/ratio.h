// What every benchmark of the adapter library reports: its time per
// operation and the kernel crossings the operation makes, so that the report
// can set the time against that many bare ioctls measured in the same run.
#pragma once

#include <benchmark/benchmark.h>

#include <stdint.h>

namespace ratio {

// Counter names the report reads.
inline constexpr char kIoctls[] = "ioctls";
inline constexpr char kKernelCalls[] = "kcalls";
inline constexpr char kFill[] = "fill";
// Set on a benchmark whose time already contains its real ioctls (the device
// backend); the others run on the null platform, where crossings cost nothing.
inline constexpr char kWithKernel[] = "with_kernel";

// Name prefixes: an operation is one row of the operations table, a walk
// one row of a walk's scaling against its fill level, the floor the bare
// ioctl every ratio is taken against.
inline constexpr char kOpPrefix[] = "op:";
inline constexpr char kWalkPrefix[] = "walk:";
inline constexpr char kFloorName[] = "floor:bare ioctl rejected by the kernel";

void set_crossings(benchmark::State &state, uint64_t ioctls, uint64_t kernel_calls);

}  // namespace ratio
