// VLAN membership, broadcast egress, hybrid tag mode and the per-port VLAN
// filter. Membership and broadcast egress changes are recorded in the VLAN
// shadow (ze_lsw_vlan_cfg.cpp).
#include "ze_lsw_vlan.h"

#include "ze_blocks_l2.h"
#include "ze_dp_block.h"
#include "ze_lsw_vlan_cfg.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_vlan.cpp";

using ze::BcEgress;
using ze::FilterMode;
using ze::HybridTag;
using ze::VlanMember;

// The filter read-out: one word per port 0..6. Ports 7 and 8 index past the
// 28 bytes the driver fills; the block is zero-padded so they read 0.
struct VlanFilterReadout {
    static constexpr uint32_t kGet = 0x404, kSize = 36, kDriverSize = 28;
    static constexpr uint32_t filter(uint32_t port) { return 4 * port; }
};

// The filter mode block with room for the second word of ports 7 and 8,
// which lies past the 64 bytes exchanged with the driver and is dropped.
struct FilterModeWithSpill : FilterMode {
    static constexpr uint32_t kSize = 72;
};

// Get, change, set, leaving the trace record to the caller; a failed read
// stops before the write.
template <class L, class Edit>
uint32_t modify(ze::Block<L> &b, Edit &&edit) {
    uint32_t r = ze::dp_read(b);
    if (r == ZE_OK) {
        edit(b);
        r = ze::dp_write(b);
    }
    return r;
}

// Records an added port in the VLAN's shadow entry or cancels a deleted one
// (through `cancel`); the shadow's own result does not reach the caller.
void record(uint32_t vlan, uint32_t port, const ze::VlanCancel *cancel) {
    if (!cancel)
        ze_lsw_vlan_inner_save_cfg(vlan, port);
    else
        cancel->run(cancel->ctx, vlan, port);
}

// Sets (no cancel step) or clears a member flag; a port without a flag
// writes the block back as read. The shadow is updated before the call's own
// trace record.
uint32_t change_member(const ze::TraceSite &site, uint32_t vlan, uint32_t port,
                       const ze::VlanCancel *cancel) {
    ze::Block<VlanMember> b;
    b.set(VlanMember::vlan, vlan);
    uint32_t r = modify(b, [&](auto &blk) {
        if (port < VlanMember::kPorts) blk.set_word(VlanMember::member(port), cancel ? 0 : 1);
    });
    if (r == ZE_OK) record(vlan, port, cancel);
    return ze::traced(site, r);
}

uint32_t change_bc_egress(const ze::TraceSite &site, uint32_t vlan, uint32_t port,
                          const ze::VlanCancel *cancel) {
    if (ze_lsw_port_check(port)) return ze::traced(site, ZE_ERR_FAIL);
    ze::Block<BcEgress> b;
    b.set(BcEgress::vlan, vlan);
    b.set(BcEgress::port, port);
    b.set(BcEgress::enable, cancel ? 0 : 1);
    uint32_t r = ze::dp_send(cancel ? BcEgress::kDel : BcEgress::kAdd, b.data(), b.kSize);
    if (r == ZE_OK) record(vlan, port, cancel);
    return ze::traced(site, r);
}

uint32_t cancel_in_shadow(void *, uint32_t vlan, uint32_t port) {
    return ze_lsw_vlan_inner_cancel_cfg(vlan, port);
}
constexpr ze::VlanCancel kShadowCancel{cancel_in_shadow, nullptr};

}  // namespace

namespace ze {

uint32_t vlan_del_port(uint32_t vlan, uint32_t port, const VlanCancel &cancel) {
    return change_member(ZE_SITE_AS("ze_lsw_vlan_del_port"), vlan, port, &cancel);
}

uint32_t vlan_bc_del_port(uint32_t vlan, uint32_t port, const VlanCancel &cancel) {
    return change_bc_egress(ZE_SITE_AS("ze_lsw_vlan_bc_del_port"), vlan, port, &cancel);
}

}  // namespace ze

