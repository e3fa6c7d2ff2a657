// Queues, shaping, scheduling and WRED profiles.
#include "ze_lsw_qos.h"
#include "areas.h"
#include "records.h"

namespace zesh::api {

namespace {
Typed<uint32_t> global_queue() { return u32("queue", "global queue id: port * 8 + queue"); }
Typed<uint32_t> flow() { return u32("flow", "flow (sfid 0-127)"); }
}  // namespace

std::span<const Row> qos_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_lsw_qos_get_queuecount, "egress queues per port (8)", "", kNoDriver, out_u8("count", "the count")),
        ZE_API_ROW(ze_lsw_qos_get_in_pri, "ingress priority of a flow", "3", 0, flow(), out_u32("priority", "the priority")),
        ZE_API_ROW(ze_lsw_qos_set_in_pri, "set the ingress priority of a flow", "3 5", 0, flow(), u32("priority", "the priority")),
        ZE_API_ROW(ze_lsw_qos_set_gemport_pri, "set the ingress priority of every flow of a GEM port",
                   {"1001 0 5", "api ze_lsw_flow_add_mapping key_mask=2 vlan=100 dir=0; api ze_gmac_set_gemport 0 1 1001"},
                   0, u32("gemport", "GEM port id"), u32("unused", "not used"), u32("priority", "the priority")),
        ZE_API_ROW(ze_lsw_qos_get_gemport_pri, "no effect", "", kNoDriver),
        ZE_API_ROW(ze_lsw_qos_get_queue_shaping, "shaping of a global queue", "21", 0, global_queue(), out_u32("p1", "first value"),
                   out_u32("p2", "second value"), out_u32("p3", "third value")),
        ZE_API_ROW(ze_lsw_qos_set_queue_shaping, "set the shaping of a global queue", "21 1 2 3", 0, global_queue(),
                   u32("p1", "first value"), u32("p2", "second value"), u32("p3", "third value")),
        ZE_API_ROW(ze_lsw_qos_get_egr_shaping, "egress shaping rate of a shaper port", "3", 0, u32("port", "shaper port"),
                   out_u32("rate", "the rate")),
        ZE_API_ROW(ze_lsw_qos_set_egr_shaping, "set the egress shaping rate of a shaper port (0: off)", "3 1000", 0,
                   u32("port", "shaper port"), u32("rate", "the rate; 0 switches the shaper off")),
        ZE_API_ROW(ze_lsw_qos_set_egr_schattr, "set the scheduling of a port's egress queue", "2 5 1 40", 0,
                   u32("port", "port 0-13"), u32("queue", "queue 0-7"), u32("s1", "first attribute"), u32("s2", "second attribute")),
        ZE_API_ROW(ze_lsw_qos_get_egr_schattr, "scheduling of a port's egress queue (the second attribute)", "2 5", 0,
                   u32("port", "port 0-13"), u32("queue", "queue 0-7"), out_u32("unused", "not written"),
                   out_u8("s2", "low byte of the second attribute")),
        ZE_API_ROW(ze_lsw_qos_set_queue_buffer, "set the buffer limits of a global queue", "21 100 200", 0, global_queue(),
                   u32("b1", "first limit"), u32("b2", "second limit")),
        ZE_API_ROW(ze_lsw_qos_get_queue_buffer, "buffer limits of a global queue", "21", 0, global_queue(),
                   out_u32("b1", "first limit"), out_u32("b2", "second limit")),
        ZE_API_ROW(ze_lsw_qos_set_queue_map, "send a port's priority to an egress queue", "2 5 6", 0, u32("port", "port"),
                   u32("priority", "priority 0-7"), u32("queue", "queue 0-7")),
        ZE_API_ROW(ze_lsw_qos_get_queue_map, "egress queue of a port's priority", "2 5", 0, u32("port", "port"),
                   u32("priority", "priority 0-7"), out_u8("queue", "the queue")),
        ZE_API_ROW(ze_lsw_qos_get_wred, "read a WRED profile named by its words 0 and 2", "w0=1 w2=0", 0,
                   rec_inout(kWred, "profile", "words 0 and 2 in; the profile out")),
        ZE_API_ROW(ze_lsw_qos_set_wred, "write a WRED profile whole", "w0=1 w2=0 w3=10 w4=20", 0,
                   rec_value(kWred, "profile", "the profile, passed by value")),
    };
    return kRows;
}

}  // namespace zesh::api
