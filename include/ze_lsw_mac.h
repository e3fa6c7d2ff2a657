/*
 * The layer-2 address table: learning, learn mode and learn-fail action,
 * ageing, per-port address limits, static entries and the table read-out.
 *
 * Per-port settings take ports 0..8; each per-port array has eight words, so
 * port 8 reaches the first word of the following array (learning of port 8
 * is the limit enable of port 0, the limit enable of port 8 the limit count
 * of port 0). The ageing time is at most 86399 seconds; larger values are
 * stored as 86399.
 */
#ifndef ZE_LSW_MAC_H
#define ZE_LSW_MAC_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* One address-table entry as the caller sees it (16 bytes). `port` is the
 * port of a unicast entry; a multicast entry (01:00:5e) read from the table
 * carries its raw egress port bitmap there instead. */
typedef struct {
    uint8_t valid;
    uint8_t age_en;
    uint16_t vlan;
    uint8_t mac[6];
    uint8_t untag;
    uint8_t reserved;
    uint32_t port;
} ze_lsw_l2_entry_s;

ZE_API uint32_t ze_lsw_mac_get_learn(uint32_t port, uint8_t *enable);
ZE_API uint32_t ze_lsw_mac_set_learn(uint32_t port, uint32_t enable);
ZE_API uint32_t ze_lsw_mac_get_learnmode(uint32_t *mode);
ZE_API uint32_t ze_lsw_mac_set_learnmode(uint32_t mode);
ZE_API uint32_t ze_lsw_mac_get_learn_fail(uint32_t *action);
ZE_API uint32_t ze_lsw_mac_set_learn_fail(uint32_t action);
ZE_API uint32_t ze_lsw_mac_get_ageenable(uint8_t *enable);
ZE_API uint32_t ze_lsw_mac_set_ageenable(uint32_t enable);
ZE_API uint32_t ze_lsw_mac_get_agetime(uint32_t *seconds);
ZE_API uint32_t ze_lsw_mac_set_agetime(uint32_t seconds);
ZE_API uint32_t ze_lsw_mac_get_limitenable(uint32_t port, uint8_t *enable);
ZE_API uint32_t ze_lsw_mac_set_limitenable(uint32_t port, uint32_t enable);
ZE_API uint32_t ze_lsw_mac_get_limitcount(uint32_t port, uint16_t *count);
ZE_API uint32_t ze_lsw_mac_set_limitcount(uint32_t port, uint32_t count);

/* Static entries. A port above 6 is added with an empty egress bitmap; get
 * takes MAC and VLAN and fills untag, age_en and port (a bitmap that is not
 * a single port leaves the port as it was). */
ZE_API uint32_t ze_lsw_mac_add(const ze_lsw_l2_entry_s *entry);
ZE_API uint32_t ze_lsw_mac_get(ze_lsw_l2_entry_s *entry);
ZE_API uint32_t ze_lsw_mac_del(const uint8_t *mac, uint32_t vlan);

/* Entry at table index 0..1023; an empty index returns 0 and leaves the
 * record untouched. */
ZE_API uint32_t ze_lsw_mac_get_l2item(uint32_t index, ze_lsw_l2_entry_s *entry);
/* Item 0 lists the table up to the first failed read. Always 0. */
ZE_API uint32_t ze_lsw_mac_diagnose(uint32_t item);

ZE_END_DECLS

#endif