extern "C" {

uint32_t ze_lsw_vlan_add_port(uint32_t vlan, uint32_t port) {
    return change_member(ZE_SITE, vlan, port, nullptr);
}

uint32_t ze_lsw_vlan_del_port(uint32_t vlan, uint32_t port) {
    return ze::vlan_del_port(vlan, port, kShadowCancel);
}

// The read's outcome is not examined: a failed read leaves the zeroed block
// and reports no member.
uint32_t ze_lsw_vlan_get_port(uint32_t vlan, uint32_t *bitmap) {
    if (!bitmap) return ZE_ERR_NULL_PTR;
    *bitmap = 0;
    ze::Block<VlanMember> b;
    b.set(VlanMember::vlan, vlan);
    ze::dp_read(b);
    for (uint32_t p = 0; p < VlanMember::kPorts; ++p)
        if (b.word(VlanMember::member(p)) == 1) *bitmap |= 1u << p;
    return ZE_OK;
}

uint32_t ze_lsw_vlan_bc_add_port(uint32_t vlan, uint32_t port) {
    return change_bc_egress(ZE_SITE, vlan, port, nullptr);
}

uint32_t ze_lsw_vlan_bc_del_port(uint32_t vlan, uint32_t port) {
    return ze::vlan_bc_del_port(vlan, port, kShadowCancel);
}

uint32_t ze_lsw_vlan_bc_get_port(uint32_t vlan, uint32_t *bitmap) {
    *bitmap = 0;
    ze::Block<ze::BcEgressTable> b;
    b.set(ze::BcEgressTable::vlan, vlan);
    return ze::fetch(ZE_SITE, b, [&](const auto &blk) {
        for (uint32_t k = 0; k < ze::BcEgressTable::kEntries; ++k) {
            if (blk.word(ze::BcEgressTable::valid(k)) != 1) continue;
            uint8_t egr = static_cast<uint8_t>(blk.word(ze::BcEgressTable::port(k)));
            if (egr < 32) *bitmap |= 1u << egr;
        }
    });
}

uint32_t ze_lsw_vlan_get_hybrid_tagmode(uint32_t vlan, uint32_t port, uint8_t *mode) {
    ze::Block<HybridTag> b;
    b.set(HybridTag::vlan, vlan);
    uint32_t r = ze::dp_read(b);
    if (r) return ze::traced(ZE_SITE, r);
    if (port < HybridTag::kSettablePorts) *mode = static_cast<uint8_t>(b.word(HybridTag::mode(port)));
    return ZE_OK;
}

uint32_t ze_lsw_vlan_set_hybrid_tagmode(uint32_t vlan, uint32_t port, uint32_t mode) {
    ze::Block<HybridTag> b;
    b.set(HybridTag::vlan, vlan);
    uint32_t r = modify(b, [&](auto &blk) {
        if (port < HybridTag::kSettablePorts) blk.set_word(HybridTag::mode(port), mode);
    });
    return r ? ze::traced(ZE_SITE, r) : ZE_OK;
}

uint32_t ze_lsw_vlan_get_vlanfilter(uint32_t port, uint8_t *value) {
    if (ze_lsw_port_check(port)) return ze::traced(ZE_SITE, ZE_ERR_FAIL);
    ze::Block<VlanFilterReadout> b;
    uint32_t r = ze::dp_read(b, VlanFilterReadout::kDriverSize);
    if (r) return ze::traced(ZE_SITE, r);
    *value = static_cast<uint8_t>(b.word(VlanFilterReadout::filter(port)));
    return ZE_OK;
}

uint32_t ze_lsw_vlan_set_vlanfilter(uint32_t port, uint32_t value) {
    if (ze_lsw_port_check(port)) return ze::traced(ZE_SITE, ZE_ERR_FAIL);
    ze::Block<FilterModeWithSpill> b;
    return ze::update(ZE_SITE, b, [&](auto &blk) {
        blk.set_word(FilterMode::vlan_filter(port), value);
        blk.set_word(FilterMode::vlan_filter2(port), value);
    });
}

}  // extern "C"
