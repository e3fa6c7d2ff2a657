// IGMP pass-throughs: kernel call names, payloads and codes.
#include "test_support.h"
#include "ze_igmp_api.h"

namespace {

using Igmp = zetest::SimTest;
using Ids = std::vector<uint32_t>;

const zesim::LogEntry &last_call() { return zesim::log().back(); }

struct ValuePair {
    const char *name;
    uint32_t (*get)(uint32_t *);
    uint32_t (*set)(uint32_t);
};
#define PAIR(n) {#n, ze_igmp_get_##n, ze_igmp_set_##n}
const ValuePair kValues[] = {
    PAIR(genqueryip), PAIR(autolrnvlan), PAIR(genquerymode), PAIR(usrvlanact), PAIR(agetimeinter),
    PAIR(agetimes),   PAIR(defusrvlan),  PAIR(defgrpvlan),   PAIR(snoopingmode), PAIR(proxymode),
};
#undef PAIR

TEST_F(Igmp, EveryValueRoundTripsThroughItsOwnKernelCalls) {
    for (uint32_t i = 0; i < std::size(kValues); ++i) ASSERT_EQ(kValues[i].set(0xc0a80000 + i), 0u) << i;
    for (uint32_t i = 0; i < std::size(kValues); ++i) {
        uint32_t got = 0;
        EXPECT_EQ((Ids{kValues[i].get(&got), got}), (Ids{0, 0xc0a80000 + i})) << kValues[i].name;
        EXPECT_EQ(last_call().name, std::string("ze_kernel_igmp_get_") + kValues[i].name);
        EXPECT_EQ(last_call().cmd, 4u);
    }
    EXPECT_TRUE(traces().empty());
}

TEST_F(Igmp, GroupVlanKeepsItsSpellingAndLayout) {
    ASSERT_EQ(ze_igmp_add_gourpvlan_ip(100, 200, 0xe0000001, 0xe00000ff), 0u);
    EXPECT_EQ(last_call().name, "ze_kernel_igmp_add_groupvlan_ip");
    // The second VLAN, then the first, 16 bits each, then both addresses.
    const auto payload = [](uint32_t vlan, uint32_t group_vlan, uint32_t addr1, uint32_t addr2) {
        zesim::Bytes b(12);
        zesim::store_field(&b[0], 2, vlan), zesim::store_field(&b[2], 2, group_vlan);
        zesim::store_field(&b[4], 4, addr1), zesim::store_field(&b[8], 4, addr2);
        return b;
    };
    EXPECT_EQ(last_call().sent, payload(200, 100, 0xe0000001, 0xe00000ff));
    ASSERT_EQ(ze_igmp_del_gourpvlan_ip(100), 0u);
    EXPECT_EQ(last_call().name, "ze_kernel_igmp_del_groupvlan_ip");
    EXPECT_EQ(last_call().sent, payload(0, 100, 0, 0));
}

TEST_F(Igmp, InterfaceNameIsCutToSixteenBytesWithoutTerminator) {
    for (const char *name : {"eth0", "abcdefghijklmno", "abcdefghijklmnop", "abcdefghijklmnopqrstu"}) {
        ASSERT_EQ(ze_igmp_add_ifname(name, 3), 0u);
        zesim::Bytes want(20, 0);  // the port in the second byte, the name from the fifth
        want[1] = 3;
        const std::string cut = std::string(name).substr(0, 16);
        std::copy(cut.begin(), cut.end(), want.begin() + 4);
        EXPECT_EQ(last_call().sent, want) << name;
    }
    ASSERT_EQ(ze_igmp_del_ifname("pon0"), 0u);
    EXPECT_EQ(last_call().name, "ze_kernel_igmp_del_ifname");
    EXPECT_EQ(last_call().sent.size(), 20u);
}

TEST_F(Igmp, KernelCodesPassUnchangedAndGetIfnameWritesBothValuesAnyway) {
    zesim::fail_call("ze_kernel_igmp_set_proxymode", 0xf0000101);
    zesim::fail_call("ze_kernel_igmp_get_statinfo", 7);
    zesim::fail_call("ze_kernel_igmp_get_ifname", 5);
    EXPECT_EQ((Ids{ze_igmp_set_proxymode(1), ze_igmp_get_statinfo(), last_call().has_block, last_call().cmd}),
              (Ids{0xf0000101, 7, false, 0})) << "the statistics call carries no payload";
    uint8_t v0 = 0xaa, v1 = 0xbb;
    EXPECT_EQ((Ids{ze_igmp_get_ifname("eth1", &v0, &v1), v0, v1}), (Ids{5, 0, 0}));
}

}  // namespace
