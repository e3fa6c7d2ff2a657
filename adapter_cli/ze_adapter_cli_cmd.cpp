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
    // lsw_port (69)
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
