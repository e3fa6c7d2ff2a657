// Statistic groups of the GPON MAC: upstream and downstream counters, OMCI
// and PRBS, alarm counts, and the PON transmit buffers and queues.
#include "ze_lsw_pm.h"

#include "ze_lsw_pm_frame.h"

namespace {

using namespace ze::pm;

constexpr char kTraceFile[] = "ze_lsw_pm.cpp";

// GPON upstream; each label carries its own colon and blanks.
constexpr Row kUgmacSysRows[] = {
    pair32(c("plm_sum_cnt:    ", 0), c("plm_msg1_cnt:   ", 4)),
    pair32(c("plm_msg0_cnt:   ", 8), c("lm_nvld_cnt:    ", 12)),
    pair32(c("dbru_m0_sum_cnt:", 16), c("dbru_m1_sum_cnt:", 20)),
    pair32(c("dbru_spec_cnt:  ", 24), c("omci_sum_cnt:   ", 28)),
    pair32(c("gem_sum_cnt:    ", 32), c("gem_cut_cnt:    ", 36)),
    pair32(c("gem_spec_cnt:   ", 40), c("gem_spec_cut_cnt", 44)),
    pair32(c("idle_sum_cnt:   ", 48), c("idle_spec_cnt:  ", 52)),
    pair32(c("burst_sum_cnt:  ", 56), c("eth_sum0_cnt:   ", 60)),
    pair32(c("eth_sum1_cnt:   ", 64), c("unicast_cnt:    ", 68)),
    pair32(c("multicast_cnt:  ", 72), c("broadcast_cnt:  ", 76)),
    pair32(c("us_eth_cnt:     ", 80), c("tcont_err_cnt:  ", 84)),
};
constexpr Group kUgmacSys{3356, 88, kUgmacSysRows};

// GPON downstream GEM.
constexpr Row kDgemSysRows[] = {
    pair32(c("ds_pon0_cnt", 0), c("ds_pon1_cnt", 4)),
    pair32(c("ds_gem_cnt", 8), c("gem_eth_cnt", 12)),
    pair32(c("gem_mcast_cnt", 16), c("gem_omci_cnt", 20)),
    pair32(c("gem_prbs_cnt", 24), c("aes_omci_cnt", 28)),
    pair32(c("aes_prbs_cnt", 32), c("aes_mcast_cnt", 36)),
    pair32(c("aes_eth_cnt", 40), c("aes_blk_cnt", 44)),
    pair32(c("key_ok_cnt", 48), c("rec_eth_cnt", 52)),
    pair32(c("rec_mcast_cnt", 56), c("rec_omci_cnt", 60)),
    pair32(c("rec_prbs_cnt", 64), c("short_err_cnt", 68)),
    pair32(c("long_err_cnt", 72), c("ds_mcast_cnt", 76)),
    pair32(c("ds_ucast_cnt", 80), c("ds_bcast_cnt", 84)),
    pair32(c("ds_eth_cnt", 88), c("fcs_err_cnt", 92)),
    pair32(c("gem_lof_cnt", 96), c("ds_full_err_cnt", 100)),
    pair32(c("ds_full_drop_cnt", 104), c("ds_port_err_cnt", 108)),
    pair32(c("ds_port_drop_cnt", 112), c("gem_drop_cnt", 116)),
    pair32(c("hec_cor_cnt", 120), fill("-----")),
};
constexpr Group kDgemSys{3355, 124, kDgemSysRows};

// GPON downstream FEC.
constexpr Row kDgtcLineRows[] = {
    pair32(c("fec_dec_cw", 0), c("fec_err_cw", 4)),
    pair32(c("fec_cor_cw", 8), c("fec_cor_byte", 12)),
    pair32(c("fec_ds_swi", 20), fill("-----")),
};
constexpr Group kDgtcLine{3354, 24, kDgtcLineRows};

// GPON downstream TC layer.
constexpr Row kDgtcSysRows[] = {
    pair32(c("bip_err", 0), c("rang_req", 4)),
    pair32(c("sn_req", 8), c("rxploam_msg_id0", 12)),
    pair32(c("rxploam_msg_id1", 16), c("rxploam_msg_id2", 20)),
    pair32(c("rxploam_right", 24), c("rxploam_wrong", 28)),
    pair32(c("rxploam", 32), c("rxploam_fulldrop", 36)),
    pair32(c("rei", 40), c("plend0_err", 44)),
    pair32(c("plend1_err", 48), c("plend_err", 52)),
    pair32(c("supcnt_err", 56), c("bwmap_crcerr", 60)),
    pair32(c("fec_us_swi", 64), fill("-----")),
};
constexpr Group kDgtcSys{3353, 68, kDgtcSysRows};

// OMCI and PRBS.
constexpr Row kGponExtRows[] = {
    pair32(c("txomci", 0), c("rxomci", 4)),
    pair32(c("rxomci_crcerr", 8), c("rxomci_fulldrop", 12)),
    pair32(c("txprbs_sum", 16), c("rxprbs_berr", 20)),
    pair32(c("rxprbs_byte", 24), c("rxprbs_perr", 28)),
    pair32(c("rxprbs_sum", 32), fill("-----")),
};
constexpr Group kGponExt{3352, 36, kGponExtRows};

// Alarm counts: the 596-byte record takes two 560-byte reads, 527 and then
// 518; what 518 leaves is printed. RX_PLOAM and RX_OMCI lie past the reads
// and print 0; ROGUE_ONU prints twice.
constexpr uint32_t kAlarmRecordLen = 596, kAlarmReadLen = 560;
constexpr uint32_t kAlarmReads[] = {527, 518};
constexpr AlarmLine kGponAlarmLines[] = {
    {"LOS_OCCUR   ", 0, AlarmForm::U32Blank},
    {"LOS_DIS     ", 4, AlarmForm::U32Blank},
    {"LOF_OCCUR   ", 8, AlarmForm::U32Blank},
    {"LOF_DIS     ", 12, AlarmForm::U32Blank},
    {"DYINGGASP   ", 16, AlarmForm::U32Blank},
    {"REI         ", 20, AlarmForm::U32Blank},
    {"ROGUE_ONU   ", 40, AlarmForm::U32Blank},
    {"SF          ", 24, AlarmForm::U32Blank},
    {"SD          ", 28, AlarmForm::U32Blank},
    {"LCDG        ", 32, AlarmForm::U32Blank},
    {"ROGUE_ONU   ", 40, AlarmForm::U32Blank},
    {"SILENT_ONU  ", 44, AlarmForm::U32Blank},
    {"RX_PLOAM    ", 564, AlarmForm::U32Blank},
    {"RX_OMCI     ", 576, AlarmForm::U32Blank},
    {"alarm_call_back_times  ", 64, AlarmForm::U32},
    {"alarm_discard_times    ", 68, AlarmForm::U32},
};

// PON transmit buffers and queues: five arrays of eight words, two entries
// a row. The labels are printed as they are, brackets included.
constexpr uint32_t kEpsPonCmd = 3367, kEpsPonLen = 160;
constexpr uint32_t kEpsPonEntries = 8;
struct EpsPonArray {
    const char *label;
    uint32_t base;
};
constexpr EpsPonArray kEpsPonArrays[] = {
    {"txbuffer_depth[%0d]", 0}, {"gpon_qbyte[%0d]", 32},  {"tx_drop_pkt[%0d]", 64},
    {"txdma_pkt[%0d]", 96},     {"tx_mac_pkt[%0d]", 128},
};

}  // namespace

