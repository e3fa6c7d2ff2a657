// Port blocks: STP, CPU port, UNI Ethernet ports, NNI port and the two forms
// of the PON port block.
#include "areas.h"

namespace zesim {
namespace {

const BlockDesc kBlocks[] = {
    {"STP attributes", 0x300, 0x301, 64},
    {"CPU port attributes", 0x310, 0x311, 40},
    {"UNI Ethernet port attributes", 0x320, 0x321, 188, {{0, 4}}},
    {"NNI port attributes", 0x350, 0x351, 108, {{0, 4}}},
    {"PON port, GPON form", 0x211, 0x212, 32},
    {"PON port, EPON form", 0xe00, 0xe01, 32},
};

}  // namespace

const Area kPortArea{"port", kBlocks};

}  // namespace zesim
