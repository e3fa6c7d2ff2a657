/*
 * Statistics: every counter group of the datapath, read afresh and printed
 * on the console; nothing is kept between calls.
 *
 * A group function zeroes its counter block, reads it and prints it. A
 * failed read returns 18 (driver busy code) or 0xffffffff, is traced and
 * prints nothing for that block; the success path returns 0 untraced.
 *
 * Choices of this library:
 * - ze_lsw_pm_get_drop_reason_statistic accepts ports 0..7 (one record) and
 *   8 (all eight); any other port returns 18 with a trace record and no read.
 * - EPON per-LLID counters of LLID 8 lie past the end of the 5752-byte EPON
 *   block; they print 0 (only its two 32-bit array entries are inside).
 * - The route walk of all sixteen indexes returns 0 whatever the datapath
 *   right release answers.
 */
#ifndef ZE_LSW_PM_H
#define ZE_LSW_PM_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* Clears route counters (IPv6 then IPv4, index 0..15), the four counter
 * families without payload, the layer-2 counters of ports 0..6, the flow
 * counters 0..31 (ingress then egress) and the drop reasons 0..7, in this
 * order; stops at the first failure. */
ZE_API uint32_t ze_lsw_pm_clear_all_statistic(void);

/* Per-port queue table (port <= 14) or all 128 queues (port > 14). */
ZE_API uint32_t ze_lsw_pm_get_queue_statistic(uint32_t port);
/* Route counters of one index 0..15, or of all sixteen when index > 15. */
ZE_API uint32_t ze_lsw_pm_get_ipv6_statistic(uint32_t index);
/* Drop reasons of one port 0..7, or of all eight when port is 8. */
ZE_API uint32_t ze_lsw_pm_get_drop_reason_statistic(uint32_t port);
/* MAC counters of Ethernet port 0..4; a larger port returns 18 untraced. */
ZE_API uint32_t ze_lsw_pm_get_uni_eth_statistic(uint32_t port);
/* One LLID (0..8), or LLIDs 0..7 for any larger value. */
ZE_API uint32_t ze_lsw_pm_get_epon_rx_statistic(uint32_t llid);
ZE_API uint32_t ze_lsw_pm_get_epon_tx_statistic(uint32_t llid);
/* Sends {a, b} to the driver; prints nothing. */
ZE_API uint32_t ze_lsw_pm_get_epon_bandwidth_statistic(uint32_t a, uint32_t b);
/* Do nothing and return 0. */
ZE_API uint32_t ze_lsw_pm_get_eth_statistic(uint32_t port);
ZE_API uint32_t ze_lsw_pm_get_ugmac_line_statistic(void);

ZE_API uint32_t ze_lsw_pm_get_rt_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_qm_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_pa_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_oam_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_mtp_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_mcm_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_mcd_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_l3_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_l2_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_cpurtx_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_efc_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_sfc_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_fc_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_txdma_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_rxdma_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_cap_statistic(void);

ZE_API uint32_t ze_lsw_pm_get_gpon_alarm_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_eps_pon_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_ugmac_sys_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_dgem_sys_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_dgtc_line_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_dgtc_sys_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_gpon_ext_statistic(void);

ZE_API uint32_t ze_lsw_pm_get_epon_alarm_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_epon_statistic(void);

ZE_API uint32_t ze_lsw_pm_get_tocpu_reason_statistic(void);
ZE_API uint32_t ze_lsw_pm_get_thru_reason_statistic(void);

ZE_END_DECLS

#endif
