// The datapath command channel, port checks and port bitmaps.
#include "ze_lsw_common.h"
#include "areas.h"

namespace zesh::api {

std::span<const Row> channel_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_os_hlp_sdk_dp, "one ioctl on the datapath node with a block, answer unchanged", "0x100 00", kRawAnswer,
                   u32("cmd", "command id"), address_of("arg", "the block")),
        ZE_API_ROW(ze_os_hlp_sdk_interface, "one ioctl on the interface node, answer unchanged", "0 00", kNoDriver | kRawAnswer,
                   u32("cmd", "command id"), address_of("arg", "the block")),
        ZE_API_ROW(ze_os_hlp_sdk_sysctl, "one ioctl on the sysctl node, answer unchanged", "0 00", kNoDriver | kRawAnswer,
                   u32("cmd", "command id"), address_of("arg", "the block")),
        ZE_API_ROW(ze_hlp_sdk_dp_cmdtype, "one datapath command with a block inside an open/close bracket", "0x100 00000000",
                   kRawAnswer, u32("cmd", "command id"), bytes("block", "the block sent and returned", "len"),
                   length_of("len", "the block's length", "block"), out_u32("outlen", "the length recorded")),
        ZE_API_ROW(ze_lsw_port_check, "0 for a port 0-8, else 18", "5", kNoDriver, u32("port", "port number")),
        ZE_API_ROW(ze_lsw_eth_port_check, "0 for an Ethernet port 0-4, else 18", "5", kNoDriver, u32("port", "port number")),
        ZE_API_ROW(ze_lsw_port_get_bitmap, "add a port's bit (ports 0-6) to a bitmap", "3", kNoDriver, u32("port", "port 0-6"),
                   out_u32("bitmap", "the bitmap, added to")),
        ZE_API_ROW(ze_lsw_bitmap_get_port, "the port of a single-port bitmap", "8", kNoDriver, u32("bitmap", "port bitmap"),
                   out_u32("port", "the port")),
        ZE_API_ROW(ze_lsw_flow_get_portbitmap, "port bitmap of a port, or of every port when the flags say so", "0 3", kNoDriver,
                   u32("flags", "selection flags"), u32("port", "port number"), out_u32("bitmap", "the bitmap")),
        ZE_API_ROW(ze_lsw_port_switch, "check a port (18 outside 0-8)", "3", kNoDriver, u32("port", "port number"),
                   out_u32("out", "not written")),
        ZE_API_ROW(ze_lsw_mc_mac_check, "flag an IPv4 multicast MAC (01:00:5e)", "01:00:5e:01:02:03", kNoDriver,
                   mac("mac", "the address"), out_u8("flag", "set to 1 for a multicast MAC")),
    };
    return kRows;
}

}  // namespace zesh::api
