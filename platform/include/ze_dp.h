/*
 * Datapath API library of the terminal platform (libze_dp). Each pointer call
 * takes the attribute block of the matching datapath channel command.
 */
#ifndef ZE_DP_H
#define ZE_DP_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

int32_t ze_dp_dev_open(void);
int32_t ze_dp_dev_close(void);
int32_t ze_dp_vlan_filter_attr_get(void *a);
int32_t ze_dp_vlan_filter_attr_set(void *a);
int32_t ze_dp_glb_attr_get(void *a);
int32_t ze_dp_glb_attr_set(void *a);
int32_t ze_dp_security_attr_get(void *a);
int32_t ze_dp_security_attr_set(void *a);
int32_t ze_dp_uni_cpu_port_attr_get(void *a);
int32_t ze_dp_uni_cpu_port_attr_set(void *a);
int32_t ze_dp_uni_eth_port_attr_get(void *a);
int32_t ze_dp_uni_eth_port_attr_set(void *a);
int32_t ze_dp_nni_eth_port_attr_get(void *a);
int32_t ze_dp_nni_eth_port_attr_set(void *a);
int32_t ze_dp_vlan_filter_table_item_get(void *a);
int32_t ze_dp_vlan_filter_table_item_set(void *a);
int32_t ze_dp_l2_attr_get(void *a);
int32_t ze_dp_l2_attr_set(void *a);
int32_t ze_dp_l2_vlan_bc_add(void *entry);
int32_t ze_dp_cnt_ipv6_clr(uint32_t index);
int32_t ze_dp_cnt_ipv4_clr(uint32_t index);
int32_t ze_dp_l2_cnt_clr(uint32_t port);
int32_t ze_dp_igr_flow_cnt_table_item_clr(uint32_t entry);
int32_t ze_dp_egr_flow_cnt_table_item_clr(uint32_t entry);
int32_t ze_dp_qos_drop_reason_clr(uint32_t index);
int32_t ze_dp_right_release(void);

#ifdef __cplusplus
}
#endif

#endif
