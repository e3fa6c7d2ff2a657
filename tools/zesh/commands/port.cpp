#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_port_set_status", "enable or disable a port", 8, kNoReply, "port:u32@0 status:u32@4"},
    {"lsw_port_get_status", "administrative status of a port", 8, 8, "port:u32@0 >status:u8@4"},
    {"lsw_port_set_workmode", "set the work mode of an Ethernet port", 8, kNoReply, "port:u32@0 mode:u32@4"},
    {"lsw_port_get_workmode", "work mode of an Ethernet port", 8, 8, "port:u32@0 >mode:u32@4"},
    {"lsw_port_set_defvlan", "set the default VLAN of a port", 8, kNoReply, "port:u32@0 vlan:u32@4"},
    {"lsw_port_get_defvlan", "default VLAN of a port", 8, 8, "port:u32@0 >vlan:u16@4"},
    {"lsw_port_set_pause", "switch pause frames of an Ethernet port on or off", 8, kNoReply, "port:u32@0 pause:u32@4"},
    {"lsw_port_get_pause", "pause setting of an Ethernet port", 8, 8, "port:u32@0 >pause:u8@4"},
    {"lsw_port_set_pausetime", "no effect: the pause time is fixed", 8, kNoReply, "port:u32@0 time:u32@4"},
    {"lsw_port_get_pausetime", "no effect: the pause time is fixed", 8, 8, "port:u32@0 >time:u32@4"},
    {"lsw_port_set_loopback", "set the loopback mode of an Ethernet port", 8, kNoReply, "port:u32@0 mode:u32@4"},
    {"lsw_port_get_loopback", "loopback mode of an Ethernet port", 8, 8, "port:u32@0 >mode:u32@4"},
    {"lsw_port_set_mtu", "set the switch-wide MTU (through any port 0-8)", 8, kNoReply, "port:u32@0 mtu:u32@4"},
    {"lsw_port_get_mtu", "switch-wide MTU", 8, 8, "port:u32@0 >mtu:u32@4"},
    {"lsw_port_set_pri", "set the default priority of a port", 8, kNoReply, "port:u32@0 priority:u32@4"},
    {"lsw_port_get_pri", "default priority of a port", 8, 8, "port:u32@0 >priority:u8@4"},
    {"lsw_port_set_stp", "switch STP on or off", 4, kNoReply, "enable:u32@0"},
    {"lsw_port_get_stp", "STP enable", 4, 4, ">enable:u32@0"},
    {"lsw_port_get_stpstate", "STP state of an Ethernet port", 8, 8, "port:u32@0 >state:u32@4"},
    {"lsw_port_set_tag_act", "set a tag action of a port (group 0-1, index 0-2)", 16, kNoReply, "port:u32@0 group:u32@4 index:u32@8 action:u32@12"},
    {"lsw_port_get_tag_act", "tag action of an Ethernet port", 16, 16, "port:u32@0 group:u32@4 index:u32@8 >action:u32@12"},
};

}  // namespace

const std::span<const CommandSpec> kPortCommands = kRows;

}  // namespace zesh
