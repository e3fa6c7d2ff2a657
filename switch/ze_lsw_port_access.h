// How the port functions reach their blocks: the UNI block of an Ethernet
// port, and the PON port block in the form the uplink mode selects.
// Internal to the port module.
#pragma once

#include "ze_blocks_port.h"
#include "ze_chip.h"

namespace ze::port {

// A rejected port leaves like a driver failure: 0xffffffff, traced.
inline uint32_t rejected(const TraceSite &s, uint32_t check) { return traced(s, map_err(check)); }

// Any failure of an inner step reaches the caller as 0xffffffff.
constexpr uint32_t folded(uint32_t r) { return r ? ZE_ERR_FAIL : ZE_OK; }

// Runs `op` on a zeroed UNI block holding Ethernet port `port`; a port
// outside 0..4 is rejected under `s`.
template <class Op>
uint32_t with_uni_block(const TraceSite &s, uint32_t port, Op &&op) {
    if (uint32_t r = ze_lsw_eth_port_check(port)) return rejected(s, r);
    Block<UniPort> b;
    b.set(UniPort::port, port);
    return op(b);
}

// Reads the UNI block of Ethernet port `port` and lets `use` copy from it.
template <class Use>
uint32_t uni_fetch(const TraceSite &s, uint32_t port, Use &&use) {
    return with_uni_block(s, port, [&](Block<UniPort> &b) { return fetch(s, b, use); });
}

// Get/modify/set of the UNI block of Ethernet port `port`.
template <class Edit>
uint32_t uni_update(const TraceSite &s, uint32_t port, Edit &&edit) {
    return with_uni_block(s, port, [&](Block<UniPort> &b) { return update(s, b, edit); });
}

// Runs `op` on a zeroed PON port block of the form the uplink mode selects:
// EPON for mode 0, GPON for mode 1. Any other mode does nothing and
// succeeds. A failed mode read is traced under `s`, folded.
template <class Op>
uint32_t with_pon_form(const TraceSite &s, Op &&op) {
    uint32_t mode = 0;
    if (uint32_t r = ze_chip_get_upmode(&mode)) return traced(s, map_err(r));
    if (mode == 0) {
        Block<PonPortEpon> b;
        return op(b);
    }
    if (mode == 1) {
        Block<PonPortGpon> b;
        return op(b);
    }
    return traced(s, ZE_OK);
}

}  // namespace ze::port
