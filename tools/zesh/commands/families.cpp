// The families of command rows, in registry order.
#include "families.h"

namespace zesh {

std::span<const Family> families() {
    static const Family kFamilies[] = {
        {"chip", kChipCommands},
        {"lsw_car", kCarCommands},
        {"lsw_qos", kQosCommands},
        {"pm", kPmCommands},
    };
    return kFamilies;
}

}  // namespace zesh
