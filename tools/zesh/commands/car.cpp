#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_car_init_wred", "load the WRED defaults and free every flow CAR profile", 0, kNoReply, "", false},
    {"lsw_car_set_protocol_paket_car", "set the CAR of a protocol sub-entry", 12, kNoReply, "entry:u32@0 sub:u32@4 car:u32@8"},
    {"lsw_car_get_protocol_paket_car", "CAR of a protocol sub-entry", 12, 12, "entry:u32@0 sub:u32@4 >car:u8@8"},
    {"lsw_car_set_protocol_paket_action", "set the packet action of a protocol sub-entry", 12, kNoReply, "entry:u32@0 sub:u32@4 action:u32@8"},
    {"lsw_car_get_protocol_paket_action", "packet action of a protocol sub-entry", 12, 12, "entry:u32@0 sub:u32@4 >action:u32@8"},
    {"lsw_car_set_simple_car", "set simple CAR kind 0-3", 16, kNoReply, "kind:u32@0 v1:u32@4 v2:u32@8 v3:u32@12"},
    {"lsw_car_get_simple_car", "simple CAR kind 0-3", 16, 16, "kind:u32@0 >v1:u8@4 >v2:u32@8 >v3:u32@12"},
    {"lsw_car_set_efc_car", "set the CAR of an extended-classifier rule", 16, kNoReply, "index:u32@0 v1:u32@4 v2:u32@8 v3:u32@12"},
    {"lsw_car_get_efc_car", "CAR of an extended-classifier rule", 16, 16, "index:u16@0 >v1:u8@4 >v2:u32@8 >v3:u32@12"},
    {"lsw_car_set_flow_car", "give a flow (sfid) its CAR profile, once per flow", 28, kNoReply,
     "sfid:u16@0 p1:u32@4 p2:u32@8 p3:u32@12 p4:i32@16 p5:u8@20 p6:u32@24"},
    {"lsw_car_get_flow_car", "CAR profile of a flow (sfid)", 28, 28,
     "sfid:u16@0 >p1:u32@4 >p2:u32@8 >p3:u32@12 >p4:i32@16 >p5:u8@20 >p6:u32@24"},
    {"lsw_car_set_gemport_car", "one shared CAR profile for the upstream flows of a GEM port", 28, kNoReply,
     "gemport:u16@0 p1:u32@4 p2:u32@8 p3:u32@12 p4:i32@16 p5:u8@20 p6:u32@24"},
    {"lsw_car_get_gemport_car", "CAR profile of the first upstream flow of a GEM port", 32, 32,
     "gemport:u16@0 direction:u32@4 >p1:u32@8 >p2:u32@12 >p3:u32@16 >p4:u32@20 >p5:u32@24 "
     ">p6:u32@28"},
    {"lsw_car_set_tocpu_reason", "set the CAR of packets sent to the CPU for a reason", 16, kNoReply, "reason:u32@0 v1:u32@4 v2:u32@8 v3:u32@12"},
    {"lsw_car_get_tocpu_reason", "CAR of packets sent to the CPU for a reason", 16, 16, "reason:u32@0 >v1:u8@4 >v2:u32@8 >v3:u32@12"},
};

}  // namespace

const std::span<const CommandSpec> kCarCommands = kRows;

}  // namespace zesh
