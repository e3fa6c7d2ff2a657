// The families of command rows, in registry order.
#include "families.h"

namespace zesh {

std::span<const Family> families() {
    static const Family kFamilies[] = {
        {"chip", kChipCommands},
        {"lsw_mac", kMacCommands},
        {"lsw_sec", kSecCommands},
        {"lsw_vlan", kVlanCommands},
    };
    return kFamilies;
}

}  // namespace zesh
