#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_vlan_add_port", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_vlan_del_port", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_vlan_get_port", 8, 8, "vlan:u16@0 >ports:u32@4"},
    {"lsw_vlan_set_tag", 8, kNoReply, "port:u16@0 vlan:u16@4 mode:u8@6"},
    {"lsw_vlan_get_tag", 8, 8, "port:u16@0 vlan:u16@4 >mode:u8@6"},
    {"lsw_vlan_set_vlanfilter", 8, kNoReply, "port:u32@0 value:u32@4"},
    {"lsw_vlan_get_vlanfilter", 8, 8, "port:u32@0 >value:u8@4"},
    {"lsw_vlan_add_vlanbcegr", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_vlan_del_vlanbcegr", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_vlan_get_vlanbcegr", 8, 8, "vlan:u16@0 >ports:u32@4"},
    {"lsw_vlan_display_vlanbcegrs", 2, kNoReply, "vlan:u16@0"},
    {"lsw_vlan_diagnose", 4, kNoReply, "item:u32@0"},
};

}  // namespace

const std::span<const CommandSpec> kVlanCommands = kRows;

}  // namespace zesh
