/* Switch ports: attributes, tag actions, default VLAN and priority, and the
 * one-call network initialisation. Ports as in ze_lsw_common.h. */
#ifndef ZE_LSW_PORT_H
#define ZE_LSW_PORT_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* ---- port attributes, tag actions, defaults ---- */

/* Ethernet-only attributes (ports 0..4). A rejected port returns 0xffffffff;
 * a driver answer 0xf0000101 returns 18, any other failure 0xffffffff; a
 * null output returns 31. Values are the driver's codes, passed through. */
ZE_API uint32_t ze_lsw_port_get_workmode(uint32_t port, uint32_t *mode);
ZE_API uint32_t ze_lsw_port_set_workmode(uint32_t port, uint32_t mode);
/* The get returns the low byte of the pause word; the set writes both pause
 * words of the port. */
ZE_API uint32_t ze_lsw_port_get_pause(uint32_t port, uint8_t *pause);
ZE_API uint32_t ze_lsw_port_set_pause(uint32_t port, uint32_t pause);
ZE_API uint32_t ze_lsw_port_get_loopback(uint32_t port, uint32_t *mode);
ZE_API uint32_t ze_lsw_port_set_loopback(uint32_t port, uint32_t mode);
ZE_API uint32_t ze_lsw_port_get_stpstate(uint32_t port, uint32_t *state);
/* Pause time is not configurable: both return 0 and touch nothing. */
ZE_API uint32_t ze_lsw_port_get_pausetime(uint32_t port, uint32_t *time);
ZE_API uint32_t ze_lsw_port_set_pausetime(uint32_t port, uint32_t time);

/* Switch-wide: the STP enable, and the MTU (any port 0..8 is accepted and
 * they all share one value). */
ZE_API uint32_t ze_lsw_port_get_stp(uint32_t *enable);
ZE_API uint32_t ze_lsw_port_set_stp(uint32_t enable);
ZE_API uint32_t ze_lsw_port_get_mtu(uint32_t port, uint32_t *mtu);
ZE_API uint32_t ze_lsw_port_set_mtu(uint32_t port, uint32_t mtu);

/* Administrative status: Ethernet ports 0..4, the PON port 5 in the block
 * form of the uplink mode (EPON 0, GPON 1, nothing for 2); ports 6 and above
 * do nothing and succeed. Every failure returns 0xffffffff, a null output
 * for ports 0..4 included. */
ZE_API uint32_t ze_lsw_port_get_status(uint32_t port, uint8_t *status);
ZE_API uint32_t ze_lsw_port_set_status(uint32_t port, uint32_t status);

/* Tag actions, addressed by group 0..1 and index 0..2; another pair reads
 * nothing or writes the block back unchanged, and succeeds. The get serves
 * Ethernet ports only. The dispatcher sends port 6 to the CPU setter (whose
 * Ethernet port check then refuses it), 5 and 8 to the NNI setter and the
 * others to the UNI setter, and returns 0xffffffff for every failure. The
 * CPU setter accepts ports 0..4 only and does not use the number. The NNI
 * setter accepts 5 and 8 only (0xffffffff otherwise). */
ZE_API uint32_t ze_lsw_port_get_tag_act(uint32_t port, uint32_t group, uint32_t index,
                                        uint32_t *action);
ZE_API uint32_t ze_lsw_port_set_tag_act(uint32_t port, uint32_t group, uint32_t index,
                                        uint32_t action);
ZE_API uint32_t ze_lsw_port_set_uni_tag_act(uint32_t port, uint32_t group, uint32_t index,
                                            uint32_t action);
ZE_API uint32_t ze_lsw_port_set_nni_tag_act(uint32_t port, uint32_t group, uint32_t index,
                                            uint32_t action);
ZE_API uint32_t ze_lsw_port_set_cpu_tag_act(uint32_t port, uint32_t group, uint32_t index,
                                            uint32_t action);

/* Default VLAN (low 16 bits returned) and default priority (low byte) of
 * Ethernet ports 0..4, the CPU port 6 and the PON port 5 (uplink mode as
 * for the status; every PON failure returns 0xffffffff). Ports 7 and 8 do
 * nothing and succeed. In GPON mode the PON port's default priority cannot
 * be set: the call succeeds and the priority stays as it was. */
ZE_API uint32_t ze_lsw_port_get_defvlan(uint32_t port, uint16_t *vlan);
ZE_API uint32_t ze_lsw_port_set_defvlan(uint32_t port, uint32_t vlan);
ZE_API uint32_t ze_lsw_port_get_defpri(uint32_t port, uint8_t *priority);
ZE_API uint32_t ze_lsw_port_set_defpri(uint32_t port, uint32_t priority);

/* ---- network initialisation ---- */

/* Loads the default bridging state through the datapath API library: every
 * port enabled in VLAN 1 (TPID 0x8100, priority 0) with VLAN filtering on,
 * no learning on the CPU port, and VLAN 1 broadcast to every port. Failures
 * of the VLAN filter attribute calls are printed; every other result is
 * ignored. Returns 0; writes no trace. The VLAN filter attribute block is
 * not zeroed before its get: the datapath fills it, and all eight words are
 * set before it is written back. */
ZE_API uint32_t ze_lsw_port_init_network(void);

ZE_END_DECLS

#endif
