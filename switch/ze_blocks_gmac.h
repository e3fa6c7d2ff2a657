// GPON MAC blocks: the per-GEM-port attributes and the GEM mapping entry of
// an sfid. Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

struct GemPortAttr {
    static constexpr uint32_t kGet = 0x202, kSet = 0x203, kSize = 20;
    static constexpr U32<kSize> gemport{0};
    static constexpr U32<kSize> reserved{4};
    static constexpr U32<kSize> down_type{8};
    static constexpr U32<kSize> aes{12};
    static constexpr U32<kSize> valid{16};
};

struct GemMap {
    static constexpr uint32_t kGet = 0xb04, kSet = 0xb05, kSize = 12;
    static constexpr U32<kSize> index{0};
    static constexpr U32<kSize> gemport{4};
    static constexpr U32<kSize> tcont{8};
};

}  // namespace ze
