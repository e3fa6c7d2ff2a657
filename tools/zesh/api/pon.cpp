// Chip attributes, GPON MAC and EPON MAC.
#include "ze_chip.h"
#include "ze_emac.h"
#include "ze_gmac.h"
#include "areas.h"

namespace zesh::api {

std::span<const Row> pon_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_chip_get_upmode, "up mode: 0 EPON, 1 GPON, 2 neither", "", 0, out_u32("mode", "the up mode")),
        ZE_API_ROW(ze_chip_set_upmode, "set the up mode (only 0 and 1 change it)", "0", 0, u32("mode", "0 EPON, 1 GPON")),
        ZE_API_ROW(ze_chip_get_access_mode, "access mode", "", 0, out_u32("mode", "the access mode")),
        ZE_API_ROW(ze_chip_set_access_mode, "set the access mode", "3", 0, u32("mode", "the access mode")),
        ZE_API_ROW(ze_chip_init_vlan_pri_select, "load the VLAN priority selection defaults", "", 0),
        ZE_API_ROW(ze_chip_clr_watchdog, "clear the chip watchdog (nothing to do on this chip)", "", kNoDriver),
        ZE_API_ROW(ze_chip_get_chip_version, "version, vendor word and flag of the chip", "", 0,
                   out_u32("version", "the version word"), out_u32("vendor", "the whole vendor word"),
                   out_u32("flag", "the flag word")),
        ZE_API_ROW(ze_chip_get_vendor, "vendor id (low 16 bits of the vendor word)", "", 0, out_u16("vendor", "the vendor id")),
        ZE_API_ROW(ze_chip_get_version, "chip version word", "", 0, out_u32("version", "the version word")),

        ZE_API_ROW(ze_gmac_get_gemport, "GEM port and T-CONT of a flow index", "0", 0,
                   u32("index", "flow index (sfid)"), out_u8("tcont", "T-CONT (8: none)"),
                   out_u16("gemport", "GEM port (4096: none)")),
        ZE_API_ROW(ze_gmac_set_gemport, "map a flow index to a GEM port on a T-CONT", "0 1 1001", 0,
                   u32("index", "flow index (sfid)"), u32("tcont", "T-CONT"), u32("gemport", "GEM port id")),
        ZE_API_ROW(ze_gmac_del_gemport, "remove the GEM port mapping of a flow index", {"0", "api ze_gmac_set_gemport 0 1 1001"},
                   0, u32("index", "flow index (sfid)")),
        ZE_API_ROW(ze_gmac_del_down_gemport, "invalidate a downstream GEM port", "1001", 0, u32("gemport", "GEM port id")),
        ZE_API_ROW(ze_gmac_get_down_gemport_type, "downstream type of a GEM port", "1001", 0,
                   u32("gemport", "GEM port id"), out_u32("type", "the downstream type")),
        ZE_API_ROW(ze_gmac_set_down_gemport_type, "write a GEM port's attributes: type, AES off, valid", "1001 2", 0,
                   u32("gemport", "GEM port id"), u32("type", "the downstream type")),
        ZE_API_ROW(ze_gmac_get_aes, "AES state of a GEM port", "1001", 0, u32("gemport", "GEM port id"),
                   out_u8("aes", "AES on (1) or off (0)")),
        ZE_API_ROW(ze_gmac_set_aes, "switch AES of a GEM port on or off", "1001 1", 0, u32("gemport", "GEM port id"),
                   u32("aes", "1 on, 0 off")),
        ZE_API_ROW(ze_gmac_get_fec, "GPON FEC state (selector 0 reads one block, others the other)", "0", 0,
                   u32("selector", "which FEC block"), out_u8("fec", "the FEC state")),
        ZE_API_ROW(ze_gmac_set_fec, "no effect: the GPON FEC is not settable", "", kNoDriver),

        ZE_API_ROW(ze_emac_get_fec, "EPON FEC of one LLID (selector 0) or the whole MAC (1)", "3 0", 0,
                   u32("llid", "LLID 0-7"), u32("selector", "0 per LLID, 1 the whole MAC"), out_u8("fec", "the FEC state")),
        ZE_API_ROW(ze_emac_set_fec, "set the EPON FEC of one LLID (selector 0) or the whole MAC (1)", "3 0 1", 0,
                   u32("llid", "LLID 0-7"), u32("selector", "0 per LLID, 1 the whole MAC"), u32("fec", "the FEC state")),
    };
    return kRows;
}

}  // namespace zesh::api
