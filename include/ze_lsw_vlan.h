/*
 * VLANs: port membership, broadcast egress, hybrid tag mode, the per-port
 * VLAN filter, and the undo of every VLAN configuration made since load.
 * Ports as in ze_lsw_common.h; bitmaps carry bit p for port p.
 *
 * Membership add/delete and broadcast egress add/delete record the port in
 * a per-VLAN shadow entry (ports 0..7) so that ze_lsw_vlan_del_all_cfg can
 * undo them. A full shadow table or a VLAN without an entry does not fail
 * the public call.
 *
 * The VLAN filter is read from the filter read-out block and written into
 * the filter mode block; ports 7 and 8 read 0 and their second filter word
 * has no place in the block and is dropped.
 */
#ifndef ZE_LSW_VLAN_H
#define ZE_LSW_VLAN_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* Ports 0..6 change their member flag; any other port writes the block back
 * unchanged (and is still recorded). No range check. */
ZE_API uint32_t ze_lsw_vlan_add_port(uint32_t vlan, uint32_t port);
ZE_API uint32_t ze_lsw_vlan_del_port(uint32_t vlan, uint32_t port);
/* Always 0 for a non-null output; a failed read reports bitmap 0. Untraced. */
ZE_API uint32_t ze_lsw_vlan_get_port(uint32_t vlan, uint32_t *bitmap);

ZE_API uint32_t ze_lsw_vlan_bc_add_port(uint32_t vlan, uint32_t port);
ZE_API uint32_t ze_lsw_vlan_bc_del_port(uint32_t vlan, uint32_t port);
ZE_API uint32_t ze_lsw_vlan_bc_get_port(uint32_t vlan, uint32_t *bitmap);
/* Prints the VLAN's broadcast egress table. */
ZE_API uint32_t ze_lsw_vlan_display_bcegrs(uint32_t vlan);

/* Tag mode 1 is untagged, anything else tagged; ports 0..4 only, other
 * ports change and report nothing. */
ZE_API uint32_t ze_lsw_vlan_get_hybrid_tagmode(uint32_t vlan, uint32_t port, uint8_t *mode);
ZE_API uint32_t ze_lsw_vlan_set_hybrid_tagmode(uint32_t vlan, uint32_t port, uint32_t mode);

ZE_API uint32_t ze_lsw_vlan_get_vlanfilter(uint32_t port, uint8_t *value);
ZE_API uint32_t ze_lsw_vlan_set_vlanfilter(uint32_t port, uint32_t value);

/* Removes, port by port, the membership and broadcast egress of every VLAN
 * in the shadow table. Always 0. */
ZE_API uint32_t ze_lsw_vlan_del_all_cfg(void);
/* Item 0 lists every VLAN with members and tag modes. Always 0. */
ZE_API uint32_t ze_lsw_vlan_diagnose(uint32_t item);

ZE_END_DECLS

#endif
