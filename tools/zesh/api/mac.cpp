// The address table.
#include "ze_lsw_mac.h"
#include "areas.h"
#include "records.h"

namespace zesh::api {

namespace {
Typed<uint32_t> port() { return u32("port", "port 0-8"); }
}  // namespace

std::span<const Row> mac_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_lsw_mac_get_learn, "address learning of a port", "6", 0, port(), out_u8("enable", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_mac_set_learn, "switch address learning of a port on or off", "2 0", 0, port(), u32("enable", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_mac_get_learnmode, "learn mode", "", 0, out_u32("mode", "the learn mode")),
        ZE_API_ROW(ze_lsw_mac_set_learnmode, "set the learn mode", "1", 0, u32("mode", "the learn mode")),
        ZE_API_ROW(ze_lsw_mac_get_learn_fail, "action when learning fails", "", 0, out_u32("action", "the action")),
        ZE_API_ROW(ze_lsw_mac_set_learn_fail, "set the action when learning fails", "1", 0, u32("action", "the action")),
        ZE_API_ROW(ze_lsw_mac_get_ageenable, "address ageing enable", "", 0, out_u8("enable", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_mac_set_ageenable, "switch address ageing on or off", "1", 0, u32("enable", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_mac_get_agetime, "ageing time in seconds", "", 0, out_u32("seconds", "the ageing time")),
        ZE_API_ROW(ze_lsw_mac_set_agetime, "set the ageing time (larger than 86399 s is stored as 86399)", "300", 0,
                   u32("seconds", "the ageing time")),
        ZE_API_ROW(ze_lsw_mac_get_limitenable, "address limit enable of a port", "1", 0, port(), out_u8("enable", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_mac_set_limitenable, "switch the address limit of a port on or off", "1 1", 0, port(), u32("enable", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_mac_get_limitcount, "address limit of a port", "1", 0, port(), out_u16("count", "the limit")),
        ZE_API_ROW(ze_lsw_mac_set_limitcount, "set the address limit of a port", "1 64", 0, port(), u32("count", "the limit")),
        ZE_API_ROW(ze_lsw_mac_add, "add a static address-table entry", "valid=1 vlan=100 mac=00:11:22:33:44:55 port=2", 0,
                   rec_in(kL2Entry, "entry", "the entry")),
        ZE_API_ROW(ze_lsw_mac_get, "read the entry of a MAC in a VLAN (fills untag, age_en, port)", "vlan=100 mac=00:11:22:33:44:55", 0,
                   rec_inout(kL2Entry, "entry", "MAC and VLAN in; the entry out")),
        ZE_API_ROW(ze_lsw_mac_del, "remove the entry of a MAC in a VLAN", "00:11:22:33:44:55 100", 0,
                   mac("mac", "the address"), u32("vlan", "the VLAN")),
        ZE_API_ROW(ze_lsw_mac_get_l2item, "entry at a table index 0-1023 (an empty index leaves the record)", "0", 0,
                   u32("index", "table index"), rec_out(kL2Entry, "entry", "the entry")),
        ZE_API_ROW(ze_lsw_mac_diagnose, "list the address table (item 0)", "0", 0, u32("item", "0: the table")),
    };
    return kRows;
}

}  // namespace zesh::api
