#include "families.h"

namespace zesh {
namespace {

const CommandSpec kRows[] = {
    {"lsw_qos_get_queue_map", "egress queue of a port's priority", 12, 12, "port:u32@0 priority:u32@4 >queue:u8@8"},
    {"lsw_qos_set_queue_map", "send a port's priority to an egress queue", 12, kNoReply, "port:u32@0 priority:u32@4 queue:u32@8"},
    {"lsw_qos_get_queue_buffer", "buffer limits of a global queue", 12, 12, "queue:u8@0 >b1:u32@4 >b2:u32@8"},
    {"lsw_qos_set_queue_buffer", "set the buffer limits of a global queue", 12, kNoReply, "queue:u32@0 b1:u32@4 b2:u32@8"},
    {"lsw_qos_get_egr_schattr", "scheduling of a port's egress queue", 16, 12, "port:u32@0 queue:u32@4 >unused:u32@8 >s2:u8@12"},
    {"lsw_qos_set_egr_schattr", "set the scheduling of a port's egress queue", 16, kNoReply, "port:u32@0 queue:u32@4 s1:u32@8 s2:u32@12"},
    {"lsw_qos_set_wred", "write a WRED profile", 44, kNoReply,
     "index:u32@0 w1:u32@4 w2:u32@8 w3:u32@12 w4:u32@16 w5:u32@20 w6:u32@24 w7:u32@28 "
     "w8:u32@32 w9:u32@36 w10:u32@40"},
    {"lsw_qos_get_wred", "read a WRED profile (named by words 0 and 2)", 44, 44,
     "=index:u32@0 >w1:u32@4 =w2:u32@8?0 >w3:u32@12 >w4:u32@16 >w5:u32@20 >w6:u32@24 "
     ">w7:u32@28 >w8:u32@32 >w9:u32@36 >w10:u32@40"},
    {"lsw_qos_set_egr_shaping", "set the egress shaping rate of a port (0: off)", 8, kNoReply, "port:u32@0 rate:u32@4"},
    {"lsw_qos_get_egr_shaping", "egress shaping rate of a port", 8, 8, "port:u32@0 >rate:u32@4"},
    {"lsw_qos_set_queue_shaping", "set the shaping of a global queue", 16, kNoReply, "queue:u32@0 p1:u32@4 p2:u32@8 p3:u32@12"},
    {"lsw_qos_get_queue_shaping", "shaping of a global queue", 16, 16, "queue:u8@0 >p1:u32@4 >p2:u32@8 >p3:u32@12"},
    {"lsw_qos_get_queuecount", "egress queues per port", 4, 4, ">count:u8@0"},
    {"lsw_qos_set_in_pri", "set the ingress priority of a flow (sfid)", 8, kNoReply, "flow:u32@0 priority:u32@4"},
    {"lsw_qos_get_in_pri", "ingress priority of a flow (sfid)", 8, 8, "flow:u32@0 >priority:u32@4"},
};

}  // namespace

const std::span<const CommandSpec> kQosCommands = kRows;

}  // namespace zesh
