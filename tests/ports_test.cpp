// The port model: checks, bitmap conversions and the name tables.
#include "test_support.h"
#include "ze_lsw_common.h"
#include "ze_lsw_tables.h"

namespace {

using Ports = zetest::SimTest;

TEST_F(Ports, ChecksAcceptTheirRangesAndTraceOnlyRejections) {
    for (uint32_t p : {0u, 4u, 5u, 8u}) EXPECT_EQ(ze_lsw_port_check(p), 0u) << p;
    for (uint32_t p : {0u, 4u}) EXPECT_EQ(ze_lsw_eth_port_check(p), 0u) << p;
    EXPECT_TRUE(traces().empty());
    EXPECT_EQ(ze_lsw_port_check(9), ZE_ERR_PARAM);
    EXPECT_EQ(ze_lsw_port_check(0xffffffff), ZE_ERR_PARAM);
    EXPECT_EQ(ze_lsw_eth_port_check(5), ZE_ERR_PARAM);
    auto recs = traces();
    ASSERT_EQ(recs.size(), 3u);
    EXPECT_STREQ(recs[2].func, "ze_lsw_eth_port_check");
    EXPECT_EQ(recs[2].result, ZE_ERR_PARAM);
    EXPECT_EQ(recs[2].module, 0xf8005800u);
}

TEST_F(Ports, PortToBitmapOrsOnlyPortsWithABit) {
    const struct {
        uint32_t port, before, after;
    } cases[] = {{0, 0, 0x01}, {3, 0x01, 0x09}, {6, 0, 0x40}, {7, 0x02, 0x02}, {8, 0, 0}, {99, 0x10, 0x10}};
    for (const auto &c : cases) {
        uint32_t bm = c.before;
        EXPECT_EQ(ze_lsw_port_get_bitmap(c.port, &bm), 0u);
        EXPECT_EQ(bm, c.after) << "port " << c.port;
    }
}

TEST_F(Ports, BitmapToPortNamesOnlySingleBits) {
    const struct {
        uint32_t bitmap, port;
    } cases[] = {{0x01, 0}, {0x04, 2}, {0x20, 5}, {0x40, 6},
                 {0x03, 77}, {0x00, 77}, {0x80, 77}, {0x41, 77}, {0x100, 77}};
    for (const auto &c : cases) {
        uint32_t port = 77;
        EXPECT_EQ(ze_lsw_bitmap_get_port(c.bitmap, &port), 0u);
        EXPECT_EQ(port, c.port) << "bitmap " << c.bitmap;
    }
}

TEST_F(Ports, FlowBitmapIsAllPortsUnlessFlagged) {
    uint32_t bm = 0;
    EXPECT_EQ(ze_lsw_flow_get_portbitmap(0, 99, &bm), 0u);
    EXPECT_EQ(bm, 0x7fu);
    bm = 0;
    EXPECT_EQ(ze_lsw_flow_get_portbitmap(1, 2, &bm), 0u);
    EXPECT_EQ(bm, 0x04u);
    bm = 0;
    EXPECT_EQ(ze_lsw_flow_get_portbitmap(3, 8, &bm), 0u);
    EXPECT_EQ(bm, 0u);
}

// A null output is refused before any port or flag is looked at, and
// without a trace record, as every pointer check of the library is.
TEST_F(Ports, ConversionsRefuseANullOutput) {
    for (uint32_t port : {0u, 6u, 8u, 99u}) {
        EXPECT_EQ(ze_lsw_port_get_bitmap(port, nullptr), ZE_ERR_NULL_PTR) << port;
        EXPECT_EQ(ze_lsw_flow_get_portbitmap(0, port, nullptr), ZE_ERR_NULL_PTR) << port;
        EXPECT_EQ(ze_lsw_flow_get_portbitmap(1, port, nullptr), ZE_ERR_NULL_PTR) << port;
    }
    for (uint32_t bitmap : {0x01u, 0x40u, 0x03u, 0u}) EXPECT_EQ(ze_lsw_bitmap_get_port(bitmap, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_TRUE(traces().empty());
}

TEST_F(Ports, PortSwitchChecksButTranslatesNothing) {
    uint32_t out = 0x1234;
    EXPECT_EQ(ze_lsw_port_switch(2, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_switch(2, &out), 0u);
    EXPECT_EQ(out, 0x1234u);
    EXPECT_EQ(ze_lsw_port_switch(9, &out), ZE_ERR_FAIL);
    EXPECT_EQ(out, 0x1234u);
    EXPECT_EQ(traces().back().result, ZE_ERR_FAIL);
}

TEST_F(Ports, MulticastTestKnowsOnlyTheIpv4Prefix) {
    const uint8_t mc[6] = {0x01, 0x00, 0x5e, 0, 0, 1};
    const uint8_t v6[6] = {0x33, 0x33, 0, 0, 0, 1};
    const uint8_t near[6] = {0x01, 0x00, 0x5f, 0, 0, 1};
    uint8_t flag = 0;
    EXPECT_EQ(ze_lsw_mc_mac_check(mc, &flag), 0u);
    EXPECT_EQ(flag, 1);
    flag = 9;
    EXPECT_EQ(ze_lsw_mc_mac_check(v6, &flag), 0u);
    EXPECT_EQ(ze_lsw_mc_mac_check(near, &flag), 0u);
    EXPECT_EQ(flag, 9);
    EXPECT_EQ(ze_lsw_mc_mac_check(nullptr, &flag), ZE_ERR_NULL_PTR);
}

TEST_F(Ports, NameTables) {
    const char *labels[] = {"eth0", "eth1", "eth2", "eth3", "eth4", "pon", "cpu", "prbs", "all"};
    const char *names[] = {"GE0", "FE1", "FE2", "FE3", "FE4", "PON", "CPU", "", ""};
    for (int p = 0; p < 9; ++p) {
        EXPECT_STREQ(g_phy_port[p], labels[p]);
        EXPECT_STREQ(g_portname[p], names[p]);
    }
    EXPECT_STREQ(g_port_smacmode[0], "IGNORE");
    EXPECT_STREQ(g_port_smacmode[2], "BACK");
    EXPECT_STREQ(g_port_smacmode[3], "THRU");
}

}  // namespace
