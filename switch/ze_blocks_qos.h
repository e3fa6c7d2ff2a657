// QoS blocks of the datapath driver. The queue map is also read by the queue
// statistic, and the WRED block is written by the CAR start-up. Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

// Ingress priority override of one flow (sfid).
struct QosInPri {
    static constexpr uint32_t kGet = 2569, kSet = 2568, kSize = 16;
    static constexpr U32<kSize> flow{0};
    static constexpr U32<kSize> enable{8};
    static constexpr U32<kSize> priority{12};
};

// Egress queue of (port, group, priority); the driver sets `valid`.
struct QosQueueMap {
    static constexpr uint32_t kGet = 2575, kSet = 2574, kSize = 20;
    static constexpr U32<kSize> port{0};
    static constexpr U32<kSize> group{4};
    static constexpr U32<kSize> priority{8};
    static constexpr U32<kSize> valid{12};
    static constexpr U32<kSize> queue{16};
};

// Buffer limits of a global queue.
struct QosQueueBuffer {
    static constexpr uint32_t kGet = 2577, kSet = 2576, kSize = 12;
    static constexpr U32<kSize> queue{0};
    static constexpr U32<kSize> b1{4};
    static constexpr U32<kSize> b2{8};
};

// Egress scheduler of a port: eight queue entries of 20 bytes from offset 4.
struct QosEgrSchedule {
    static constexpr uint32_t kGet = 2579, kSet = 2578, kSize = 164;
    static constexpr uint32_t kEntry0 = 4, kEntrySize = 20;
    static constexpr U32<kSize> port{0};
    // Offsets within an entry.
    static constexpr uint32_t kValid = 0, kQueueId = 8, kParam1 = 12, kParam2 = 16;
    static constexpr uint32_t entry(uint32_t queue) { return kEntry0 + queue * kEntrySize; }
};

// Egress shaper of a shaper port.
struct QosEgrShaping {
    static constexpr uint32_t kGet = 2587, kSet = 2586, kSize = 24;
    static constexpr U32<kSize> port{0};
    static constexpr U32<kSize> enable{12};
    static constexpr U32<kSize> special{16};
    static constexpr U32<kSize> rate{20};
};

// Shaper of a global queue.
struct QosQueueShaping {
    static constexpr uint32_t kGet = 2615, kSet = 2614, kSize = 28;
    static constexpr U32<kSize> queue{0};
    static constexpr U32<kSize> p1{8};
    static constexpr U32<kSize> p2{20};
    static constexpr U32<kSize> p3{24};
};

// A WRED profile: words 0 and 2 name it, the rest are its settings. The
// CAR start-up also writes the second, four-entry table with kSetSmall.
struct QosWred {
    static constexpr uint32_t kGet = 2583, kSet = 2582, kSetSmall = 0xa18, kSize = 44;
    static constexpr U32<kSize> index{0};
    static constexpr U32<kSize> word2{8};
};

}  // namespace ze
