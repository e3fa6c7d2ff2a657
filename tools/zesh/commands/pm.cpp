// Statistics commands: the counters are printed by the library, so most
// requests are empty.
#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_pm_get_eth_statistic", 408, 408, "port:u32@0"},
    {"lsw_pm_get_epon_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_epon_tx_statistic", 1, kNoReply, "llid:u8@0"},
    {"lsw_pm_get_epon_rx_statistic", 1, kNoReply, "llid:u8@0"},
    {"lsw_pm_get_epon_alarm_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_epon_bandwidth_statistic", 8, kNoReply, "a:u32@0 b:u32@4"},
    {"lsw_pm_get_gpon_ext_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_dgtc_sys_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_dgtc_line_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_dgem_sys_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_ugmac_sys_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_ugmac_line_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_eps_pon_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_gpon_alarm_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_fc_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_sfc_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_efc_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_uni_eth_statistic", 4, kNoReply, "port:u32@0"},
    {"lsw_pm_get_thru_reason_statistic", 0, kNoReply, ""},
    {"lsw_pm_clear_all_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_cap_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_cpurtx_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_drop_reason_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_rxdma_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_txdma_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_ipv6_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_l2_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_l3_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_mcd_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_mcm_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_mtp_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_oam_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_pa_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_qm_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_queue_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_rt_statistic", 0, kNoReply, ""},
    {"lsw_pm_get_tocpu_reason_statistic", 0, kNoReply, ""},
};

}  // namespace

const std::span<const CommandSpec> kPmCommands = kRows;

}  // namespace zesh
