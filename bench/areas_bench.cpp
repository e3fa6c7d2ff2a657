// The heavier operations on the host: installing and removing a service and
// a mapping, and the listings that walk whole tables.
#include <benchmark/benchmark.h>

#include <cstring>

#include "ze_host.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_mac.h"
#include "ze_lsw_pm.h"
#include "ze_lsw_vlan.h"
#include "ze_sim.h"

namespace {

void discard(const char *, size_t, void *) {}

// A fresh simulator, console output dropped, trace ring emptied now and then.
struct Quiet {
    Quiet() {
        zesim::reset();
        ze_host_set_print_sink(discard, nullptr);
    }
    ~Quiet() { ze_host_set_print_sink(nullptr, nullptr); }
    static void tidy() {
        if (zesim::log().size() > 100000) zesim::clear_log();
        if (ze_host_trace_count() >= ZE_HOST_TRACE_CAPACITY) ze_host_trace_clear();
    }
};

void BM_ServiceAddDelete(benchmark::State &state) {
    Quiet q;
    ze_efc_rule_s rule;
    ze_efc_action_s action;
    std::memset(&rule, 0, sizeof rule);
    std::memset(&action, 0, sizeof action);
    rule.key_mask = 0x18;  // destination and source IPv4
    rule.dip = 0x0a000001;
    rule.dip_mask = 0xffffffff;
    rule.sip = 0x0a000002;
    rule.sip_mask = 0xffffff00;
    action.act_mask = 0x4;
    action.spri = 5;
    for (auto _ : state) {
        uint16_t fid = 0;
        benchmark::DoNotOptimize(ze_lsw_flow_add_service(&rule, &action, 2, &fid));
        benchmark::DoNotOptimize(ze_lsw_flow_del_fid(fid));
        Quiet::tidy();
    }
}
BENCHMARK(BM_ServiceAddDelete);

void BM_MappingAddDelete(benchmark::State &state) {
    Quiet q;
    for (auto _ : state) {
        ze_sfc_mapping_s m;
        std::memset(&m, 0, sizeof m);
        m.key_mask = ZE_SFC_KEY_VLAN;
        m.vlan = 100;
        uint16_t sfid = 0;
        benchmark::DoNotOptimize(ze_lsw_flow_add_mapping(&m, 0, &sfid));
        benchmark::DoNotOptimize(ze_lsw_flow_del_mapping_by_sfid(sfid));
        Quiet::tidy();
    }
}
BENCHMARK(BM_MappingAddDelete);

void BM_MacTableListing(benchmark::State &state) {
    Quiet q;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ze_lsw_mac_diagnose(0));
        Quiet::tidy();
    }
}
BENCHMARK(BM_MacTableListing)->Unit(benchmark::kMillisecond);

void BM_VlanListing(benchmark::State &state) {
    Quiet q;
    for (auto _ : state) {
        benchmark::DoNotOptimize(ze_lsw_vlan_diagnose(0));
        Quiet::tidy();
    }
}
BENCHMARK(BM_VlanListing)->Unit(benchmark::kMillisecond);

void BM_StatisticGroup(benchmark::State &state) {
    Quiet q;
    zesim::fill_counters();
    for (auto _ : state) {
        benchmark::DoNotOptimize(ze_lsw_pm_get_l2_statistic());
        Quiet::tidy();
    }
}
BENCHMARK(BM_StatisticGroup);

}  // namespace
