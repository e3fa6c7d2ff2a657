// The floor: one ioctl that the kernel rejects at once (a request /dev/null
// does not know), the least any driver command can cost on this machine.
#include <fcntl.h>
#include <sys/ioctl.h>
#include <unistd.h>

#include "ratio.h"

namespace {

constexpr unsigned long kUnknownRequest = 0xc0000100ul;

void floor_ioctl(benchmark::State &state) {
    int fd = open("/dev/null", O_RDWR | O_CLOEXEC);
    if (fd < 0) {
        state.SkipWithError("cannot open /dev/null");
        return;
    }
    for (auto _ : state) benchmark::DoNotOptimize(ioctl(fd, kUnknownRequest, 0));
    close(fd);
    ratio::set_crossings(state, state.iterations(), 0);
    state.counters[ratio::kWithKernel] = 1;
}
BENCHMARK(floor_ioctl)->Name(ratio::kFloorName);

}  // namespace
