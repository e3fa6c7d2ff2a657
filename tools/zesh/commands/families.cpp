// The families of command rows, in registry order.
#include "families.h"

namespace zesh {

std::span<const Family> families() {
    static const Family kFamilies[] = {
        {"chip", kChipCommands},
        {"pm", kPmCommands},
    };
    return kFamilies;
}

}  // namespace zesh
