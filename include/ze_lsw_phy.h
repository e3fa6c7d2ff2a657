/* PHY control of the switch ports: mode, status and power. These are
 * placeholders of a stable interface: each accepts any arguments, exchanges
 * nothing with the driver, leaves its output untouched and returns 0. */
#ifndef ZE_LSW_PHY_H
#define ZE_LSW_PHY_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

ZE_API uint32_t ze_lsw_phy_get_mode(uint32_t port, uint32_t *mode);
ZE_API uint32_t ze_lsw_phy_set_mode(uint32_t port, uint32_t mode);
ZE_API uint32_t ze_lsw_phy_get_status(uint32_t port, uint32_t *status);
ZE_API uint32_t ze_lsw_phy_set_status(uint32_t port, uint32_t status);
ZE_API uint32_t ze_lsw_phy_get_power(uint32_t port, uint32_t *power);
ZE_API uint32_t ze_lsw_phy_set_power(uint32_t port, uint32_t power);

ZE_END_DECLS

#endif
