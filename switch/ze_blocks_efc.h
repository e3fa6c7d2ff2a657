// The extended flow classifier entry block: the key half written per entry
// and the action half shared by every entry of a rule. Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

struct EfcAttr {
    static constexpr uint32_t kGet = 0x504, kSet = 0x505, kSize = 216;
    static constexpr U32<kSize> fid{0};
    static constexpr U32<kSize> fid2{4};  // the same fid, the one listed
    static constexpr U32<kSize> valid{8};
    static constexpr U32<kSize> eof{12};
    static constexpr U32<kSize> g0{16};
    static constexpr U32<kSize> k0{20};
    static constexpr U32<kSize> m0{24};
    static constexpr U32<kSize> n0{28};
    static constexpr U32<kSize> g1{32};
    static constexpr U32<kSize> k1{36};
    static constexpr U32<kSize> m1{40};
    static constexpr U32<kSize> n1{44};
    static constexpr U32<kSize> igr{48};
    // Action half, from byte 84 on.
    static constexpr uint32_t kActionOffset = 84;
    static constexpr U32<kSize> tagact{84};
    static constexpr U32<kSize> cvact{88};
    static constexpr U32<kSize> cvvalue{92};
    static constexpr U32<kSize> svact{96};
    static constexpr U32<kSize> svvalue{100};
    static constexpr U32<kSize> cpriact{104};
    static constexpr U32<kSize> cpvalue{108};
    static constexpr U32<kSize> spriact{112};
    static constexpr U32<kSize> spvalue{116};
    static constexpr U32<kSize> act{120};
    static constexpr U32<kSize> egress{124};
    static constexpr U32<kSize> const152{152};
    static constexpr U32<kSize> const156{156};
    static constexpr U32<kSize> ext{164};
    static constexpr U32<kSize> const196{196};
    static constexpr U32<kSize> const200{200};
};

// The n fields of an entry carry the rule's n base plus this; a removed
// entry carries it alone.
inline constexpr uint32_t kEfcNOffset = 2;

}  // namespace ze
