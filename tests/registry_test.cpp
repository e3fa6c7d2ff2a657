// Registration of the command table with the interface manager.
#include <regex>

#include "test_support.h"
#include "ze_adapter_cli.h"
#include "ze_adapter_cli_table.h"

namespace {

class Registry : public zetest::SimTest {
protected:
    void TearDown() override {
        ze_host_ifm_fail_at(0, 0);
        ze_host_ifm_clear();
        ze_adapter_cli_init();
        SimTest::TearDown();
    }
};

TEST_F(Registry, RegistersEveryEntryInTableOrder) {
    ze_host_ifm_clear();
    ASSERT_EQ(ze_adapter_cli_init(), 0u);
    ASSERT_EQ(ze_host_ifm_count(), g_ui_adapter_cli_count);
    for (uint32_t i = 0; i < g_ui_adapter_cli_count; ++i) {
        ze_ifm_handler_f h = nullptr;
        EXPECT_STREQ(ze_host_ifm_at(i, &h), g_st_adapter_cli[i].name);
        EXPECT_EQ(h, g_st_adapter_cli[i].handler);
    }
    EXPECT_STREQ(g_st_adapter_cli[0].name, "ze_adapter_cli_chip_get_version");
}

// The 164 commands, in registration order.
const char *const kRegistered[] = {
    "chip_get_version",
    "chip_get_vendor",
    "chip_set_upmode",
    "chip_get_upmode",
    "chip_set_access_mode",
    "chip_get_access_mode",
    "emac_set_fec",
    "emac_get_fec",
    "gmac_set_aes",
    "gmac_get_aes",
    "gmac_set_gemport",
    "gmac_get_gemport",
    "gmac_set_fec",
    "gmac_get_fec",
    "gmac_del_gemport",
    "gmac_set_down_gemport_type",
    "gmac_get_down_gemport_type",
    "gmac_del_down_gemport",
    "flow_add_service",
    "flow_del_service",
    "flow_get_service",
    "flow_del_fid",
    "flow_del_all",
    "flow_diagnose",
    "flow_add_mapping",
    "flow_del_mapping",
    "flow_del_mapping_by_sfid",
    "flow_set_mapping_value_select",
    "flow_get_mapping_value_select",
    "lsw_car_init_wred",
    "lsw_car_set_protocol_paket_car",
    "lsw_car_get_protocol_paket_car",
    "lsw_car_set_protocol_paket_action",
    "lsw_car_get_protocol_paket_action",
    "lsw_car_set_simple_car",
    "lsw_car_get_simple_car",
    "lsw_car_set_efc_car",
    "lsw_car_get_efc_car",
    "lsw_car_set_flow_car",
    "lsw_car_get_flow_car",
    "lsw_car_set_gemport_car",
    "lsw_car_get_gemport_car",
    "lsw_car_set_tocpu_reason",
    "lsw_car_get_tocpu_reason",
    "lsw_mac_set_swmode",
    "lsw_mac_get_swmode",
    "lsw_mac_set_learn",
    "lsw_mac_get_learn",
    "lsw_mac_set_learn_fail",
    "lsw_mac_get_learn_fail",
    "lsw_mac_set_learnmode",
    "lsw_mac_get_learnmode",
    "lsw_mac_set_limitenable",
    "lsw_mac_get_limitenable",
    "lsw_mac_set_limitcount",
    "lsw_mac_get_limitcount",
    "lsw_mac_set_ageenable",
    "lsw_mac_get_ageenable",
    "lsw_mac_set_agetime",
    "lsw_mac_get_agetime",
    "lsw_mac_add",
    "lsw_mac_get",
    "lsw_mac_del",
    "lsw_mac_diagnose",
    "lsw_phy_get_power",
    "lsw_phy_set_status",
    "lsw_phy_get_status",
    "lsw_phy_set_mode",
    "lsw_phy_get_mode",
    "lsw_port_set_status",
    "lsw_port_get_status",
    "lsw_port_set_workmode",
    "lsw_port_get_workmode",
    "lsw_port_set_defvlan",
    "lsw_port_get_defvlan",
    "lsw_port_set_pause",
    "lsw_port_get_pause",
    "lsw_port_set_pausetime",
    "lsw_port_get_pausetime",
    "lsw_port_set_loopback",
    "lsw_port_get_loopback",
    "lsw_port_set_mtu",
    "lsw_port_get_mtu",
    "lsw_port_set_pri",
    "lsw_port_get_pri",
    "lsw_port_set_stp",
    "lsw_port_get_stp",
    "lsw_port_get_stpstate",
    "lsw_port_set_tag_act",
    "lsw_port_get_tag_act",
    "lsw_qos_get_queue_map",
    "lsw_qos_set_queue_map",
    "lsw_qos_get_queue_buffer",
    "lsw_qos_set_queue_buffer",
    "lsw_qos_get_egr_schattr",
    "lsw_qos_set_egr_schattr",
    "lsw_qos_set_wred",
    "lsw_qos_get_wred",
    "lsw_qos_set_egr_shaping",
    "lsw_qos_get_egr_shaping",
    "lsw_qos_set_queue_shaping",
    "lsw_qos_get_queue_shaping",
    "lsw_qos_get_queuecount",
    "lsw_qos_set_in_pri",
    "lsw_qos_get_in_pri",
    "lsw_sec_set_blackmode",
    "lsw_sec_get_blackmode",
    "lsw_sec_add_blackmac",
    "lsw_sec_del_blackmac",
    "lsw_sec_diagnose",
    "lsw_sec_set_ip_filtermode",
    "lsw_sec_get_ip_filtermode",
    "lsw_sec_add_ip_filtertable",
    "lsw_sec_del_ip_filtertable",
    "lsw_sec_get_ip_filtertable",
    "lsw_vlan_add_port",
    "lsw_vlan_del_port",
    "lsw_vlan_get_port",
    "lsw_vlan_set_tag",
    "lsw_vlan_get_tag",
    "lsw_vlan_set_vlanfilter",
    "lsw_vlan_get_vlanfilter",
    "lsw_vlan_add_vlanbcegr",
    "lsw_vlan_del_vlanbcegr",
    "lsw_vlan_get_vlanbcegr",
    "lsw_vlan_display_vlanbcegrs",
    "lsw_vlan_diagnose",
    "lsw_pm_get_eth_statistic",
    "lsw_pm_get_epon_statistic",
    "lsw_pm_get_epon_tx_statistic",
    "lsw_pm_get_epon_rx_statistic",
    "lsw_pm_get_epon_alarm_statistic",
    "lsw_pm_get_epon_bandwidth_statistic",
    "lsw_pm_get_gpon_ext_statistic",
    "lsw_pm_get_dgtc_sys_statistic",
    "lsw_pm_get_dgtc_line_statistic",
    "lsw_pm_get_dgem_sys_statistic",
    "lsw_pm_get_ugmac_sys_statistic",
    "lsw_pm_get_ugmac_line_statistic",
    "lsw_pm_get_eps_pon_statistic",
    "lsw_pm_get_gpon_alarm_statistic",
    "lsw_pm_get_fc_statistic",
    "lsw_pm_get_sfc_statistic",
    "lsw_pm_get_efc_statistic",
    "lsw_pm_get_uni_eth_statistic",
    "lsw_pm_get_thru_reason_statistic",
    "lsw_pm_clear_all_statistic",
    "lsw_pm_get_cap_statistic",
    "lsw_pm_get_cpurtx_statistic",
    "lsw_pm_get_drop_reason_statistic",
    "lsw_pm_get_rxdma_statistic",
    "lsw_pm_get_txdma_statistic",
    "lsw_pm_get_ipv6_statistic",
    "lsw_pm_get_l2_statistic",
    "lsw_pm_get_l3_statistic",
    "lsw_pm_get_mcd_statistic",
    "lsw_pm_get_mcm_statistic",
    "lsw_pm_get_mtp_statistic",
    "lsw_pm_get_oam_statistic",
    "lsw_pm_get_pa_statistic",
    "lsw_pm_get_qm_statistic",
    "lsw_pm_get_queue_statistic",
    "lsw_pm_get_rt_statistic",
    "lsw_pm_get_tocpu_reason_statistic",
};

TEST_F(Registry, HoldsExactlyTheCommandsInTheirOrder) {
    ASSERT_EQ(g_ui_adapter_cli_count, std::size(kRegistered));
    for (uint32_t i = 0; i < g_ui_adapter_cli_count; ++i)
        EXPECT_EQ(std::string(g_st_adapter_cli[i].name), std::string("ze_adapter_cli_") + kRegistered[i])
            << "entry " << i;
}

TEST_F(Registry, UnregisteredHandlersExistButCannotBeNamed) {
    const struct {
        const char *name;
        ze_adapter_cli_handler_f handler;
    } hidden[] = {{"ze_adapter_cli_emac_get_llid", ze_adapter_cli_emac_get_llid},
                  {"ze_adapter_cli_emac_set_llid", ze_adapter_cli_emac_set_llid},
                  {"ze_adapter_cli_lsw_phy_set_power", ze_adapter_cli_lsw_phy_set_power}};
    for (const auto &h : hidden) {
        EXPECT_EQ(ze_host_ifm_find(h.name), nullptr) << h.name;
        uint32_t req[2] = {}, reply = 0;
        EXPECT_EQ(h.handler(req, std::string(h.name).ends_with("power") ? 8 : 4, &reply), 0u) << h.name;
    }
}

TEST_F(Registry, StopsAtTheFirstRefusal) {
    const uint32_t k = 3;
    ze_host_ifm_clear();
    ze_host_ifm_fail_at(k, 0x0badc0de);
    EXPECT_EQ(ze_adapter_cli_init(), 0x0badc0deu);
    EXPECT_EQ(ze_host_ifm_count(), k);
    std::smatch m;
    std::string out = console();
    ASSERT_TRUE(std::regex_match(out, m, std::regex("\r\n\\[ERROR CODE=0x0badc0de \\.\\./adapter_cli/"
                                                    "ze_adapter_cli_cmd\\.cpp [0-9]+\\]!{18}\r\n"
                                                    "\\[funcname = (.*)\\]")));
    EXPECT_EQ(m[1].str(), g_st_adapter_cli[k].name);
}

TEST_F(Registry, ExitKeepsRegistrations) {
    uint32_t before = ze_host_ifm_count();
    EXPECT_EQ(ze_adapter_cli_exit(), 0u);
    EXPECT_EQ(ze_host_ifm_count(), before);
}

}  // namespace
