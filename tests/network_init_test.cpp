// Network initialisation: the datapath library calls in order, the values
// they leave, and the two examined calls.
#include "test_support.h"
#include "ze_lsw_mac.h"
#include "ze_lsw_port.h"
#include "ze_lsw_vlan.h"

namespace {

using namespace zetest;
using Calls = std::vector<std::pair<std::string, uint32_t>>;

class NetworkInitTest : public SimTest {
protected:
    // The datapath library calls of the run, with the block command each sent.
    static Calls calls() {
        Calls out;
        for (const zesim::LogEntry &e : zesim::log())
            if (!e.name.empty()) out.emplace_back(e.name, e.kind == zesim::EntryKind::Ioctl ? e.cmd : 0);
        return out;
    }
    static std::vector<zesim::Bytes> sent_by(const std::string &call) {
        std::vector<zesim::Bytes> out;
        for (const zesim::LogEntry &e : zesim::log())
            if (e.name == call) out.push_back(e.sent);
        return out;
    }
};

TEST_F(NetworkInitTest, CallsTheDatapathLibraryInOrderPortByPort) {
    Calls want = {{"ze_dp_dev_open", 0}};
    // Get and set of each block, `times` times over.
    const struct {
        const char *block;
        uint32_t get, times;
    } blocks[] = {{"vlan_filter_attr", 0x406, 1},        {"glb_attr", 0x100, 1},
                  {"security_attr", 0x40a, 1},           {"uni_cpu_port_attr", 0x310, 1},
                  {"uni_eth_port_attr", 0x320, 5},       {"nni_eth_port_attr", 0x350, 1},
                  {"vlan_filter_table_item", 0x400, 6}, {"l2_attr", 0x700, 1}};
    for (const auto &b : blocks)
        for (uint32_t i = 0; i < b.times; ++i)
            want.insert(want.end(), {{std::string("ze_dp_") + b.block + "_get", b.get},
                                     {std::string("ze_dp_") + b.block + "_set", b.get + 1}});
    want.insert(want.end(), 12, {"ze_dp_l2_vlan_bc_add", 0x716});
    want.push_back({"ze_dp_dev_close", 0});
    EXPECT_EQ(ze_lsw_port_init_network(), 0u);
    EXPECT_EQ(calls(), want); EXPECT_TRUE(traces().empty()); EXPECT_EQ(console(), "");

    // VLAN 1 membership passes and broadcast adds, port by port.
    std::vector<uint32_t> member_ports, bc;
    for (const auto &sent : sent_by("ze_dp_vlan_filter_table_item_set")) {
        uint32_t bits = 0;
        for (uint32_t p = 0; p < 7; ++p) bits |= word_at(sent, 4 + 4 * p) << p;
        EXPECT_EQ(word_at(sent, 0), 1u); member_ports.push_back(bits);
    }
    EXPECT_EQ(member_ports, (std::vector<uint32_t>{0x41, 0x61, 0x63, 0x67, 0x6f, 0x7f}));
    for (const auto &sent : sent_by("ze_dp_l2_vlan_bc_add")) {
        EXPECT_EQ(word_at(sent, 0), 1u); EXPECT_EQ(word_at(sent, 4), 0u); EXPECT_EQ(word_at(sent, 12), 1u);
        bc.push_back(word_at(sent, 8));
    }
    EXPECT_EQ(bc, (std::vector<uint32_t>{1, 6, 2, 6, 3, 6, 4, 6, 0, 6, 5, 6}));
}

// Port 0 sets its word 8 and keeps byte 24; ports 1..4 clear two bits of
// byte 24 and keep word 8. Words not initialised keep their values.
TEST_F(NetworkInitTest, LeavesTheDefaultBridgingState) {
    for (uint32_t p = 0; p < 5; ++p) zesim::set_word(0x320, 24, 0xffffffff, {p}), zesim::set_word(0x320, 8, 7, {p});
    zesim::set_word(0x700, 36, 5);
    ze_lsw_port_init_network();
    for (uint32_t p = 0; p < 5; ++p) {
        const zesim::Bytes uni = zesim::block(0x320, {p});
        for (auto [off, v] : {std::pair{4u, 1u}, {16u, 0u}, {68u, 1u}, {72u, 8u}, {84u, 0x8100u}, {88u, 1u},
                              {8u, p == 0 ? 2u : 7u},
                              {24u, p == 0 ? 0xffffffffu : word_at(zesim::Bytes{0xdb, 0xff, 0xff, 0xff}, 0)}})
            EXPECT_EQ(word_at(uni, off), v) << "port " << p << " @" << off;
    }
    const struct {
        uint32_t id, offset, value;
    } words[] = {{0x310, 24, 0x8100}, {0x310, 28, 1},   {0x406, 0, 1},    {0x406, 28, 1}, {0x40a, 8, 1},
                 {0x40a, 32, 1},      {0x40a, 36, 1},   {0x40a, 60, 1},   {0x700, 192, 13}, {0x700, 200, 9},
                 {0x700, 208, 9},     {0x700, 36, 5},   {0x350, 76, 1},   {0x350, 80, 8}};
    for (const auto &w : words) EXPECT_EQ(zesim::word(w.id, w.offset), w.value) << w.id << " @" << w.offset;
    // Read back through the library.
    uint32_t bitmap = 0;
    uint8_t learn = 1;
    EXPECT_EQ(ze_lsw_vlan_get_port(1, &bitmap), 0u); EXPECT_EQ(bitmap, 0x7fu);
    EXPECT_EQ(ze_lsw_mac_get_learn(6, &learn), 0u); EXPECT_EQ(learn, 0u);
}

TEST_F(NetworkInitTest, VlanFilterAttributeFailuresArePrintedAndTheRestRuns) {
    zesim::fail_call("ze_dp_vlan_filter_attr_get", 5);
    zesim::fail_call("ze_dp_vlan_filter_attr_set", 0xffffffff);
    zesim::fail_call("ze_dp_glb_attr_get", 7);
    zesim::fail_call("ze_dp_dev_open", 9);
    EXPECT_EQ(ze_lsw_port_init_network(), 0u);
    const std::string out = console();
    ASSERT_EQ(out.rfind("\r\n ze_lsw_port.cpp ", 0), 0u) << out;
    EXPECT_NE(out.find(":[5]\r\n ze_lsw_port.cpp "), std::string::npos) << out;
    EXPECT_EQ(out.substr(out.size() - 5), ":[-1]");
    EXPECT_EQ(calls().size(), 48u); EXPECT_EQ(calls().back().first, "ze_dp_dev_close");
}

}  // namespace
