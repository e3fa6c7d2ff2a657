// Reason counters: why packets were dropped (per port), sent to the CPU or
// passed through the classifier untouched. Each group prints its own names
// for the same reasons.
#include "ze_lsw_pm.h"

#include "ze_lsw_pm_frame.h"
#include "ze_lsw_tables.h"

namespace {

using namespace ze::pm;

constexpr char kTraceFile[] = "ze_lsw_pm.cpp";

// Flow classifier rules 0..15, a word each; each group places the run.
constexpr Row kEfcMatchedRows[] = {
    pair32(c("efc0_matched", 0), c("efc1_matched", 4)),
    pair32(c("efc2_matched", 8), c("efc3_matched", 12)),
    pair32(c("efc4_matched", 16), c("efc5_matched", 20)),
    pair32(c("efc6_matched", 24), c("efc7_matched", 28)),
    pair32(c("efc8_matched", 32), c("efc9_matched", 36)),
    pair32(c("efc10_matched", 40), c("efc11_matched", 44)),
    pair32(c("efc12_matched", 48), c("efc13_matched", 52)),
    pair32(c("efc14_matched", 56), c("efc15_matched", 60)),
};
constexpr Rows kEfcMatched = kEfcMatchedRows;

// PPPoE session, DHCPv6, ICMPv6 and MLD reasons as the to-CPU and
// pass-through groups name and place them.
constexpr Row kIpv6ReasonRows[] = {
    pair32(c("pppoe_ss_lcp", 288), c("pppoe_ss_ncp", 292)),
    pair32(c("pppoe_ss_chap", 296), c("pppoe_ss_pap", 300)),
    pair32(c("pppoe_ss_ipv6cp", 304), c("pppoe_ss_point_0", 308)),
    pair32(c("pppoe_ss_point_1", 312), c("pppoe_ss_point_2", 316)),
    pair32(c("dhcpv6", 320), c("icmpv6_rs", 324)),
    pair32(c("icmpv6_ra", 328), c("icmpv6_ns", 332)),
    pair32(c("icmpv6_na", 336), c("icmpv6_rm", 340)),
    pair32(c("icmpv6_ping_req", 344), c("icmpv6_ping_reply", 348)),
    pair32(c("icmpv6_unreach", 352), c("icmpv6_group_big", 356)),
    pair32(c("icmpv6_outtime", 360), c("icmpv6_param_error", 364)),
    pair32(c("ipoe_mld_qry_v1_v2", 368), c("ipoe_mld_report_v1", 372)),
    pair32(c("ipoe_mld_report_v2", 376), c("ipoe_mld_done", 380)),
    pair32(c("pppoe_mld_qry_v1_v2", 384), c("pppoe_mld_report_v1", 388)),
    pair32(c("pppoe_mld_report_v2", 392), c("pppoe_mld_done", 396)),
    pair32(c("ipv6_extheader_many", 400), c("header_over_128B", 404)),
};
constexpr Rows kIpv6Reasons = kIpv6ReasonRows;

// Drop reasons: eight per-port records of 504 bytes in one block.
constexpr uint32_t kDropCmd = 2628, kDropLen = 4032;
constexpr uint32_t kDropRecord = 504;
constexpr uint32_t kDropPorts = 8;  // ports 0..7; port 8 prints them all
constexpr Row kDropRows[] = {
    kLongSep,
    pair32(c("not_drop", 0), c("mac_err", 4)),
    pair32(c("pon_fcs_err", 8), c("jumbo", 12)),
    pair32(c("frag", 16), c("invalid_egrforcpu", 20)),
    pair32(c("invalid_smac", 24), fill("----")),
    kLongSep,
    include(kEfcMatched, 28),
    kLongSep,
    pair32(c("igr_car_fctrl", 104), c("vlan_tag", 100)),
    pair32(c("egr_vlan_check", 92), c("em_port_isolation", 96)),
    pair32(c("invalid_user_vlan", 108), fill("----")),
    pair32(c("rarp", 124), c("arp", 120)),
    kLongSep,
    pair32(c("napt_ip_frag", 112), c("napt_ip_option", 196)),
    pair32(c("napt_subnet_unhit", 232), fill("----")),
    pair32(c("igmp_ipoe", 148), c("igmp_pppoe", 116)),
    pair32(c("em_port_close_for8021x", 132), c("stp_rstp", 136)),
    pair32(c("whitelist", 140), c("dhcp", 144)),
    pair32(c("ethtype1", 156), c("ethtype2", 160)),
    pair32(c("ethtype3", 164), c("ethtype4", 168)),
    pair32(c("pppoe_dis", 128), c("remote_lp_test_em_port", 176)),
    pair32(c("fail_learn", 180), fill("----")),
    pair32(c("fail_searchdmac", 188), c("srcem_port_forbidden", 192)),
    pair32(c("bpdu", 172), c("eapol", 184)),
    pair32(c("fail_classify_flow", 204), c("fail_mapping", 208)),
    pair32(c("car_for_cpu", 212), c("car_for_lan", 216)),
    pair32(c("car_for_broadcast", 220), c("car_for_uuc", 224)),
    pair32(c("fifo_full_for_mcd", 228), fill("----")),
    pair32(c("oam_3ah_lp", 236), c("md_level_1ag", 240)),
    pair32(c("oam_disable", 244), c("fifo_full_bc_copy", 248)),
    pair32(c("em_port_access_tag_pkt", 252), c("bc_invalid_egress", 256)),
    pair32(c("mcd_invalid_egress", 260), fill("----")),
    kLongSep,
    pair32(c("em_port_asm_illegal", 268), c("unknown_extheader", 272)),
    pair32(c("ipv6_sip_sitelocal", 276), c("ipv6_sip_0", 280)),
    pair32(c("efc_ecar", 284), c("pppoe_ss_lcp", 288)),
    pair32(c("pppoe_ss_ncp", 292), c("pppoe_ss_chap", 296)),
    pair32(c("pppoe_ss_pap", 300), c("pppoe_ss_ipv6cp", 304)),
    pair32(c("pppoe_ss_point_0", 308), c("pppoe_ss_point_1", 312)),
    pair32(c("pppoe_ss_point_2", 316), c("dhcpv6", 320)),
    pair32(c("icmpv6_rs", 324), c("icmpv6_ra", 328)),
    pair32(c("icmpv6_ns", 332), c("icmpv6_na", 336)),
    pair32(c("icmpv6_rm", 340), c("icmpv6_ping_req", 344)),
    pair32(c("icmpv6_ping_reply", 348), c("icmpv6_unreach", 352)),
    pair32(c("icmpv6_group_big", 356), c("icmpv6_outtime", 360)),
    pair32(c("icmpv6_param_error", 364), c("ipoe_mld_qry_v1_v2", 368)),
    pair32(c("ipoe_mld_reem_port_v1", 372), c("ipoe_mld_reem_port_v2", 376)),
    pair32(c("ipoe_mld_done", 380), c("pppoe_mld_qry_v1_v2", 384)),
    pair32(c("pppoe_mld_reem_port_v1", 388), c("pppoe_mld_reem_port_v2", 392)),
    pair32(c("pppoe_mld_done", 396), fill("----")),
    pair32(c("ipv6_extheader_many", 400), c("header_over_128B", 404)),
    pair32(c("efc_point_no_egr", 408), c("hl_ttl_less_1", 412)),
    pair32(c("rt_fail", 416), c("black_hole_rt", 420)),
    pair32(c("no_next_hop", 424), c("in_tunnel_mtu_fail", 428)),
    pair32(c("tunnel_if_invld", 440), c("napt_up_unhit", 444)),
    pair32(c("snap_length_over_1500", 448), c("tunnel_unused_length", 492)),
    pair32(c("l3_if_isolation", 488), c("sipv6_loop", 460)),
    pair32(c("sipv6_mc", 464), c("sipv4_0", 468)),
    pair32(c("sipv4_loop", 472), c("sipv4_mc", 476)),
    pair32(c("sipv6_link_local", 480), c("ip_filter", 484)),
    pair32(c("igr_car", 432), c("egr_car", 436)),
    pair32(c("group_car", 452), c("egr_all_0", 456)),
    pair32(c("frag_6rd", 496), c("ipv4_option_6rd", 500)),
    pair32(c("icmp", 152), c("tocpu_reason_car", 200)),
    pair32(c("default_tag_check", 264), fill("----")),
};

// To-CPU reasons; the counters after "[T7]:" belong to that chip revision.
// ipv6_sip_link_local prints a second time with 0.
constexpr Row kTocpuRows[] = {
    kLongSep,
    pair32(c("not_tocpu", 0), fill("----")),
    kLongSep,
    include(kEfcMatched, 4),
    kLongSep,
    pair32(fill("----"), c("arp", 96)),
    pair32(c("rarp", 100), c("eapol", 108)),
    pair32(c("bpdu", 112), c("dhcp", 116)),
    pair32(fill("----"), c("icmp", 124)),
    pair32(c("custom_type0", 128), c("custom_type1", 132)),
    pair32(c("custom_type2", 136), c("custom_type3", 140)),
    pair32(c("pppoe_dis", 104), c("tcp_ctrl", 164)),
    pair32(c("port_moved", 148), c("mac_learn", 152)),
    pair32(c("fail_learn", 156), c("fail_search", 160)),
    pair32(c("napt_ip_option", 172), c("napt_accel_on", 168)),
    pair32(c("igmp_pppoe", 88), c("igmp_ipoe", 92)),
    pair32(c("oam_1ag_y1731", 180), c("oam_3ah", 184)),
    pair32(c("ip_fragment_napt", 220), c("napt_down_fail", 224)),
    kLongSep,
    label("[T7]:"),
    pair32(c("ipv4_unknown_mc", 228), c("ipv6_unknown_mc", 236)),
    pair32(c("uc_bc_gemport_ipv4_imc", 240), c("uc_bc_gemport_ipv6_umc", 244)),
    pair32(c("tunnel_unknown_mc", 232), fill("----")),
    pair32(c("napt_egr_is_cpu", 256), c("rt_to_gw_if", 260)),
    pair32(c("l2_fwd_to_gw_if", 264), c("efc_point_to_wlan", 268)),
    pair32(c("unknown_extern_header", 272), c("ipv6_sip_site_local", 276)),
    pair32(c("ipv6_sip_0", 280), c("ipv6_sip_link_local", 284)),
    include(kIpv6Reasons),
    pair32(c("hl_ttl_less_1", 412), c("rt_fail", 416)),
    pair32(c("refuse_rt", 420), c("no_next_hop", 424)),
    pair32(c("in_tunnel_mtu_fail", 428), c("bc", 432)),
    pair32(c("uuc", 436), c("sipv6_loop", 444)),
    pair32(c("sipv6_mc", 448), c("sipv4_0", 452)),
    pair32(c("sipv4_loop", 456), c("sipv4_mc", 460)),
    pair32(c("tocpu_and_route", 464), c("tocpu_and_napt", 468)),
    pair32(fill("ipv6_sip_link_local"), c("snap_length_over_1500", 472)),
    pair32(c("ds_lite_out", 476), c("mc_fwd_tocpu", 440)),
    pair32(c("bc_vlan", 480), c("mc_vlan", 484)),
    pair32(c("bc_igr_mirror", 248), c("mc_igr_mirror", 252)),
    pair32(c("6rd_frag", 496), c("6rd_ipv4_option", 500)),
    pair32(c("rt_fwd_usr", 408), c("rtp_capture", 68)),
    pair32(c("egr_mirror", 504), c("igr_mirror", 508)),
    kLongSep,
    pair32(c("cmm_lmm_0", 188), c("cmm_lmm_1", 192)),
    pair32(c("cmm_lmm_2", 196), c("cmm_lmm_3", 200)),
    pair32(c("cmm_lmm_4", 204), c("cmm_lmm_5", 208)),
    pair32(c("cmm_lmm_6", 212), c("cmm_lmm_7", 216)),
    pair32(c("frag_6rd", 488), c("drop_redirection", 492)),
};
constexpr Group kTocpu{3345, 512, kTocpuRows};

// Pass-through reasons.
constexpr Row kThruRows[] = {
    kLongSep,
    include(kEfcMatched, 4),
    kLongSep,
    pair32(c("ge0_thru", 68), c("ge1_thru", 72)),
    pair32(c("fe2_thru", 76), c("fe3_thru", 80)),
    pair32(c("fe4_thru", 84), fill("----")),
    kLongSep,
    pair32(c("igmp_ipoe", 104), c("arp", 108)),
    pair32(c("rarp", 112), c("eapol", 92)),
    pair32(c("bpdu", 88), c("dhcp", 128)),
    pair32(c("igmp_pppoe", 120), c("icmp", 136)),
    pair32(c("eth_type0", 140), c("eth_type1", 144)),
    pair32(c("eth_type2", 148), c("eth_type3", 152)),
    kLongSep,
    include(kIpv6Reasons),
    pair32(c("pppoe_discovery", 116), c("base_on_smac", 160)),
    pair32(c("oam_1ag", 100), c("oam_3ah", 96)),
};
constexpr Group kThru{3344, 408, kThruRows};

void print_drop_port(const CounterBlock &b, uint32_t port) {
    print_rows(kDropRows, b, kDropRecord * port);
}

}  // namespace

extern "C" {

uint32_t ze_lsw_pm_get_drop_reason_statistic(uint32_t port) {
    if (port > ZE_PORT_ALL) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    CounterBlock b(kDropLen);
    return show(ZE_SITE, b, kDropCmd, [port](const CounterBlock &blk) {
        if (port != ZE_PORT_ALL) {
            ze_os_printf("%-20s\n", g_phy_port[port]);
            print_drop_port(blk, port);
            return;
        }
        for (uint32_t p = 0; p < kDropPorts; ++p) {
            ze_os_printf(
                "\n===================================%-4s"
                "===================================================\n",
                g_phy_port[p]);
            print_drop_port(blk, p);
            print_long_sep();
            print_long_sep();
        }
    });
}

uint32_t ze_lsw_pm_get_tocpu_reason_statistic(void) { return show(ZE_SITE, kTocpu); }

uint32_t ze_lsw_pm_get_thru_reason_statistic(void) { return show(ZE_SITE, kThru); }

}  // extern "C"
