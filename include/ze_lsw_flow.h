/*
 * Flow classification: the simple flow classifier (SFC, one entry per sfid
 * 0..127, the sfid also being the GEM-port index), the extended flow
 * classifier (EFC, 405 entries by fid in 17 groups of 25, a rule taking a
 * run of entries inside one group and named by the fid of its last entry),
 * the services and mappings built on them, and their listings.
 *
 * The library remembers what it installed in shadow tables of its own; the
 * datapath is never asked which entries are in use. One caller at a time.
 *
 * Guarding choices of this library:
 *  - Mask count (ze_lsw_efc_get_masknum): the count of low-order one bits of
 *    a value. An all-ones value (a key whose mask is all zeros, i.e. fully
 *    wildcarded) counts 32 and the function returns 0; the count never
 *    runs past the width of the word.
 *  - Free-run search (ze_lsw_efc_get_fid): when no run of the requested
 *    length fits inside one group among fids 0..255 (including any count
 *    above 25), the search stops after it has seen every cursor/run state
 *    once and returns ZE_ERR_FULL (16); an install then reports 0xffffffff.
 *  - Key placement (ze_lsw_efc_get_value) refuses an item index above 24
 *    with 18, so it never writes past the 25-item list. Its closing debug
 *    line shows the item at the index after the placement; once a key
 *    completes the last item, that is an empty item.
 *  - ze_lsw_flow_add_mapping refuses a null record or a null sfid pointer
 *    with 31 (no trace), like the other null-pointer checks.
 *  - The shadow accessors trace a rejection only, as the port checks do;
 *    the datapath operations trace every exit.
 */
#ifndef ZE_LSW_FLOW_H
#define ZE_LSW_FLOW_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

#define ZE_SFC_ENTRY_COUNT 128u
#define ZE_EFC_ENTRY_COUNT 405u
#define ZE_EFC_GROUP_SIZE  25u
#define ZE_EFC_ITEM_COUNT  25u

/* Mapping direction: upstream traffic enters from the LAN ports, downstream
 * from the PON port; any other value uses the record as given. */
#define ZE_FLOW_DIR_UP   0u
#define ZE_FLOW_DIR_DOWN 1u

/* SFC key mask bits of a mapping record. */
#define ZE_SFC_KEY_IGR   0x01u
#define ZE_SFC_KEY_VLAN  0x02u
#define ZE_SFC_KEY_PRI   0x04u
#define ZE_SFC_KEY_FID   0x08u
#define ZE_SFC_KEY_FIFTH 0x10u

/* Mapping record (20 bytes). Searches compare all 20 bytes, padding
 * included: zero the record before filling it. */
typedef struct {
    uint32_t key_mask;   /* ZE_SFC_KEY_* */
    uint32_t match_mode; /* the datapath gets match_mode / 5 as each key's mode */
    uint8_t igr;         /* ingress bitmap: bits 0..4 LAN ports, bit 5 PON */
    uint8_t pad[3];
    uint16_t vlan;
    uint16_t fid;
    uint16_t pri;
    uint16_t fifth;
} ze_sfc_mapping_s;

/* Service rule (80 bytes): a key mask (bits 0..21) and the values of the
 * keys, named by the mask bit that selects them. Bit 0 selects the ingress
 * port of `igr_port` (clear: all seven ports). */
typedef struct {
    uint32_t key_mask;
    uint32_t n_base;        /* n0 and n1 of every entry: n_base + 2 */
    uint8_t key10;          /* type 15 */
    uint8_t key13;          /* type 28 */
    uint8_t key17;          /* type 9 */
    uint8_t key21;          /* type 18 */
    uint8_t igr_port;
    uint8_t key6;           /* type 17 */
    uint16_t key5;          /* type 17 */
    uint8_t dmac[6];        /* bit 1, type 1, a whole entry */
    uint8_t dmac_mask[6];
    uint8_t smac[6];        /* bit 2, type 2, a whole entry */
    uint8_t smac_mask[6];
    uint32_t dip;           /* bit 3, type 3 */
    uint32_t dip_mask;
    uint32_t sip;           /* bit 4, type 4 */
    uint32_t sip_mask;
    uint16_t key18_19;      /* bit 18 type 11, bit 19 type 17 */
    uint16_t key18_19_masknum;
    uint8_t rsv60[4];
    uint16_t key7;          /* type 6 */
    uint16_t key8;          /* type 31 */
    uint16_t key9_12;       /* bit 9 type 33, bit 12 type 34 */
    uint8_t rsv70[2];
    uint16_t key11_14;      /* bit 11 type 5, bit 14 type 16 */
    uint8_t rsv74[3];
    uint8_t key15;          /* type 7 */
    uint8_t key16;          /* type 8 */
    uint8_t key20;          /* type 14 */
} ze_efc_rule_s;

