// The command registry: every registered command in registration order,
// grouped by family, each under its handler's own name.
#include "ze_adapter_cli.h"
#include "ze_adapter_cli_table.h"
#include "ze_ubasic.h"

#define ZE_CLI_ENTRY(fn) {fn, #fn}

extern "C" {

const ze_adapter_cli_entry_s g_st_adapter_cli[] = {
    // chip (0)
    ZE_CLI_ENTRY(ze_adapter_cli_chip_get_version),
    ZE_CLI_ENTRY(ze_adapter_cli_chip_get_vendor),
    ZE_CLI_ENTRY(ze_adapter_cli_chip_set_upmode),
    ZE_CLI_ENTRY(ze_adapter_cli_chip_get_upmode),
    ZE_CLI_ENTRY(ze_adapter_cli_chip_set_access_mode),
    ZE_CLI_ENTRY(ze_adapter_cli_chip_get_access_mode),
    // emac (6)
    ZE_CLI_ENTRY(ze_adapter_cli_emac_set_fec),
    ZE_CLI_ENTRY(ze_adapter_cli_emac_get_fec),
    // gmac (8)
    // flow (18)
    // lsw_car (29)
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_init_wred),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_set_protocol_paket_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_get_protocol_paket_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_set_protocol_paket_action),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_get_protocol_paket_action),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_set_simple_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_get_simple_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_set_efc_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_get_efc_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_set_flow_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_get_flow_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_set_gemport_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_get_gemport_car),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_set_tocpu_reason),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_car_get_tocpu_reason),
    // lsw_mac (44)
    // lsw_phy (64)
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_phy_get_power),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_phy_set_status),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_phy_get_status),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_phy_set_mode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_phy_get_mode),
    // lsw_port (69)
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_status),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_status),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_workmode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_workmode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_defvlan),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_defvlan),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_pause),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_pause),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_pausetime),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_pausetime),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_loopback),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_loopback),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_mtu),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_mtu),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_pri),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_pri),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_stp),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_stp),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_stpstate),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_set_tag_act),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_port_get_tag_act),
    // lsw_qos (90)
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_get_queue_map),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_set_queue_map),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_get_queue_buffer),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_set_queue_buffer),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_get_egr_schattr),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_set_egr_schattr),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_set_wred),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_get_wred),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_set_egr_shaping),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_get_egr_shaping),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_set_queue_shaping),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_get_queue_shaping),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_get_queuecount),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_set_in_pri),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_qos_get_in_pri),
    // lsw_sec (105)
    // lsw_vlan (115)
    // lsw_pm (127)
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_eth_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_epon_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_epon_tx_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_epon_rx_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_epon_alarm_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_epon_bandwidth_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_gpon_ext_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_dgtc_sys_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_dgtc_line_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_dgem_sys_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_ugmac_sys_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_ugmac_line_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_eps_pon_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_gpon_alarm_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_fc_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_sfc_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_efc_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_uni_eth_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_thru_reason_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_clear_all_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_cap_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_cpurtx_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_drop_reason_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_rxdma_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_txdma_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_ipv6_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_l2_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_l3_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_mcd_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_mcm_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_mtp_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_oam_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_pa_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_qm_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_queue_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_rt_statistic),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_pm_get_tocpu_reason_statistic),
};

const uint32_t g_ui_adapter_cli_count = sizeof g_st_adapter_cli / sizeof g_st_adapter_cli[0];

uint32_t ze_adapter_cli_init(void) {
    for (const ze_adapter_cli_entry_s &e : g_st_adapter_cli) {
        uint32_t r = ze_ifm_regapi(e.name, e.handler);
        if (r) {
            ze_os_printf("\r\n[ERROR CODE=0x%08x %s %d]!!!!!!!!!!!!!!!!!!\r\n[funcname = %s]", r,
                         "../adapter_cli/ze_adapter_cli_cmd.cpp", __LINE__, e.name);
            return r;
        }
    }
    return ZE_OK;
}

uint32_t ze_adapter_cli_exit(void) { return ZE_OK; }

}  // extern "C"
