// The per-VLAN shadow of the ports configured through the VLAN module, kept
// so that every VLAN configuration can be undone without asking the driver.
// Internal.
#pragma once

#include <stdint.h>

extern "C" {

#define ZE_VLAN_CFG_COUNT 4096u

// One VLAN's entry. Used entries are packed at the front of the table; the
// first free one ends the used part.
typedef struct {
    uint8_t state;      // 0 free, 1 used
    uint8_t port_mask;  // bit p: port p was added (ports 0..7)
    uint16_t vlan;
} ze_port_vlan_cfg_s;

extern ze_port_vlan_cfg_s uc_port_vlan_cfg[ZE_VLAN_CFG_COUNT];

// Records the port in the VLAN's entry (a new entry at the first free
// place); 16 when the table is full.
uint32_t ze_lsw_vlan_inner_save_cfg(uint32_t vlan, uint32_t port);
// Clears the port's bit and removes an emptied entry, closing the gap; 14
// when the VLAN has no entry.
uint32_t ze_lsw_vlan_inner_cancel_cfg(uint32_t vlan, uint32_t port);
}

namespace ze {

// The shadow step of a port removal, run once the driver has accepted it.
struct VlanCancel {
    uint32_t (*run)(void *ctx, uint32_t vlan, uint32_t port);
    void *ctx;
};

// ze_lsw_vlan_del_port and ze_lsw_vlan_bc_del_port with their shadow step
// given by the caller.
uint32_t vlan_del_port(uint32_t vlan, uint32_t port, const VlanCancel &cancel);
uint32_t vlan_bc_del_port(uint32_t vlan, uint32_t port, const VlanCancel &cancel);

}  // namespace ze
