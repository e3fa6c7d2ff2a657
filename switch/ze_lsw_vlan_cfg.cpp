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

// Whether an entry ends a search for `vlan`: a free entry, or the VLAN's own
// used entry. Entries in any other state are passed over.
bool ends_search(const ze_port_vlan_cfg_s &e, uint16_t vlan) {
    return e.state == kFree || (e.state == kUsed && e.vlan == vlan);
}

// The search looks at eight entries at once, each as one word, in two
// 16-byte vectors (the width of SSE2 and NEON).
typedef int32_t Lanes __attribute__((vector_size(16)));
constexpr uint32_t kLanes = 2 * sizeof(Lanes) / sizeof(ze_port_vlan_cfg_s);
static_assert(ZE_VLAN_CFG_COUNT % kLanes == 0);

int32_t word_of(ze_port_vlan_cfg_s e) {
    int32_t w;
    __builtin_memcpy(&w, &e, sizeof w);
    return w;
}

// The first entry that ends a search for `vlan`; ZE_VLAN_CFG_COUNT when none
// does.
uint32_t find_end(uint16_t vlan) {
    const int32_t state_bits = word_of({0xff, 0, 0});
    const int32_t key_bits = word_of({0xff, 0, 0xffff});
    const int32_t free_key = word_of({kFree, 0, 0});
    const int32_t own_key = word_of({kUsed, 0, vlan});
    for (uint32_t i = 0; i < ZE_VLAN_CFG_COUNT; i += kLanes) {
        Lanes lo, hi;
        __builtin_memcpy(&lo, &uc_port_vlan_cfg[i], sizeof lo);
        __builtin_memcpy(&hi, &uc_port_vlan_cfg[i + kLanes / 2], sizeof hi);
        Lanes hit = ((lo & state_bits) == free_key) | ((lo & key_bits) == own_key) |
                    ((hi & state_bits) == free_key) | ((hi & key_bits) == own_key);
        uint64_t any[2];
        __builtin_memcpy(any, &hit, sizeof any);
        if ((any[0] | any[1]) == 0) continue;
        for (uint32_t j = i;; ++j)
            if (ends_search(uc_port_vlan_cfg[j], vlan)) return j;
    }
    return ZE_VLAN_CFG_COUNT;
}

void trace_sort() { ze::traced(ZE_SITE_AS("ze_lsw_vlan_inner_cfg_sort"), ZE_OK); }

uint32_t no_entry() { return ze::traced(ZE_SITE_AS("ze_lsw_vlan_inner_cancel_cfg"), ZE_ERR_NOT_FOUND); }

// Closes the gap left at `pos`: every following used entry moves one place
// down and the last place so vacated is cleared.
void close_gap(uint32_t pos) {
    uint32_t i = pos;
    while (i + 1 < ZE_VLAN_CFG_COUNT && uc_port_vlan_cfg[i + 1].state == kUsed) {
        uc_port_vlan_cfg[i] = uc_port_vlan_cfg[i + 1];
        ++i;
    }
    uc_port_vlan_cfg[i] = ze_port_vlan_cfg_s{};
    trace_sort();
}

// One entry as a pass of the delete-all sees it: the cancels of its VLAN
// act on this copy, and the entry is gone once its mask empties (a later
// cancel then finds no entry, as the VLAN is in the table only once).
struct PassEntry {
    ze_port_vlan_cfg_s e;
    bool removed;
};

uint32_t cancel_in_pass(void *ctx, uint32_t, uint32_t port) {
    PassEntry &p = *static_cast<PassEntry *>(ctx);
    if (p.removed) return no_entry();
    p.e.port_mask &= static_cast<uint8_t>(~port_bit(port));
    if (p.e.port_mask == 0) {
        p.removed = true;
        trace_sort();
    }
    return ZE_OK;
}

// One port's pass of the delete-all over the `used` packed entries, with
// the table compacted as the pass goes rather than after each removal. A
// removal moves the next entry into the place just handled, where this pass
// no longer sees it: that entry is kept as it is.
uint32_t delete_port_pass(uint32_t port, uint32_t used) {
    uint32_t kept = 0;
    for (uint32_t next = 0; next < used;) {
        PassEntry p{uc_port_vlan_cfg[next++], false};
        const ze::VlanCancel cancel{cancel_in_pass, &p};
        ze::vlan_del_port(p.e.vlan, port, cancel);
        ze::vlan_bc_del_port(p.e.vlan, port, cancel);
        if (!p.removed)
            uc_port_vlan_cfg[kept++] = p.e;
        else if (next < used)
            uc_port_vlan_cfg[kept++] = uc_port_vlan_cfg[next++];
    }
    for (uint32_t i = kept; i < used; ++i) uc_port_vlan_cfg[i] = ze_port_vlan_cfg_s{};
    return kept;
}

}  // namespace

extern "C" {

ze_port_vlan_cfg_s uc_port_vlan_cfg[ZE_VLAN_CFG_COUNT];

uint32_t ze_lsw_vlan_inner_save_cfg(uint32_t vlan, uint32_t port) {
    uint32_t i = find_end(static_cast<uint16_t>(vlan));
    if (i == ZE_VLAN_CFG_COUNT) return ze::traced(ZE_SITE, ZE_ERR_FULL);
    ze_port_vlan_cfg_s &e = uc_port_vlan_cfg[i];
    if (e.state == kFree)
        e = {kUsed, port_bit(port), static_cast<uint16_t>(vlan)};
    else
        e.port_mask |= port_bit(port);
    return ZE_OK;
}

uint32_t ze_lsw_vlan_inner_cancel_cfg(uint32_t vlan, uint32_t port) {
    uint32_t i = find_end(static_cast<uint16_t>(vlan));
    if (i == ZE_VLAN_CFG_COUNT || uc_port_vlan_cfg[i].state == kFree) return no_entry();
    ze_port_vlan_cfg_s &e = uc_port_vlan_cfg[i];
    e.port_mask &= static_cast<uint8_t>(~port_bit(port));
    if (e.port_mask == 0) close_gap(i);
    return ZE_OK;
}

// For each port, every used entry has its VLAN's member and broadcast egress
// deleted, whether or not the port's bit is set. The table only ever holds
// what save and cancel make of it: used entries packed at the front, one
// per VLAN, which the passes rely on.
uint32_t ze_lsw_vlan_del_all_cfg(void) {
    uint32_t used = 0;
    while (used < ZE_VLAN_CFG_COUNT && uc_port_vlan_cfg[used].state != kFree) ++used;
    for (uint32_t port = 0; port <= ZE_PORT_CPU; ++port) used = delete_port_pass(port, used);
    return ZE_OK;
}

}  // extern "C"
