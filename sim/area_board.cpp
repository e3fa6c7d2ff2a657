// The kernel side of the board pass-throughs: a sparse physical memory that
// the misc utility calls read and write, and the IGMP module's values and
// printed summaries.
//
// The kernel state lives in the simulator's block store so that a reset
// forgets it with everything else. Its ids are not datapath commands the
// library sends; they only name the store: physical memory in pages keyed
// by page number, and one block holding the IGMP module's values.
#include <cstdio>

#include "areas.h"

namespace zesim {
namespace {

constexpr uint32_t kMemPageId = 0x10000;
constexpr uint32_t kIgmpValuesId = 0x10002;
constexpr uint32_t kPageBytes = 64;
constexpr uint32_t kPageData = 4;  // the page number comes first

// The kernel refuses a payload shorter than its call needs.
constexpr uint32_t kErrShortPayload = 0xf0000301;

uint8_t &mem_byte(uint32_t addr) {
    uint8_t key[kPageData + kPageBytes] = {};
    put_u32(key, 0, addr / kPageBytes);
    return stored_block(kMemPageId, key)[kPageData + addr % kPageBytes];
}

// Payload: address, length 4, the word.
uint32_t write_phymem(uint8_t *p, uint32_t len, uint32_t *) {
    if (!p || len < 12) return kErrShortPayload;
    const uint32_t addr = get_u32(p, 0), n = get_u32(p, 4);
    if (n > 4) return kErrShortPayload;
    for (uint32_t i = 0; i < n; ++i) mem_byte(addr + i) = p[8 + i];
    return 0;
}

// Payload: address, length, then the data from offset 8.
uint32_t read_phymem(uint8_t *p, uint32_t len, uint32_t *) {
    if (!p || len < 8) return kErrShortPayload;
    const uint32_t addr = get_u32(p, 0), n = get_u32(p, 4);
    if (n > len - 8) return kErrShortPayload;
    for (uint32_t i = 0; i < n; ++i) p[8 + i] = mem_byte(addr + i);
    return 0;
}

// The IGMP module's values, one word each, in this order in their block.
#define ZE_SIM_IGMP_VALUES(X)                                                      \
    X(0, genqueryip) X(1, autolrnvlan) X(2, genquerymode) X(3, usrvlanact)         \
    X(4, agetimeinter) X(5, agetimes) X(6, defusrvlan) X(7, defgrpvlan)            \
    X(8, snoopingmode) X(9, proxymode)

#define ZE_SIM_IGMP_NAME(i, name) #name,
constexpr const char *kIgmpValues[] = {ZE_SIM_IGMP_VALUES(ZE_SIM_IGMP_NAME)};
constexpr uint32_t kIgmpValueCount = sizeof kIgmpValues / sizeof kIgmpValues[0];

// A fresh module: general queries from 0.0.0.0, learning on VLAN 1, ageing
// every 125 s, two rounds, default VLANs 1, snooping on, proxy off.
void igmp_defaults(uint8_t *b) {
    const uint32_t init[kIgmpValueCount] = {0, 1, 0, 0, 125, 2, 1, 1, 1, 0};
    for (uint32_t i = 0; i < kIgmpValueCount; ++i) put_u32(b, 4 * i, init[i]);
}

uint8_t *igmp_values() {
    static const uint8_t kNoKey[4 * kIgmpValueCount] = {};
    return stored_block(kIgmpValuesId, kNoKey);
}

template <uint32_t I>
uint32_t igmp_get(uint8_t *p, uint32_t len, uint32_t *) {
    if (!p || len < 4) return kErrShortPayload;
    put_u32(p, 0, get_u32(igmp_values(), 4 * I));
    return 0;
}

template <uint32_t I>
uint32_t igmp_set(uint8_t *p, uint32_t len, uint32_t *) {
    if (!p || len < 4) return kErrShortPayload;
    put_u32(igmp_values(), 4 * I, get_u32(p, 0));
    return 0;
}

// The print-only calls: what the module would print to the kernel log.
template <const char *Text>
uint32_t igmp_print(uint8_t *, uint32_t, uint32_t *) {
    std::printf("%s", Text);
    return 0;
}
constexpr char kStat[] = "igmp stat: rx query 0, rx report 0, rx leave 0, tx query 0\n";
constexpr char kStatClr[] = "igmp stat: cleared\n";
constexpr char kIf[] = "igmp interfaces: none\n";
constexpr char kAge[] = "igmp ageing: interval 125 s, 2 rounds, 0 groups ageing\n";
constexpr char kGrp[] = "igmp groups: 0\n";
constexpr char kUsr[] = "igmp users: 0\n";

uint32_t igmp_dump(uint8_t *p, uint32_t len, uint32_t *) {
    if (!p || len < 4) return kErrShortPayload;
    std::printf("igmp dump %u:", get_u32(p, 0));
    for (uint32_t i = 0; i < kIgmpValueCount; ++i)
        std::printf(" %s=%u", kIgmpValues[i], get_u32(igmp_values(), 4 * i));
    std::printf("\n");
    return 0;
}

// Group VLAN entries and interfaces are accepted and not kept; a get of an
// interface answers both values 0.
uint32_t igmp_accept(uint8_t *p, uint32_t len, uint32_t *) {
    return p && len >= 12 ? 0 : kErrShortPayload;
}

const BlockDesc kBlocks[] = {
    {"kernel physical memory page", kMemPageId, 0, kPageData + kPageBytes, {{0, 4}}},
    {"kernel IGMP module values", kIgmpValuesId, 0, 4 * kIgmpValueCount, {}, igmp_defaults},
};

#define ZE_SIM_IGMP_CALLS(i, name)                  \
    {"ze_kernel_igmp_get_" #name, igmp_get<i>},     \
    {"ze_kernel_igmp_set_" #name, igmp_set<i>},

const KernelCallDesc kCalls[] = {
    {"ze_kernel_misc_util_writephymem", write_phymem},
    {"ze_kernel_misc_util_readphymem", read_phymem},
    {"ze_kernel_igmp_dump", igmp_dump},
    {"ze_kernel_igmp_clr_statinfo", igmp_print<kStatClr>},
    {"ze_kernel_igmp_get_statinfo", igmp_print<kStat>},
    {"ze_kernel_igmp_get_ifinfo", igmp_print<kIf>},
    {"ze_kernel_igmp_get_ageinfo", igmp_print<kAge>},
    {"ze_kernel_igmp_get_grpinfo", igmp_print<kGrp>},
    {"ze_kernel_igmp_get_usrinfo", igmp_print<kUsr>},
    ZE_SIM_IGMP_VALUES(ZE_SIM_IGMP_CALLS)
    {"ze_kernel_igmp_add_groupvlan_ip", igmp_accept},
    {"ze_kernel_igmp_del_groupvlan_ip", igmp_accept},
    {"ze_kernel_igmp_get_ifname", igmp_accept},
    {"ze_kernel_igmp_del_ifname", igmp_accept},
    {"ze_kernel_igmp_add_ifname", igmp_accept},
};

}  // namespace

const Area kBoardArea{"board", kBlocks, {}, kCalls};

}  // namespace zesim
