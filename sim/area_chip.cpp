// Chip-wide blocks: global attributes and chip identity.
#include "areas.h"

namespace zesim {
namespace {

// A fresh chip: GPON uplink (up mode 1) and a 1518-byte MTU.
void global_defaults(uint8_t *b) {
    put_u32(b, 0, 1518);  // MTU
    put_u32(b, 4, 1);     // up mode
}

// The simulated chip reports version 0x00010002 and vendor id 0x5a45.
void identity_defaults(uint8_t *b) {
    put_u32(b, 12, 0x00010002);
    put_u32(b, 24, 0x00005a45);
}

const BlockDesc kBlocks[] = {
    {"global attributes", 0x100, 0x101, 76, {}, global_defaults},
    {"chip identity", 0x102, 0, 28, {}, identity_defaults},
};

}  // namespace

const Area kChipArea{"chip", kBlocks};

}  // namespace zesim
