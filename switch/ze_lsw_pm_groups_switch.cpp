// Statistic groups of the switch blocks: routing, queue manager, parser, CFM,
// meters, multicast, layer 2 and 3, flow classifiers, DMA engines, capture,
// the Ethernet port MAC counters and the CPU port channels.
#include "ze_lsw_pm.h"

#include "ze_lsw_pm_frame.h"

namespace {

using namespace ze::pm;

constexpr char kTraceFile[] = "ze_lsw_pm.cpp";

// Routing.
constexpr Row kRtRows[] = {
    pair32(c("rx_notdrop_st", 0), c("rx_drop_st", 4)),
    pair32(c("in_tunnel_st", 8), c("out_tunnel_st", 12)),
    pair32(c("napt_st", 16), c("rt_fail_st", 20)),
    pair32(c("in_tunnel_fail_st", 24), c("not_out_tunnel_st", 28)),
    pair32(c("tx_notdrop_st", 32), c("tx_drop_st", 36)),
    pair32(c("bw_filter_drop_st", 40), c("v6_frag_rt_st", 44)),
};
constexpr Group kRt{3363, 48, kRtRows};

// Queue manager.
constexpr Row kQmRows[] = {
    pair32(c("qm_rx_drop", 0), c("qm_rx_not_drop", 4)),
    pair32(c("qm_share_uscnt0", 8), c("qm_share_uscnt1", 12)),
    pair32(c("qm_share_uscnt2", 16), c("qm_share_uscnt3", 20)),
    pair32(fill("---"), c("lm_stat0", 24)),
    pair32(c("lm_stat1", 28), c("lm_stat2", 32)),
    pair32(c("lm_stat3", 36), c("lm_stat4", 40)),
    pair32(c("lm_stat5", 44), c("lm_stat6", 48)),
    pair32(c("lm_stat7", 52), fill("---")),
};
constexpr Group kQm{3341, 56, kQmRows};

// Parser; the last row gives offset 28 before 24.
constexpr Row kPaRows[] = {
    pair32(c("rx", 0), c("rxeth", 4)),
    pair32(c("rxcpu", 8), c("rxpon", 12)),
    pair32(c("efc", 16), c("drop", 20)),
    pair32(c("unk_hdr", 28), c("over_128byte", 24)),
};
constexpr Group kPa{3332, 48, kPaRows};

// CFM frames per port; the tenth row gives offset 76 before 72.
constexpr Row kOamRows[] = {
    pair32(c("ge0_fwd_cfm", 0), c("ge0_drop_cfm", 4)),
    pair32(c("ge1_fwd_cfm", 8), c("ge1_drop_cfm", 12)),
    pair32(c("fe0_fwd_cfm", 16), c("fe0_drop_cfm", 20)),
    pair32(c("fe1_fwd_cfm", 24), c("fe1_drop_cfm", 28)),
    pair32(c("fe2_fwd_cfm", 32), c("fe2_drop_cfm", 36)),
    pair32(c("pon_fwd_cfm", 40), c("pon_drop_cfm", 44)),
    pair32(c("cpu_fwd_cfm", 48), c("cpu_drop_cfm", 52)),
    pair32(c("prbs_fwd_cfm", 56), c("prbs_drop_cfm", 60)),
    pair32(c("nmc_rev_cnt", 64), c("mc_rev_cnt", 68)),
    pair32(c("cfm_rls0_abn", 76), c("cfm_to_cpu", 72)),
    pair32(c("ucff_full_drop_cnt", 80), c("bcff_full_drop_cnt", 84)),
};
constexpr Group kOam{3340, 88, kOamRows};

// Meters.
constexpr Row kMtpRows[] = {
    pair32(c("tocpu_scar", 0), c("local_scar", 4)),
    pair32(c("igr_car", 8), c("egr_car", 12)),
    pair32(c("gcar_cnt", 16), c("tocpu_rz_car", 20)),
    pair32(c("igr_car_yel", 24), c("egr_car_yel", 28)),
    pair32(c("gcar_yel", 32), fill("----")),
    pair32(c("mtp_rx_cnt", 36), c("mtp_tx_cnt", 40)),
    pair32(c("igr_car_gre_cnt", 44), c("egr_car_gre_cnt", 48)),
    pair32(c("gcar_gre_cnt", 52), fill("----")),
};
constexpr Group kMtp{3338, 56, kMtpRows};

// Multicast classes.
constexpr Row kMcmRows[] = {
    pair32(c("tmcm", 0), c("ipv4_mcm", 4)),
    pair32(c("ip_tmcm", 8), c("ipv6_mcm", 12)),
    pair32(c("pppoe_tmcm", 16), c("unk_mc", 20)),
};
constexpr Group kMcm{3362, 28, kMcmRows};

// Unicast, multicast and broadcast in and out.
constexpr Row kMcdRows[] = {
    pair32(c("kn_uc_in", 0), c("unkn_uc_in", 4)),
    pair32(c("kn_mc_in", 8), c("unkn_mc_in", 12)),
    pair32(c("bc_in", 16), c("cpu_act_mc_in", 20)),
    pair32(c("kn_uc_in_drop", 24), c("unkn_uc_in_drop", 28)),
    pair32(c("kn_mc_in_drop", 32), c("unkn_mc_in_drop", 36)),
    pair32(c("bc_in_drop", 40), c("cpu_act_mc_in_drop", 44)),
    pair32(c("mc_out", 48), c("mc_fifo_drop", 52)),
    pair32(c("bc_out", 56), c("bc_fifo_drop", 60)),
};
constexpr Group kMcd{3339, 64, kMcdRows};

// Layer 3; the word at 32 prints twice, as tocpu55_stat and iptocpu55_cnt.
constexpr Row kL3Rows[] = {
    pair32(c("drop28_stat", 36), c("drop111_stat", 28)),
    pair32(c("txall_stat", 0), c("tocpu56_stat", 40)),
    pair32(c("tocpu43_stat", 4), c("uptocpu42_stat", 8)),
    pair32(c("tocpu55_stat", 32), c("up_idx_stat", 12)),
    pair32(c("dn_idx_stat", 16), c("drop49_stat", 20)),
    pair32(c("drop58_stat", 24), c("iptocpu55_cnt", 32)),
};
constexpr Group kL3{3337, 44, kL3Rows};

// Learning and ageing.
constexpr Row kL2Rows[] = {
    pair32(c("arl_age", 0), c("age_entry", 4)),
    pair32(c("sv_up_fail", 8), c("sv_dn_fail", 12)),
    pair32(c("dv_up_fail", 16), c("dv_dn_fail", 20)),
    pair32(c("learn_fail", 24), c("fe0_learn", 28)),
    pair32(c("fe1_learn", 32), c("fe2_learn", 36)),
    pair32(c("fe3_learn", 40), c("fe4_learn", 44)),
    pair32(c("pon_learn", 48), c("cpu_learn", 52)),
    pair32(c("prbs_learn", 56), fill("---")),
    pair32(c("age_mport", 60), c("smac_learn", 64)),
    pair32(c("smac_hit", 68), c("dmac_up_hit", 72)),
    pair32(c("dmac_dn_hit", 76), c("hash_full", 80)),
};
constexpr Group kL2{3336, 84, kL2Rows};

// Extended flow classifier, in its own print order.
constexpr Row kEfcRows[] = {
    pair32(c("svlan_rmk", 0), c("cvlan_rmk", 4)),
    pair32(c("spri_rmk", 8), c("cpri_rmk", 12)),
    pair32(c("efc_debug0", 28), c("efc_debug1", 32)),
    pair32(c("multi_match", 68), c("match_map", 24)),
    pair32(c("execute_act", 20), c("efc_drop", 40)),
    pair32(c("efc_tocpu", 36), c("efc_routing", 44)),
    pair32(c("efc_nat", 48), c("efc_napt", 52)),
    pair32(c("pppoe_add", 56), c("tag_del", 64)),
    pair32(c("tag_add", 60), c("unhit_pkt", 16)),
    pair32(c("invld_car_cnt", 72), c("fcar_drop_cnt", 76)),
    pair32(c("fwd_tocpu_cnt", 80), fill("----")),
    pair32(c("dbg0_label_ent", 84), c("dbg0_label_subtable", 88)),
    pair32(c("dbg0_label_hit", 92), fill("----")),
    pair32(c("dbg1_label_ent", 96), c("dbg1_label_subtable", 100)),
    pair32(c("dbg1_label_hit", 104), fill("----")),
    pair32(c("dbg2_label_ent", 108), c("dbg2_label_subtable", 112)),
    pair32(c("dbg2_label_hit", 116), fill("----")),
    pair32(c("dbg3_label_ent", 120), c("dbg3_label_subtable", 124)),
    pair32(c("dbg3_label_hit", 128), fill("----")),
    pair32(c("dbg4_label_ent", 132), c("dbg4_label_subtable", 136)),
    pair32(c("dbg4_label_hit", 140), fill("----")),
    pair32(c("dbg5_label_ent", 144), c("dbg5_label_subtable", 148)),
    pair32(c("dbg5_label_hit", 152), fill("----")),
    pair32(c("dbg6_label_ent", 156), c("dbg6_label_subtable", 160)),
    pair32(c("dbg6_label_hit", 164), fill("----")),
    pair32(c("dbg7_label_ent", 168), c("dbg7_label_subtable", 172)),
    pair32(c("dbg7_label_hit", 176), fill("----")),
    pair32(c("efc_spec_fwd", 180), c("efc_thru_cnt", 184)),
    pair32(c("efc_route_cpu", 188), c("efc_policy_route", 192)),
    pair32(c("car0_drop", 196), c("car1_drop", 200)),
    pair32(c("car2_drop", 204), fill("----")),
};
constexpr Group kEfc{3334, 212, kEfcRows};

// Simple flow classifier.
constexpr Row kSfcRows[] = {
    pair32(c("bcast_scar", 0), c("uucast_scar", 4)),
    pair32(c("match_map", 8), c("unmatch_map", 12)),
    pair32(c("match_tpf", 16), c("unmatch_tpf", 20)),
    pair32(c("sfc_rx", 24), c("sfc_tx", 28)),
    pair32(c("sfc_map_addr", 32), c("sfc_map_vld", 36)),
    pair32(c("sfc_tpf_addr", 40), c("sfc_tpf_vld", 44)),
    pair32(c("txdma_no_ack_cnt", 48), fill("----")),
};
constexpr Group kSfc{3370, 52, kSfcRows};

// Flow counters.
constexpr Row kFcRows[] = {
    pair32(c("actcfl", 8), c("aflow", 0)),
    pair32(c("mflow", 4), c("fc_debug0", 12)),
};
constexpr Group kFc{3333, 16, kFcRows};

// Transmit DMA: 32-bit counters, then each port's 64-bit packets (144..256)
// beside its bytes (264..376).
constexpr Row kTxdmaRows[] = {
    pair32(c("napt_up_idx_cnt", 0), c("napt_dn_idx_cnt", 4)),
    pair32(c("redir_pkt_cnt", 8), c("ppp_add_err_cnt", 12)),
    pair32(c("redir_err_cnt", 16), c("tag_del_err_cnt", 20)),
    kShortSep,
    pair32(c("fcb_pon0_cnt", 24), c("fcb_pon1_cnt", 28)),
    pair32(c("fcb_pon2_cnt", 32), c("fcb_pon3_cnt", 36)),
    pair32(c("fcb_pon4_cnt", 40), c("fcb_pon5_cnt", 44)),
    pair32(c("fcb_pon6_cnt", 48), c("fcb_pon7_cnt", 52)),
    pair32(c("fcb_eth0_cnt", 56), c("fcb_eth1_cnt", 60)),
    pair32(c("fcb_eth2_cnt", 64), c("fcb_eth3_cnt", 68)),
    pair32(c("fcb_eth4_cnt", 72), c("fcb_cpu_cnt", 76)),
    pair32(c("fcb_prbs_cnt", 80), c("out_eth0_cnt", 84)),
    pair32(c("out_eth1_cnt", 88), c("out_eth2_cnt", 92)),
    pair32(c("out_eth3_cnt", 96), c("out_eth4_cnt", 100)),
    pair32(c("out_cpu_cnt", 104), c("out_prbs_cnt", 108)),
    kShortSep,
    pair32(c("out_pon0_cnt", 112), c("out_pon1_cnt", 116)),
    pair32(c("out_pon2_cnt", 120), c("out_pon3_cnt", 124)),
    pair32(c("out_pon4_cnt", 128), c("out_pon5_cnt", 132)),
    pair32(c("out_pon6_cnt", 136), c("out_pon7_cnt", 140)),
    kShortSep,
    pair64(w("bdt_pon0_pkt", 144), w("bdt_pon0_byte", 264)),
    pair64(w("bdt_pon1_pkt", 152), w("bdt_pon1_byte", 272)),
    pair64(w("bdt_pon2_pkt", 160), w("bdt_pon2_byte", 280)),
    pair64(w("bdt_pon3_pkt", 168), w("bdt_pon3_byte", 288)),
    pair64(w("bdt_pon4_pkt", 176), w("bdt_pon4_byte", 296)),
    pair64(w("bdt_pon5_pkt", 184), w("bdt_pon5_byte", 304)),
    pair64(w("bdt_pon6_pkt", 192), w("bdt_pon6_byte", 312)),
    pair64(w("bdt_pon7_pkt", 200), w("bdt_pon7_byte", 320)),
    kShortSep,
    pair64(w("bdt_eth0_pkt", 208), w("bdt_eth0_byte", 328)),
    pair64(w("bdt_eth1_pkt", 216), w("bdt_eth1_byte", 336)),
    pair64(w("bdt_eth2_pkt", 224), w("bdt_eth2_byte", 344)),
    pair64(w("bdt_eth3_pkt", 232), w("bdt_eth3_byte", 352)),
    pair64(w("bdt_eth4_pkt", 240), w("bdt_eth4_byte", 360)),
    pair64(w("bdt_cpu_pkt", 248), w("bdt_cpu_byte", 368)),
    pair64(w("bdt_prbs_pkt", 256), w("bdt_prbs_byte", 376)),
};
constexpr Group kTxdma{3331, 384, kTxdmaRows};

// Receive DMA; port_link_err_rsv and prbs_rx_cnt print more than once, as
// operators know them.
constexpr Row kRxdmaRows[] = {
    pair32(c("pie_ge0_rx_cnt", 0), c("pie_ge1_rx_cnt", 4)),
    pair32(c("pie_ge2_rx_cnt", 8), c("pie_ge3_rx_cnt", 12)),
    pair32(c("pie_ge4_rx_cnt", 16), c("pie_nni_rx_cnt", 20)),
    pair32(c("pie_cpu_rx_cnt", 24), c("pie_drop_cnt", 28)),
    pair32(c("pie_ex_lng_cnt", 32), c("pie_ex_sht_cnt", 36)),
    pair32(c("pie_mac_err_cnt", 40), c("pie_tag_err_cnt", 44)),
    kShortSep,
    pair32(c("ge0_rx_cnt", 48), c("ge0_drop_cnt", 52)),
    pair32(c("ge0_ex_lng_cnt", 56), c("ge0_ex_sht_cnt", 60)),
    pair32(c("ge0_mac_err_cnt", 64), c("ge0_tag_err_cnt", 68)),
    kShortSep,
    pair32(c("ge1_rx_cnt", 72), c("ge1_drop_cnt", 76)),
    pair32(c("ge1_ex_lng_cnt", 80), c("ge1_ex_sht_cnt", 84)),
    pair32(c("ge1_mac_err_cnt", 88), c("ge1_tag_err_cnt", 92)),
    kShortSep,
    pair32(c("ge2_rx_cnt", 96), c("ge2_drop_cnt", 100)),
    pair32(c("ge2_ex_lng_cnt", 104), c("ge2_ex_sht_cnt", 108)),
    pair32(c("ge2_mac_err_cnt", 112), c("ge2_tag_err_cnt", 116)),
    kShortSep,
    pair32(c("ge3_rx_cnt", 120), c("ge3_drop_cnt", 124)),
    pair32(c("ge3_ex_lng_cnt", 128), c("ge3_ex_sht_cnt", 132)),
    pair32(c("ge3_mac_err_cnt", 136), c("ge3_tag_err_cnt", 140)),
    kShortSep,
    pair32(c("ge4_rx_cnt", 144), c("ge4_drop_cnt", 148)),
    pair32(c("ge4_ex_lng_cnt", 152), c("ge4_ex_sht_cnt", 156)),
    pair32(c("ge4_mac_err_cnt", 160), c("ge4_tag_err_cnt", 164)),
    kShortSep,
    pair32(c("nni_rx_cnt0", 168), c("nni_rx_cnt1", 172)),
    pair32(c("nni_ex_lng_cnt", 180), c("nni_ex_sht_cnt", 184)),
    pair32(c("nni_mac_err_cnt", 188), c("nni_tag_err_cnt", 192)),
    pair32(c("port_link_err_rsv", 196), c("port_link_err_rsv", 196)),
    pair32(c("rx_ge0_car_drop_cnt", 204), c("rx_ge1_car_drop_cnt", 208)),
    pair32(c("rx_ge2_car_drop_cnt", 212), c("rx_ge3_car_drop_cnt", 216)),
    pair32(c("rx_ge4_car_drop_cnt", 220), c("rx_nni_car_drop_cnt", 224)),
    pair32(c("nni_drop_cnt", 176), c("mcf_drop_cnt", 228)),
    kShortSep,
    pair32(c("prbs_rx_cnt", 232), c("prbs_drop_cnt", 236)),
    pair32(c("prbs_rx_cnt", 240), c("prbs_drop_cnt", 244)),
    pair32(c("prbs_rx_cnt", 248), fill("----")),
};
constexpr Group kRxdma{3330, 252, kRxdmaRows};

// Capture.
constexpr Row kCapRows[] = {
    pair32(c("cap_rxall", 0), c("cap_match", 16)),
    pair32(c("cap_txall", 4), c("cap_drop", 8)),
    pair32(c("cap_thru", 20), c("cap_lrn", 24)),
    pair32(c("cap_tocpu", 12), fill("----")),
    kShortSep,
    pair32(c("spec_arp", 164), c("spec_rarp", 184)),
    pair32(c("spec_bpdu", 28), c("spec_eapol", 32)),
    pair32(c("spec_dhcpv6", 84), c("spec_icmp", 172)),
    pair32(c("spec_dhcp", 168), c("spec_pppoe_dis", 80)),
    pair32(c("spec_8023ah", 36), c("spec_8021ag", 40)),
    pair32(c("igmp_pppoe", 176), c("igmp_ipoe", 180)),
    pair32(c("icmpv6_rs", 88), c("icmpv6_ra", 92)),
    pair32(c("icmpv6_ns", 96), c("icmpv6_na", 100)),
    pair32(c("icmpv6_rm", 104), c("icmpv6_ping_req", 108)),
    pair32(c("icmpv6_ping_reply", 112), c("icmpv6_unreach", 116)),
    pair32(c("icmpv6_gb", 120), c("icmpv6_over_time", 124)),
    pair32(c("icmpv6_para_err", 128), c("mld_query_v1_v2_ipoe", 132)),
    pair32(c("mld_report_v1_ipoe", 136), c("mld_report_v2_ipoe", 140)),
    pair32(c("mld_done", 144), c("mld_query_v1_v2_pppoe", 148)),
    pair32(c("mld_report_v1_pppoe", 152), c("mld_report_v2_pppoe", 156)),
    pair32(c("mld_done_pppoe", 160), c("pppoe_lcp", 188)),
    pair32(c("pppoe_ipcp", 192), c("pppoe_chap", 196)),
    pair32(c("pppoe_pap", 200), c("pppoe_ipv6cp", 204)),
};
constexpr Group kCap{3335, 208, kCapRows};

// Ethernet port MAC counters, one block per port (index word 0).
constexpr uint32_t kUniEthCmd = 802, kUniEthLen = 416;
constexpr Row kUniEthRows[] = {
    kShortSep,
    pair64(w("ul_rx", 8), w("ul_rx_uc", 16)),
    pair64(w("ul_rx_mc", 24), w("ul_rx_bc", 32)),
    pair64(w("ul_rx_pause", 40), w("ul_rx_unk_ctrl", 48)),
    pair64(w("ul_rx_under_min", 56), w("ul_rx_min_63", 64)),
    pair64(w("ul_rx_64", 72), w("ul_rx_65_127", 80)),
    pair64(w("ul_rx_128_255", 88), w("ul_rx_256_511", 96)),
    pair64(w("ul_rx_512_1023", 104), w("ul_rx_1024_1518", 112)),
    pair64(w("ul_rx_1519_max", 120), w("ul_rx_over_max", 128)),
    pair64(w("ul_rx_undersize", 136), w("ul_rx_fragement", 144)),
    pair64(w("ul_rx_over_size", 152), w("ul_rx_jabber", 160)),
    pair64(w("ul_rx_fcs_err", 168), w("ul_rx_align_err", 176)),
    pair64(w("ul_rx_fifo_overrun", 184), w("ul_ch_tag_err", 192)),
    pair64(w("ul_rx_byte_ok", 200), w("ul_rx_byte_err", 208)),
    kShortSep,
    pair64(w("ul_tx", 216), w("ul_tx_uc", 224)),
    pair64(w("ul_tx_mc", 232), w("ul_tx_bc", 240)),
    pair64(w("ul_tx_pause", 248), w("ul_tx_min_63", 256)),
    pair64(w("ul_tx_64", 264), w("ul_tx_65_127", 272)),
    pair64(w("ul_tx_128_255", 280), w("ul_tx_256_511", 288)),
    pair64(w("ul_tx_512_1023", 296), w("ul_tx_1024_1518", 304)),
    pair64(w("ul_tx_1519_max", 312), w("ul_tx_over_max", 320)),
    pair64(w("ul_tx_crc_err", 328), w("ul_tx_single_col", 336)),
    pair64(w("ul_tx_multi_col", 344), w("ul_tx_excess_col", 352)),
    pair64(w("ul_tx_late_col", 360), w("ul_tx_deferral_trans", 368)),
    pair64(w("ul_tx_crs_lost", 376), w("ul_tx_abort", 384)),
    pair64(w("ul_tx_fifo_underrun", 392), w("ul_tx_byte_ok", 400)),
    single64(w("ul_tx_byte_err", 408)),
    kShortSep,
};

// CPU port channels: 100 rows of a packet counter at 16r beside its byte
// counter at 16r + 8; twelve families of channels 0..7, then the send side.
constexpr uint32_t kCpuRtxCmd = 3371, kCpuRtxLen = 1600;
constexpr uint32_t kCpuChannels = 8;

struct ChannelFamily {
    const char *pkt;   // names of channel 0; other channels put
    const char *byte;  // their digit after "ch"
};
constexpr ChannelFamily kChannelFamilies[] = {
    {"rx_ch0_pkt_cnt", "rx_ch0_byte_cnt"},
    {"rx_ch0_drop_pkt_cnt", "rx_ch0_drop_byte_cnt"},
    {"mrx_ch0_drop_pkt_cnt", "mrx_ch0_drop_byte_cnt"},
    {"rx_ch0_err_pkt_cnt", "rx_ch0_err_byte_cnt"},
    {"rx_ch0_slice_pkt_cnt", "rx_ch0_slice_byte_cnt"},
    {"rx_ch0_errtyp0_pkt_cnt", "rx_ch0_errtyp0_byte_cnt"},
    {"rx_ch0_errtyp1_pkt_cnt", "rx_ch0_errtyp1_byte_cnt"},
    {"rx_ch0_errtyp2_pkt_cnt", "rx_ch0_errtyp2_byte_cnt"},
    {"rx_ch0_errtyp3_pkt_cnt", "rx_ch0_errtyp3_byte_cnt"},
    {"rx_ch0_uc_pkt_cnt", "rx_ch0_uc_byte_cnt"},
    {"rx_ch0_mc_pkt_cnt", "rx_ch0_mc_byte_cnt"},
    {"rx_ch0_bc_pkt_cnt", "rx_ch0_bc_byte_cnt"},
};
constexpr Row kCpuStxRows[] = {
    pair64(w("stx_pkt_cnt", 1536), w("stx_byte_cnt", 1544)),
    pair64(w("stx_uc_pkt_cnt", 1552), w("stx_uc_byte_cnt", 1560)),
    pair64(w("stx_mc_pkt_cnt", 1568), w("stx_mc_byte_cnt", 1576)),
    pair64(w("stx_bc_pkt_cnt", 1584), w("stx_bc_byte_cnt", 1592)),
};

// A channel's name: the family's channel-0 name with the channel's digit.
struct ChannelName {
    char text[32];
    ChannelName(const char *ch0, uint32_t channel) {
        uint32_t n = 0;
        for (; ch0[n] && n + 1 < sizeof text; ++n) text[n] = ch0[n];
        text[n] = 0;
        for (uint32_t i = 0; i + 2 < n; ++i) {
            if (text[i] == 'c' && text[i + 1] == 'h' && text[i + 2] == '0') {
                text[i + 2] = static_cast<char>('0' + channel);
                break;
            }
        }
    }
};

void print_cpu_channels(const CounterBlock &b) {
    uint32_t row = 0;
    for (const ChannelFamily &f : kChannelFamilies) {
        for (uint32_t ch = 0; ch < kCpuChannels; ++ch, ++row) {
            ChannelName pkt(f.pkt, ch), byte(f.byte, ch);
            const uint16_t off = static_cast<uint16_t>(16 * row);
            const Row one[] = {pair64(w(pkt.text, off), w(byte.text, off + 8))};
            print_rows(one, b);
        }
    }
    print_rows(kCpuStxRows, b);
}

}  // namespace

