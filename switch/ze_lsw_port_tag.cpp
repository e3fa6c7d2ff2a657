// Per-port tag actions (UNI, NNI and CPU blocks), default VLAN and default
// priority of the Ethernet, CPU and PON ports.
#include "ze_lsw_port.h"

#include "ze_lsw_port_access.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_port.cpp";

using ze::Block;
using ze::CpuPort;
using ze::NniPort;
using ze::PortDefault;
using ze::TraceSite;
using ze::UniPort;

// Stores the action at (group, index) of the block's tag table; a pair
// outside the table leaves the block as read.
template <class L>
void put_tag_act(Block<L> &b, uint32_t group, uint32_t index, uint32_t action) {
    uint32_t off = 0;
    if (ze::tag_act_offset(L::kTagBase, group, index, &off)) b.set_word(off, action);
}

template <class L>
constexpr bool holds_default(PortDefault which) {
    if constexpr (requires { L::kDefpriWritable; })
        return which == ze::kDefVlan || L::kDefpriWritable;
    else
        return true;
}

template <class L, class Store>
uint32_t fetch_default(const TraceSite &s, Block<L> &b, PortDefault which, Store &&store) {
    return ze::fetch(s, b, [&](const Block<L> &blk) { store(blk.get(L::defaults[which])); });
}

template <class L>
uint32_t update_default(const TraceSite &s, Block<L> &b, PortDefault which, uint32_t value) {
    return ze::update(s, b, [&](Block<L> &blk) {
        if (holds_default<L>(which)) blk.set(L::defaults[which], value);
    });
}

// Routes a default VLAN/priority exchange to the block of the port's kind:
// `op` gets the trace site and a zeroed block (UNI with its port stored).
// The PON port traces under `pon_name` and folds every failure; ports 7 and
// 8 do nothing.
template <class Op>
uint32_t on_default_block(const TraceSite &s, const char *pon_name, uint32_t port, Op &&op) {
    if (uint32_t r = ze_lsw_port_check(port)) return ze::port::rejected(s, r);
    if (port < ZE_PORT_ETH_COUNT)
        return ze::port::with_uni_block(s, port, [&](Block<UniPort> &b) { return op(s, b); });
    if (port == ZE_PORT_CPU) {
        Block<CpuPort> b;
        return op(s, b);
    }
    if (port == ZE_PORT_PON) {
        const TraceSite pon{s.file, pon_name, s.line};
        uint32_t r = ze::port::with_pon_form(pon, [&](auto &b) { return op(pon, b); });
        return ze::traced(s, ze::port::folded(r));
    }
    return ze::traced(s, ZE_OK);
}

}  // namespace

extern "C" {

uint32_t ze_lsw_port_get_tag_act(uint32_t port, uint32_t group, uint32_t index, uint32_t *action) {
    if (!action) return ZE_ERR_NULL_PTR;
    return ze::port::uni_fetch(ZE_SITE, port, [&](const auto &b) {
        uint32_t off = 0;
        if (ze::tag_act_offset(UniPort::kTagBase, group, index, &off)) *action = b.word(off);
    });
}

uint32_t ze_lsw_port_set_uni_tag_act(uint32_t port, uint32_t group, uint32_t index, uint32_t action) {
    return ze::port::uni_update(ZE_SITE, port,
                                [&](auto &b) { put_tag_act(b, group, index, action); });
}

// Only the PON port (5) and all ports (8) have an NNI block.
uint32_t ze_lsw_port_set_nni_tag_act(uint32_t port, uint32_t group, uint32_t index, uint32_t action) {
    if (port != ZE_PORT_PON && port != ZE_PORT_ALL) return ZE_ERR_FAIL;
    Block<NniPort> b;
    b.set(NniPort::port, port);
    return ze::update(ZE_SITE, b, [&](auto &blk) { put_tag_act(blk, group, index, action); });
}

// The CPU block has no port word; the port must still be an Ethernet port,
// so the CPU port's own number never gets through.
uint32_t ze_lsw_port_set_cpu_tag_act(uint32_t port, uint32_t group, uint32_t index, uint32_t action) {
    if (uint32_t r = ze_lsw_eth_port_check(port)) return ze::port::rejected(ZE_SITE, r);
    Block<CpuPort> b;
    return ze::update(ZE_SITE, b, [&](auto &blk) { put_tag_act(blk, group, index, action); });
}

uint32_t ze_lsw_port_set_tag_act(uint32_t port, uint32_t group, uint32_t index, uint32_t action) {
    if (uint32_t r = ze_lsw_port_check(port)) return ze::port::rejected(ZE_SITE, r);
    uint32_t r;
    if (port == ZE_PORT_CPU)
        r = ze_lsw_port_set_cpu_tag_act(port, group, index, action);
    else if (port == ZE_PORT_PON || port == ZE_PORT_ALL)
        r = ze_lsw_port_set_nni_tag_act(port, group, index, action);
    else
        r = ze_lsw_port_set_uni_tag_act(port, group, index, action);
    return ze::traced(ZE_SITE, ze::map_err(r));
}

uint32_t ze_lsw_port_get_defvlan(uint32_t port, uint16_t *vlan) {
    if (!vlan) return ZE_ERR_NULL_PTR;
    return on_default_block(ZE_SITE, "ze_lsw_pon_get_defvlan", port, [&](const TraceSite &s, auto &b) {
        return fetch_default(s, b, ze::kDefVlan, [&](uint32_t w) { *vlan = static_cast<uint16_t>(w); });
    });
}

uint32_t ze_lsw_port_set_defvlan(uint32_t port, uint32_t vlan) {
    return on_default_block(ZE_SITE, "ze_lsw_pon_set_defvlan", port, [&](const TraceSite &s, auto &b) {
        return update_default(s, b, ze::kDefVlan, vlan);
    });
}

uint32_t ze_lsw_port_get_defpri(uint32_t port, uint8_t *priority) {
    if (!priority) return ZE_ERR_NULL_PTR;
    return on_default_block(ZE_SITE, "ze_lsw_pon_get_defpri", port, [&](const TraceSite &s, auto &b) {
        return fetch_default(s, b, ze::kDefPri, [&](uint32_t w) { *priority = static_cast<uint8_t>(w); });
    });
}

uint32_t ze_lsw_port_set_defpri(uint32_t port, uint32_t priority) {
    return on_default_block(ZE_SITE, "ze_lsw_pon_set_defpri", port, [&](const TraceSite &s, auto &b) {
        return update_default(s, b, ze::kDefPri, priority);
    });
}

}  // extern "C"
