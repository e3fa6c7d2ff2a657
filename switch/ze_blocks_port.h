// Port attribute blocks: the UNI Ethernet ports, the NNI port, the CPU port,
// the switch-wide STP block and the two forms of the PON port block.
// Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

// Which per-port default a function reads or writes; indexes the
// `defaults` field pair of each port block that has them.
enum PortDefault : uint32_t { kDefVlan = 0, kDefPri = 1 };

// Tag actions: two groups of three words from the block's tag base.
inline constexpr uint32_t kTagGroups = 2;
inline constexpr uint32_t kTagIndices = 3;

// Offset of the tag action (group, index) from `base`; false for a pair
// outside the 2 x 3 table.
constexpr bool tag_act_offset(uint32_t base, uint32_t group, uint32_t index, uint32_t *off) {
    if (group >= kTagGroups || index >= kTagIndices) return false;
    *off = base + 12 * group + 4 * index;
    return true;
}

// One block per Ethernet port 0..4, selected by the port word.
struct UniPort {
    static constexpr uint32_t kGet = 0x320, kSet = 0x321, kSize = 188;
    static constexpr uint32_t kTagBase = 60;
    static constexpr U32<kSize> port{0};
    static constexpr U32<kSize> status{4};
    static constexpr U32<kSize> workmode{16};
    static constexpr U32<kSize> loopback{32};
    static constexpr U32<kSize> defaults[2] = {88, 96};  // VLAN, priority
    static constexpr U32<kSize> pause{136};
    static constexpr U32<kSize> car_enable{148};    // ingress CAR
    static constexpr U32<kSize> pause_second{152};  // written with the pause, never read
    static constexpr U32<kSize> car_param3{156};    // ingress CAR: words 3 and 1 of
    static constexpr U32<kSize> car_param1{164};    // the port CAR's parameters
    static constexpr U32<kSize> stp_state{184};
};

// The CPU port; no port word.
struct CpuPort {
    static constexpr uint32_t kGet = 0x310, kSet = 0x311, kSize = 40;
    static constexpr uint32_t kTagBase = 0;
    static constexpr U32<kSize> defaults[2] = {28, 36};  // VLAN, priority
};

// The NNI side (PON port 5 or all ports 8), selected by the port word.
struct NniPort {
    static constexpr uint32_t kGet = 0x350, kSet = 0x351, kSize = 108;
    static constexpr uint32_t kTagBase = 68;
    static constexpr U32<kSize> port{0};
};

// Switch-wide spanning tree.
struct StpAttr {
    static constexpr uint32_t kGet = 0x300, kSet = 0x301, kSize = 64;
    static constexpr U32<kSize> enable{0};
};

// The PON port block; both forms share this layout and no port word.
struct PonPortLayout {
    static constexpr uint32_t kSize = 32;
    static constexpr U32<kSize> status{0};
    static constexpr U32<kSize> defaults[2] = {8, 16};  // VLAN, priority
};

// The form the uplink mode selects. The GPON form keeps no writable default
// priority: a set of it writes the block back as read.
template <uint32_t Get, uint32_t Set, bool DefpriWritable>
struct PonPortForm : PonPortLayout {
    static constexpr uint32_t kGet = Get, kSet = Set;
    static constexpr bool kDefpriWritable = DefpriWritable;
};
using PonPortEpon = PonPortForm<0xe00, 0xe01, true>;
using PonPortGpon = PonPortForm<0x211, 0x212, false>;

}  // namespace ze
