// The simple flow classifier: its shadow of the sfids in use, the searches
// over it, and installing and removing entries in the datapath.
#include "ze_blocks_sfc.h"
#include "ze_dp_block.h"
#include "ze_gmac.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_flow_shadow.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_flow_function.cpp";

using ze::SfcAttr;

// The table clear covers this many bytes of the 3072-byte table: entries
// 0..105 and the first 16 bytes of entry 106. The rest keeps its contents.
constexpr uint32_t kMappingClearBytes = 2560;

// Where each key of a mapping record goes in the SFC block.
struct SfcKey {
    uint32_t bit;
    ze::U32<SfcAttr::kSize> vld;   // only used when has_vld
    ze::U32<SfcAttr::kSize> mode;  // only used when has_mode
    ze::U32<SfcAttr::kSize> value;
    bool has_vld;
    bool has_mode;
    uint16_t ze_sfc_mapping_s::*field;  // null: the ingress bitmap byte
};

const SfcKey kSfcKeys[] = {
    {ZE_SFC_KEY_IGR, SfcAttr::igr, SfcAttr::igr, SfcAttr::igr, false, false, nullptr},
    {ZE_SFC_KEY_VLAN, SfcAttr::vlan_vld, SfcAttr::vlan_mode, SfcAttr::vlan, true, true,
     &ze_sfc_mapping_s::vlan},
    {ZE_SFC_KEY_PRI, SfcAttr::pri_vld, SfcAttr::pri_mode, SfcAttr::pri, true, true,
     &ze_sfc_mapping_s::pri},
    {ZE_SFC_KEY_FID, SfcAttr::fid_vld, SfcAttr::fid_vld, SfcAttr::fid, true, false,
     &ze_sfc_mapping_s::fid},
    {ZE_SFC_KEY_FIFTH, SfcAttr::fifth_vld, SfcAttr::fifth_mode, SfcAttr::fifth, true, true,
     &ze_sfc_mapping_s::fifth},
};

constexpr uint32_t kModeDivisor = 5;

void fill_keys(ze::Block<SfcAttr> &b, const ze_sfc_mapping_s &m) {
    for (const SfcKey &k : kSfcKeys) {
        if (!(m.key_mask & k.bit)) continue;
        if (k.has_vld) b.set(k.vld, 1);
        if (k.has_mode) b.set(k.mode, m.match_mode / kModeDivisor);
        b.set(k.value, k.field ? m.*k.field : m.igr);
    }
}

bool in_use(uint32_t sfid) { return st_sfcmapping[sfid].status == 1; }

// Whether the entry carries traffic of the GEM port in the direction:
// upstream from a LAN port, downstream from the PON port.
bool gemport_hit(uint32_t sfid, uint32_t gemport, uint32_t dir) {
    const ze_sfc_shadow_s &e = st_sfcmapping[sfid];
    if (e.status != 1 || e.gemport != gemport) return false;
    if (dir == ZE_FLOW_DIR_UP) return (e.mapping.igr & ze::kIgrLanPorts) != 0;
    if (dir == ZE_FLOW_DIR_DOWN) return (e.mapping.igr & ze::kIgrPonPort) != 0;
    return false;
}

uint32_t write_removed(ze::Block<SfcAttr> &b, uint32_t sfid) {
    b.set(SfcAttr::sfid, sfid);
    b.set(SfcAttr::valid, 0);
    b.set(SfcAttr::enable, 0);
    return ze::dp_write(b);
}

}  // namespace

