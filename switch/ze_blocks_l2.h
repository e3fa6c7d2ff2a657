// Layer-2 blocks shared by the VLAN, MAC table, security and network
// initialisation modules. Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

// VLAN membership: one member word per port 0..6.
struct VlanMember {
    static constexpr uint32_t kGet = 0x400, kSet = 0x401, kSize = 32;
    static constexpr uint32_t kPorts = 7;
    static constexpr U32<kSize> vlan{0};
    static constexpr uint32_t member(uint32_t port) { return 4 + 4 * port; }
};

// Filter modes: the two IP filter modes and the two per-port VLAN filter
// word arrays (the network initialisation calls it the security attributes).
struct FilterMode {
    static constexpr uint32_t kGet = 0x40a, kSet = 0x40b, kSize = 64;
    static constexpr U32<kSize> ip_mode[2] = {U32<kSize>{0}, U32<kSize>{4}};
    static constexpr uint32_t vlan_filter(uint32_t port) { return 8 + 4 * port; }
    static constexpr uint32_t vlan_filter2(uint32_t port) { return 36 + 4 * port; }
};

// Learning, limits and ageing. Each per-port array has eight words.
struct L2Attr {
    static constexpr uint32_t kGet = 0x700, kSet = 0x701, kSize = 468;
    static constexpr U32<kSize> learn_mode{0};
    static constexpr U32<kSize> learn_fail{4};
    static constexpr uint32_t learn(uint32_t port) { return 8 + 4 * port; }
    static constexpr uint32_t limit_enable(uint32_t port) { return 40 + 4 * port; }
    static constexpr uint32_t limit_count(uint32_t port) { return 72 + 4 * port; }
    static constexpr U32<kSize> age_enable{168};
    static constexpr U32<kSize> age_time{172};
};

// One broadcast egress entry, added with 0x716 and deleted with 0x717.
struct BcEgress {
    static constexpr uint32_t kAdd = 0x716, kDel = 0x717, kSize = 16;
    static constexpr U32<kSize> vlan{0};
    static constexpr U32<kSize> fid{4};
    static constexpr U32<kSize> port{8};
    static constexpr U32<kSize> enable{12};
};

// Hybrid tag mode of a VLAN: one word per port 0..5, 1 untagged. The set id
// is the lower one. Only ports 0..4 are read and written by the API.
struct HybridTag {
    static constexpr uint32_t kGet = 0x343, kSet = 0x342, kSize = 28;
    static constexpr uint32_t kPorts = 6, kSettablePorts = 5;
    static constexpr U32<kSize> vlan{0};
    static constexpr uint32_t mode(uint32_t port) { return 4 + 4 * port; }
};

// The broadcast egress table of a VLAN: 32 entries of fid, port, valid.
struct BcEgressTable {
    static constexpr uint32_t kGet = 0x718, kSize = 388, kEntries = 32;
    static constexpr U32<kSize> vlan{0};
    static constexpr uint32_t fid(uint32_t k) { return 4 + 12 * k; }
    static constexpr uint32_t port(uint32_t k) { return 8 + 12 * k; }
    static constexpr uint32_t valid(uint32_t k) { return 12 + 12 * k; }
};

}  // namespace ze
