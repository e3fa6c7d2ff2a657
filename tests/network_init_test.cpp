// Network initialisation: the datapath library calls in order, the values
// they leave, and the two examined calls.
#include <string>
#include <utility>
#include <vector>

#include "test_support.h"
#include "ze_lsw_mac.h"
#include "ze_lsw_port.h"
#include "ze_lsw_vlan.h"

namespace {

using zetest::word_at;

class NetworkInitTest : public zetest::SimTest {
protected:
    // The datapath library calls of the run, with the block command each sent.
    static std::vector<std::pair<std::string, uint32_t>> calls() {
        std::vector<std::pair<std::string, uint32_t>> out;
        for (const zesim::LogEntry &e : zesim::log())
            if (!e.name.empty()) out.emplace_back(e.name, e.kind == zesim::EntryKind::Ioctl ? e.cmd : 0);
        return out;
    }
    static std::vector<zesim::LogEntry> sent_by(const std::string &call) {
        std::vector<zesim::LogEntry> out;
        for (const zesim::LogEntry &e : zesim::log())
            if (e.name == call) out.push_back(e);
        return out;
    }
};

TEST_F(NetworkInitTest, CallsTheDatapathLibraryInOrder) {
    std::vector<std::pair<std::string, uint32_t>> want = {
        {"ze_dp_dev_open", 0},
        {"ze_dp_vlan_filter_attr_get", 0x406},
        {"ze_dp_vlan_filter_attr_set", 0x407},
        {"ze_dp_glb_attr_get", 0x100},
        {"ze_dp_glb_attr_set", 0x101},
        {"ze_dp_security_attr_get", 0x40a},
        {"ze_dp_security_attr_set", 0x40b},
        {"ze_dp_uni_cpu_port_attr_get", 0x310},
        {"ze_dp_uni_cpu_port_attr_set", 0x311},
    };
    for (int p = 0; p < 5; ++p) {
        want.push_back({"ze_dp_uni_eth_port_attr_get", 0x320});
        want.push_back({"ze_dp_uni_eth_port_attr_set", 0x321});
    }
    want.push_back({"ze_dp_nni_eth_port_attr_get", 0x350});
    want.push_back({"ze_dp_nni_eth_port_attr_set", 0x351});
    for (int p = 0; p < 6; ++p) {
        want.push_back({"ze_dp_vlan_filter_table_item_get", 0x400});
        want.push_back({"ze_dp_vlan_filter_table_item_set", 0x401});
    }
    want.push_back({"ze_dp_l2_attr_get", 0x700});
    want.push_back({"ze_dp_l2_attr_set", 0x701});
    for (int i = 0; i < 12; ++i) want.push_back({"ze_dp_l2_vlan_bc_add", 0x716});
    want.push_back({"ze_dp_dev_close", 0});

    EXPECT_EQ(ze_lsw_port_init_network(), 0u);
    EXPECT_EQ(calls(), want);
    EXPECT_TRUE(traces().empty());
    EXPECT_EQ(console(), "");
}

TEST_F(NetworkInitTest, PortOrderOfMembershipAndBroadcast) {
    ze_lsw_port_init_network();
    std::vector<uint32_t> member_ports, bc;
    for (const auto &e : sent_by("ze_dp_vlan_filter_table_item_set")) {
        EXPECT_EQ(word_at(e.sent, 0), 1u);
        EXPECT_EQ(word_at(e.sent, 28), 1u);
        uint32_t bits = 0;
        for (uint32_t p = 0; p < 7; ++p) bits |= word_at(e.sent, 4 + 4 * p) << p;
        member_ports.push_back(bits);
    }
    EXPECT_EQ(member_ports, (std::vector<uint32_t>{0x41, 0x61, 0x63, 0x67, 0x6f, 0x7f}));
    for (const auto &e : sent_by("ze_dp_l2_vlan_bc_add")) {
        EXPECT_EQ(word_at(e.sent, 0), 1u);
        EXPECT_EQ(word_at(e.sent, 4), 0u);
        EXPECT_EQ(word_at(e.sent, 12), 1u);
        bc.push_back(word_at(e.sent, 8));
    }
    EXPECT_EQ(bc, (std::vector<uint32_t>{1, 6, 2, 6, 3, 6, 4, 6, 0, 6, 5, 6}));
}

TEST_F(NetworkInitTest, LeavesTheDefaultBridgingState) {
    for (uint32_t p = 0; p < 5; ++p) {
        zesim::set_word(0x320, 24, 0xffffffff, {p});
        zesim::set_word(0x320, 8, 7, {p});
    }
    zesim::set_word(0x700, 36, 5);  // a word past the ones initialised
    ze_lsw_port_init_network();

    for (uint32_t p = 0; p < 5; ++p) {
        zesim::Bytes uni = zesim::block(0x320, {p});
        const struct {
            uint32_t offset, value;
        } fields[] = {{4, 1}, {16, 0}, {68, 1}, {72, 8}, {84, 0x8100}, {88, 1}, {92, 0}, {96, 0}};
        for (const auto &f : fields) EXPECT_EQ(word_at(uni, f.offset), f.value) << "port " << p << " @" << f.offset;
        EXPECT_EQ(word_at(uni, 8), p == 0 ? 2u : 7u) << p;
        EXPECT_EQ(uni[24], p == 0 ? 0xff : 0xdb) << p;
        EXPECT_EQ(uni[25], 0xff);
    }
    zesim::Bytes cpu = zesim::block(0x310);
    EXPECT_EQ(word_at(cpu, 24), 0x8100u);
    EXPECT_EQ(word_at(cpu, 28), 1u);
    zesim::Bytes nni = zesim::block(0x350, {0});
    EXPECT_EQ(word_at(nni, 76), 1u);
    EXPECT_EQ(word_at(nni, 80), 8u);
    for (uint32_t w = 0; w < 8; ++w) EXPECT_EQ(zesim::word(0x406, 4 * w), 1u);
    for (uint32_t p = 0; p < 7; ++p) {
        EXPECT_EQ(zesim::word(0x40a, 8 + 4 * p), 1u);
        EXPECT_EQ(zesim::word(0x40a, 36 + 4 * p), 1u);
    }
    EXPECT_EQ(zesim::word(0x700, 192), 13u);
    EXPECT_EQ(zesim::word(0x700, 200), 9u);
    EXPECT_EQ(zesim::word(0x700, 208), 9u);
    EXPECT_EQ(zesim::word(0x700, 36), 5u);

    // Read back through the library.
    uint32_t bitmap = 0;
    EXPECT_EQ(ze_lsw_vlan_get_port(1, &bitmap), 0u);
    EXPECT_EQ(bitmap, 0x7fu);
    EXPECT_EQ(ze_lsw_vlan_bc_get_port(1, &bitmap), 0u);
    EXPECT_EQ(bitmap, 0x7fu);
    uint8_t learn = 1, filter = 0;
    EXPECT_EQ(ze_lsw_mac_get_learn(6, &learn), 0u);
    EXPECT_EQ(learn, 0u);
    EXPECT_EQ(ze_lsw_vlan_get_vlanfilter(4, &filter), 0u);
    EXPECT_EQ(filter, 1u);
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
    EXPECT_EQ(calls().size(), 48u);
    EXPECT_EQ(calls().back().first, "ze_dp_dev_close");
}

}  // namespace
