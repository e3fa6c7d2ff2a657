/*
 * Command adapter: the named commands registered with the interface manager.
 * Every handler takes the request buffer (the reply is written over it), the
 * request length and the caller's reply-length word, and returns a result
 * code. Each is registered under its own function name.
 */
#ifndef ZE_ADAPTER_CLI_H
#define ZE_ADAPTER_CLI_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

#define ZE_ADAPTER_CLI_NAME_LEN 128u

typedef uint32_t (*ze_adapter_cli_handler_f)(void *req, uint32_t req_len, uint32_t *reply_len);

typedef struct {
    ze_adapter_cli_handler_f handler;
    char name[ZE_ADAPTER_CLI_NAME_LEN];
} ze_adapter_cli_entry_s;

/* Registers every command in table order; stops at the first refusal, prints
 * it and returns its code. */
ZE_API uint32_t ze_adapter_cli_init(void);
/* Returns 0; registrations stay in place. */
ZE_API uint32_t ze_adapter_cli_exit(void);

#define ZE_CLI_HANDLER(name) ZE_API uint32_t name(void *req, uint32_t req_len, uint32_t *reply_len)

/* chip */
ZE_CLI_HANDLER(ze_adapter_cli_chip_get_version);
ZE_CLI_HANDLER(ze_adapter_cli_chip_get_vendor);
ZE_CLI_HANDLER(ze_adapter_cli_chip_set_upmode);
ZE_CLI_HANDLER(ze_adapter_cli_chip_get_upmode);
ZE_CLI_HANDLER(ze_adapter_cli_chip_set_access_mode);
ZE_CLI_HANDLER(ze_adapter_cli_chip_get_access_mode);

/* emac */
ZE_CLI_HANDLER(ze_adapter_cli_emac_set_fec);
ZE_CLI_HANDLER(ze_adapter_cli_emac_get_fec);
/* not registered: they answer without doing anything */
ZE_CLI_HANDLER(ze_adapter_cli_emac_get_llid);
ZE_CLI_HANDLER(ze_adapter_cli_emac_set_llid);

/* gmac */

/* flow */

/* lsw_car */
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_init_wred);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_set_protocol_paket_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_get_protocol_paket_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_set_protocol_paket_action);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_get_protocol_paket_action);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_set_simple_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_get_simple_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_set_efc_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_get_efc_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_set_flow_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_get_flow_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_set_gemport_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_get_gemport_car);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_set_tocpu_reason);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_car_get_tocpu_reason);

/* lsw_mac */

/* lsw_phy */
ZE_CLI_HANDLER(ze_adapter_cli_lsw_phy_get_power);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_phy_set_status);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_phy_get_status);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_phy_set_mode);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_phy_get_mode);
/* not registered */
ZE_CLI_HANDLER(ze_adapter_cli_lsw_phy_set_power);

/* lsw_port */
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_status);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_status);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_workmode);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_workmode);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_defvlan);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_defvlan);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_pause);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_pause);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_pausetime);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_pausetime);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_loopback);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_loopback);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_mtu);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_mtu);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_pri);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_pri);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_stp);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_stp);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_stpstate);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_set_tag_act);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_port_get_tag_act);

/* lsw_qos */
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_get_queue_map);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_set_queue_map);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_get_queue_buffer);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_set_queue_buffer);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_get_egr_schattr);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_set_egr_schattr);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_set_wred);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_get_wred);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_set_egr_shaping);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_get_egr_shaping);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_set_queue_shaping);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_get_queue_shaping);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_get_queuecount);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_set_in_pri);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_qos_get_in_pri);

/* lsw_sec */

/* lsw_vlan */

/* lsw_pm */
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_eth_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_epon_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_epon_tx_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_epon_rx_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_epon_alarm_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_epon_bandwidth_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_gpon_ext_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_dgtc_sys_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_dgtc_line_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_dgem_sys_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_ugmac_sys_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_ugmac_line_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_eps_pon_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_gpon_alarm_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_fc_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_sfc_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_efc_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_uni_eth_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_thru_reason_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_clear_all_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_cap_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_cpurtx_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_drop_reason_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_rxdma_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_txdma_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_ipv6_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_l2_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_l3_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_mcd_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_mcm_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_mtp_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_oam_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_pa_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_qm_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_queue_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_rt_statistic);
ZE_CLI_HANDLER(ze_adapter_cli_lsw_pm_get_tocpu_reason_statistic);

ZE_END_DECLS

#endif
