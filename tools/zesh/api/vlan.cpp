// VLAN membership, tag modes, filter and broadcast egress.
#include "ze_lsw_vlan.h"
#include "areas.h"

namespace zesh::api {

namespace {
Typed<uint32_t> vlan() { return u32("vlan", "VLAN id"); }
Typed<uint32_t> port() { return u32("port", "port 0-8"); }
}  // namespace

std::span<const Row> vlan_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_lsw_vlan_add_port, "make a port a member of a VLAN", "100 2", 0, vlan(), port()),
        ZE_API_ROW(ze_lsw_vlan_del_port, "remove a port from a VLAN", "100 2", 0, vlan(), port()),
        ZE_API_ROW(ze_lsw_vlan_get_port, "member ports of a VLAN", "1", 0, vlan(), out_u32("bitmap", "port bitmap")),
        ZE_API_ROW(ze_lsw_vlan_bc_add_port, "add a port to a VLAN's broadcast egress", "100 2", 0, vlan(), port()),
        ZE_API_ROW(ze_lsw_vlan_bc_del_port, "remove a port from a VLAN's broadcast egress", "100 2", 0, vlan(), port()),
        ZE_API_ROW(ze_lsw_vlan_bc_get_port, "broadcast egress ports of a VLAN", "1", 0, vlan(), out_u32("bitmap", "port bitmap")),
        ZE_API_ROW(ze_lsw_vlan_display_bcegrs, "print a VLAN's broadcast egress table", "1", 0, vlan()),
        ZE_API_ROW(ze_lsw_vlan_get_hybrid_tagmode, "tag mode of a port in a VLAN (1 untagged)", "100 2", 0, vlan(), port(),
                   out_u8("mode", "1 untagged, else tagged")),
        ZE_API_ROW(ze_lsw_vlan_set_hybrid_tagmode, "set the tag mode of an Ethernet port in a VLAN", "100 2 1", 0, vlan(),
                   port(), u32("mode", "1 untagged, else tagged")),
        ZE_API_ROW(ze_lsw_vlan_get_vlanfilter, "VLAN filter of a port", "2", 0, port(), out_u8("value", "the filter")),
        ZE_API_ROW(ze_lsw_vlan_set_vlanfilter, "set the VLAN filter of a port", "2 1", 0, port(), u32("value", "the filter")),
        ZE_API_ROW(ze_lsw_vlan_del_all_cfg, "undo every VLAN membership and broadcast egress made since load", {"", "api ze_lsw_vlan_add_port 100 2"},
                   0),
        ZE_API_ROW(ze_lsw_vlan_diagnose, "list every VLAN with members and tag modes (item 0)", "0", 0, u32("item", "0: the VLANs")),
    };
    return kRows;
}

}  // namespace zesh::api
