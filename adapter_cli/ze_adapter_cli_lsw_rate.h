// Request structures shared by the CAR and QoS commands. Internal.
#pragma once

#include <stdint.h>

namespace ze::cli {

struct U32TripleReq {
    uint32_t a, b, c;
};
struct U32QuadReq {
    uint32_t a, b, c, d;
};
static_assert(sizeof(U32TripleReq) == 12 && sizeof(U32QuadReq) == 16);

}  // namespace ze::cli