/* Service action (20 bytes): an action mask (bits 0..17) and its values.
 * Bits 0-1 tag action; 2-6 second priority action (bit 2 takes spri);
 * 7-11 first priority action (bit 7 takes cpri); 12-14 service VLAN action
 * (bit 12 takes svlan); 15-17 customer VLAN action (bit 15 takes cvlan).
 * The highest bit of a group wins. */
typedef struct {
    uint32_t act_mask;
    uint32_t egress_port;   /* port number, turned into a bitmap */
    uint8_t ext;            /* passed to the datapath as is */
    uint8_t cpri;
    uint8_t spri;
    uint8_t rsv11;
    uint16_t cvlan;
    uint16_t svlan;
    uint16_t rsv16;
    uint8_t rsv18[2];
} ze_efc_action_s;

/* One key item of a rule: up to two keys (type 0 = none) with their mask
 * counts. The mask counts are computed but never written to the datapath. */
typedef struct {
    uint32_t m1;
    uint32_t m0;
    uint32_t g1;
    uint32_t g0;
    uint32_t k1;
    uint32_t k0;
} ze_efc_item_s;

/* SFC shadow entry as returned by ze_lsw_sfc_get_gemmapping (24 bytes). */
typedef struct {
    uint8_t status; /* 0 free, 1 in use */
    uint8_t tcont;  /* 8: no GEM port */
    uint16_t gemport; /* 4096: no GEM port */
    ze_sfc_mapping_s mapping;
} ze_sfc_shadow_s;

/* ---- services and mappings ----
 * A non-zero result of an inner step comes back as 18 when it was the
 * driver's invalid-parameter code and 0xffffffff otherwise, so an unknown
 * service or mapping is reported as 0xffffffff. Earlier steps are not undone. */
ZE_API uint32_t ze_lsw_flow_add_service(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                        uint32_t fwd_act, uint16_t *fid);
ZE_API uint32_t ze_lsw_flow_get_service(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                        uint32_t fwd_act, uint16_t *fid);
ZE_API uint32_t ze_lsw_flow_del_service(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                        uint32_t fwd_act);
ZE_API uint32_t ze_lsw_flow_del_fid(uint32_t fid);
/* Normalises the record for the direction (in place), installs it in the
 * lowest free sfid and remembers it. */
ZE_API uint32_t ze_lsw_flow_add_mapping(ze_sfc_mapping_s *mapping, uint32_t dir, uint16_t *sfid);
ZE_API uint32_t ze_lsw_flow_del_mapping(ze_sfc_mapping_s *mapping, uint32_t dir);
/* Removes the GEM port of the sfid first, then its classifier entry. */
ZE_API uint32_t ze_lsw_flow_del_mapping_by_sfid(uint32_t sfid);
/* Removes every service, then every mapping. */
ZE_API uint32_t ze_lsw_flow_del_all(uint32_t a1, uint32_t a2, uint32_t a3, uint32_t a4);
/* Installs a service marking IGMP traffic of every port with `pri`. */
ZE_API uint32_t ze_lsw_flow_change_igmp_pri(uint32_t pri);
/* Selector 0 lists the EFC, 1 the SFC, anything else nothing; returns 0. */
ZE_API uint32_t ze_lsw_flow_diagnose(uint32_t sel, uint32_t a2, uint32_t a3, uint32_t a4);

/* ---- SFC shadow ---- */
ZE_API uint32_t ze_lsw_sfc_get_status(uint32_t sfid, uint8_t *status);
ZE_API uint32_t ze_lsw_sfc_set_status(uint32_t sfid, uint32_t status);
ZE_API uint32_t ze_lsw_flow_save_mapping(uint32_t sfid, const ze_sfc_mapping_s *mapping);
ZE_API uint32_t ze_lsw_flow_save_gemmap(uint32_t sfid, uint32_t tcont, uint32_t gemport);
ZE_API uint32_t ze_lsw_sfc_get_gemmapping(uint32_t sfid, ze_sfc_shadow_s *entry);
ZE_API uint32_t ze_lsw_sfc_delete_gemmapping(uint32_t sfid);
/* Zeroes the first 2560 bytes of the shadow only: entries 0..105 and the
 * head of entry 106; the rest keeps its contents. */
