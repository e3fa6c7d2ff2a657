/* Switch ports: attributes, tag actions, default VLAN and priority, and the
 * one-call network initialisation. Ports as in ze_lsw_common.h. */
#ifndef ZE_LSW_PORT_H
#define ZE_LSW_PORT_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* ---- port attributes, tag actions, defaults ---- */

/* ---- network initialisation ---- */

/* Loads the default bridging state through the datapath API library: every
 * port enabled in VLAN 1 (TPID 0x8100, priority 0) with VLAN filtering on,
 * no learning on the CPU port, and VLAN 1 broadcast to every port. Failures
 * of the VLAN filter attribute calls are printed; every other result is
 * ignored. Returns 0; writes no trace. The VLAN filter attribute block is
 * zeroed before it is read. */
ZE_API uint32_t ze_lsw_port_init_network(void);

ZE_END_DECLS

#endif
