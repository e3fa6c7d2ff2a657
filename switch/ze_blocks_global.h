// The global attribute block, shared by the chip attributes and the
// switch-wide MTU. Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

struct GlobalAttr {
    static constexpr uint32_t kGet = 0x100, kSet = 0x101, kSize = 76;
    static constexpr U32<kSize> mtu{0};
    static constexpr U32<kSize> upmode{4};
    static constexpr U32<kSize> access_mode{8};
    static constexpr U32<kSize> pri_select_mode{12};  // followed by 7 selection words
};

}  // namespace ze
