// Security blocks: the filter modes (IP filter modes and per-port VLAN
// filter words), the per-port source-MAC lists and the IP filter rules.
#include "areas.h"

namespace zesim {
namespace {

const BlockDesc kBlocks[] = {
    {"filter modes", 0x40a, 0x40b, 64},
    {"source-MAC list", 0x402, 0x403, 104, {{0, 4}}},
    {"IP filter rule", 0x408, 0x409, 40, {{0, 4}}},
};

}  // namespace

const Area kSecArea{"sec", kBlocks};

}  // namespace zesim
