// What each exported function that reaches the driver does when a driver
// command, a named kernel call, a datapath library call or a heap
// allocation fails: the result it returns and what the shadow tables hold
// afterwards. Each such function is named once; the fault sweep reads it.
#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace sweep {

// The result of a function whose step failed.
enum class Result {
    Mapped,    // 0xf0000101 becomes 18, any other code 0xffffffff; a failed allocation 27
    Folded,    // every failure becomes 0xffffffff
    Ignored,   // the failure is not looked at: result and shadow tables as without it
    PassedOn,  // the failing call's code comes back unchanged; a failed allocation 27
};

// The shadow tables after a failure.
enum class Shadow {
    Unchanged,  // as before the call
    AsWithout,  // as after the call without the fault
    KeepsDone,  // steps done before the failure stay: each byte as before or as after the fault-free call
    GemFirst,   // as KeepsDone, and an sfid whose GEM port went first keeps its entry with GEM port none
};

// A step whose failure the function treats otherwise than the rest: a
// command id ("0xa0b") or a call name, on its nth occurrence (0: every one).
struct Step {
    const char *event;
    uint32_t nth;
    Result result;
};

struct Rule {
    Result result = Result::Mapped;
    Shadow shadow = Shadow::Unchanged;
    std::span<const Step> except = {};
};

struct FunctionRule {
    const char *function;
    Rule rule;
};

// The plain get/modify/set shape: driver codes mapped, nothing recorded.
inline constexpr Rule kGetModifySet{};
// Every failure comes back as 0xffffffff: inner results mapped once more,
// or a status or PON operation.
inline constexpr Rule kFolded{Result::Folded};
// Always the fault-free result: listings, network initialisation, removals
// that do not look at the driver's answer.
inline constexpr Rule kIgnored{Result::Ignored, Shadow::AsWithout};
// Kernel calls and the raw channel: the code unchanged.
inline constexpr Rule kPassedOn{Result::PassedOn};

// ze_gmac_del_gemport maps the result of its own read of the mapping once
// more, so the driver's 0xf0000101 there comes back as 0xffffffff (on its
// writes as 18); its callers map everything it returns once more.
inline constexpr Step kGemReadRemapped[] = {{"0xb04", 0, Result::Folded}};
inline constexpr Step kGemRemovalRemapped[] = {{"0xb04", 0, Result::Folded}, {"0xb05", 0, Result::Folded},
                                               {"0x202", 0, Result::Folded}, {"0x203", 0, Result::Folded}};
// The flow CAR's profile check answers 0xffffffff for a failed read.
inline constexpr Step kProfileCheck[] = {{"0xa0b", 1, Result::Folded}};
// The start-up's profile writes answer 0xffffffff whatever the driver said.
inline constexpr Step kProfileWrites[] = {{"0xa0a", 0, Result::Folded}};
// The ingress priority's write is not looked at.
inline constexpr Step kInPriWrite[] = {{"0xa08", 0, Result::Ignored}};
// Writing a WRED profile reads it first and ignores that read.
inline constexpr Step kWredRead[] = {{"0xa17", 0, Result::Ignored}};
// The route walk's release of the datapath is not looked at.
inline constexpr Step kRightRelease[] = {{"ze_dp_right_release", 0, Result::Ignored}};

// Installs and removals of several steps that leave the steps done before a
// failure in place.
inline constexpr Rule kKeepsDone{Result::Mapped, Shadow::KeepsDone};
inline constexpr Rule kFoldedKeepsDone{Result::Folded, Shadow::KeepsDone};
inline constexpr Rule kFoldedGemFirst{Result::Folded, Shadow::GemFirst};

