// Console listings of both flow classifiers: every entry the shadows hold
// as in use, read back from the datapath, in fixed-width columns.
#include "ze_blocks_efc.h"
#include "ze_blocks_gmac.h"
#include "ze_blocks_sfc.h"
#include "ze_dp_block.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_flow_shadow.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_flow_function.cpp";

using ze::EfcAttr;
using ze::GemMap;
using ze::SfcAttr;

int col(uint32_t v) { return static_cast<int>(v); }

// Reads the block at each in-use index and prints one row; stops at the
// first failed read.
template <class L, class Key, class Row>
uint32_t list(ze::Block<L> &b, uint32_t count, bool (*used)(uint32_t), Key &&key, Row &&row) {
    for (uint32_t i = 0; i < count; ++i) {
        if (!used(i)) continue;
        key(b, i);
        uint32_t r = ze::dp_read(b);
        if (r) return r;
        row(static_cast<const ze::Block<L> &>(b), i);
    }
    return ZE_OK;
}

bool sfc_used(uint32_t sfid) { return st_sfcmapping[sfid].status == 1; }
bool efc_used(uint32_t fid) { return st_efcservice[fid].status == 1; }

void efc_key(ze::Block<EfcAttr> &b, uint32_t fid) {
    b.set(EfcAttr::fid, fid);
    b.set(EfcAttr::fid2, fid);
}

uint32_t sfc_tables() {
    ze::Block<SfcAttr> sfc;
    ze::Block<GemMap> gem;
    ze_os_printf("sfid    fid_vld    fid     vlan_vld    vlan    pri_vld    pri     igr     non_mode    \r\n");
    uint32_t r = list(
        sfc, ZE_SFC_ENTRY_COUNT, sfc_used, [](auto &b, uint32_t s) { b.set(SfcAttr::sfid, s); },
        [](const auto &b, uint32_t s) {
            ze_os_printf("%-8d%-8d   %-8d%-8d    %-8d%-8d   %-8d%-8d   %-8d    \r\n", col(s),
                         col(b.get(SfcAttr::fid_vld)), col(b.get(SfcAttr::fid)),
                         col(b.get(SfcAttr::vlan_vld)), col(b.get(SfcAttr::vlan)),
                         col(b.get(SfcAttr::pri_vld)), col(b.get(SfcAttr::pri)),
                         col(b.get(SfcAttr::igr)),
                         col(b.get(SfcAttr::pri_mode) | b.get(SfcAttr::vlan_mode)));
        });
    if (r) return r;
    ze_os_printf("sfid    tcont   gemport \r\n");
    return list(
        gem, ZE_SFC_ENTRY_COUNT, sfc_used, [](auto &b, uint32_t s) { b.set(GemMap::index, s); },
        [](const auto &b, uint32_t s) {
            ze_os_printf("%-8d%-8d%-8d\r\n", col(s), col(b.get(GemMap::tcont)),
                         col(b.get(GemMap::gemport)));
        });
}

uint32_t efc_tables() {
    ze::Block<EfcAttr> efc;
    ze_os_printf("fid     igr     eof     g0      k0              m0      n0      g1      k1              m1      n1      \r\n");
    // The m columns show the key values again, in decimal.
    uint32_t r = list(efc, ZE_EFC_ENTRY_COUNT, efc_used, efc_key, [](const auto &b, uint32_t) {
        ze_os_printf("%-8d%-8d%-8d%-8d0x%-14x%-8d%-8d%-8d0x%-14x%-8d%-8d\r\n", col(b.get(EfcAttr::fid2)),
                     col(b.get(EfcAttr::igr)), col(b.get(EfcAttr::eof)), col(b.get(EfcAttr::g0)),
                     b.get(EfcAttr::k0), col(b.get(EfcAttr::k0)), col(b.get(EfcAttr::n0)),
                     col(b.get(EfcAttr::g1)), b.get(EfcAttr::k1), col(b.get(EfcAttr::k1)),
                     col(b.get(EfcAttr::n1)));
    });
    if (r) return r;
    ze_os_printf("fid     tagact  cvact   cvvalue svact   svvalue cpriact cpvalue spriact spvalue act     \r\n");
    return list(efc, ZE_EFC_ENTRY_COUNT, efc_used, efc_key, [](const auto &b, uint32_t) {
        ze_os_printf("%-8d%-8d%-8d%-8d0x%-8x%-8d%-8d%-8d0x%-8x%-8d%-8d\r\n", col(b.get(EfcAttr::fid2)),
                     col(b.get(EfcAttr::tagact)), col(b.get(EfcAttr::cvact)),
                     col(b.get(EfcAttr::cvvalue)), b.get(EfcAttr::svact),
                     col(b.get(EfcAttr::svvalue)), col(b.get(EfcAttr::cpriact)),
                     col(b.get(EfcAttr::cpvalue)), b.get(EfcAttr::spriact),
                     col(b.get(EfcAttr::spvalue)), col(b.get(EfcAttr::act)));
    });
}

}  // namespace

extern "C" {

uint32_t ze_lsw_flow_sfc_diagnose(uint32_t, uint32_t, uint32_t, uint32_t) {
    return ze::traced(ZE_SITE, sfc_tables());
}

uint32_t ze_lsw_flow_efc_diagnose(uint32_t, uint32_t, uint32_t, uint32_t) {
    return ze::traced(ZE_SITE, efc_tables());
}

}  // extern "C"
