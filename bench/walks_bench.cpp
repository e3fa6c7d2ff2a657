// The table walks of the adapter library against their fill level: the
// shadow tables it searches (extended classifier fids, the port VLAN record,
// the IP filter table) and the driver tables its listings read.
#include <cstring>

#include "measure.h"
#include "ze_blocks_l2.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_mac.h"
#include "ze_lsw_sec.h"
#include "ze_lsw_vlan.h"

namespace {

using bench::CrossingCount;
using bench::measure;

// ---- extended classifier: the free-fid search of a service install ----

ze_efc_rule_s mac_rule(uint32_t n) {
    ze_efc_rule_s rule;
    std::memset(&rule, 0, sizeof rule);
    rule.key_mask = 0x2;  // one destination MAC: one entry
    std::memcpy(rule.dmac, &n, sizeof n);
    std::memset(rule.dmac_mask, 0xff, sizeof rule.dmac_mask);
    return rule;
}

void efc_fid_search(benchmark::State &state) {
    const uint32_t fill = static_cast<uint32_t>(state.range(0));
    ze_efc_action_s action;
    std::memset(&action, 0, sizeof action);
    for (uint32_t n = 0; n < fill; ++n) {
        ze_efc_rule_s r = mac_rule(n + 1);
        uint16_t fid = 0;
        ze_lsw_flow_add_service(&r, &action, 0, &fid);
    }
    ze_efc_rule_s rule = mac_rule(0);
    measure(state, [&] {
        uint16_t fid = 0;
        benchmark::DoNotOptimize(ze_lsw_flow_add_service(&rule, &action, 0, &fid));
        benchmark::DoNotOptimize(ze_lsw_flow_del_fid(fid));
    });
    state.counters[ratio::kFill] = fill;
    ze_lsw_flow_del_all(0, 0, 0, 0);
}
BENCHMARK(efc_fid_search)->Name("walk:EFC fid search: service install + delete")->Arg(0)->Arg(60)->Arg(120)->Arg(230);

// ---- port VLAN record ----

void fill_vlans(uint32_t count) {
    for (uint32_t vlan = 0; vlan < count; ++vlan) ze_lsw_vlan_add_port(vlan, 2);
}

constexpr uint32_t kNewVlan = 4095;

void vlan_add_delete(benchmark::State &state) {
    const uint32_t fill = static_cast<uint32_t>(state.range(0));
    fill_vlans(fill);
    measure(state, [&] {
        benchmark::DoNotOptimize(ze_lsw_vlan_add_port(kNewVlan, 2));
        benchmark::DoNotOptimize(ze_lsw_vlan_del_port(kNewVlan, 2));
    });
    state.counters[ratio::kFill] = fill;
    ze_lsw_vlan_del_all_cfg();
}
BENCHMARK(vlan_add_delete)
    ->Name("walk:VLAN add + delete of a new VLAN (record)")
    ->Arg(0)->Arg(1024)->Arg(2048)->Arg(4095);

void vlan_del_all(benchmark::State &state) {
    const uint32_t fill = static_cast<uint32_t>(state.range(0));
    nullp::Crossings spent{};
    for (auto _ : state) {
        state.PauseTiming();
        fill_vlans(fill);
        state.ResumeTiming();
        nullp::Crossings before = nullp::crossings();
        benchmark::DoNotOptimize(ze_lsw_vlan_del_all_cfg());
        nullp::Crossings after = nullp::crossings();
        spent.ioctls += after.ioctls - before.ioctls;
    }
    ratio::set_crossings(state, spent.ioctls, 0);
    state.counters[ratio::kFill] = fill;
}
BENCHMARK(vlan_del_all)
    ->Name("walk:ze_lsw_vlan_del_all_cfg (record)")
    ->Arg(512)->Arg(1024)->Arg(2048)->Arg(4095)
    ->Unit(benchmark::kMillisecond);

// ---- IP filter table ----

ze_lsw_ip_filter_rule_s ip_rule(uint32_t n) {
    ze_lsw_ip_filter_rule_s rule;
    std::memset(&rule, 0, sizeof rule);
    rule.field = 1;
    rule.mask = 32;
    rule.ip[0] = 10;
    rule.ip[3] = static_cast<uint8_t>(n);
    return rule;
}

void ip_filter_add_delete(benchmark::State &state) {
    const uint32_t fill = static_cast<uint32_t>(state.range(0));
    for (uint32_t n = 0; n < fill; ++n) {
        ze_lsw_ip_filter_rule_s r = ip_rule(n + 1);
        ze_lsw_sec_add_ip_filter_table(&r);
    }
    ze_lsw_ip_filter_rule_s rule = ip_rule(0);
    measure(state, [&] {
        benchmark::DoNotOptimize(ze_lsw_sec_add_ip_filter_table(&rule));
        benchmark::DoNotOptimize(ze_lsw_sec_del_ip_filter_table(&rule));
    });
    state.counters[ratio::kFill] = fill;
    for (uint32_t n = 0; n < fill; ++n) {
        ze_lsw_ip_filter_rule_s r = ip_rule(n + 1);
        ze_lsw_sec_del_ip_filter_table(&r);
    }
}
BENCHMARK(ip_filter_add_delete)->Name("walk:IP filter add + delete")->Arg(0)->Arg(16)->Arg(32)->Arg(63);

// ---- listings: the driver answers with `g_listed` valid rows ----

uint32_t g_listed = 0;

// The driver's side of the address-table entry read-out (command 0x704):
// index at 0, valid flag at 32.
constexpr uint32_t kL2ItemGet = 0x704, kL2ItemValid = 32;

void answer_mac_items(uint32_t cmd, void *block) {
    if (cmd != kL2ItemGet) return;
    auto *b = static_cast<uint8_t *>(block);
    uint32_t index = 0, valid = 1;
    std::memcpy(&index, b, 4);
    if (index < g_listed) std::memcpy(b + kL2ItemValid, &valid, 4);
}

void answer_vlan_members(uint32_t cmd, void *block) {
    if (cmd != ze::VlanMember::kGet) return;
    auto *b = static_cast<uint8_t *>(block);
    uint32_t vlan = 0, member = 1;
    std::memcpy(&vlan, b, 4);
    if (vlan < g_listed) std::memcpy(b + ze::VlanMember::member(2), &member, 4);
}

template <nullp::Answer Answer, uint32_t (*Diagnose)(uint32_t)>
void listing(benchmark::State &state) {
    g_listed = static_cast<uint32_t>(state.range(0));
    nullp::set_answer(Answer);
    measure(state, [&] { benchmark::DoNotOptimize(Diagnose(0)); });
    nullp::set_answer(nullptr);
    state.counters[ratio::kFill] = g_listed;
}
BENCHMARK(listing<answer_mac_items, ze_lsw_mac_diagnose>)
    ->Name("walk:MAC table listing, printing discarded")
    ->Arg(0)->Arg(256)->Arg(1024)
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(listing<answer_vlan_members, ze_lsw_vlan_diagnose>)
    ->Name("walk:VLAN listing, printing discarded")
    ->Arg(0)->Arg(1024)->Arg(4096)
    ->Unit(benchmark::kMicrosecond);

}  // namespace
