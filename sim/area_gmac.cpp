// GPON MAC blocks: GEM port attributes by GEM port id, the two FEC state
// blocks, and the GEM mapping entries by index.
#include "areas.h"

namespace zesim {
namespace {

// A never-written mapping entry is empty: GEM port 4096 on T-CONT 8.
void gem_map_defaults(uint8_t *b) {
    put_u32(b, 4, 4096);
    put_u32(b, 8, 8);
}

const BlockDesc kBlocks[] = {
    {"GEM port attributes", 0x202, 0x203, 20, {{0, 4}}},
    {"FEC state", 0x208, 0, 20},
    {"FEC state, second form", 0x20a, 0, 24},
    {"GEM port mapping", 0xb04, 0xb05, 12, {{0, 4}}, gem_map_defaults},
};

}  // namespace

const Area kGmacArea{"gmac", kBlocks};

}  // namespace zesim
