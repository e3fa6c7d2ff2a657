// Board memory and IGMP snooping: named kernel calls, answers unchanged.
#include "ze_board.h"
#include "ze_igmp_api.h"
#include "areas.h"

namespace zesh::api {

namespace {

constexpr uint32_t kKernel = kKernelCall | kRawAnswer;

Typed<uint32_t *> value_out() { return out_u32("value", "the module's value"); }
Typed<uint32_t> value_in() { return u32("value", "the module's value"); }
Typed<const char *> ifname() { return text("name", "interface name", ZE_IGMP_IFNAME_LEN); }

}  // namespace

std::span<const Row> board_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_board_write_phymem, "write one 32-bit word at a physical address", "0x1000 0xdeadbeef",
                   kKernel | kWritesBoard, u32("addr", "physical address"), u32("value", "the word")),
        ZE_API_ROW(ze_board_read_phymem, "read bytes from a physical address", "0x1000 8", kKernel,
                   u32("addr", "physical address"), u32("len", "bytes to read"), out_bytes("buf", "the bytes read", "len")),

        ZE_API_ROW(ze_igmp_dump, "print the module's state (what selects the part)", "0", kKernel, u32("what", "part to print")),
        ZE_API_ROW(ze_igmp_clr_statinfo, "clear the module's statistics", "", kKernel),
        ZE_API_ROW(ze_igmp_get_statinfo, "print the module's statistics", "", kKernel),
        ZE_API_ROW(ze_igmp_get_ifinfo, "print the module's interfaces", "", kKernel),
        ZE_API_ROW(ze_igmp_get_ageinfo, "print the module's ageing state", "", kKernel),
        ZE_API_ROW(ze_igmp_get_grpinfo, "print the module's groups", "", kKernel),
        ZE_API_ROW(ze_igmp_get_usrinfo, "print the module's users", "", kKernel),
        ZE_API_ROW(ze_igmp_get_genqueryip, "general query source address", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_genqueryip, "set the general query source address", "0xc0a80101", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_autolrnvlan, "VLAN auto-learning", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_autolrnvlan, "set VLAN auto-learning", "1", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_genquerymode, "general query mode", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_genquerymode, "set the general query mode", "1", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_usrvlanact, "user VLAN action", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_usrvlanact, "set the user VLAN action", "1", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_agetimeinter, "ageing interval", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_agetimeinter, "set the ageing interval", "125", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_agetimes, "ageing count", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_agetimes, "set the ageing count", "3", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_defusrvlan, "default user VLAN", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_defusrvlan, "set the default user VLAN", "100", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_defgrpvlan, "default group VLAN", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_defgrpvlan, "set the default group VLAN", "300", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_snoopingmode, "snooping mode", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_snoopingmode, "set the snooping mode", "1", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_get_proxymode, "proxy mode", "", kKernel, value_out()),
        ZE_API_ROW(ze_igmp_set_proxymode, "set the proxy mode", "1", kKernel, value_in()),
        ZE_API_ROW(ze_igmp_add_gourpvlan_ip, "add a group VLAN address entry", "300 100 239.1.1.1 239.1.1.255", kKernel,
                   u16("group_vlan", "group VLAN"), u16("vlan", "VLAN"), ipv4("addr1", "first address"),
                   ipv4("addr2", "second address")),
        ZE_API_ROW(ze_igmp_del_gourpvlan_ip, "remove the address entry of a group VLAN", "300", kKernel,
                   u16("group_vlan", "group VLAN")),
        ZE_API_ROW(ze_igmp_get_ifname, "the two values of an interface", "eth0", kKernel, ifname(),
                   out_u8("value0", "first value"), out_u8("value1", "second value")),
        ZE_API_ROW(ze_igmp_del_ifname, "remove an interface", "eth0", kKernel, ifname()),
        ZE_API_ROW(ze_igmp_add_ifname, "add an interface with its value", "eth0 1", kKernel, ifname(),
                   u8("value1", "the value")),
    };
    return kRows;
}

}  // namespace zesh::api
