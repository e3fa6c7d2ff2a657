// VLAN listings: every VLAN with its members and tag modes, and a VLAN's
// broadcast egress table.
#include "ze_blocks_l2.h"
#include "ze_dp_block.h"
#include "ze_lsw_vlan.h"

namespace {

constexpr char kTraceFile[] = "ze_lsw_vlan.cpp";
constexpr uint32_t kVlanCount = 4096;
constexpr uint32_t kUntagged = 1;

using ze::BcEgressTable;
using ze::HybridTag;
using ze::VlanMember;

void ze_lsw_vlan_inner_printftag(uint32_t mode) {
    ze_os_printf("%s", mode == kUntagged ? "untag   " : "tag     ");
}

bool has_member(const ze::Block<VlanMember> &b) {
    for (uint32_t p = 0; p < VlanMember::kPorts; ++p)
        if (b.word(VlanMember::member(p))) return true;
    return false;
}

// One line of members and one of tag modes per VLAN that has a member; the
// first failed read ends the listing.
uint32_t print_vlans() {
    ze_os_printf("vlan    ge0     fe1     fe2     fe3     fe4     pon     cpu     \r\n");
    uint32_t r = ZE_OK;
    for (uint32_t vlan = 0; vlan < kVlanCount && r == ZE_OK; ++vlan) {
        ze::Block<VlanMember> m;
        m.set(VlanMember::vlan, vlan);
        if ((r = ze::dp_read(m)) != ZE_OK || !has_member(m)) continue;
        ze_os_printf("%-8d%-8d%-8d%-8d%-8d%-8d%-8d%-8d\r\n", static_cast<int>(vlan),
                     static_cast<int>(m.word(VlanMember::member(0))),
                     static_cast<int>(m.word(VlanMember::member(1))),
                     static_cast<int>(m.word(VlanMember::member(2))),
                     static_cast<int>(m.word(VlanMember::member(3))),
                     static_cast<int>(m.word(VlanMember::member(4))),
                     static_cast<int>(m.word(VlanMember::member(5))),
                     static_cast<int>(m.word(VlanMember::member(6))));
        ze::Block<HybridTag> t;
        t.set(HybridTag::vlan, vlan);
        if ((r = ze::dp_read(t)) != ZE_OK) continue;
        ze_os_printf("        ");
        for (uint32_t p = 0; p < HybridTag::kPorts; ++p) ze_lsw_vlan_inner_printftag(t.word(HybridTag::mode(p)));
        ze_os_printf("\r\n");
    }
    return ze::traced(ZE_SITE_AS("ze_lsw_vlan_inner_printfvlaninfo"), r);
}

}  // namespace

extern "C" {

uint32_t ze_lsw_vlan_display_bcegrs(uint32_t vlan) {
    ze::Block<BcEgressTable> b;
    b.set(BcEgressTable::vlan, vlan);
    uint32_t r = ze::dp_read(b);
    if (r) return ze::traced(ZE_SITE, r);
    ze_os_printf("index   egr     fid     \r\n");
    for (uint32_t k = 0; k < BcEgressTable::kEntries; ++k)
        if (b.word(BcEgressTable::valid(k)) == 1)
            ze_os_printf("%-8d%-8d%-8d\r\n", static_cast<int>(k),
                         static_cast<int>(b.word(BcEgressTable::port(k))),
                         static_cast<int>(b.word(BcEgressTable::fid(k))));
    return ZE_OK;
}

uint32_t ze_lsw_vlan_diagnose(uint32_t item) {
    if (item == 0) print_vlans();
    return ZE_OK;
}

}  // extern "C"
