// Services and mappings: the face of flow classification. A service is an
// extended classifier rule named by its fid, a mapping a simple classifier
// entry named by its sfid. Also the save and lookup functions of the
// shadow tables that the GEM-port and service code records into.
#include "ze_dp_block.h"
#include "ze_gmac.h"
#include "ze_lsw_flow.h"
#include "ze_lsw_flow_shadow.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_flow.cpp";

// Makes the record that add and delete see the same for a direction:
// upstream without a named ingress port takes the five LAN ports,
// downstream always takes the PON port alone.
void normalise(ze_sfc_mapping_s &m, uint32_t dir) {
    if (dir == ZE_FLOW_DIR_UP) {
        if (m.key_mask & ZE_SFC_KEY_IGR) return;
        m.key_mask |= ZE_SFC_KEY_IGR;
        m.igr |= ze::kIgrLanPorts;
    } else if (dir == ZE_FLOW_DIR_DOWN) {
        m.key_mask |= ZE_SFC_KEY_IGR;
        m.igr = static_cast<uint8_t>((m.igr | ze::kIgrPonPort) & ~ze::kIgrLanPorts);
    }
}

// IGMP priority service: key bit 15 (type 7) with value 2, the second
// priority set from the action, forwarded with code 2.
constexpr uint32_t kIgmpKeyMask = 0x8000;
constexpr uint8_t kIgmpKeyValue = 2;
constexpr uint8_t kIgmpIgrPort = 5;
constexpr uint32_t kIgmpActMask = 0x4;
constexpr uint32_t kIgmpFwdAct = 2;

// The first search position of a service install.
constexpr uint32_t kServiceFirstFid = 1;

}  // namespace

