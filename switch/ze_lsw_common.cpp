// The datapath command channel, the device-node wrappers and the port model.
#include "ze_dp_block.h"
#include "ze_lsw_common.h"
#include "ze_lsw_tables.h"

namespace {
constexpr char kTraceFile[] = "ze_lsw_common.cpp";
constexpr uint32_t kCmdOpen = 0;
constexpr uint32_t kCmdClose = 1;

// Single-bit bitmap of each port that has one (ports 0..6).
constexpr uint32_t kPortBit[7] = {0x01, 0x02, 0x04, 0x08, 0x10, 0x20, 0x40};
}  // namespace

namespace ze {

uint32_t dp_command(uint32_t cmd, void *block, uint32_t len, uint32_t *outlen) {
    if (!outlen) return ZE_ERR_NULL_PTR;
    *outlen = len;
    uint32_t r = ze_os_hlp_sdk_dp(kCmdOpen, 0);
    if (r) return r;
    r = ze_os_hlp_sdk_dp(cmd, reinterpret_cast<uintptr_t>(block));
    ze_os_hlp_sdk_dp(kCmdClose, 0);
    return r;
}

}  // namespace ze

extern "C" {

const char *const g_phy_port[9] = {"eth0", "eth1", "eth2", "eth3", "eth4",
                                   "pon",  "cpu",  "prbs", "all"};
const char g_portname[9][8] = {"GE0", "FE1", "FE2", "FE3", "FE4", "PON", "CPU", "", ""};
const char g_port_smacmode[4][16] = {"IGNORE", "WHITE", "BACK", "THRU"};

uint32_t ze_os_hlp_sdk_dp(uint32_t cmd, uintptr_t arg) {
    return ze_os_sendioctl("/dev/ze_ioctl_dp", cmd, arg);
}

uint32_t ze_os_hlp_sdk_interface(uint32_t cmd, uintptr_t arg) {
    return ze_os_sendioctl("/dev/ze_ioctl_interface", cmd, arg);
}

uint32_t ze_os_hlp_sdk_sysctl(uint32_t cmd, uintptr_t arg) {
    return ze_os_sendioctl("/dev/ze_ioctl_sysctl", cmd, arg);
}

uint32_t ze_hlp_sdk_dp_cmdtype(uint32_t cmd, void *block, uint32_t len, uint32_t *outlen) {
    return ze::dp_command(cmd, block, len, outlen);
}

// The checks trace only a rejection; the caller traces its own exit.
uint32_t ze_lsw_port_check(uint32_t port) {
    return port < ZE_PORT_COUNT ? ZE_OK : ze::traced(ZE_SITE, ZE_ERR_PARAM);
}

uint32_t ze_lsw_eth_port_check(uint32_t port) {
    return port < ZE_PORT_ETH_COUNT ? ZE_OK : ze::traced(ZE_SITE, ZE_ERR_PARAM);
}

uint32_t ze_lsw_port_get_bitmap(uint32_t port, uint32_t *bitmap) {
    if (!bitmap) return ZE_ERR_NULL_PTR;
    if (port < 7) *bitmap |= kPortBit[port];
    return ZE_OK;
}

uint32_t ze_lsw_bitmap_get_port(uint32_t bitmap, uint32_t *port) {
    if (!port) return ZE_ERR_NULL_PTR;
    for (uint32_t p = 0; p < 7; ++p)
        if (bitmap == kPortBit[p]) *port = p;
    return ZE_OK;
}

uint32_t ze_lsw_flow_get_portbitmap(uint32_t flags, uint32_t port, uint32_t *bitmap) {
    if (!bitmap) return ZE_ERR_NULL_PTR;
    if (flags & 1u) return ze_lsw_port_get_bitmap(port, bitmap);
    *bitmap |= ZE_PORT_BITMAP_ALL;
    return ZE_OK;
}

// Checks the port only and translates nothing: a valid port leaves `out` as
// it was, and a rejected one is folded like a driver failure (0xffffffff).
uint32_t ze_lsw_port_switch(uint32_t port, uint32_t *out) {
    if (!out) return ZE_ERR_NULL_PTR;
    uint32_t r = ze::map_err(ze_lsw_port_check(port));
    return r ? ze::traced(ZE_SITE, r) : ZE_OK;
}

// Recognises the IPv4 multicast prefix 01:00:5e only; the flag is set on a
// match and otherwise left as it was.
uint32_t ze_lsw_mc_mac_check(const uint8_t *mac, uint8_t *flag) {
    if (!mac) return ZE_ERR_NULL_PTR;
    if (mac[0] == 0x01 && mac[1] == 0x00 && mac[2] == 0x5e) *flag = 1;
    return ZE_OK;
}

}  // extern "C"
