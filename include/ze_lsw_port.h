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

ZE_END_DECLS

#endif