inline constexpr FunctionRule kFunctionRules[] = {
    // Channel.
    {"ze_os_hlp_sdk_dp", kPassedOn}, {"ze_hlp_sdk_dp_cmdtype", kPassedOn},
    // Chip.
    {"ze_chip_get_upmode", kGetModifySet}, {"ze_chip_set_upmode", kGetModifySet},
    {"ze_chip_get_access_mode", kGetModifySet}, {"ze_chip_set_access_mode", kGetModifySet},
    {"ze_chip_init_vlan_pri_select", kGetModifySet}, {"ze_chip_get_chip_version", kGetModifySet},
    {"ze_chip_get_vendor", kGetModifySet}, {"ze_chip_get_version", kGetModifySet},
    // GPON and EPON MAC.
    {"ze_gmac_get_gemport", kGetModifySet}, {"ze_gmac_set_gemport", kGetModifySet},
    {"ze_gmac_del_gemport", {Result::Mapped, Shadow::Unchanged, kGemReadRemapped}},
    {"ze_gmac_del_down_gemport", kGetModifySet}, {"ze_gmac_get_down_gemport_type", kGetModifySet},
    {"ze_gmac_set_down_gemport_type", kGetModifySet}, {"ze_gmac_get_aes", kGetModifySet},
    {"ze_gmac_set_aes", kGetModifySet}, {"ze_gmac_get_fec", kGetModifySet},
    {"ze_emac_get_fec", kGetModifySet}, {"ze_emac_set_fec", kGetModifySet},
    // Ports.
    {"ze_lsw_port_get_workmode", kGetModifySet}, {"ze_lsw_port_set_workmode", kGetModifySet},
    {"ze_lsw_port_get_pause", kGetModifySet}, {"ze_lsw_port_set_pause", kGetModifySet},
    {"ze_lsw_port_get_loopback", kGetModifySet}, {"ze_lsw_port_set_loopback", kGetModifySet},
    {"ze_lsw_port_get_stpstate", kGetModifySet}, {"ze_lsw_port_get_stp", kGetModifySet},
    {"ze_lsw_port_set_stp", kGetModifySet}, {"ze_lsw_port_get_mtu", kGetModifySet},
    {"ze_lsw_port_set_mtu", kGetModifySet}, {"ze_lsw_port_get_status", kFolded},
    {"ze_lsw_port_set_status", kFolded}, {"ze_lsw_port_get_tag_act", kGetModifySet},
    {"ze_lsw_port_set_tag_act", kFolded}, {"ze_lsw_port_set_uni_tag_act", kGetModifySet},
    {"ze_lsw_port_set_nni_tag_act", kGetModifySet}, {"ze_lsw_port_set_cpu_tag_act", kGetModifySet},
    {"ze_lsw_port_get_defvlan", kFolded},  // the example's PON port
    {"ze_lsw_port_set_defvlan", kGetModifySet}, {"ze_lsw_port_get_defpri", kGetModifySet},
    {"ze_lsw_port_set_defpri", kGetModifySet}, {"ze_lsw_port_init_network", kIgnored},
    // MAC table.
    {"ze_lsw_mac_get_learn", kGetModifySet}, {"ze_lsw_mac_set_learn", kGetModifySet},
    {"ze_lsw_mac_get_learnmode", kGetModifySet}, {"ze_lsw_mac_set_learnmode", kGetModifySet},
    {"ze_lsw_mac_get_learn_fail", kGetModifySet}, {"ze_lsw_mac_set_learn_fail", kGetModifySet},
    {"ze_lsw_mac_get_ageenable", kGetModifySet}, {"ze_lsw_mac_set_ageenable", kGetModifySet},
    {"ze_lsw_mac_get_agetime", kGetModifySet}, {"ze_lsw_mac_set_agetime", kGetModifySet},
    {"ze_lsw_mac_get_limitenable", kGetModifySet}, {"ze_lsw_mac_set_limitenable", kGetModifySet},
    {"ze_lsw_mac_get_limitcount", kGetModifySet}, {"ze_lsw_mac_set_limitcount", kGetModifySet},
    {"ze_lsw_mac_add", kGetModifySet}, {"ze_lsw_mac_get", kGetModifySet}, {"ze_lsw_mac_del", kGetModifySet},
    {"ze_lsw_mac_get_l2item", kGetModifySet}, {"ze_lsw_mac_diagnose", kIgnored},
    // VLAN.
    {"ze_lsw_vlan_add_port", kGetModifySet}, {"ze_lsw_vlan_del_port", kGetModifySet},
    {"ze_lsw_vlan_get_port", kIgnored}, {"ze_lsw_vlan_bc_add_port", kGetModifySet},
    {"ze_lsw_vlan_bc_del_port", kGetModifySet}, {"ze_lsw_vlan_bc_get_port", kGetModifySet},
    {"ze_lsw_vlan_display_bcegrs", kGetModifySet}, {"ze_lsw_vlan_get_hybrid_tagmode", kGetModifySet},
    {"ze_lsw_vlan_set_hybrid_tagmode", kGetModifySet}, {"ze_lsw_vlan_get_vlanfilter", kGetModifySet},
    {"ze_lsw_vlan_set_vlanfilter", kGetModifySet},
    {"ze_lsw_vlan_del_all_cfg", {Result::Ignored, Shadow::KeepsDone}},  // a failed removal keeps its VLAN's entry
    {"ze_lsw_vlan_diagnose", kIgnored},
    // Services, mappings and the two classifiers.
    {"ze_lsw_flow_add_service", kFoldedKeepsDone}, {"ze_lsw_flow_del_service", kIgnored},
    {"ze_lsw_flow_del_fid", kIgnored}, {"ze_lsw_flow_add_mapping", kFolded},
    {"ze_lsw_flow_del_mapping", kFoldedGemFirst}, {"ze_lsw_flow_del_mapping_by_sfid", kFoldedGemFirst},
    {"ze_lsw_flow_del_all", kFoldedGemFirst}, {"ze_lsw_flow_change_igmp_pri", kFoldedKeepsDone},
    {"ze_lsw_flow_diagnose", kIgnored}, {"ze_lsw_flow_set_sfc", kGetModifySet},
    {"ze_lsw_flow_delete_sfc", kGetModifySet},
    {"ze_lsw_flow_sfc_delete_all", {Result::Mapped, Shadow::GemFirst, kGemRemovalRemapped}},
    {"ze_lsw_flow_gemmap_delete_all", kFoldedKeepsDone}, {"ze_lsw_flow_set_efc", kKeepsDone},
    {"ze_lsw_flow_delete_efc", kIgnored}, {"ze_lsw_flow_efc_delete_all", kGetModifySet},
    {"ze_lsw_flow_sfc_diagnose", kGetModifySet}, {"ze_lsw_flow_efc_diagnose", kGetModifySet},
    // Rate limiting.
    {"ze_lsw_car_set_flow_car", {Result::Mapped, Shadow::Unchanged, kProfileCheck}},
    {"ze_lsw_car_get_flow_car", kGetModifySet}, {"ze_lsw_car_set_gemport_car", kKeepsDone},
    {"ze_lsw_car_get_gemport_car", kGetModifySet}, {"ze_lsw_car_set_efc_car", kGetModifySet},
    {"ze_lsw_car_get_efc_car", kGetModifySet}, {"ze_lsw_car_set_simple_car", kGetModifySet},
    {"ze_lsw_car_get_simple_car", kGetModifySet}, {"ze_lsw_car_set_protocol_paket_action", kGetModifySet},
    {"ze_lsw_car_get_protocol_paket_action", kGetModifySet}, {"ze_lsw_car_set_protocol_paket_car", kGetModifySet},
    {"ze_lsw_car_get_protocol_paket_car", kGetModifySet}, {"ze_lsw_car_set_tocpu_reason_car", kGetModifySet},
    {"ze_lsw_car_get_tocpu_reason_car", kGetModifySet}, {"ze_lsw_car_set_eth_car", kGetModifySet},
    {"ze_lsw_car_init_wred", {Result::Mapped, Shadow::Unchanged, kProfileWrites}},
    // QoS.
    {"ze_lsw_qos_get_in_pri", kGetModifySet},
    {"ze_lsw_qos_set_in_pri", {Result::Mapped, Shadow::Unchanged, kInPriWrite}},
    {"ze_lsw_qos_set_gemport_pri", {Result::Folded, Shadow::Unchanged, kInPriWrite}},
    {"ze_lsw_qos_get_queue_shaping", kGetModifySet}, {"ze_lsw_qos_set_queue_shaping", kGetModifySet},
    {"ze_lsw_qos_get_egr_shaping", kGetModifySet}, {"ze_lsw_qos_set_egr_shaping", kGetModifySet},
    {"ze_lsw_qos_set_egr_schattr", kGetModifySet}, {"ze_lsw_qos_get_egr_schattr", kGetModifySet},
    {"ze_lsw_qos_set_queue_buffer", kGetModifySet}, {"ze_lsw_qos_get_queue_buffer", kGetModifySet},
    {"ze_lsw_qos_set_queue_map", kGetModifySet}, {"ze_lsw_qos_get_queue_map", kGetModifySet},
    {"ze_lsw_qos_get_wred", kGetModifySet}, {"ze_lsw_qos_set_wred", {Result::Mapped, Shadow::Unchanged, kWredRead}},
    // Security filters.
    {"ze_lsw_sec_get_ip_filtermode", kGetModifySet}, {"ze_lsw_sec_set_ip_filtermode", kGetModifySet},
    {"ze_lsw_sec_get_blackmode", kGetModifySet}, {"ze_lsw_sec_set_blackmode", kGetModifySet},
    {"ze_lsw_sec_add_blackmac", kGetModifySet}, {"ze_lsw_sec_del_blackmac", kGetModifySet},
    {"ze_lsw_sec_add_ip_filter_table", kGetModifySet}, {"ze_lsw_sec_del_ip_filter_table", kIgnored},
    {"ze_lsw_sec_get_ip_filter_table", kGetModifySet}, {"ze_lsw_sec_diagnose", kIgnored},
    // Statistics.
    {"ze_lsw_pm_clear_all_statistic", kGetModifySet}, {"ze_lsw_pm_get_queue_statistic", kGetModifySet},
    {"ze_lsw_pm_get_ipv6_statistic", {Result::Mapped, Shadow::Unchanged, kRightRelease}},
    {"ze_lsw_pm_get_drop_reason_statistic", kGetModifySet}, {"ze_lsw_pm_get_uni_eth_statistic", kGetModifySet},
    {"ze_lsw_pm_get_epon_rx_statistic", kGetModifySet}, {"ze_lsw_pm_get_epon_tx_statistic", kGetModifySet},
    {"ze_lsw_pm_get_epon_bandwidth_statistic", kGetModifySet}, {"ze_lsw_pm_get_rt_statistic", kGetModifySet},
    {"ze_lsw_pm_get_qm_statistic", kGetModifySet}, {"ze_lsw_pm_get_pa_statistic", kGetModifySet},
    {"ze_lsw_pm_get_oam_statistic", kGetModifySet}, {"ze_lsw_pm_get_mtp_statistic", kGetModifySet},
    {"ze_lsw_pm_get_mcm_statistic", kGetModifySet}, {"ze_lsw_pm_get_mcd_statistic", kGetModifySet},
    {"ze_lsw_pm_get_l3_statistic", kGetModifySet}, {"ze_lsw_pm_get_l2_statistic", kGetModifySet},
    {"ze_lsw_pm_get_cpurtx_statistic", kGetModifySet}, {"ze_lsw_pm_get_efc_statistic", kGetModifySet},
    {"ze_lsw_pm_get_sfc_statistic", kGetModifySet}, {"ze_lsw_pm_get_fc_statistic", kGetModifySet},
    {"ze_lsw_pm_get_txdma_statistic", kGetModifySet}, {"ze_lsw_pm_get_rxdma_statistic", kGetModifySet},
    {"ze_lsw_pm_get_cap_statistic", kGetModifySet}, {"ze_lsw_pm_get_gpon_alarm_statistic", kGetModifySet},
    {"ze_lsw_pm_get_eps_pon_statistic", kGetModifySet}, {"ze_lsw_pm_get_ugmac_sys_statistic", kGetModifySet},
    {"ze_lsw_pm_get_dgem_sys_statistic", kGetModifySet}, {"ze_lsw_pm_get_dgtc_line_statistic", kGetModifySet},
    {"ze_lsw_pm_get_dgtc_sys_statistic", kGetModifySet}, {"ze_lsw_pm_get_gpon_ext_statistic", kGetModifySet},
    {"ze_lsw_pm_get_epon_alarm_statistic", kGetModifySet}, {"ze_lsw_pm_get_epon_statistic", kGetModifySet},
    {"ze_lsw_pm_get_tocpu_reason_statistic", kGetModifySet}, {"ze_lsw_pm_get_thru_reason_statistic", kGetModifySet},
    // Board memory and IGMP snooping.
    {"ze_board_write_phymem", kPassedOn}, {"ze_board_read_phymem", kPassedOn},
    {"ze_igmp_dump", kPassedOn}, {"ze_igmp_clr_statinfo", kPassedOn}, {"ze_igmp_get_statinfo", kPassedOn},
    {"ze_igmp_get_ifinfo", kPassedOn}, {"ze_igmp_get_ageinfo", kPassedOn}, {"ze_igmp_get_grpinfo", kPassedOn},
    {"ze_igmp_get_usrinfo", kPassedOn}, {"ze_igmp_get_genqueryip", kPassedOn}, {"ze_igmp_set_genqueryip", kPassedOn},
    {"ze_igmp_get_autolrnvlan", kPassedOn}, {"ze_igmp_set_autolrnvlan", kPassedOn},
    {"ze_igmp_get_genquerymode", kPassedOn}, {"ze_igmp_set_genquerymode", kPassedOn},
    {"ze_igmp_get_usrvlanact", kPassedOn}, {"ze_igmp_set_usrvlanact", kPassedOn},
    {"ze_igmp_get_agetimeinter", kPassedOn}, {"ze_igmp_set_agetimeinter", kPassedOn},
    {"ze_igmp_get_agetimes", kPassedOn}, {"ze_igmp_set_agetimes", kPassedOn},
    {"ze_igmp_get_defusrvlan", kPassedOn}, {"ze_igmp_set_defusrvlan", kPassedOn},
    {"ze_igmp_get_defgrpvlan", kPassedOn}, {"ze_igmp_set_defgrpvlan", kPassedOn},
    {"ze_igmp_get_snoopingmode", kPassedOn}, {"ze_igmp_set_snoopingmode", kPassedOn},
    {"ze_igmp_get_proxymode", kPassedOn}, {"ze_igmp_set_proxymode", kPassedOn},
    {"ze_igmp_add_gourpvlan_ip", kPassedOn}, {"ze_igmp_del_gourpvlan_ip", kPassedOn},
    {"ze_igmp_get_ifname", kPassedOn}, {"ze_igmp_del_ifname", kPassedOn}, {"ze_igmp_add_ifname", kPassedOn},
};

}  // namespace sweep
