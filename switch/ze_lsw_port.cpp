// Port attributes: work mode, pause, loopback, STP state of the Ethernet
// ports, the switch-wide STP enable and MTU, and the administrative status
// of the Ethernet and PON ports.
#include "ze_lsw_port.h"

#include "ze_blocks_global.h"
#include "ze_lsw_port_access.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_port.cpp";

using ze::GlobalAttr;
using ze::PonPortLayout;
using ze::StpAttr;
using ze::UniPort;
using UniField = ze::U32<UniPort::kSize>;

uint32_t uni_get_word(const ze::TraceSite &s, uint32_t port, UniField f, uint32_t *out) {
    if (!out) return ZE_ERR_NULL_PTR;
    return ze::port::uni_fetch(s, port, [&](const auto &b) { *out = b.get(f); });
}

uint32_t uni_set_word(const ze::TraceSite &s, uint32_t port, UniField f, uint32_t value) {
    return ze::port::uni_update(s, port, [&](auto &b) { b.set(f, value); });
}

// The status of Ethernet port 0..4. A null output is a failure like any
// other here (0xffffffff), not a refused pointer.
uint32_t eth_get_status(uint32_t port, uint8_t *status) {
    const ze::TraceSite s = ZE_SITE_AS("ze_lsw_eth_get_status");
    if (!status) return ze::traced(s, ZE_ERR_FAIL);
    return ze::port::uni_fetch(s, port, [&](const auto &b) {
        *status = static_cast<uint8_t>(b.get(UniPort::status));
    });
}

uint32_t eth_set_status(uint32_t port, uint32_t status) {
    return uni_set_word(ZE_SITE_AS("ze_lsw_eth_set_status"), port, UniPort::status, status);
}

// The status of the PON port, in the block form of the uplink mode.
uint32_t pon_get_status(uint8_t *status) {
    const ze::TraceSite s = ZE_SITE_AS("ze_lsw_pon_get_status");
    return ze::port::with_pon_form(s, [&](auto &b) {
        return ze::fetch(s, b, [&](const auto &blk) {
            *status = static_cast<uint8_t>(blk.get(PonPortLayout::status));
        });
    });
}

uint32_t pon_set_status(uint32_t status) {
    const ze::TraceSite s = ZE_SITE_AS("ze_lsw_pon_set_status");
    return ze::port::with_pon_form(s, [&](auto &b) {
        return ze::update(s, b, [&](auto &blk) { blk.set(PonPortLayout::status, status); });
    });
}

}  // namespace

extern "C" {

uint32_t ze_lsw_port_get_workmode(uint32_t port, uint32_t *mode) {
    return uni_get_word(ZE_SITE, port, UniPort::workmode, mode);
}

uint32_t ze_lsw_port_set_workmode(uint32_t port, uint32_t mode) {
    return uni_set_word(ZE_SITE, port, UniPort::workmode, mode);
}

uint32_t ze_lsw_port_get_pause(uint32_t port, uint8_t *pause) {
    if (!pause) return ZE_ERR_NULL_PTR;
    return ze::port::uni_fetch(ZE_SITE, port, [&](const auto &b) {
        *pause = static_cast<uint8_t>(b.get(UniPort::pause));
    });
}

uint32_t ze_lsw_port_set_pause(uint32_t port, uint32_t pause) {
    return ze::port::uni_update(ZE_SITE, port, [&](auto &b) {
        b.set(UniPort::pause, pause);
        b.set(UniPort::pause_second, pause);
    });
}

uint32_t ze_lsw_port_get_pausetime(uint32_t, uint32_t *) { return ze::traced(ZE_SITE, ZE_OK); }

uint32_t ze_lsw_port_set_pausetime(uint32_t, uint32_t) { return ze::traced(ZE_SITE, ZE_OK); }

uint32_t ze_lsw_port_get_loopback(uint32_t port, uint32_t *mode) {
    return uni_get_word(ZE_SITE, port, UniPort::loopback, mode);
}

uint32_t ze_lsw_port_set_loopback(uint32_t port, uint32_t mode) {
    return uni_set_word(ZE_SITE, port, UniPort::loopback, mode);
}

uint32_t ze_lsw_port_get_stpstate(uint32_t port, uint32_t *state) {
    return uni_get_word(ZE_SITE, port, UniPort::stp_state, state);
}

uint32_t ze_lsw_port_get_stp(uint32_t *enable) {
    if (!enable) return ZE_ERR_NULL_PTR;
    ze::Block<StpAttr> b;
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { *enable = blk.get(StpAttr::enable); });
}

uint32_t ze_lsw_port_set_stp(uint32_t enable) {
    ze::Block<StpAttr> b;
    return ze::update(ZE_SITE, b, [&](auto &blk) { blk.set(StpAttr::enable, enable); });
}

// The MTU is one word for the whole switch: the port is checked, then unused.
uint32_t ze_lsw_port_get_mtu(uint32_t port, uint32_t *mtu) {
    if (!mtu) return ZE_ERR_NULL_PTR;
    if (uint32_t r = ze_lsw_port_check(port)) return ze::port::rejected(ZE_SITE, r);
    ze::Block<GlobalAttr> b;
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) { *mtu = blk.get(GlobalAttr::mtu); });
}

uint32_t ze_lsw_port_set_mtu(uint32_t port, uint32_t mtu) {
    if (uint32_t r = ze_lsw_port_check(port)) return ze::port::rejected(ZE_SITE, r);
    ze::Block<GlobalAttr> b;
    return ze::update(ZE_SITE, b, [&](auto &blk) { blk.set(GlobalAttr::mtu, mtu); });
}

// Status by port: Ethernet 0..4, PON 5; nothing for 6 and above.
uint32_t ze_lsw_port_get_status(uint32_t port, uint8_t *status) {
    uint32_t r = ZE_OK;
    if (port < ZE_PORT_ETH_COUNT)
        r = eth_get_status(port, status);
    else if (port == ZE_PORT_PON)
        r = pon_get_status(status);
    return ze::traced(ZE_SITE, ze::port::folded(r));
}

uint32_t ze_lsw_port_set_status(uint32_t port, uint32_t status) {
    uint32_t r = ZE_OK;
    if (port < ZE_PORT_ETH_COUNT)
        r = eth_set_status(port, status);
    else if (port == ZE_PORT_PON)
        r = pon_set_status(status);
    return ze::traced(ZE_SITE, ze::port::folded(r));
}

}  // extern "C"
