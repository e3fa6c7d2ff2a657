// The families of command rows, in registry order.
#include "families.h"

namespace zesh {

std::span<const Family> families() {
    static const Family kFamilies[] = {
        {"chip", kChipCommands},
        {"emac", kEmacCommands},
        {"gmac", kGmacCommands},
        {"flow", kFlowCommands},
        {"car", kCarCommands},
        {"mac", kMacCommands},
        {"phy", kPhyCommands},
        {"port", kPortCommands},
        {"qos", kQosCommands},
        {"sec", kSecCommands},
        {"vlan", kVlanCommands},
        {"pm", kPmCommands},
    };
    return kFamilies;
}

}  // namespace zesh