extern "C" {

uint32_t ze_lsw_pm_get_ugmac_sys_statistic(void) { return show(ZE_SITE, kUgmacSys); }

uint32_t ze_lsw_pm_get_dgem_sys_statistic(void) { return show(ZE_SITE, kDgemSys); }

uint32_t ze_lsw_pm_get_dgtc_line_statistic(void) { return show(ZE_SITE, kDgtcLine); }

uint32_t ze_lsw_pm_get_dgtc_sys_statistic(void) { return show(ZE_SITE, kDgtcSys); }

uint32_t ze_lsw_pm_get_gpon_ext_statistic(void) { return show(ZE_SITE, kGponExt); }

uint32_t ze_lsw_pm_get_gpon_alarm_statistic(void) {
    CounterBlock b(kAlarmRecordLen);
    for (uint32_t cmd : kAlarmReads) {
        uint32_t r = b.read(cmd, kAlarmReadLen);
        if (r) return ze::traced(ZE_SITE, r);
    }
    const CounterView *blocks[] = {&b};
    print_alarm_lines(kGponAlarmLines, blocks);
    return ZE_OK;
}

uint32_t ze_lsw_pm_get_eps_pon_statistic(void) {
    CounterBlock b(kEpsPonLen);
    return show(ZE_SITE, b, kEpsPonCmd, [](const CounterBlock &blk) {
        for (const EpsPonArray &a : kEpsPonArrays) {
            for (uint32_t i = 0; i < kEpsPonEntries; i += 2)
                print_indexed32(a.label, i, blk.u32(a.base + 4 * i), a.label, i + 1,
                                blk.u32(a.base + 4 * (i + 1)));
        }
    });
}

}  // extern "C"
