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
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_set_aes),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_get_aes),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_set_gemport),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_get_gemport),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_set_fec),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_get_fec),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_del_gemport),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_set_down_gemport_type),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_get_down_gemport_type),
    ZE_CLI_ENTRY(ze_adapter_cli_gmac_del_down_gemport),
    // flow (18)
    ZE_CLI_ENTRY(ze_adapter_cli_flow_add_service),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_del_service),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_get_service),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_del_fid),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_del_all),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_diagnose),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_add_mapping),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_del_mapping),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_del_mapping_by_sfid),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_set_mapping_value_select),
    ZE_CLI_ENTRY(ze_adapter_cli_flow_get_mapping_value_select),
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
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_set_swmode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get_swmode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_set_learn),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get_learn),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_set_learn_fail),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get_learn_fail),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_set_learnmode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get_learnmode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_set_limitenable),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get_limitenable),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_set_limitcount),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get_limitcount),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_set_ageenable),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get_ageenable),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_set_agetime),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get_agetime),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_add),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_get),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_del),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_mac_diagnose),
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
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_set_blackmode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_get_blackmode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_add_blackmac),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_del_blackmac),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_diagnose),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_set_ip_filtermode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_get_ip_filtermode),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_add_ip_filtertable),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_del_ip_filtertable),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_sec_get_ip_filtertable),
    // lsw_vlan (115)
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_add_port),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_del_port),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_get_port),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_set_tag),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_get_tag),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_set_vlanfilter),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_get_vlanfilter),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_add_vlanbcegr),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_del_vlanbcegr),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_get_vlanbcegr),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_display_vlanbcegrs),
    ZE_CLI_ENTRY(ze_adapter_cli_lsw_vlan_diagnose),
    // lsw_pm (127)
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
