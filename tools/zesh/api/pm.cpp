// Statistics: counter groups read afresh and printed on the console.
#include "ze_lsw_pm.h"
#include "areas.h"

namespace zesh::api {

std::span<const Row> pm_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_lsw_pm_clear_all_statistic, "clear every counter, stopping at the first failure", "", kDpLibrary),
        ZE_API_ROW(ze_lsw_pm_get_queue_statistic, "print the queue counters of a port (0-14) or of all 128 queues", "2", 0,
                   u32("port", "port 0-14, or more for every queue")),
        ZE_API_ROW(ze_lsw_pm_get_ipv6_statistic, "print the route counters of an index 0-15, or of all sixteen", "16", kDpLibrary,
                   u32("index", "route index 0-15, or more for all")),
        ZE_API_ROW(ze_lsw_pm_get_drop_reason_statistic, "print the drop reasons of a port 0-7, or of all eight (8)", "1", 0,
                   u32("port", "port 0-7, or 8 for all")),
        ZE_API_ROW(ze_lsw_pm_get_uni_eth_statistic, "print the MAC counters of an Ethernet port", "3", 0,
                   u32("port", "Ethernet port 0-4")),
        ZE_API_ROW(ze_lsw_pm_get_epon_rx_statistic, "print the EPON receive counters of an LLID (0-8), or of 0-7", "2", 0,
                   u32("llid", "LLID 0-8, or more for 0-7")),
        ZE_API_ROW(ze_lsw_pm_get_epon_tx_statistic, "print the EPON transmit counters of an LLID (0-8), or of 0-7", "2", 0,
                   u32("llid", "LLID 0-8, or more for 0-7")),
        ZE_API_ROW(ze_lsw_pm_get_epon_bandwidth_statistic, "send two bandwidth words to the driver", "1 2", 0,
                   u32("a", "first word"), u32("b", "second word")),
        ZE_API_ROW(ze_lsw_pm_get_eth_statistic, "no effect", "0", kNoDriver, u32("port", "ignored")),
        ZE_API_ROW(ze_lsw_pm_get_ugmac_line_statistic, "no effect", "", kNoDriver),
        ZE_API_ROW(ze_lsw_pm_get_rt_statistic, "print the routing counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_qm_statistic, "print the queue manager counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_pa_statistic, "print the packet analyser counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_oam_statistic, "print the OAM counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_mtp_statistic, "print the MTP counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_mcm_statistic, "print the multicast management counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_mcd_statistic, "print the multicast duplication counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_l3_statistic, "print the layer-3 counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_l2_statistic, "print the layer-2 counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_cpurtx_statistic, "print the CPU receive and transmit counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_efc_statistic, "print the extended-classifier counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_sfc_statistic, "print the simple-classifier counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_fc_statistic, "print the flow counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_txdma_statistic, "print the transmit DMA counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_rxdma_statistic, "print the receive DMA counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_cap_statistic, "print the capture counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_gpon_alarm_statistic, "print the GPON alarm counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_eps_pon_statistic, "print the PON port counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_ugmac_sys_statistic, "print the upstream GPON MAC system counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_dgem_sys_statistic, "print the downstream GEM system counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_dgtc_line_statistic, "print the downstream GTC line counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_dgtc_sys_statistic, "print the downstream GTC system counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_gpon_ext_statistic, "print the GPON extended counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_epon_alarm_statistic, "print the EPON alarm counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_epon_statistic, "print the EPON counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_tocpu_reason_statistic, "print the to-CPU reason counters", "", 0),
        ZE_API_ROW(ze_lsw_pm_get_thru_reason_statistic, "print the pass-through reason counters", "", 0),
    };
    return kRows;
}

}  // namespace zesh::api
