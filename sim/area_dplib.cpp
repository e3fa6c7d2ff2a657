// Operations of the datapath API library that exchange no block.
#include "areas.h"

namespace zesim {
namespace {

uint32_t accept(uint32_t) { return 0; }

const DpOpDesc kOps[] = {
    {"ze_dp_dev_open", accept},
    {"ze_dp_dev_close", accept},
    {"ze_dp_right_release", accept},
};

}  // namespace

const Area kDpLibArea{"datapath library", {}, {}, {}, kOps};

}  // namespace zesim
