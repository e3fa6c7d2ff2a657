// Statistics commands: the counters are printed by the library, so most
// requests are empty.
#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_pm_get_eth_statistic", "no effect; kept for the interface", 408, 408, "port:u32@0"},
    {"lsw_pm_get_epon_statistic", "print the EPON counters", 0, kNoReply, ""},
    {"lsw_pm_get_epon_tx_statistic", "print the EPON transmit counters of an LLID", 1, kNoReply, "llid:u8@0"},
    {"lsw_pm_get_epon_rx_statistic", "print the EPON receive counters of an LLID", 1, kNoReply, "llid:u8@0"},
    {"lsw_pm_get_epon_alarm_statistic", "print the EPON alarm counters", 0, kNoReply, ""},
    {"lsw_pm_get_epon_bandwidth_statistic", "send two bandwidth words to the driver", 8, kNoReply, "a:u32@0 b:u32@4"},
    {"lsw_pm_get_gpon_ext_statistic", "print the GPON extended counters", 0, kNoReply, ""},
    {"lsw_pm_get_dgtc_sys_statistic", "print the downstream GTC system counters", 0, kNoReply, ""},
    {"lsw_pm_get_dgtc_line_statistic", "print the downstream GTC line counters", 0, kNoReply, ""},
    {"lsw_pm_get_dgem_sys_statistic", "print the downstream GEM system counters", 0, kNoReply, ""},
    {"lsw_pm_get_ugmac_sys_statistic", "print the upstream GPON MAC system counters", 0, kNoReply, ""},
    {"lsw_pm_get_ugmac_line_statistic", "no effect; kept for the interface", 0, kNoReply, ""},
    {"lsw_pm_get_eps_pon_statistic", "print the PON port counters", 0, kNoReply, ""},
    {"lsw_pm_get_gpon_alarm_statistic", "print the GPON alarm counters", 0, kNoReply, ""},
    {"lsw_pm_get_fc_statistic", "print the flow counters", 0, kNoReply, ""},
    {"lsw_pm_get_sfc_statistic", "print the simple-classifier counters", 0, kNoReply, ""},
    {"lsw_pm_get_efc_statistic", "print the extended-classifier counters", 0, kNoReply, ""},
    {"lsw_pm_get_uni_eth_statistic", "print the MAC counters of an Ethernet port", 4, kNoReply, "port:u32@0"},
    {"lsw_pm_get_thru_reason_statistic", "print the pass-through reason counters", 0, kNoReply, ""},
    {"lsw_pm_clear_all_statistic", "clear every counter, stopping at the first failure", 0, kNoReply, ""},
    {"lsw_pm_get_cap_statistic", "print the capture counters", 0, kNoReply, ""},
    {"lsw_pm_get_cpurtx_statistic", "print the CPU receive and transmit counters", 0, kNoReply, ""},
    {"lsw_pm_get_drop_reason_statistic", "refused through the shell: its forms are API calls", 0, kNoReply, ""},
    {"lsw_pm_get_rxdma_statistic", "print the receive DMA counters", 0, kNoReply, ""},
    {"lsw_pm_get_txdma_statistic", "print the transmit DMA counters", 0, kNoReply, ""},
    {"lsw_pm_get_ipv6_statistic", "print the route counters of every index", 0, kNoReply, ""},
    {"lsw_pm_get_l2_statistic", "print the layer-2 counters", 0, kNoReply, ""},
    {"lsw_pm_get_l3_statistic", "print the layer-3 counters", 0, kNoReply, ""},
    {"lsw_pm_get_mcd_statistic", "print the multicast duplication counters", 0, kNoReply, ""},
    {"lsw_pm_get_mcm_statistic", "print the multicast management counters", 0, kNoReply, ""},
    {"lsw_pm_get_mtp_statistic", "print the MTP counters", 0, kNoReply, ""},
    {"lsw_pm_get_oam_statistic", "print the OAM counters", 0, kNoReply, ""},
    {"lsw_pm_get_pa_statistic", "print the packet analyser counters", 0, kNoReply, ""},
    {"lsw_pm_get_qm_statistic", "print the queue manager counters", 0, kNoReply, ""},
    {"lsw_pm_get_queue_statistic", "print the counters of every queue", 0, kNoReply, ""},
    {"lsw_pm_get_rt_statistic", "print the routing counters", 0, kNoReply, ""},
    {"lsw_pm_get_tocpu_reason_statistic", "print the to-CPU reason counters", 0, kNoReply, ""},
};

}  // namespace

const std::span<const CommandSpec> kPmCommands = kRows;

}  // namespace zesh