extern "C" {

ze_sfc_shadow_s st_sfcmapping[ZE_SFC_ENTRY_COUNT];

uint32_t ze_lsw_sfc_get_status(uint32_t sfid, uint8_t *status) {
    if (sfid >= ZE_SFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    if (status) *status = st_sfcmapping[sfid].status;
    return ZE_OK;
}

uint32_t ze_lsw_sfc_set_status(uint32_t sfid, uint32_t status) {
    if (sfid >= ZE_SFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    st_sfcmapping[sfid].status = static_cast<uint8_t>(status);
    return ZE_OK;
}

uint32_t ze_lsw_sfc_delete_gemmapping(uint32_t sfid) {
    if (sfid >= ZE_SFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    ze_os_memset(&st_sfcmapping[sfid], 0, sizeof st_sfcmapping[sfid]);
    return ZE_OK;
}

uint32_t ze_lsw_mapping_clear_all(void) {
    ze_os_memset(st_sfcmapping, 0, kMappingClearBytes);
    return ZE_OK;
}

uint32_t ze_lsw_sfc_get_sfid(uint16_t *sfid) {
    if (!sfid) return ZE_ERR_NULL_PTR;
    for (uint32_t s = 0; s < ZE_SFC_ENTRY_COUNT; ++s) {
        if (st_sfcmapping[s].status == 0) {
            *sfid = static_cast<uint16_t>(s);
            return ZE_OK;
        }
    }
    return ze::traced(ZE_SITE, ZE_ERR_FAIL);
}

uint32_t ze_lsw_flow_get_sfid(uint32_t gemport, uint16_t *sfid) {
    if (!sfid) return ZE_ERR_NULL_PTR;
    for (uint32_t s = 0; s < ZE_SFC_ENTRY_COUNT; ++s) {
        if (in_use(s) && st_sfcmapping[s].gemport == gemport) {
            *sfid = static_cast<uint16_t>(s);
            return ZE_OK;
        }
    }
    return ze::traced(ZE_SITE, ZE_ERR_PARAM);
}

uint32_t ze_lsw_flow_get_sfid_by_gemport(uint32_t gemport, uint32_t dir, uint32_t first,
                                         uint16_t *sfid) {
    if (!sfid) return ZE_ERR_NULL_PTR;
    if (first >= ZE_SFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    for (uint32_t s = first; s < ZE_SFC_ENTRY_COUNT; ++s) {
        if (gemport_hit(s, gemport, dir)) {
            *sfid = static_cast<uint16_t>(s);
            return ZE_OK;
        }
    }
    return ze::traced(ZE_SITE, ZE_ERR_PARAM);
}

uint32_t ze_lsw_flow_get_sfc_item_count(uint32_t gemport, uint32_t dir, uint16_t *count) {
    if (!count) return ZE_ERR_NULL_PTR;
    if (dir != ZE_FLOW_DIR_UP && dir != ZE_FLOW_DIR_DOWN) return ZE_OK;
    uint16_t n = 0;
    for (uint32_t s = 0; s < ZE_SFC_ENTRY_COUNT; ++s)
        if (gemport_hit(s, gemport, dir)) ++n;
    *count = n;
    return ZE_OK;
}

uint32_t ze_lsw_flow_get_sfid_bymapping(const ze_sfc_mapping_s *mapping, uint16_t *sfid) {
    if (!mapping || !sfid) return ZE_ERR_NULL_PTR;
    for (uint32_t s = 0; s < ZE_SFC_ENTRY_COUNT; ++s) {
        if (in_use(s) && __builtin_memcmp(&st_sfcmapping[s].mapping, mapping, sizeof *mapping) == 0) {
            *sfid = static_cast<uint16_t>(s);
            return ZE_OK;
        }
    }
    ze::traced(ZE_SITE, ZE_ERR_PARAM);
    return ZE_ERR_NOT_FOUND;
}

uint32_t ze_lsw_flow_set_sfc(const ze_sfc_mapping_s *mapping, uint16_t *sfid) {
    if (!mapping) return ZE_ERR_NULL_PTR;
    ze::Block<SfcAttr> b;
    uint16_t s = 0;
    uint32_t r = ze::map_err(ze_lsw_sfc_get_sfid(&s));
    if (r == 0) {
        b.set(SfcAttr::sfid, s);
        b.set(SfcAttr::valid, 1);
        b.set(SfcAttr::enable, 1);
        fill_keys(b, *mapping);
        r = ze::dp_write(b);
    }
    if (r == 0) r = ze::map_err(ze_lsw_sfc_set_status(s, 1));
    if (r == 0 && sfid) *sfid = s;
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_delete_sfc(uint32_t sfid) {
    uint8_t status = 0;
    uint32_t r = ze_lsw_sfc_get_status(sfid, &status);  // 18 for an sfid past the table
    if (r) return ze::traced(ZE_SITE, r);
    if (status != 1) {
        ze::traced(ZE_SITE, ZE_ERR_PARAM);
        return ZE_ERR_NOT_FOUND;
    }
    ze::Block<SfcAttr> b;
    r = write_removed(b, sfid);
    if (r == 0) r = ze_lsw_sfc_delete_gemmapping(sfid);
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_sfc_delete_all(void) {
    ze::Block<SfcAttr> b;
    for (uint32_t s = 0; s < ZE_SFC_ENTRY_COUNT; ++s) {
        if (!in_use(s)) continue;
        uint32_t r = ze::map_err(ze_gmac_del_gemport(s));
        if (r == 0) r = write_removed(b, s);
        if (r) return ze::traced(ZE_SITE, r);
    }
    return ze::traced(ZE_SITE, ze_lsw_mapping_clear_all());
}

uint32_t ze_lsw_flow_gemmap_delete_all(void) {
    for (uint32_t s = 0; s < ZE_SFC_ENTRY_COUNT; ++s) {
        uint32_t r = ze::map_err(ze_gmac_del_gemport(s));
        if (r) return ze::traced(ZE_SITE, r);
    }
    return ze::traced(ZE_SITE, ZE_OK);
}

uint32_t ze_lsw_flow_sfc_printf_info(void) {
    ze_os_printf("sfid    TCONT      GEMPORT\r\n");
    for (uint32_t s = 0; s < ZE_SFC_ENTRY_COUNT; ++s) {
        uint8_t status = 0;
        uint32_t r = ze::map_err(ze_lsw_sfc_get_status(s, &status));
        if (r) return ze::traced(ZE_SITE, r);
        if (status != 1) continue;
        const ze_sfc_shadow_s &e = st_sfcmapping[s];
        ze_os_printf("%-8d%-8d   %-8d    \r\n", static_cast<int>(s), e.tcont, e.gemport);
    }
    return ze::traced(ZE_SITE, ZE_OK);
}

}  // extern "C"
