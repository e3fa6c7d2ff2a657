#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_qos_get_queue_map", 12, 12, "port:u32@0 priority:u32@4 >queue:u8@8"},
    {"lsw_qos_set_queue_map", 12, kNoReply, "port:u32@0 priority:u32@4 queue:u32@8"},
    {"lsw_qos_get_queue_buffer", 12, 12, "queue:u8@0 >b1:u32@4 >b2:u32@8"},
    {"lsw_qos_set_queue_buffer", 12, kNoReply, "queue:u32@0 b1:u32@4 b2:u32@8"},
    {"lsw_qos_get_egr_schattr", 16, 12, "port:u32@0 queue:u32@4 >unused:u32@8 >s2:u8@12"},
    {"lsw_qos_set_egr_schattr", 16, kNoReply, "port:u32@0 queue:u32@4 s1:u32@8 s2:u32@12"},
    {"lsw_qos_set_wred", 44, kNoReply,
     "index:u32@0 w1:u32@4 w2:u32@8 w3:u32@12 w4:u32@16 w5:u32@20 w6:u32@24 w7:u32@28 "
     "w8:u32@32 w9:u32@36 w10:u32@40"},
    {"lsw_qos_get_wred", 44, 44,
     "=index:u32@0 >w1:u32@4 =w2:u32@8 >w3:u32@12 >w4:u32@16 >w5:u32@20 >w6:u32@24 "
     ">w7:u32@28 >w8:u32@32 >w9:u32@36 >w10:u32@40"},
    {"lsw_qos_set_egr_shaping", 8, kNoReply, "port:u32@0 rate:u32@4"},
    {"lsw_qos_get_egr_shaping", 8, 8, "port:u32@0 >rate:u32@4"},
    {"lsw_qos_set_queue_shaping", 16, kNoReply, "queue:u32@0 p1:u32@4 p2:u32@8 p3:u32@12"},
    {"lsw_qos_get_queue_shaping", 16, 16, "queue:u8@0 >p1:u32@4 >p2:u32@8 >p3:u32@12"},
    {"lsw_qos_get_queuecount", 4, 4, ">count:u8@0"},
    {"lsw_qos_set_in_pri", 8, kNoReply, "flow:u32@0 priority:u32@4"},
    {"lsw_qos_get_in_pri", 8, 8, "flow:u32@0 >priority:u32@4"},
};

}  // namespace

const std::span<const CommandSpec> kQosCommands = kRows;

}  // namespace zesh
