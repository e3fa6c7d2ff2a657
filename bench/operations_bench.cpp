// Representative operations of the adapter library, each timed through the
// shared object on the null platform.
#include <cstring>

#include "measure.h"
#include "ze_adapter_cli.h"
#include "ze_board.h"
#include "ze_chip.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_port.h"
#include "ze_lsw_pm.h"

namespace {

using bench::measure;

void single_get(benchmark::State &state) {
    uint32_t mode = 0;
    measure(state, [&] { benchmark::DoNotOptimize(ze_chip_get_upmode(&mode)); });
}
BENCHMARK(single_get)->Name("op:single get (ze_chip_get_upmode)");

void get_modify_set(benchmark::State &state) {
    measure(state, [&] { benchmark::DoNotOptimize(ze_lsw_port_set_mtu(3, 1600)); });
}
BENCHMARK(get_modify_set)->Name("op:get/modify/set (ze_lsw_port_set_mtu)");

void tag_action(benchmark::State &state) {
    measure(state, [&] { benchmark::DoNotOptimize(ze_lsw_port_set_tag_act(2, 1, 3, 2)); });
}
BENCHMARK(tag_action)->Name("op:tag action (ze_lsw_port_set_tag_act)");

void mapping_install_delete(benchmark::State &state) {
    measure(state, [&] {
        ze_sfc_mapping_s m;
        std::memset(&m, 0, sizeof m);
        m.key_mask = ZE_SFC_KEY_VLAN;
        m.vlan = 100;
        uint16_t sfid = 0;
        benchmark::DoNotOptimize(ze_lsw_flow_add_mapping(&m, ZE_FLOW_DIR_UP, &sfid));
        benchmark::DoNotOptimize(ze_lsw_flow_del_mapping_by_sfid(sfid));
    });
}
BENCHMARK(mapping_install_delete)->Name("op:mapping install + delete");

// A rule of one key entry (a destination MAC), three (both MACs and an IPv4
// pair) or twelve (every key).
ze_efc_rule_s service_rule(uint32_t entries) {
    ze_efc_rule_s rule;
    std::memset(&rule, 0, sizeof rule);
    static const uint32_t kMask[] = {0x2, 0x1e, 0x3ffffe};
    rule.key_mask = kMask[entries == 1 ? 0 : entries == 3 ? 1 : 2];
    std::memset(rule.dmac, 0x11, sizeof rule.dmac);
    std::memset(rule.dmac_mask, 0xff, sizeof rule.dmac_mask);
    std::memset(rule.smac, 0x22, sizeof rule.smac);
    std::memset(rule.smac_mask, 0xff, sizeof rule.smac_mask);
    rule.dip = 0x0a000001;
    rule.dip_mask = 0xffffffff;
    rule.sip = 0x0a000002;
    rule.sip_mask = 0xffffff00;
    return rule;
}

template <uint32_t Entries>
void service_install_delete(benchmark::State &state) {
    ze_efc_rule_s rule = service_rule(Entries);
    ze_efc_action_s action;
    std::memset(&action, 0, sizeof action);
    action.act_mask = 0x4;
    action.spri = 5;
    measure(state, [&] {
        uint16_t fid = 0;
        benchmark::DoNotOptimize(ze_lsw_flow_add_service(&rule, &action, 2, &fid));
        benchmark::DoNotOptimize(ze_lsw_flow_del_fid(fid));
    });
}
BENCHMARK(service_install_delete<1>)->Name("op:service install + delete, 1 key entry");
BENCHMARK(service_install_delete<3>)->Name("op:service install + delete, 3 key entries");
BENCHMARK(service_install_delete<12>)->Name("op:service install + delete, 12 key entries");

void board_read(benchmark::State &state) {
    uint8_t buf[64];
    measure(state, [&] { benchmark::DoNotOptimize(ze_board_read_phymem(0x1000, sizeof buf, buf)); });
}
BENCHMARK(board_read)->Name("op:board memory read, 64 bytes");

void board_write(benchmark::State &state) {
    measure(state, [&] { benchmark::DoNotOptimize(ze_board_write_phymem(0x1000, 0x5a5a)); });
}
BENCHMARK(board_write)->Name("op:board memory write");

void command_through_handler(benchmark::State &state) {
    ze_adapter_cli_init();
    ze_ifm_handler_f handler = nullp::registered("ze_adapter_cli_lsw_port_set_mtu");
    if (!handler) {
        state.SkipWithError("ze_adapter_cli_lsw_port_set_mtu not registered");
        return;
    }
    measure(state, [&] {
        uint32_t req[2] = {3, 1600};
        uint32_t reply = 0;
        benchmark::DoNotOptimize(handler(req, sizeof req, &reply));
    });
}
BENCHMARK(command_through_handler)->Name("op:command through its handler (lsw_port_set_mtu)");

// Statistic groups print their counters; the null platform discards the
// text unformatted, so what remains is reading the blocks and walking them.
template <uint32_t (*Group)()>
void statistic(benchmark::State &state) {
    measure(state, [&] { benchmark::DoNotOptimize(Group()); });
}
BENCHMARK(statistic<ze_lsw_pm_get_l2_statistic>)->Name("op:statistics l2 group, printing discarded");
BENCHMARK(statistic<ze_lsw_pm_get_rxdma_statistic>)->Name("op:statistics rxdma group, printing discarded");
BENCHMARK(statistic<ze_lsw_pm_get_gpon_alarm_statistic>)
    ->Name("op:statistics gpon alarm group, printing discarded");
BENCHMARK(statistic<ze_lsw_pm_get_epon_alarm_statistic>)
    ->Name("op:statistics epon alarm group, printing discarded");
BENCHMARK(statistic<ze_lsw_pm_get_tocpu_reason_statistic>)
    ->Name("op:statistics to-cpu reasons, printing discarded");

void uni_eth_statistic(benchmark::State &state) {
    measure(state, [&] { benchmark::DoNotOptimize(ze_lsw_pm_get_uni_eth_statistic(2)); });
}
BENCHMARK(uni_eth_statistic)->Name("op:statistics uni eth port 2, printing discarded");

}  // namespace
