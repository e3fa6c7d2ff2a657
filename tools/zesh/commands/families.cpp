// The families of command rows, in registry order.
#include "families.h"

namespace zesh {

std::span<const Family> families() {
    static const Family kFamilies[] = {
        {"chip", "chip-wide attributes: version, vendor, up and access mode",
         kChipCommands},
        {"emac", "EPON MAC: forward error correction",
         kEmacCommands},
        {"gmac", "GPON MAC: GEM ports, AES, FEC",
         kGmacCommands},
        {"flow", "flow classification: services, mappings, listings",
         kFlowCommands},
        {"car", "rate limiting: flow, GEM port, simple, protocol and to-CPU CARs",
         kCarCommands},
        {"mac", "address table: learning, ageing, limits, static entries",
         kMacCommands},
        {"phy", "PHY control (placeholders)",
         kPhyCommands},
        {"port", "switch ports: attributes, tag actions, defaults, MTU, STP",
         kPortCommands},
        {"qos", "queueing: queue map, buffers, shaping, scheduling, WRED",
         kQosCommands},
        {"sec", "security: IP filter rules and source-MAC lists",
         kSecCommands},
        {"vlan", "VLAN membership, tag modes, filter, broadcast egress",
         kVlanCommands},
        {"pm", "statistics: counter groups printed on the console",
         kPmCommands},
    };
    return kFamilies;
}

}  // namespace zesh
