// Blocks of the security module. Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

// A port's source-MAC list: its mode and eight entries of valid + MAC.
struct BlackMac {
    static constexpr uint32_t kGet = 0x402, kSet = 0x403, kSize = 104, kEntries = 8;
    static constexpr U32<kSize> port{0};
    static constexpr U32<kSize> mode{4};
    static constexpr uint32_t valid(uint32_t k) { return 8 + 12 * k; }
    static constexpr uint32_t mac(uint32_t k) { return 12 + 12 * k; }
};

// One IP filter rule of the driver, by index.
struct IpFilterRule {
    static constexpr uint32_t kGet = 0x408, kSet = 0x409, kSize = 40;
    static constexpr U32<kSize> index{0};
    static constexpr U32<kSize> valid{4};
    static constexpr U32<kSize> porttype{8};
    static constexpr U32<kSize> field{12};
    static constexpr U32<kSize> ipversion{16};
    static constexpr Bytes<16, kSize> ip{20};
    static constexpr U32<kSize> mask{36};
};

}  // namespace ze
