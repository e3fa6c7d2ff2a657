// EPON MAC blocks: the MAC's FEC switch and the per-LLID FEC switches.
#include "areas.h"

namespace zesim {
namespace {

const BlockDesc kBlocks[] = {
    {"EPON FEC", 0xe50, 0xe51, 28},
    {"EPON LLID FEC", 0xf00, 0xf01, 84},
};

}  // namespace

const Area kEmacArea{"emac", kBlocks};

}  // namespace zesim