extern "C" {

// ---- shadow save and lookup --------------------------------------------------

uint32_t ze_lsw_flow_save_mapping(uint32_t sfid, const ze_sfc_mapping_s *mapping) {
    if (sfid >= ZE_SFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    if (!mapping) return ZE_ERR_NULL_PTR;
    st_sfcmapping[sfid].status = 1;
    __builtin_memcpy(&st_sfcmapping[sfid].mapping, mapping, sizeof *mapping);
    return ZE_OK;
}

uint32_t ze_lsw_flow_save_gemmap(uint32_t sfid, uint32_t tcont, uint32_t gemport) {
    if (sfid >= ZE_SFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    ze_sfc_shadow_s &e = st_sfcmapping[sfid];
    e.tcont = static_cast<uint8_t>(tcont);
    e.gemport = static_cast<uint16_t>(gemport);
    e.status = 1;
    return ZE_OK;
}

uint32_t ze_lsw_sfc_get_gemmapping(uint32_t sfid, ze_sfc_shadow_s *entry) {
    if (sfid >= ZE_SFC_ENTRY_COUNT) return ZE_ERR_PARAM;
    __builtin_memcpy(entry, &st_sfcmapping[sfid], sizeof *entry);
    return ZE_OK;
}

uint32_t ze_lsw_flow_get_gemmap_by_vlan(uint32_t vlan, uint16_t *gemport, uint16_t *tcont,
                                        ze_sfc_mapping_s *mapping) {
    if (!gemport || !tcont || !mapping) return ZE_ERR_FAIL;
    for (const ze_sfc_shadow_s &e : st_sfcmapping) {
        if (e.status == 1 && e.mapping.vlan == vlan) {
            *gemport = e.gemport;
            *tcont = e.tcont;
            __builtin_memcpy(mapping, &e.mapping, sizeof *mapping);
            return ZE_OK;
        }
    }
    return ZE_ERR_FAIL;
}

uint32_t ze_lsw_flow_save_service(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                  uint32_t fwd_act, uint32_t fid) {
    if (fid >= ZE_EFC_ENTRY_COUNT) return ze::traced(ZE_SITE, ZE_ERR_PARAM);
    if (!rule || !action) return ZE_ERR_NULL_PTR;
    ze_efc_shadow_s &e = st_efcservice[fid];
    e.status = 1;
    __builtin_memcpy(&e.rule, rule, sizeof *rule);
    __builtin_memcpy(&e.action, action, sizeof *action);
    e.fwd_act = fwd_act;
    return ZE_OK;
}

// ---- services ----------------------------------------------------------------

uint32_t ze_lsw_flow_add_service(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                 uint32_t fwd_act, uint16_t *fid) {
    if (!rule || !action) return ZE_ERR_NULL_PTR;
    uint16_t f = 0;
    uint32_t r = ze::map_err(ze_lsw_flow_set_efc(kServiceFirstFid, rule, action, fwd_act, &f));
    if (r == 0) {
        if (fid) *fid = f;
        r = ze::map_err(ze_lsw_flow_save_service(rule, action, fwd_act, f));
    }
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_get_service(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                 uint32_t fwd_act, uint16_t *fid) {
    return ze_lsw_flow_get_service_func(rule, action, fwd_act, fid);
}

uint32_t ze_lsw_flow_del_service(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                 uint32_t fwd_act) {
    if (!rule) return ZE_ERR_NULL_PTR;
    uint16_t fid = 0;
    uint32_t r = ze::map_err(ze_lsw_flow_get_service(rule, action, fwd_act, &fid));
    if (r == 0) r = ze::map_err(ze_lsw_flow_del_fid(fid));
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_del_fid(uint32_t fid) {
    return ze::traced(ZE_SITE, ze::map_err(ze_lsw_flow_delete_efc(fid)));
}

uint32_t ze_lsw_flow_change_igmp_pri(uint32_t pri) {
    ze_efc_rule_s rule;
    ze_efc_action_s action;
    ze_os_memset(&rule, 0, sizeof rule);
    ze_os_memset(&action, 0, sizeof action);
    rule.key_mask = kIgmpKeyMask;
    rule.igr_port = kIgmpIgrPort;
    rule.key15 = kIgmpKeyValue;
    action.act_mask = kIgmpActMask;
    action.spri = static_cast<uint8_t>(pri);
    uint16_t fid = 0;
    uint32_t r = ze::map_err(ze_lsw_flow_add_service(&rule, &action, kIgmpFwdAct, &fid));
    return ze::traced(ZE_SITE, r);
}

// ---- mappings ----------------------------------------------------------------

uint32_t ze_lsw_flow_add_mapping(ze_sfc_mapping_s *mapping, uint32_t dir, uint16_t *sfid) {
    if (!mapping || !sfid) return ZE_ERR_NULL_PTR;
    normalise(*mapping, dir);
    uint32_t r = ze::map_err(ze_lsw_flow_set_sfc(mapping, sfid));
    if (r == 0) r = ze::map_err(ze_lsw_flow_save_mapping(*sfid, mapping));
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_del_mapping(ze_sfc_mapping_s *mapping, uint32_t dir) {
    if (!mapping) return ZE_ERR_NULL_PTR;
    normalise(*mapping, dir);
    uint16_t sfid = 0;
    uint32_t r = ze::map_err(ze_lsw_flow_get_sfid_bymapping(mapping, &sfid));
    if (r == 0) r = ze::map_err(ze_lsw_flow_del_mapping_by_sfid(sfid));
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_del_mapping_by_sfid(uint32_t sfid) {
    uint32_t r = ze::map_err(ze_gmac_del_gemport(sfid));
    if (r == 0) r = ze::map_err(ze_lsw_flow_delete_sfc(sfid));
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_del_all(uint32_t a1, uint32_t a2, uint32_t a3, uint32_t a4) {
    uint32_t r = ze::map_err(ze_lsw_flow_efc_delete_all(a1, a2, a3, a4));
    if (r == 0) r = ze::map_err(ze_lsw_flow_sfc_delete_all());
    return ze::traced(ZE_SITE, r);
}

uint32_t ze_lsw_flow_diagnose(uint32_t sel, uint32_t a2, uint32_t a3, uint32_t a4) {
    if (sel == 0) ze_lsw_flow_efc_diagnose(sel, a2, a3, a4);
    if (sel == 1) ze_lsw_flow_sfc_diagnose(sel, a2, a3, a4);
    return ze::traced(ZE_SITE, ZE_OK);
}

}  // extern "C"