extern "C" {

uint32_t ze_lsw_pm_get_uni_eth_statistic(uint32_t port) {
    if (port >= ZE_PORT_ETH_COUNT) return ZE_ERR_PARAM;
    CounterBlock b(kUniEthLen);
    b.set_index(port);
    return show(ZE_SITE, b, kUniEthCmd,
                [](const CounterBlock &blk) { print_rows(kUniEthRows, blk); });
}

uint32_t ze_lsw_pm_get_cpurtx_statistic(void) {
    CounterBlock b(kCpuRtxLen);
    return show(ZE_SITE, b, kCpuRtxCmd, print_cpu_channels);
}

uint32_t ze_lsw_pm_get_rt_statistic(void) { return show(ZE_SITE, kRt); }

uint32_t ze_lsw_pm_get_qm_statistic(void) { return show(ZE_SITE, kQm); }

uint32_t ze_lsw_pm_get_pa_statistic(void) { return show(ZE_SITE, kPa); }

uint32_t ze_lsw_pm_get_oam_statistic(void) { return show(ZE_SITE, kOam); }

uint32_t ze_lsw_pm_get_mtp_statistic(void) { return show(ZE_SITE, kMtp); }

uint32_t ze_lsw_pm_get_mcm_statistic(void) { return show(ZE_SITE, kMcm); }

uint32_t ze_lsw_pm_get_mcd_statistic(void) { return show(ZE_SITE, kMcd); }

uint32_t ze_lsw_pm_get_l3_statistic(void) { return show(ZE_SITE, kL3); }

uint32_t ze_lsw_pm_get_l2_statistic(void) { return show(ZE_SITE, kL2); }

uint32_t ze_lsw_pm_get_efc_statistic(void) { return show(ZE_SITE, kEfc); }

uint32_t ze_lsw_pm_get_sfc_statistic(void) { return show(ZE_SITE, kSfc); }

uint32_t ze_lsw_pm_get_fc_statistic(void) { return show(ZE_SITE, kFc); }

uint32_t ze_lsw_pm_get_txdma_statistic(void) { return show(ZE_SITE, kTxdma); }

uint32_t ze_lsw_pm_get_rxdma_statistic(void) { return show(ZE_SITE, kRxdma); }

uint32_t ze_lsw_pm_get_cap_statistic(void) { return show(ZE_SITE, kCap); }

}  // extern "C"
