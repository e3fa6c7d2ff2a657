// Cost of one API call through the command channel and the simulator, and of
// one command through the registry, on the host.
#include <benchmark/benchmark.h>

#include "ze_adapter_cli.h"
#include "ze_chip.h"
#include "ze_host.h"
#include "ze_sim.h"

namespace {

void quiet_log() {
    if (zesim::log().size() > 100000) zesim::clear_log();
    if (ze_host_trace_count() >= ZE_HOST_TRACE_CAPACITY) ze_host_trace_clear();
}

void BM_GetModifySet(benchmark::State &state) {
    zesim::reset();
    uint32_t v = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ze_chip_set_access_mode(++v));
        quiet_log();
    }
}
BENCHMARK(BM_GetModifySet);

void BM_Read(benchmark::State &state) {
    zesim::reset();
    uint32_t mode = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ze_chip_get_upmode(&mode));
        quiet_log();
    }
}
BENCHMARK(BM_Read);

void BM_CommandThroughRegistry(benchmark::State &state) {
    zesim::reset();
    if (ze_host_ifm_count() == 0) ze_adapter_cli_init();
    ze_ifm_handler_f h = ze_host_ifm_find("ze_adapter_cli_chip_get_upmode");
    uint32_t buf = 0, reply = 0;
    for (auto _ : state) {
        benchmark::DoNotOptimize(h(&buf, 4, &reply));
        quiet_log();
    }
}
BENCHMARK(BM_CommandThroughRegistry);

}  // namespace