ZE_API uint32_t ze_lsw_mapping_clear_all(void);
ZE_API uint32_t ze_lsw_sfc_get_sfid(uint16_t *sfid);
ZE_API uint32_t ze_lsw_flow_get_sfid(uint32_t gemport, uint16_t *sfid);
ZE_API uint32_t ze_lsw_flow_get_sfid_by_gemport(uint32_t gemport, uint32_t dir, uint32_t first,
                                                uint16_t *sfid);
ZE_API uint32_t ze_lsw_flow_get_sfc_item_count(uint32_t gemport, uint32_t dir, uint16_t *count);
/* 14 when no entry holds the record (traced as 18). */
ZE_API uint32_t ze_lsw_flow_get_sfid_bymapping(const ze_sfc_mapping_s *mapping, uint16_t *sfid);
ZE_API uint32_t ze_lsw_flow_get_gemmap_by_vlan(uint32_t vlan, uint16_t *gemport, uint16_t *tcont,
                                               ze_sfc_mapping_s *mapping);

/* ---- SFC datapath ---- */
ZE_API uint32_t ze_lsw_flow_set_sfc(const ze_sfc_mapping_s *mapping, uint16_t *sfid);
ZE_API uint32_t ze_lsw_flow_delete_sfc(uint32_t sfid);
ZE_API uint32_t ze_lsw_flow_sfc_delete_all(void);
ZE_API uint32_t ze_lsw_flow_gemmap_delete_all(void);
ZE_API uint32_t ze_lsw_flow_sfc_printf_info(void);

/* ---- EFC rules ---- */
ZE_API uint32_t ze_lsw_flow_set_efc(uint32_t first, const ze_efc_rule_s *rule,
                                    const ze_efc_action_s *action, uint32_t fwd_act, uint16_t *fid);
ZE_API uint32_t ze_lsw_flow_delete_efc(uint32_t fid);
ZE_API uint32_t ze_lsw_flow_efc_delete_all(uint32_t a1, uint32_t a2, uint32_t a3, uint32_t a4);
ZE_API uint32_t ze_lsw_efc_get_status(uint32_t fid, uint8_t *status, uint8_t *eof);
ZE_API uint32_t ze_lsw_efc_set_status(uint32_t fid, uint32_t status, uint32_t eof);
ZE_API uint32_t ze_lsw_efc_get_fid(uint32_t first, uint32_t count, uint16_t *fid);
ZE_API uint32_t ze_lsw_efc_get_fid_range(uint32_t fid, uint16_t *start);
ZE_API uint32_t ze_lsw_efc_get_attr(const ze_efc_rule_s *rule, ze_efc_item_s *items);
ZE_API uint32_t ze_lsw_efc_get_value(uint8_t *index, ze_efc_item_s *items, uint32_t type0,
                                     uint32_t type1, uint32_t value);
ZE_API uint32_t ze_lsw_efc_get_masknum(uint32_t value, uint32_t *count);
ZE_API uint32_t ze_lsw_efc_count_itemnum(const ze_efc_item_s *items, uint8_t *count);
/* Fills the action half of an EFC block; `block_tail` is the block's byte 84. */
ZE_API uint32_t ze_lsw_efc_get_fact(const ze_efc_action_s *action, uint32_t fwd_act,
                                    uint8_t *block_tail);
ZE_API uint32_t ze_lsw_efc_get_fwd_act(uint32_t fwd_act, uint32_t *act);
ZE_API uint32_t ze_lsw_flow_save_service(const ze_efc_rule_s *rule, const ze_efc_action_s *action,
                                         uint32_t fwd_act, uint32_t fid);
ZE_API uint32_t ze_lsw_flow_get_service_func(const ze_efc_rule_s *rule,
                                             const ze_efc_action_s *action, uint32_t fwd_act,
                                             uint16_t *fid);
ZE_API uint32_t ze_lsw_flow_delete_service(uint32_t fid);
ZE_API uint32_t ze_lsw_service_clear_all(void);

/* ---- listings ---- */
ZE_API uint32_t ze_lsw_flow_sfc_diagnose(uint32_t a1, uint32_t a2, uint32_t a3, uint32_t a4);
ZE_API uint32_t ze_lsw_flow_efc_diagnose(uint32_t a1, uint32_t a2, uint32_t a3, uint32_t a4);

ZE_END_DECLS

#endif
