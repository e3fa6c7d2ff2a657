// Services, mappings, the simple and extended classifiers and their listings.
#include "ze_lsw_flow.h"
#include "areas.h"
#include "records.h"

namespace zesh::api {

namespace {

// Three key entries (destination MAC, destination and source address), so
// the examples install and remove a rule of several entries.
#define ZE_VOICE_SERVICE                                                                              \
    "key_mask=0x1e dmac=00:11:22:33:44:55 dmac_mask=ff:ff:ff:ff:ff:ff dip=10.10.0.5 "                 \
    "dip_mask=255.255.255.255 sip=10.20.0.0 sip_mask=255.255.0.0 act_mask=0x4 spri=5 fwd_act=2"
#define ZE_ADD_VOICE "api ze_lsw_flow_add_service " ZE_VOICE_SERVICE
#define ZE_VLAN_MAPPING "key_mask=2 vlan=100"
#define ZE_ADD_MAPPING "api ze_lsw_flow_add_mapping " ZE_VLAN_MAPPING " dir=0"
#define ZE_ADD_GEM ZE_ADD_MAPPING "; api ze_gmac_set_gemport 0 1 1001"

Typed<const ze_efc_rule_s *> rule() { return rec_in(kRule, "rule", "the service rule: key mask and key values"); }
Typed<const ze_efc_action_s *> action() { return rec_in(kAction, "action", "the service action: action mask and values"); }
Typed<uint32_t> fwd_act() { return u32("fwd_act", "forward action code"); }
Typed<uint32_t> sfid() { return u32("sfid", "simple-classifier index 0-127"); }
Typed<uint32_t> fid() { return u32("fid", "extended-classifier index 0-404"); }
Typed<uint32_t> unused(const char *n) { return u32(n, "not used"); }
Typed<uint32_t> gemport() { return u32("gemport", "GEM port id"); }
Typed<uint32_t> dir() { return u32("dir", "0 upstream, 1 downstream"); }
Typed<ze_efc_item_s *> items_out() { return rec_out(kItem, "items", "the rule's key items", ZE_EFC_ITEM_COUNT); }

}  // namespace

std::span<const Row> flow_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_lsw_flow_add_service, "install a service (rule and action) in the extended classifier", ZE_VOICE_SERVICE, 0,
                   rule(), action(), fwd_act(), out_u16("fid", "the service's fid")),
        ZE_API_ROW(ze_lsw_flow_get_service, "find the fid of the service with this rule and action", {ZE_VOICE_SERVICE, ZE_ADD_VOICE},
                   kNoDriver, rule(), action(), fwd_act(), out_u16("fid", "the service's fid")),
        ZE_API_ROW(ze_lsw_flow_del_service, "remove the service with this rule and action", {ZE_VOICE_SERVICE, ZE_ADD_VOICE},
                   0, rule(), action(), fwd_act()),
        ZE_API_ROW(ze_lsw_flow_del_fid, "remove the service named by its (last) fid", {"3", ZE_ADD_VOICE}, 0, fid()),
        ZE_API_ROW(ze_lsw_flow_add_mapping, "install a mapping in the lowest free sfid (normalised for the direction)",
                   ZE_VLAN_MAPPING " dir=0", 0, rec_inout(kMapping, "mapping", "the mapping record"), dir(),
                   out_u16("sfid", "the mapping's sfid")),
        ZE_API_ROW(ze_lsw_flow_del_mapping, "remove the mapping with this record", {ZE_VLAN_MAPPING " dir=0", ZE_ADD_GEM},
                   0, rec_inout(kMapping, "mapping", "the mapping record"), dir()),
        ZE_API_ROW(ze_lsw_flow_del_mapping_by_sfid, "remove the GEM port of an sfid, then its mapping", {"0", ZE_ADD_GEM},
                   0, sfid()),
        ZE_API_ROW(ze_lsw_flow_del_all, "remove every service, then every mapping", {"0 0 0 0", ZE_ADD_VOICE "; " ZE_ADD_GEM},
                   0, unused("a1"), unused("a2"), unused("a3"), unused("a4")),
        ZE_API_ROW(ze_lsw_flow_change_igmp_pri, "install a service giving IGMP traffic of every port a priority", "5", 0,
                   u32("pri", "the priority")),
        ZE_API_ROW(ze_lsw_flow_diagnose, "list the extended (0) or simple (1) classifier", {"1 0 0 0", ZE_ADD_MAPPING}, 0,
                   u32("sel", "0 extended, 1 simple"), unused("a2"), unused("a3"), unused("a4")),

        ZE_API_ROW(ze_lsw_sfc_get_status, "whether an sfid is in use (shadow)", "0", kNoDriver, sfid(), out_u8("status", "1 in use")),
        ZE_API_ROW(ze_lsw_sfc_set_status, "mark an sfid in use or free (shadow)", "0 1", kNoDriver, sfid(), u32("status", "1 in use, 0 free")),
        ZE_API_ROW(ze_lsw_flow_save_mapping, "remember the mapping of an sfid (shadow)", "0 " ZE_VLAN_MAPPING, kNoDriver, sfid(),
                   rec_in(kMapping, "mapping", "the mapping record")),
        ZE_API_ROW(ze_lsw_flow_save_gemmap, "remember the T-CONT and GEM port of an sfid (shadow)", "0 1 1001", kNoDriver, sfid(),
                   u32("tcont", "T-CONT"), gemport()),
        ZE_API_ROW(ze_lsw_sfc_get_gemmapping, "shadow entry of an sfid", {"0", ZE_ADD_GEM}, kNoDriver, sfid(),
                   rec_out(kSfcShadow, "entry", "the shadow entry")),
        ZE_API_ROW(ze_lsw_sfc_delete_gemmapping, "forget the shadow entry of an sfid", "0", kNoDriver, sfid()),
        ZE_API_ROW(ze_lsw_mapping_clear_all, "zero the mapping shadow (its first 2560 bytes)", "", kNoDriver),
        ZE_API_ROW(ze_lsw_sfc_get_sfid, "lowest free sfid", "", kNoDriver, out_u16("sfid", "the free sfid")),
        ZE_API_ROW(ze_lsw_flow_get_sfid, "sfid of a GEM port", {"1001", ZE_ADD_GEM}, kNoDriver, gemport(), out_u16("sfid", "its sfid")),
        ZE_API_ROW(ze_lsw_flow_get_sfid_by_gemport, "an sfid of a GEM port in a direction, from a first sfid", {"1001 0 0", ZE_ADD_GEM},
                   kNoDriver, gemport(), dir(), u32("first", "first sfid searched"), out_u16("sfid", "the sfid found")),
        ZE_API_ROW(ze_lsw_flow_get_sfc_item_count, "flows of a GEM port in a direction", {"1001 0", ZE_ADD_GEM}, kNoDriver,
                   gemport(), dir(), out_u16("count", "the number of flows")),
        ZE_API_ROW(ze_lsw_flow_get_sfid_bymapping, "sfid holding a mapping record (14 when none)", {"key_mask=2 vlan=100", ZE_ADD_MAPPING},
                   kNoDriver, rec_in(kMapping, "mapping", "the mapping record as installed"), out_u16("sfid", "its sfid")),
        ZE_API_ROW(ze_lsw_flow_get_gemmap_by_vlan, "GEM port, T-CONT and mapping of the flow of a VLAN", {"100", ZE_ADD_GEM},
                   kNoDriver, u32("vlan", "VLAN id"), out_u16("gemport", "GEM port"), out_u16("tcont", "T-CONT"),
                   rec_out(kMapping, "mapping", "the mapping record")),

        ZE_API_ROW(ze_lsw_flow_set_sfc, "write a mapping into the lowest free sfid", ZE_VLAN_MAPPING, 0,
                   rec_in(kMapping, "mapping", "the mapping record"), out_u16("sfid", "the sfid written")),
        ZE_API_ROW(ze_lsw_flow_delete_sfc, "clear the classifier entry of an sfid", {"0", ZE_ADD_MAPPING}, 0, sfid()),
        ZE_API_ROW(ze_lsw_flow_sfc_delete_all, "clear every simple-classifier entry in use", {"", ZE_ADD_GEM}, 0),
        ZE_API_ROW(ze_lsw_flow_gemmap_delete_all, "remove the GEM port of every sfid in use", {"", ZE_ADD_GEM}, 0),
        ZE_API_ROW(ze_lsw_flow_sfc_printf_info, "print the simple-classifier shadow", {"", ZE_ADD_MAPPING}, kNoDriver),

        ZE_API_ROW(ze_lsw_flow_set_efc, "write a rule's entries from a first fid", "0 " ZE_VOICE_SERVICE, 0,
                   u32("first", "first fid searched"), rule(), action(), fwd_act(), out_u16("fid", "the rule's fid")),
        ZE_API_ROW(ze_lsw_flow_delete_efc, "clear the entries of the rule named by a fid", {"3", ZE_ADD_VOICE}, 0, fid()),
        ZE_API_ROW(ze_lsw_flow_efc_delete_all, "clear every extended-classifier rule", {"0 0 0 0", ZE_ADD_VOICE}, 0,
                   unused("a1"), unused("a2"), unused("a3"), unused("a4")),
        ZE_API_ROW(ze_lsw_efc_get_status, "use and end-of-rule flags of a fid (shadow)", "0", kNoDriver, fid(),
                   out_u8("status", "1 in use"), out_u8("eof", "1 last entry of its rule")),
        ZE_API_ROW(ze_lsw_efc_set_status, "set the use and end-of-rule flags of a fid (shadow)", "0 1 1", kNoDriver, fid(),
                   u32("status", "1 in use"), u32("eof", "1 last entry of its rule")),
        ZE_API_ROW(ze_lsw_efc_get_fid, "first fid of a free run of entries inside one group", "0 2", kNoDriver,
                   u32("first", "first fid searched"), u32("count", "entries wanted"), out_u16("fid", "start of the run")),
        ZE_API_ROW(ze_lsw_efc_get_fid_range, "first fid of the rule that a fid ends", {"1", ZE_ADD_VOICE}, kNoDriver, fid(),
                   out_u16("start", "the rule's first fid")),
        ZE_API_ROW(ze_lsw_efc_get_attr, "key items of a rule", "key_mask=0x8 dip=10.10.0.5 dip_mask=255.255.255.255", kNoDriver,
                   rule(), items_out()),
        ZE_API_ROW(ze_lsw_efc_get_value, "place one key in the item list at an index", "0 type0=3 type1=0 value=0x0a0a0005",
                   kNoDriver, inout_u8("index", "item index 0-24"),
                   rec_inout(kItem, "items", "the item list", ZE_EFC_ITEM_COUNT), u32("type0", "first key type"),
                   u32("type1", "second key type"), u32("value", "the key value")),
        ZE_API_ROW(ze_lsw_efc_get_masknum, "count of low-order one bits of a value", "0xff", kNoDriver, u32("value", "the value"),
                   out_u32("count", "the count")),
        ZE_API_ROW(ze_lsw_efc_count_itemnum, "number of leading items with a key", "items[0].g0=3", kNoDriver,
                   rec_in(kItem, "items", "the item list", ZE_EFC_ITEM_COUNT), out_u8("count", "the count")),
        ZE_API_ROW(ze_lsw_efc_get_fact, "fill the action half of a classifier block", "act_mask=0x4 spri=5 fwd_act=2", kNoDriver,
                   action(), fwd_act(), out_raw("block_tail", "the block from its byte 84", 216 - 84)),
        ZE_API_ROW(ze_lsw_efc_get_fwd_act, "the datapath's code of a forward action", "2", kNoDriver, fwd_act(),
                   out_u32("act", "the datapath's code")),
        ZE_API_ROW(ze_lsw_flow_save_service, "remember a service under its fid (shadow)", "fid=0 " ZE_VOICE_SERVICE, kNoDriver,
                   rule(), action(), fwd_act(), fid()),
        ZE_API_ROW(ze_lsw_flow_get_service_func, "fid of the remembered service with this rule and action", {ZE_VOICE_SERVICE, ZE_ADD_VOICE},
                   kNoDriver, rule(), action(), fwd_act(), out_u16("fid", "its fid")),
        ZE_API_ROW(ze_lsw_flow_delete_service, "forget the remembered service of a fid", {"1", ZE_ADD_VOICE}, kNoDriver, fid()),
        ZE_API_ROW(ze_lsw_service_clear_all, "forget every remembered service", "", kNoDriver),

        ZE_API_ROW(ze_lsw_flow_sfc_diagnose, "list the simple classifier with the GEM port of each sfid", {"0 0 0 0", ZE_ADD_GEM}, 0,
                   unused("a1"), unused("a2"), unused("a3"), unused("a4")),
        ZE_API_ROW(ze_lsw_flow_efc_diagnose, "list the extended classifier", {"0 0 0 0", ZE_ADD_VOICE}, 0, unused("a1"), unused("a2"),
                   unused("a3"), unused("a4")),
    };
    return kRows;
}

#undef ZE_VOICE_SERVICE
#undef ZE_ADD_VOICE
#undef ZE_VLAN_MAPPING
#undef ZE_ADD_MAPPING
#undef ZE_ADD_GEM

}  // namespace zesh::api
