// GPON MAC: GEM mappings, GEM port attributes and FEC state.
#include "ze_gmac.h"

#include "ze_blocks_gmac.h"
#include "ze_dp_block.h"
#include "ze_lsw_flow.h"

namespace {

constexpr char kTraceFile[] = "ze_gmac.cpp";

using ze::GemMap;
using ze::GemPortAttr;

// Downstream type of a GEM port brought up by a mapping.
constexpr uint32_t kMappedDownType = 2;

// The two read-only FEC blocks; selector 0 reads the second.
struct FecState {
    static constexpr uint32_t kGet = 0x208, kSize = 20;
    static constexpr ze::U32<kSize> fec{4};
};
struct FecStateAlt {
    static constexpr uint32_t kGet = 0x20a, kSize = 24;
    static constexpr ze::U32<kSize> fec{8};
};

uint32_t write_mapping(uint32_t index, uint32_t tcont, uint32_t gemport) {
    ze::Block<GemMap> m;
    m.set(GemMap::index, index);
    m.set(GemMap::gemport, gemport);
    m.set(GemMap::tcont, tcont);
    return ze::dp_write(m);
}

// Reads a GEM port's attributes, sets its valid flag (and, when bringing it
// up, the mapped downstream type) and writes them back.
uint32_t mark_gemport(uint32_t gemport, uint32_t valid) {
    ze::Block<GemPortAttr> a;
    a.set(GemPortAttr::gemport, gemport);
    uint32_t r = ze::dp_read(a);
    if (r) return r;
    a.set(GemPortAttr::valid, valid);
    if (valid) a.set(GemPortAttr::down_type, kMappedDownType);
    return ze::dp_write(a);
}

template <class L>
uint32_t read_fec(uint8_t *fec) {
    ze::Block<L> b;
    return ze::fetch(ZE_SITE_AS("ze_gmac_get_fec"), b,
                     [&](const auto &blk) { *fec = static_cast<uint8_t>(blk.get(L::fec)); });
}

}  // namespace

extern "C" {

uint32_t ze_gmac_get_gemport(uint32_t index, uint8_t *tcont, uint16_t *gemport) {
    if (!tcont || !gemport) return ZE_ERR_NULL_PTR;
    ze::Block<GemMap> m;
    m.set(GemMap::index, index);
    return ze::fetch(ZE_SITE, m, [&](const auto &blk) {
        *tcont = static_cast<uint8_t>(blk.get(GemMap::tcont));
        *gemport = static_cast<uint16_t>(blk.get(GemMap::gemport));
    });
}

uint32_t ze_gmac_set_gemport(uint32_t index, uint32_t tcont, uint32_t gemport) {
    uint32_t r = write_mapping(index, tcont, gemport);
    if (r == 0) r = mark_gemport(gemport, 1);
    if (r == 0) r = ze::map_err(ze_lsw_flow_save_gemmap(index, tcont, gemport));
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_gmac_del_gemport(uint32_t index) {
    uint8_t tcont = 0;
    uint16_t gemport = 0;
    uint32_t r = ze::map_err(ze_gmac_get_gemport(index, &tcont, &gemport));
    bool empty = tcont == ZE_GMAC_TCONT_NONE && gemport == ZE_GMAC_GEMPORT_NONE;
    if (r == 0 && empty) return ze::traced(ZE_SITE, r);
    if (r == 0) r = write_mapping(index, ZE_GMAC_TCONT_NONE, ZE_GMAC_GEMPORT_NONE);
    if (r == 0) r = mark_gemport(gemport, 0);
    if (r == 0) r = ze::map_err(ze_lsw_flow_save_gemmap(index, ZE_GMAC_TCONT_NONE, ZE_GMAC_GEMPORT_NONE));
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_gmac_del_down_gemport(uint32_t gemport) {
    ze::Block<GemPortAttr> a;
    a.set(GemPortAttr::gemport, gemport);
    return ze::update(ZE_SITE, a, [](auto &blk) { blk.set(GemPortAttr::valid, 0); });
}

uint32_t ze_gmac_get_down_gemport_type(uint32_t gemport, uint32_t *type) {
    if (!type) return ZE_ERR_NULL_PTR;
    ze::Block<GemPortAttr> a;
    a.set(GemPortAttr::gemport, gemport);
    return ze::fetch(ZE_SITE, a, [&](const auto &blk) { *type = blk.get(GemPortAttr::down_type); });
}

uint32_t ze_gmac_set_down_gemport_type(uint32_t gemport, uint32_t type) {
    ze::Block<GemPortAttr> a;
    a.set(GemPortAttr::gemport, gemport);
    a.set(GemPortAttr::down_type, type);
    a.set(GemPortAttr::valid, 1);
    return ze::traced(ZE_SITE, ze::dp_write(a));
}

uint32_t ze_gmac_get_aes(uint32_t gemport, uint8_t *aes) {
    if (!aes) return ZE_ERR_NULL_PTR;
    ze::Block<GemPortAttr> a;
    a.set(GemPortAttr::gemport, gemport);
    return ze::fetch(ZE_SITE, a,
                     [&](const auto &blk) { *aes = static_cast<uint8_t>(blk.get(GemPortAttr::aes)); });
}

uint32_t ze_gmac_set_aes(uint32_t gemport, uint32_t aes) {
    ze::Block<GemPortAttr> a;
    a.set(GemPortAttr::gemport, gemport);
    return ze::update(ZE_SITE, a, [&](auto &blk) { blk.set(GemPortAttr::aes, aes); });
}

uint32_t ze_gmac_get_fec(uint32_t selector, uint8_t *fec) {
    if (!fec) return ZE_ERR_NULL_PTR;
    return selector ? read_fec<FecState>(fec) : read_fec<FecStateAlt>(fec);
}

uint32_t ze_gmac_set_fec(void) { return ze::traced(ZE_SITE, ZE_OK); }

}  // extern "C"
