// Rate limiting: flow, GEM port, EFC, simple, protocol, to-CPU and Ethernet
// port CARs, and the WRED start-up.
#include "ze_lsw_car.h"
#include "areas.h"
#include "records.h"

namespace zesh::api {

namespace {
Typed<uint32_t> word(const char *n) { return u32(n, "profile word, passed to the datapath"); }
Typed<int32_t> p4() { return i32("p4", "profile word, passed to the datapath"); }
Typed<uint8_t> p5() { return u8("p5", "profile byte, passed to the datapath"); }
Typed<uint32_t> entry() { return u32("entry", "protocol entry"); }
Typed<uint32_t> sub() { return u32("sub", "sub-entry of the protocol entry"); }
}  // namespace

std::span<const Row> car_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_lsw_car_set_flow_car, "give a flow (sfid) its CAR profile, once per flow", "9 1000 2000 3000 4000 5 6000", 0,
                   u32("sfid", "simple-classifier index 0-127"), word("p1"), word("p2"), word("p3"), p4(), p5(), word("p6")),
        ZE_API_ROW(ze_lsw_car_get_flow_car, "CAR profile of a flow (sfid)", "9", 0, u32("sfid", "simple-classifier index 0-127"),
                   rec_out(kCarParam, "car", "the profile")),
        ZE_API_ROW(ze_lsw_car_set_gemport_car, "one CAR profile shared by the flows of a GEM port in a direction",
                   {"1001 0 1000 2000 3000 4000 5 6000", "api ze_lsw_flow_add_mapping key_mask=2 vlan=100 dir=0; api ze_gmac_set_gemport 0 1 1001"},
                   0, u32("gemport", "GEM port id"), u32("direction", "0 upstream, 1 downstream"), word("p1"), word("p2"),
                   word("p3"), p4(), p5(), word("p6")),
        ZE_API_ROW(ze_lsw_car_get_gemport_car, "profile words of the first flow of a GEM port in a direction",
                   {"1001 0", "api ze_lsw_flow_add_mapping key_mask=2 vlan=100 dir=0; api ze_gmac_set_gemport 0 1 1001"},
                   0, u32("gemport", "GEM port id"), u32("direction", "0 upstream, 1 downstream"),
                   out_u32("params", "the six profile words", 6)),
        ZE_API_ROW(ze_lsw_car_set_efc_car, "set the CAR of an extended-classifier rule", "3 10 20 30", 0,
                   u32("index", "rule index"), word("v1"), word("v2"), word("v3")),
        ZE_API_ROW(ze_lsw_car_get_efc_car, "CAR of an extended-classifier rule", "3", 0, u32("index", "rule index"),
                   out_u8("v1", "first value"), out_u32("v2", "second value"), out_u32("v3", "third value")),
        ZE_API_ROW(ze_lsw_car_set_simple_car, "set simple CAR kind 0-3", "2 10 20 30", 0, u32("kind", "CAR kind 0-3"),
                   word("v1"), word("v2"), word("v3")),
        ZE_API_ROW(ze_lsw_car_get_simple_car, "simple CAR kind 0-3", "2", 0, u32("kind", "CAR kind 0-3"),
                   out_u8("v1", "first value"), out_u32("v2", "second value"), out_u32("v3", "third value")),
        ZE_API_ROW(ze_lsw_car_set_protocol_paket_action, "set the packet action of a protocol sub-entry (0-5)", "1 2 3", 0,
                   entry(), sub(), u32("action", "the packet action")),
        ZE_API_ROW(ze_lsw_car_get_protocol_paket_action, "packet action of a protocol sub-entry (0-5)", "1 2", 0, entry(),
                   sub(), out_u32("action", "the packet action")),
        ZE_API_ROW(ze_lsw_car_set_protocol_paket_car, "set the CAR of a protocol sub-entry (0-11)", "1 2 3", 0, entry(), sub(),
                   u32("car", "the CAR")),
        ZE_API_ROW(ze_lsw_car_get_protocol_paket_car, "CAR of a protocol sub-entry (0-11)", "1 2", 0, entry(), sub(),
                   out_u8("car", "the CAR")),
        ZE_API_ROW(ze_lsw_car_set_tocpu_reason_car, "set the CAR of packets sent to the CPU for a reason", "4 1 2 3", 0,
                   u32("reason", "to-CPU reason"), word("v1"), word("v2"), word("v3")),
        ZE_API_ROW(ze_lsw_car_get_tocpu_reason_car, "CAR of packets sent to the CPU for a reason", "4", 0,
                   u32("reason", "to-CPU reason"), out_u8("v1", "first value"), out_u32("v2", "second value"),
                   out_u32("v3", "third value")),
        ZE_API_ROW(ze_lsw_car_set_eth_car, "Ethernet port CAR: direction 0 ingress, 1 egress shaper", "2 0 0 1000 0 2000", 0,
                   u32("port", "Ethernet port 0-4"), u32("direction", "0 ingress, 1 egress"),
                   in_words("params", "four words: ingress uses 1 and 3, egress word 1 as the rate", 4)),
        ZE_API_ROW(ze_lsw_car_init_wred, "load both WRED tables and free every flow CAR profile", "", 0),
    };
    return kRows;
}

}  // namespace zesh::api
