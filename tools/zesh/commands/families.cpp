// The families of command rows, in registry order.
#include "families.h"

namespace zesh {

std::span<const Family> families() {
    static const Family kFamilies[] = {
        {"chip", kChipCommands},
        {"emac", kEmacCommands},
        {"lsw_car", kCarCommands},
        {"phy", kPhyCommands},
        {"port", kPortCommands},
        {"lsw_qos", kQosCommands},
        {"pm", kPmCommands},
    };
    return kFamilies;
}

}  // namespace zesh
