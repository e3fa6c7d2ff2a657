// Switch ports, tag actions, defaults, network initialisation and PHY.
#include "ze_lsw_phy.h"
#include "ze_lsw_port.h"
#include "areas.h"

namespace zesh::api {

namespace {
Typed<uint32_t> port(const char *what = "port 0-8") { return u32("port", what); }
Typed<uint32_t> eth_port() { return u32("port", "Ethernet port 0-4"); }
Typed<uint32_t> group() { return u32("group", "tag action group 0-1"); }
Typed<uint32_t> index() { return u32("index", "tag action index 0-2"); }
}  // namespace

std::span<const Row> port_rows() {
    static const Row kRows[] = {
        ZE_API_ROW(ze_lsw_port_get_workmode, "work mode of an Ethernet port", "1", 0, eth_port(), out_u32("mode", "the work mode")),
        ZE_API_ROW(ze_lsw_port_set_workmode, "set the work mode of an Ethernet port", "1 2", 0, eth_port(), u32("mode", "the work mode")),
        ZE_API_ROW(ze_lsw_port_get_pause, "pause setting of an Ethernet port", "2", 0, eth_port(), out_u8("pause", "low byte of the pause word")),
        ZE_API_ROW(ze_lsw_port_set_pause, "switch pause frames of an Ethernet port on or off", "2 1", 0, eth_port(), u32("pause", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_port_get_loopback, "loopback mode of an Ethernet port", "0", 0, eth_port(), out_u32("mode", "the loopback mode")),
        ZE_API_ROW(ze_lsw_port_set_loopback, "set the loopback mode of an Ethernet port", "0 2", 0, eth_port(), u32("mode", "the loopback mode")),
        ZE_API_ROW(ze_lsw_port_get_stpstate, "STP state of an Ethernet port", "1", 0, eth_port(), out_u32("state", "the STP state")),
        ZE_API_ROW(ze_lsw_port_get_pausetime, "no effect: the pause time is fixed", "1", kNoDriver, port(), out_u32("time", "left as it was")),
        ZE_API_ROW(ze_lsw_port_set_pausetime, "no effect: the pause time is fixed", "1 100", kNoDriver, port(), u32("time", "ignored")),
        ZE_API_ROW(ze_lsw_port_get_stp, "STP enable", "", 0, out_u32("enable", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_port_set_stp, "switch STP on or off", "1", 0, u32("enable", "1 on, 0 off")),
        ZE_API_ROW(ze_lsw_port_get_mtu, "switch-wide MTU (through any port 0-8)", "0", 0, port(), out_u32("mtu", "the MTU in bytes")),
        ZE_API_ROW(ze_lsw_port_set_mtu, "set the switch-wide MTU (through any port 0-8)", "3 1600", 0, port(), u32("mtu", "the MTU in bytes")),
        ZE_API_ROW(ze_lsw_port_get_status, "administrative status of a port", "5", 0, port(), out_u8("status", "1 enabled, 0 disabled")),
        ZE_API_ROW(ze_lsw_port_set_status, "enable or disable a port", "2 0", 0, port(), u32("status", "1 enable, 0 disable")),
        ZE_API_ROW(ze_lsw_port_get_tag_act, "tag action of an Ethernet port", "2 1 2", 0, eth_port(), group(), index(),
                   out_u32("action", "the tag action")),
        ZE_API_ROW(ze_lsw_port_set_tag_act, "set a tag action: ports 0-4 UNI, 5 and 8 NNI, 6 CPU", "2 1 2 7", 0, port(),
                   group(), index(), u32("action", "the tag action")),
        ZE_API_ROW(ze_lsw_port_set_uni_tag_act, "set a tag action in the UNI block", "2 1 2 7", 0, eth_port(), group(),
                   index(), u32("action", "the tag action")),
        ZE_API_ROW(ze_lsw_port_set_nni_tag_act, "set a tag action in the NNI block (ports 5 and 8)", "5 1 2 7", 0,
                   port("port 5 or 8"), group(), index(), u32("action", "the tag action")),
        ZE_API_ROW(ze_lsw_port_set_cpu_tag_act, "set a tag action in the CPU block", "1 1 2 7", 0,
                   port("Ethernet port 0-4 (checked, not used)"), group(), index(), u32("action", "the tag action")),
        ZE_API_ROW(ze_lsw_port_get_defvlan, "default VLAN of a port", "5", 0, port(), out_u16("vlan", "the default VLAN")),
        ZE_API_ROW(ze_lsw_port_set_defvlan, "set the default VLAN of a port", "2 100", 0, port(), u32("vlan", "the default VLAN")),
        ZE_API_ROW(ze_lsw_port_get_defpri, "default priority of a port", "6", 0, port(), out_u8("priority", "the default priority")),
        ZE_API_ROW(ze_lsw_port_set_defpri, "set the default priority of a port (not the PON port in GPON mode)", "2 3", 0,
                   port(), u32("priority", "the default priority")),
        ZE_API_ROW(ze_lsw_port_init_network, "load the default bridging state: every port in VLAN 1, filtering on", "",
                   kDpLibrary),

        ZE_API_ROW(ze_lsw_phy_get_mode, "PHY mode of a port (placeholder)", "1", kNoDriver, port(), out_u32("mode", "left as it was")),
        ZE_API_ROW(ze_lsw_phy_set_mode, "set the PHY mode of a port (placeholder)", "1 1", kNoDriver, port(), u32("mode", "ignored")),
        ZE_API_ROW(ze_lsw_phy_get_status, "PHY status of a port (placeholder)", "1", kNoDriver, port(), out_u32("status", "left as it was")),
        ZE_API_ROW(ze_lsw_phy_set_status, "set the PHY status of a port (placeholder)", "1 1", kNoDriver, port(), u32("status", "ignored")),
        ZE_API_ROW(ze_lsw_phy_get_power, "PHY power of a port (placeholder)", "1", kNoDriver, port(), out_u32("power", "left as it was")),
        ZE_API_ROW(ze_lsw_phy_set_power, "set the PHY power of a port (placeholder)", "1 1", kNoDriver, port(), u32("power", "ignored")),
    };
    return kRows;
}

}  // namespace zesh::api
