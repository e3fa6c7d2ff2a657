/*
 * Security filters: the IP filter modes, the 64-rule IP filter table and the
 * per-port source-MAC (black) lists of eight addresses with their modes
 * (0 "IGNORE", 1 "WHITE", 2 "BACK", 3 "THRU").
 *
 * IP filter rules are found by their exact 32 bytes in a shadow of the rules
 * added since load; a rule's position there is its index in the driver. A
 * delete always succeeds: an unknown rule clears the first free slot, or
 * rule 0 when the table is full.
 *
 * The source-MAC listing prints an empty mode name for a mode above 3.
 */
#ifndef ZE_LSW_SEC_H
#define ZE_LSW_SEC_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

#define ZE_LSW_IP_FILTER_COUNT 64u

/* One IP filter rule (32 bytes). ipversion 0 uses ip[0..3], 1 all sixteen
 * bytes; other versions are sent without an address. */
typedef struct {
    uint32_t porttype;
    uint32_t field;
    uint32_t ipversion;
    uint32_t mask;
    uint8_t ip[16];
} ze_lsw_ip_filter_rule_s;

/* Selector 0 or 1; other selectors change and report nothing. */
ZE_API uint32_t ze_lsw_sec_get_ip_filtermode(uint32_t selector, uint32_t *mode);
ZE_API uint32_t ze_lsw_sec_set_ip_filtermode(uint32_t selector, uint32_t mode);

ZE_API uint32_t ze_lsw_sec_get_blackmode(uint32_t port, uint32_t *mode);
ZE_API uint32_t ze_lsw_sec_set_blackmode(uint32_t port, uint32_t mode);
/* 0 also when the MAC is already listed (nothing written); 42 when full. */
ZE_API uint32_t ze_lsw_sec_add_blackmac(uint32_t port, const uint8_t *mac);
/* 44 when the MAC is not listed. */
ZE_API uint32_t ze_lsw_sec_del_blackmac(uint32_t port, const uint8_t *mac);

/* 15 with the rule's index when present, 0 with the first free index, 16
 * when full (index not written). */
ZE_API uint32_t ze_lsw_sec_get_ip_filter_table_index(const ze_lsw_ip_filter_rule_s *rule,
                                                     uint32_t *index);
/* 0xffffffff for a duplicate or a full table. */
ZE_API uint32_t ze_lsw_sec_add_ip_filter_table(const ze_lsw_ip_filter_rule_s *rule);
ZE_API uint32_t ze_lsw_sec_del_ip_filter_table(const ze_lsw_ip_filter_rule_s *rule);
/* 14 when the index holds no rule; prints the rule's mask line. */
ZE_API uint32_t ze_lsw_sec_get_ip_filter_table(uint32_t index, ze_lsw_ip_filter_rule_s *rule);

/* Item 0 lists the source-MAC lists of ports 0..8, item 1 the IP filter
 * rules. Always 0. */
ZE_API uint32_t ze_lsw_sec_diagnose(uint32_t item);

ZE_END_DECLS

#endif
