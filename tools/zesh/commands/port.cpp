#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_port_set_status", 8, kNoReply, "port:u32@0 status:u32@4"},
    {"lsw_port_get_status", 8, 8, "port:u32@0 >status:u8@4"},
    {"lsw_port_set_workmode", 8, kNoReply, "port:u32@0 mode:u32@4"},
    {"lsw_port_get_workmode", 8, 8, "port:u32@0 >mode:u32@4"},
    {"lsw_port_set_defvlan", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_port_get_defvlan", 8, 8, "port:u32@0 >vlan:u16@4"},
    {"lsw_port_set_pause", 8, kNoReply, "port:u32@0 pause:u32@4"},
    {"lsw_port_get_pause", 8, 8, "port:u32@0 >pause:u8@4"},
    {"lsw_port_set_pausetime", 8, kNoReply, "port:u32@0 time:u32@4"},
    {"lsw_port_get_pausetime", 8, 8, "port:u32@0 >time:u32@4"},
    {"lsw_port_set_loopback", 8, kNoReply, "port:u32@0 mode:u32@4"},
    {"lsw_port_get_loopback", 8, 8, "port:u32@0 >mode:u32@4"},
    {"lsw_port_set_mtu", 8, kNoReply, "port:u32@0 mtu:u32@4"},
    {"lsw_port_get_mtu", 8, 8, "port:u32@0 >mtu:u32@4"},
    {"lsw_port_set_pri", 8, kNoReply, "port:u32@0 priority:u32@4"},
    {"lsw_port_get_pri", 8, 8, "port:u32@0 >priority:u8@4"},
    {"lsw_port_set_stp", 4, kNoReply, "enable:u32@0"},
    {"lsw_port_get_stp", 4, 4, ">enable:u32@0"},
    {"lsw_port_get_stpstate", 8, 8, "port:u32@0 >state:u32@4"},
    {"lsw_port_set_tag_act", 16, kNoReply, "port:u32@0 group:u32@4 index:u32@8 action:u32@12"},
    {"lsw_port_get_tag_act", 16, 16, "port:u32@0 group:u32@4 index:u32@8 >action:u32@12"},
};

}  // namespace

const std::span<const CommandSpec> kPortCommands = kRows;

}  // namespace zesh
