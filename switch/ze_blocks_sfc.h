// The simple flow classifier entry block, shared by the flow classifier,
// the flow CAR and the flow listings. Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

struct SfcAttr {
    static constexpr uint32_t kGet = 0x506, kSet = 0x507, kSize = 68;
    static constexpr U32<kSize> sfid{0};
    static constexpr U32<kSize> valid{4};
    static constexpr U32<kSize> enable{8};
    static constexpr U32<kSize> fid_vld{12};
    static constexpr U32<kSize> fid{16};
    static constexpr U32<kSize> vlan_vld{20};
    static constexpr U32<kSize> vlan_mode{24};
    static constexpr U32<kSize> vlan{28};
    static constexpr U32<kSize> pri_vld{32};
    static constexpr U32<kSize> pri_mode{36};
    static constexpr U32<kSize> pri{40};
    static constexpr U32<kSize> igr{44};
    static constexpr U32<kSize> fifth_vld{48};
    static constexpr U32<kSize> fifth_mode{52};
    static constexpr U32<kSize> fifth{56};
    static constexpr U32<kSize> car_enable{64};
};

}  // namespace ze
