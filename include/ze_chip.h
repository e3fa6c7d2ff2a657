/* Chip-wide attributes: up mode, access mode, priority selection, identity. */
#ifndef ZE_CHIP_H
#define ZE_CHIP_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

/* Up mode as reported by the driver: 0 EPON form of the PON port, 1 GPON
 * form, 2 neither. Only 0 and 1 can be set; other values are written back
 * unchanged and reported as success. */
ZE_API uint32_t ze_chip_get_upmode(uint32_t *mode);
ZE_API uint32_t ze_chip_set_upmode(uint32_t mode);
ZE_API uint32_t ze_chip_get_access_mode(uint32_t *mode);
ZE_API uint32_t ze_chip_set_access_mode(uint32_t mode);
ZE_API uint32_t ze_chip_init_vlan_pri_select(void);
ZE_API uint32_t ze_chip_clr_watchdog(void);
ZE_API uint32_t ze_chip_get_chip_version(uint32_t *version, uint32_t *vendor, uint32_t *flag);
ZE_API uint32_t ze_chip_get_vendor(uint16_t *vendor);
ZE_API uint32_t ze_chip_get_version(uint32_t *version);

ZE_END_DECLS

#endif
