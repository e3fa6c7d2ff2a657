#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_vlan_add_port", "make a port a member of a VLAN", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_vlan_del_port", "remove a port from a VLAN", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_vlan_get_port", "member ports of a VLAN (bitmap)", 8, 8, "vlan:u16@0 >ports:u32@4"},
    {"lsw_vlan_set_tag", "set the tag mode of a port in a VLAN (1 untagged)", 8, kNoReply, "port:u16@0 vlan:u16@4 mode:u8@6"},
    {"lsw_vlan_get_tag", "tag mode of a port in a VLAN", 8, 8, "port:u16@0 vlan:u16@4 >mode:u8@6"},
    {"lsw_vlan_set_vlanfilter", "set the VLAN filter of a port", 8, kNoReply, "port:u32@0 value:u32@4"},
    {"lsw_vlan_get_vlanfilter", "VLAN filter of a port", 8, 8, "port:u32@0 >value:u8@4"},
    {"lsw_vlan_add_vlanbcegr", "add a port to a VLAN's broadcast egress", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_vlan_del_vlanbcegr", "remove a port from a VLAN's broadcast egress", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_vlan_get_vlanbcegr", "broadcast egress ports of a VLAN (bitmap)", 8, 8, "vlan:u16@0 >ports:u32@4"},
    {"lsw_vlan_display_vlanbcegrs", "print a VLAN's broadcast egress table", 2, kNoReply, "vlan:u16@0"},
    {"lsw_vlan_diagnose", "list every VLAN with members and tag modes (item 0)", 4, kNoReply, "item:u32@0"},
};

}  // namespace

const std::span<const CommandSpec> kVlanCommands = kRows;

}  // namespace zesh
