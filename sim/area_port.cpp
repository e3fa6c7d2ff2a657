// Port blocks: STP, CPU port, UNI Ethernet ports, NNI port and the two forms
// of the PON port block.
#include "areas.h"

namespace zesim {
namespace {

// A fresh Ethernet port is enabled, untagged frames go to VLAN 1.
void uni_defaults(uint8_t *b) {
    put_u32(b, 4, 1);   // status
    put_u32(b, 88, 1);  // default VLAN
}

void cpu_defaults(uint8_t *b) { put_u32(b, 28, 1); }  // default VLAN

// The PON port likewise, in either form.
void pon_defaults(uint8_t *b) {
    put_u32(b, 0, 1);  // status
    put_u32(b, 8, 1);  // default VLAN
}

const BlockDesc kBlocks[] = {
    {"STP attributes", 0x300, 0x301, 64},
    {"CPU port attributes", 0x310, 0x311, 40, {}, cpu_defaults},
    {"UNI Ethernet port attributes", 0x320, 0x321, 188, {{0, 4}}, uni_defaults},
    {"NNI port attributes", 0x350, 0x351, 108, {{0, 4}}},
    {"PON port, GPON form", 0x211, 0x212, 32, {}, pon_defaults},
    {"PON port, EPON form", 0xe00, 0xe01, 32, {}, pon_defaults},
};

}  // namespace

const Area kPortArea{"port", kBlocks};

}  // namespace zesim
