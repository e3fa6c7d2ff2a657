// The VLAN shadow: which ports were added to which VLAN through this module,
// and the undo of all of it.
#include "ze_lsw_vlan_cfg.h"

#include "ze_dp_block.h"
#include "ze_lsw_vlan.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_vlan.cpp";

constexpr uint8_t kFree = 0, kUsed = 1;
constexpr uint32_t kMaskPorts = 8;  // the mask has a bit for ports 0..7 only

uint8_t port_bit(uint32_t port) { return port < kMaskPorts ? static_cast<uint8_t>(1u << port) : 0; }

// Closes the gap left at `pos`: every following used entry moves one place
// down and the last place so vacated is cleared.
void close_gap(uint32_t pos) {
    uint32_t i = pos;
    while (i + 1 < ZE_VLAN_CFG_COUNT && uc_port_vlan_cfg[i + 1].state == kUsed) {
        uc_port_vlan_cfg[i] = uc_port_vlan_cfg[i + 1];
        ++i;
    }
    uc_port_vlan_cfg[i] = ze_port_vlan_cfg_s{};
    ze::traced(ZE_SITE_AS("ze_lsw_vlan_inner_cfg_sort"), ZE_OK);
}

}  // namespace

extern "C" {

ze_port_vlan_cfg_s uc_port_vlan_cfg[ZE_VLAN_CFG_COUNT];

uint32_t ze_lsw_vlan_inner_save_cfg(uint32_t vlan, uint32_t port) {
    for (ze_port_vlan_cfg_s &e : uc_port_vlan_cfg) {
        if (e.state == kFree) {
            e = {kUsed, port_bit(port), static_cast<uint16_t>(vlan)};
            return ZE_OK;
        }
        if (e.state == kUsed && e.vlan == static_cast<uint16_t>(vlan)) {
            e.port_mask |= port_bit(port);
            return ZE_OK;
        }
    }
    return ze::traced(ZE_SITE, ZE_ERR_FULL);
}

uint32_t ze_lsw_vlan_inner_cancel_cfg(uint32_t vlan, uint32_t port) {
    for (uint32_t i = 0; i < ZE_VLAN_CFG_COUNT; ++i) {
        ze_port_vlan_cfg_s &e = uc_port_vlan_cfg[i];
        if (e.state == kFree) break;
        if (e.state != kUsed || e.vlan != static_cast<uint16_t>(vlan)) continue;
        e.port_mask &= static_cast<uint8_t>(~port_bit(port));
        if (e.port_mask == 0) close_gap(i);
        return ZE_OK;
    }
    return ze::traced(ZE_SITE, ZE_ERR_NOT_FOUND);
}

// Walks the table by position for each port; a removal moves the next entry
// into the current position, where this port's pass no longer sees it (a
// later port's pass does).
uint32_t ze_lsw_vlan_del_all_cfg(void) {
    for (uint32_t port = 0; port <= ZE_PORT_CPU; ++port) {
        for (const ze_port_vlan_cfg_s &e : uc_port_vlan_cfg) {
            if (e.state == kFree) continue;
            uint32_t vlan = e.vlan;
            ze_lsw_vlan_del_port(vlan, port);
            ze_lsw_vlan_bc_del_port(vlan, port);
        }
    }
    return ZE_OK;
}

}  // extern "C"
