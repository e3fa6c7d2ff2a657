// CAR blocks of the datapath driver: flow CAR profiles and bindings, the EFC
// and to-CPU CARs, the simple CAR, protocol packets and the to-CPU reasons.
// Internal.
#pragma once

#include "ze_dp_block.h"

namespace ze {

// One of the 128 flow CAR profiles; all six parameter words 0 means free.
struct CarProfile {
    static constexpr uint32_t kGet = 0xa0b, kSet = 0xa0a, kSize = 28;
    static constexpr uint32_t kCount = 128;
    static constexpr U32<kSize> index{0};
    static constexpr uint32_t kParam0 = 4, kParamCount = 6;  // parameter n at 4 + 4n
};

// Binding of a flow (sfid) to a profile.
struct FlowCarBind {
    static constexpr uint32_t kGet = 0xa33, kSet = 0xa32, kSize = 12;
    static constexpr U32<kSize> sfid{0};
    static constexpr U32<kSize> enable{4};
    static constexpr U32<kSize> profile{8};
};

// The layout of a three-value CAR: values 2 and 3 lie in reverse order.
struct CarTriple {
    static constexpr uint32_t kSize = 16;
    static constexpr U32<kSize> index{0};
    static constexpr U32<kSize> v1{4};
    static constexpr U32<kSize> v3{8};
    static constexpr U32<kSize> v2{12};
};
struct EfcCar : CarTriple {
    static constexpr uint32_t kGet = 0xa02, kSet = 0xa03;
};
struct TocpuCar : CarTriple {
    static constexpr uint32_t kGet = 0xa07, kSet = 0xa06;
};

// The simple CAR: six slots of three words (first, second, third value)
// at 12-byte steps.
struct SimpleCar {
    static constexpr uint32_t kGet = 0xa00, kSet = 0xa01, kSize = 72;
};

// Packet action and CAR of a protocol entry's sub-entries.
struct ProtocolPacket {
    static constexpr uint32_t kGet = 0x604, kSet = 0x605, kSize = 60;
    static constexpr U32<kSize> index{0};
    static constexpr uint32_t kCar0 = 12, kAction0 = 36;  // sub-entry n at + 4n
};

// What happens to packets sent to the CPU for one reason; the driver names
// the to-CPU CAR that applies.
struct TocpuReason {
    static constexpr uint32_t kGet = 0xa05, kSet = 0xa04, kSize = 24;
    static constexpr U32<kSize> reason{0};
    static constexpr U32<kSize> car_enable{4};
    static constexpr U32<kSize> car_enable2{16};
    static constexpr U32<kSize> car_index{20};
};

// The three values of a CAR triple block.
template <class L>
void put_triple(Block<L> &b, uint32_t v1, uint32_t v2, uint32_t v3) {
    b.set(L::v1, v1);
    b.set(L::v2, v2);
    b.set(L::v3, v3);
}
template <class L>
void get_triple(const Block<L> &b, uint8_t *v1, uint32_t *v2, uint32_t *v3) {
    *v1 = static_cast<uint8_t>(b.get(L::v1));
    *v2 = b.get(L::v2);
    *v3 = b.get(L::v3);
}

}  // namespace ze
