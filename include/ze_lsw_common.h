/*
 * Datapath command channel and the port model shared by every area.
 *
 * Ports: 0 to 4 Ethernet ("GE0", "FE1".."FE4"), 5 PON, 6 CPU, 7 PRBS, 8 all.
 * Port bitmaps carry bit n for port n, ports 0 to 6 only (all ports: 0x7f).
 */
#ifndef ZE_LSW_COMMON_H
#define ZE_LSW_COMMON_H

#include <stdint.h>

#include "ze_result.h"
#include "ze_types.h"

ZE_BEGIN_DECLS

#define ZE_PORT_ETH_COUNT 5u /* Ethernet ports 0..4 */
#define ZE_PORT_COUNT     9u /* port numbers 0..8 */
#define ZE_PORT_PON       5u
#define ZE_PORT_CPU       6u
#define ZE_PORT_PRBS      7u
#define ZE_PORT_ALL       8u
#define ZE_PORT_BITMAP_ALL 0x7fu

/* Device-node wrappers: one ioctl each, result unchanged. `arg` is the
 * address of the attribute block, or 0. */
ZE_API uint32_t ze_os_hlp_sdk_dp(uint32_t cmd, uintptr_t arg);
ZE_API uint32_t ze_os_hlp_sdk_interface(uint32_t cmd, uintptr_t arg);
ZE_API uint32_t ze_os_hlp_sdk_sysctl(uint32_t cmd, uintptr_t arg);

/* Sends one datapath command inside an open(0)/close(1) bracket. The length
 * is only recorded in *outlen; the driver knows each block by its id.
 * Returns 0, 31 for a null outlen (nothing sent), or the driver's code. */
ZE_API uint32_t ze_hlp_sdk_dp_cmdtype(uint32_t cmd, void *block, uint32_t len, uint32_t *outlen);

ZE_API uint32_t ze_lsw_port_check(uint32_t port);
ZE_API uint32_t ze_lsw_eth_port_check(uint32_t port);
ZE_API uint32_t ze_lsw_port_get_bitmap(uint32_t port, uint32_t *bitmap);
ZE_API uint32_t ze_lsw_bitmap_get_port(uint32_t bitmap, uint32_t *port);
ZE_API uint32_t ze_lsw_flow_get_portbitmap(uint32_t flags, uint32_t port, uint32_t *bitmap);
ZE_API uint32_t ze_lsw_port_switch(uint32_t port, uint32_t *out);
ZE_API uint32_t ze_lsw_mc_mac_check(const uint8_t *mac, uint8_t *flag);

ZE_END_DECLS

#endif
