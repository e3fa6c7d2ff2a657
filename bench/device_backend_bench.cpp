// The host device backend against the bare ioctl: a datapath command sent
// through ze_os_sendioctl to a device node that rejects it (/dev/null) costs
// that one ioctl and little more.
#include "ratio.h"
#include "ze_host.h"

namespace {

void device_command(benchmark::State &state) {
    ze_host_use_device("/dev/null");
    for (auto _ : state) benchmark::DoNotOptimize(ze_os_sendioctl("/dev/ze_ioctl_dp", 0x100, 0));
    ze_host_use_simulator();
    ratio::set_crossings(state, state.iterations(), 0);
    state.counters[ratio::kWithKernel] = 1;
}
BENCHMARK(device_command)->Name("op:device backend: one command on /dev/null");

}  // namespace
