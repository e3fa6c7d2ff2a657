#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_mac_set_swmode", "set the address learning mode", 4, kNoReply, "mode:u32@0"},
    {"lsw_mac_get_swmode", "address learning mode", 4, 4, ">mode:u32@0"},
    {"lsw_mac_set_learn", "switch address learning of a port on or off", 8, kNoReply, "port:u32@0 enable:u32@4"},
    {"lsw_mac_get_learn", "address learning of a port", 8, 8, "port:u32@0 >enable:u8@4"},
    {"lsw_mac_set_learn_fail", "set the action when learning fails", 4, kNoReply, "action:u32@0"},
    {"lsw_mac_get_learn_fail", "action when learning fails", 4, 4, ">action:u32@0"},
    {"lsw_mac_set_learnmode", "set the learn mode", 4, kNoReply, "mode:u32@0"},
    {"lsw_mac_get_learnmode", "learn mode", 4, 4, ">mode:u32@0"},
    {"lsw_mac_set_limitenable", "switch the address limit of a port on or off", 8, kNoReply, "port:u32@0 enable:u32@4"},
    {"lsw_mac_get_limitenable", "address limit enable of a port", 8, 8, "port:u32@0 >enable:u8@4"},
    {"lsw_mac_set_limitcount", "set the address limit of a port", 8, kNoReply, "port:u32@0 count:u32@4"},
    {"lsw_mac_get_limitcount", "address limit of a port", 8, 8, "port:u32@0 >count:u16@4"},
    {"lsw_mac_set_ageenable", "switch address ageing on or off", 1, kNoReply, "enable:u8@0"},
    {"lsw_mac_get_ageenable", "address ageing enable", 1, 1, ">enable:u8@0"},
    {"lsw_mac_set_agetime", "set the ageing time in seconds (at most 86399)", 4, kNoReply, "seconds:u32@0", false},
    {"lsw_mac_get_agetime", "ageing time in seconds", 4, 4, ">seconds:u32@0", false},
    {"lsw_mac_add", "add a static address-table entry", 16, 16, "valid:u8@0 age_en:u8@1?0 vlan:u16@2 mac:mac@4 untag:u8@10?0 port:u32@12"},
    {"lsw_mac_get", "read the static entry of a MAC in a VLAN", 16, 16, ">age_en:u8@1 vlan:u16@2 mac:mac@4 >untag:u8@10 =port:u32@12?0"},
    {"lsw_mac_del", "remove the entry of a MAC in a VLAN", 12, kNoReply, "vlan:u16@0 mac:mac@2"},
    {"lsw_mac_diagnose", "list the address table (item 0)", 4, 4, "item:u32@0"},
};

}  // namespace

const std::span<const CommandSpec> kMacCommands = kRows;

}  // namespace zesh
