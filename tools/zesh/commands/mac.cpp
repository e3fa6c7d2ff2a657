#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_mac_set_swmode", 4, kNoReply, "mode:u32@0"},
    {"lsw_mac_get_swmode", 4, 4, ">mode:u32@0"},
    {"lsw_mac_set_learn", 8, kNoReply, "port:u32@0 enable:u32@4"},
    {"lsw_mac_get_learn", 8, 8, "port:u32@0 >enable:u8@4"},
    {"lsw_mac_set_learn_fail", 4, kNoReply, "action:u32@0"},
    {"lsw_mac_get_learn_fail", 4, 4, ">action:u32@0"},
    {"lsw_mac_set_learnmode", 4, kNoReply, "mode:u32@0"},
    {"lsw_mac_get_learnmode", 4, 4, ">mode:u32@0"},
    {"lsw_mac_set_limitenable", 8, kNoReply, "port:u32@0 enable:u32@4"},
    {"lsw_mac_get_limitenable", 8, 8, "port:u32@0 >enable:u8@4"},
    {"lsw_mac_set_limitcount", 8, kNoReply, "port:u32@0 count:u32@4"},
    {"lsw_mac_get_limitcount", 8, 8, "port:u32@0 >count:u16@4"},
    {"lsw_mac_set_ageenable", 1, kNoReply, "enable:u8@0"},
    {"lsw_mac_get_ageenable", 1, 1, ">enable:u8@0"},
    {"lsw_mac_set_agetime", 4, kNoReply, "seconds:u32@0", false},
    {"lsw_mac_get_agetime", 4, 4, ">seconds:u32@0", false},
    {"lsw_mac_add", 16, 16, "valid:u8@0 age_en:u8@1 vlan:u16@2 mac:mac@4 untag:u8@10 port:u32@12"},
    {"lsw_mac_get", 16, 16, ">age_en:u8@1 vlan:u16@2 mac:mac@4 >untag:u8@10 =port:u32@12"},
    {"lsw_mac_del", 12, kNoReply, "vlan:u16@0 mac:mac@2"},
    {"lsw_mac_diagnose", 4, 4, "item:u32@0"},
};

}  // namespace

const std::span<const CommandSpec> kMacCommands = kRows;

}  // namespace zesh
