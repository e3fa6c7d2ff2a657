// Statistic groups of the EPON MAC: the ONU-wide counters, the per-LLID
// receive and transmit records of the same block, and the alarm and
// callback counts.
#include "ze_lsw_pm.h"

#include "ze_lsw_pm_frame.h"

namespace {

using namespace ze::pm;

constexpr char kTraceFile[] = "ze_lsw_pm.cpp";

// The EPON MAC block, read whole by all three counter groups.
constexpr uint32_t kEponCmd = 3360, kEponLen = 5752;

// ONU-wide counters: 64-bit rows (a 32-bit counter shows a zero high half),
// except three rows in the 32-bit format.
constexpr Row kEponRows[] = {
    kShortSep,
    pair64(w("pcs_rx_all_pkt", 0), w("pcs_rx_fec_pkt", 8)),
    pair64(w("pcs_rx_fec_blk", 16), c("pcs_rx_10b_err", 24)),
    pair64(c("pcs_rx_err_pkt", 28), c("pcs_fec_short_pkt", 32)),
    pair64(c("pcs_fec_long_pkt", 36), c("pcs_fec_cor_pkt", 40)),
    pair64(c("pcs_fec_cor_blk", 44), c("pcs_fec_cor_byte", 48)),
    pair64(c("pcs_fec_uncor_pkt", 52), c("pcs_fec_uncor_blk", 56)),
    pair64(w("pcs_tx_all_pkt", 64), w("pcs_tx_fec_pkt", 72)),
    pair64(w("pcs_tx_fec_blk", 80), fill("----")),
    kShortSep,
    pair64(c("rs_rx_prm_err", 88), c("rs_rx_crc8_err", 92)),
    pair64(w("rs_rx_all_pkt", 96), w("rs_rx_all_byte", 104)),
    pair64(w("rs_tx_all_pkt", 112), w("rs_tx_all_byte", 120)),
    kShortSep,
    pair32(c("mpcp_rx_fifo_ovr_pkt", 128), c("data_rx_fifo_ovr_pkt", 132)),
    pair32(c("oam_rx_buffer_ovr_pkt", 136), c("data_tx_fifo_und_pkt", 148)),
    kShortSep,
    pair32(c("mac_rx_b2b_grant", 144), c("mac_rx_err_grant", 140)),
    pair64(w("mac_fcs_err_less_64b_pkt_cnt", 216), w("mac_fcs_err_64b_mtu_pkt_cnt", 224)),
    pair64(w("mac_fcs_err_more_mtu_pkt_cnt", 232), w("mac_fcs_err_byte_cnt", 240)),
    pair64(w("mac_rx_all_data_pkt_cnt", 248), w("mac_rx_all_data_byte_cnt", 256)),
    pair64(w("mac_rx_all_ctrl_pkt_cnt", 264), w("mac_rx_err_ctrl_pkt_cnt", 272)),
    pair64(w("mac_rx_saoff_oam_cnt", 280), w("mac_tx_all_data_pkt_cnt", 288)),
    pair64(w("mac_tx_all_data_byte_cnt", 296), w("mac_tx_all_mpcp_pkt_cnt", 304)),
    kShortSep,
    pair64(w("scb_rx_data_byte", 312), w("scb_rx_uc_pkt", 320)),
    pair64(w("scb_rx_mc_pkt", 328), w("scb_rx_bc_pkt", 336)),
    pair64(w("mac_rx_dis_gate_pkt", 344), w("scb_rx_less_64b_pkt", 352)),
    pair64(w("scb_rx_64b_pkt", 360), w("scb_rx_65b_127b_pkt", 368)),
    pair64(w("scb_rx_128b_255b_pkt", 376), w("scb_rx_256b_511b_pkt", 384)),
    pair64(w("scb_rx_512b_1023b_pkt", 392), w("scb_rx_1024b_1518b_pkt", 400)),
    pair64(w("scb_rx_1519b_2000b_pkt", 408), w("scb_rx_more_2000_pkt_cnt", 416)),
    pair64(w("scb_rx_more_mtu_pkt", 424), w("scb_rx_oam_pkt_cnt", 432)),
    kShortSep,
};

// Per-LLID counters: records of 664 bytes, one per LLID; the flush and
// re-adjust counters are words of two arrays outside the records.
constexpr uint16_t kLlidRecord = 664;
constexpr uint32_t kLlidsAll = 8;  // an LLID above 8 prints LLIDs 0..7
constexpr uint32_t kLastLlid = 8;  // LLID 8 prints alone
constexpr Cell rec(const char *name, uint16_t off) { return {name, off, 8, kLlidRecord}; }
constexpr Cell arr(const char *name, uint16_t off) { return {name, off, 4, 4}; }

constexpr Row kLlidRxRows[] = {
    indexed64(rec("llid_rx_data_byte", 696), rec("llid_rx_uc_pkt", 704)),
    indexed64(rec("llid_rx_mc_pkt", 712), rec("llid_rx_bc_pkt", 720)),
    indexed64(rec("llid_rx_gate_pkt", 728), rec("llid_rx_less_64b_pkt", 736)),
    indexed64(rec("llid_rx_64b_pkt", 744), rec("llid_rx_65b_127b_pkt", 752)),
    indexed64(rec("llid_rx_128b_255b_pkt", 760), rec("llid_rx_256b_511b_pkt", 768)),
    indexed64(rec("llid_rx_512b_1023b_pkt", 776), rec("llid_rx_1024b_1518b_pkt", 784)),
    indexed64(rec("llid_rx_1519b_2000b_pkt", 792), rec("llid_rx_more_2000b_pkt_cnt", 800)),
    indexed64(rec("llid_rx_more_mtu_pkt_cnt", 808), rec("llid_rx_oam_pkt_cnt", 816)),
    indexed64(rec("llid_rx_otdr_gate_pkt_cnt", 824), rec("llid_rx_cipher_pkt_cnt", 832)),
    indexed64(rec("llid_rx_all_grant", 440), rec("llid_rx_frpt_grant", 448)),
    indexed64(rec("llid_rx_grant_len_sum", 456), fill("----")),
};

// llid_tx_more_mtu_pkt shows the receive word at 808 of the record.
constexpr Row kLlidTxRows[] = {
    indexed64(rec("llid_tx_data_byte", 952), rec("llid_tx_uc_pkt", 960)),
    indexed64(rec("llid_tx_mc_pkt", 968), rec("llid_tx_bc_pkt", 976)),
    indexed64(rec("llid_tx_rpt_pkt", 984), rec("llid_tx_less_64b_pkt", 992)),
    indexed64(rec("llid_tx_64b_pkt", 1000), rec("llid_tx_65b_127b_pkt", 1008)),
    indexed64(rec("llid_tx_128b_255b_pkt", 1016), rec("llid_tx_256b_511b_pkt", 1024)),
    indexed64(rec("llid_tx_512b_1023b_pkt", 1032), rec("llid_tx_1024b_1518b_pkt", 1040)),
    indexed64(rec("llid_tx_1519b_2000b_pkt", 1048), rec("llid_tx_more_2000b_pkt_cnt", 1056)),
    indexed64(rec("llid_tx_more_mtu_pkt", 808), rec("llid_tx_err_data_pkt_cnt", 1072)),
    indexed64(rec("llid_tx_oam_pkt_cnt", 1080), rec("llid_tx_data_frag_pkt_cnt", 1088)),
    indexed64(rec("llid_tx_oam_frag_pkt_cnt", 1096), arr("llid_tx_flush_pkt", 152)),
    indexed32(arr("llid_tx_readjust_sop", 184), fill("---")),
};

uint32_t show_llids(const ze::TraceSite &site, const Rows &rows, uint32_t llid) {
    CounterBlock b(kEponLen);
    return show(site, b, kEponCmd, [&](const CounterBlock &blk) {
        if (llid <= kLastLlid) {
            print_rows(rows, blk, 0, llid);
            print_short_sep();
        } else {
            for (uint32_t l = 0; l < kLlidsAll; ++l) {
                print_rows(rows, blk, 0, l);
                print_short_sep();
            }
        }
        print_short_sep();
    });
}

// Alarm and callback counts: the alarm block, then the 64-bit callback
// counters of the second block, then the alarm block's own callback counts.
constexpr uint32_t kEponAlarmCmd = 3588, kEponAlarmLen = 352;
constexpr uint32_t kEponCallbackCmd = 3668, kEponCallbackLen = 64;
constexpr AlarmLine kEponAlarmLines[] = {
    {"ROGUE_ONU   ", 0, AlarmForm::U32Blank},
    {"SILENT_ONU  ", 4, AlarmForm::U32Blank},
    {"LOS         ", 8, AlarmForm::U32Blank},
    {"SD          ", 12, AlarmForm::U32Blank},
    {"DYINGGASP   ", 16, AlarmForm::U32Blank},
    {"GATE_TIMEOUT", 20, AlarmForm::U32Blank},
    {"mpcp_call_back_cnt         ", 0, AlarmForm::U64, 1},
    {"mpcp_call_back_dsicard_cnt ", 8, AlarmForm::U64, 1},
    {"mpcp_err_dsicard_cnt       ", 16, AlarmForm::U64, 1},
    {"rx_mpcp_cnt                ", 24, AlarmForm::U64, 1},
    {"oam_call_back_cnt          ", 32, AlarmForm::U64, 1},
    {"oam_call_back_dsicard_cnt  ", 40, AlarmForm::U64, 1},
    {"oam_err_dsicard_cnt        ", 48, AlarmForm::U64, 1},
    {"rx_oam_cnt                 ", 56, AlarmForm::U64, 1},
    {"alarm_call_back_times      ", 24, AlarmForm::U32},
    {"alarm_discard_times        ", 28, AlarmForm::U32},
};

}  // namespace

extern "C" {

uint32_t ze_lsw_pm_get_epon_statistic(void) {
    return show(ZE_SITE, {kEponCmd, kEponLen, kEponRows});
}

uint32_t ze_lsw_pm_get_epon_rx_statistic(uint32_t llid) {
    return show_llids(ZE_SITE, kLlidRxRows, llid);
}

uint32_t ze_lsw_pm_get_epon_tx_statistic(uint32_t llid) {
    return show_llids(ZE_SITE, kLlidTxRows, llid);
}

uint32_t ze_lsw_pm_get_epon_alarm_statistic(void) {
    SizedCounterBlock<kEponAlarmLen> alarms(kEponAlarmLen);
    uint32_t r = alarms.read(kEponAlarmCmd);
    if (r) return ze::traced(ZE_SITE, r);
    SizedCounterBlock<kEponCallbackLen> callbacks(kEponCallbackLen);
    r = callbacks.read(kEponCallbackCmd);
    if (r) return ze::traced(ZE_SITE, r);
    const CounterView *blocks[] = {&alarms, &callbacks};
    print_alarm_lines(kEponAlarmLines, blocks);
    return ZE_OK;
}

}  // extern "C"
