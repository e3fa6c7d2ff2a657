// Port attributes, status, tag actions, default VLAN and priority, PHY
// placeholders, and the port and PHY commands.
#include <functional>
#include <string>
#include <vector>

#include "test_support.h"
#include "ze_adapter_cli.h"
#include "ze_lsw_phy.h"
#include "ze_lsw_port.h"

namespace {

using zesim::commands;
using Ids = std::vector<uint32_t>;

class Port : public zetest::SimTest {
protected:
    void upmode(uint32_t m) {
        zesim::set_word(0x100, 4, m);
        zesim::clear_log();
    }
    bool traced_as(const std::string &func) const {
        for (const auto &t : traces())
            if (func == t.func) return true;
        return false;
    }
};

// Setter of one UNI word and where it lands.
struct UniSetter {
    const char *name;
    uint32_t (*set)(uint32_t, uint32_t);
    uint32_t offset;
};
const UniSetter kUniSetters[] = {
    {"workmode", ze_lsw_port_set_workmode, 16},
    {"loopback", ze_lsw_port_set_loopback, 32},
    {"status", ze_lsw_port_set_status, 4},
    {"uni tag act", [](uint32_t p, uint32_t v) { return ze_lsw_port_set_uni_tag_act(p, 0, 0, v); }, 60},
    {"defvlan", ze_lsw_port_set_defvlan, 88},
    {"defpri", ze_lsw_port_set_defpri, 96},
};

TEST_F(Port, EthernetSettersWriteTheirWordOfTheRightPortAndCarryTheRest) {
    for (const auto &s : kUniSetters) {
        zesim::set_word(0x320, 180, 0xc0ffee, {3});
        zesim::clear_log();
        ASSERT_EQ(s.set(3, 0x12345678), 0u) << s.name;
        EXPECT_EQ(commands(), (Ids{0x320, 0x321})) << s.name;
        EXPECT_EQ(zesim::word(0x320, s.offset, {3}), 0x12345678u) << s.name;
        EXPECT_EQ(zesim::word(0x320, 180, {3}), 0xc0ffeeu) << s.name;
        EXPECT_EQ(zesim::word(0x320, s.offset, {2}), s.offset == 4 || s.offset == 88 ? 1u : 0u)
            << s.name << ": another port changed";
    }
}

TEST_F(Port, EthernetOnlyAttributesRefusePonAndBeyond) {
    const std::function<uint32_t(uint32_t)> calls[] = {
        [](uint32_t p) { return ze_lsw_port_set_workmode(p, 1); },
        [](uint32_t p) { uint32_t v; return ze_lsw_port_get_workmode(p, &v); },
        [](uint32_t p) { return ze_lsw_port_set_pause(p, 1); },
        [](uint32_t p) { uint8_t v; return ze_lsw_port_get_pause(p, &v); },
        [](uint32_t p) { return ze_lsw_port_set_loopback(p, 1); },
        [](uint32_t p) { uint32_t v; return ze_lsw_port_get_loopback(p, &v); },
        [](uint32_t p) { uint32_t v; return ze_lsw_port_get_stpstate(p, &v); },
        [](uint32_t p) { uint32_t v; return ze_lsw_port_get_tag_act(p, 0, 0, &v); },
        [](uint32_t p) { return ze_lsw_port_set_uni_tag_act(p, 0, 0, 1); },
        [](uint32_t p) { return ze_lsw_port_set_cpu_tag_act(p, 0, 0, 1); },
    };
    for (size_t i = 0; i < std::size(calls); ++i)
        for (uint32_t port : {5u, 6u, 9u}) {
            zesim::clear_log();
            ze_host_trace_clear();
            EXPECT_EQ(calls[i](port), ZE_ERR_FAIL) << "call " << i << " port " << port;
            EXPECT_TRUE(zesim::log().empty()) << "call " << i;
            ASSERT_FALSE(traces().empty());
            EXPECT_EQ(traces().back().result, ZE_ERR_FAIL);
        }
}

TEST_F(Port, NullOutputsAreRefusedUntraced) {
    EXPECT_EQ(ze_lsw_port_get_workmode(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_get_pause(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_get_loopback(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_get_stpstate(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_get_stp(nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_get_mtu(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_get_tag_act(0, 0, 0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_get_defvlan(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_port_get_defpri(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_TRUE(traces().empty());
    EXPECT_TRUE(zesim::log().empty());
}

TEST_F(Port, MtuIsOneSwitchWideWordForPortsZeroToEight) {
    for (uint32_t port = 0; port < 9; ++port) {
        ASSERT_EQ(ze_lsw_port_set_mtu(port, 1500 + port), 0u) << port;
        uint32_t mtu = 0;
        ASSERT_EQ(ze_lsw_port_get_mtu((port + 4) % 9, &mtu), 0u);
        EXPECT_EQ(mtu, 1500 + port);
    }
    zesim::clear_log();
    EXPECT_EQ(ze_lsw_port_set_mtu(9, 1600), ZE_ERR_FAIL);
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_EQ(zesim::word(0x100, 4), 1u) << "the up mode beside the MTU is carried";
}

TEST_F(Port, PauseWritesBothWordsAndReadsTheLowByteOfTheFirst) {
    ASSERT_EQ(ze_lsw_port_set_pause(1, 0x1ff), 0u);
    EXPECT_EQ(zesim::word(0x320, 136, {1}), 0x1ffu);
    EXPECT_EQ(zesim::word(0x320, 152, {1}), 0x1ffu);
    zesim::set_word(0x320, 152, 0x77, {1});
    uint8_t pause = 0;
    ASSERT_EQ(ze_lsw_port_get_pause(1, &pause), 0u);
    EXPECT_EQ(pause, 0xff);
}

TEST_F(Port, GettersReadTheirWord) {
    zesim::set_word(0x320, 184, 3, {4});
    zesim::set_word(0x300, 0, 1);
    uint32_t state = 0, enable = 0;
    ASSERT_EQ(ze_lsw_port_get_stpstate(4, &state), 0u);
    ASSERT_EQ(ze_lsw_port_get_stp(&enable), 0u);
    EXPECT_EQ(state, 3u);
    EXPECT_EQ(enable, 1u);
    ASSERT_EQ(ze_lsw_port_set_stp(0), 0u);
    EXPECT_EQ(zesim::word(0x300, 0), 0u);
}

TEST_F(Port, PauseTimeAndPhyAnswerWithoutTouchingAnything) {
    uint32_t v = 42;
    EXPECT_EQ(ze_lsw_port_get_pausetime(99, &v), 0u);
    EXPECT_EQ(ze_lsw_port_set_pausetime(99, 1), 0u);
    EXPECT_EQ(ze_lsw_phy_get_mode(99, nullptr), 0u);
    EXPECT_EQ(ze_lsw_phy_get_status(1, &v), 0u);
    EXPECT_EQ(ze_lsw_phy_get_power(1, &v), 0u);
    EXPECT_EQ(ze_lsw_phy_set_power(1, 1), 0u);
    EXPECT_EQ(v, 42u);
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_EQ(traces().size(), 6u);
}

TEST_F(Port, DriverInvalidParameterIsEighteenExceptForStatus) {
    zesim::fail(0x320, ZE_DRV_INVALID_PARAM);
    EXPECT_EQ(ze_lsw_port_set_loopback(1, 1), ZE_ERR_PARAM);
    EXPECT_EQ(ze_lsw_port_set_defvlan(1, 1), ZE_ERR_PARAM);
    EXPECT_EQ(ze_lsw_port_set_uni_tag_act(1, 0, 0, 1), ZE_ERR_PARAM);
    EXPECT_EQ(ze_lsw_port_set_tag_act(1, 0, 0, 1), ZE_ERR_FAIL);
    EXPECT_EQ(ze_lsw_port_set_status(1, 1), ZE_ERR_FAIL);
    EXPECT_TRUE(traced_as("ze_lsw_eth_set_status"));
    EXPECT_EQ(traces().back().result, ZE_ERR_FAIL);
    zesim::clear_faults();
    zesim::fail(0x321, 0x1234);
    EXPECT_EQ(ze_lsw_port_set_loopback(1, 1), ZE_ERR_FAIL);
}

TEST_F(Port, StatusDispatchesByPort) {
    uint8_t s = 0x5a;
    EXPECT_EQ(ze_lsw_port_get_status(2, nullptr), ZE_ERR_FAIL);
    for (uint32_t port : {6u, 7u, 8u, 200u}) {
        EXPECT_EQ(ze_lsw_port_get_status(port, &s), 0u);
        EXPECT_EQ(ze_lsw_port_set_status(port, 1), 0u);
    }
    EXPECT_EQ(s, 0x5a);
    EXPECT_TRUE(zesim::log().empty());
    zesim::set_word(0x320, 4, 0x102, {2});
    ASSERT_EQ(ze_lsw_port_get_status(2, &s), 0u);
    EXPECT_EQ(s, 2);
    EXPECT_TRUE(traced_as("ze_lsw_eth_get_status"));
}

TEST_F(Port, PonStatusFollowsTheUpMode) {
    const struct {
        uint32_t mode;
        Ids ids;
    } cases[] = {{0, {0x100, 0xe00, 0xe01}}, {1, {0x100, 0x211, 0x212}}, {2, {0x100}}};
    for (const auto &c : cases) {
        upmode(c.mode);
        EXPECT_EQ(ze_lsw_port_set_status(5, 0), 0u) << c.mode;
        EXPECT_EQ(commands(), c.ids) << c.mode;
    }
    EXPECT_TRUE(traced_as("ze_lsw_pon_set_status"));
    EXPECT_EQ(zesim::word(0xe00, 0), 0u);
    upmode(1);
    uint8_t s = 9;
    ASSERT_EQ(ze_lsw_port_get_status(5, &s), 0u);
    EXPECT_EQ(s, 0);
    zesim::fail(0x100, ZE_DRV_INVALID_PARAM);
    EXPECT_EQ(ze_lsw_port_get_status(5, &s), ZE_ERR_FAIL);
}

TEST_F(Port, TagActionLandsAtBasePlusTwelveGroupsPlusFourIndices) {
    const struct {
        uint32_t port, block, base, key;
    } kinds[] = {{0, 0x320, 60, 0}, {4, 0x320, 60, 4}, {5, 0x350, 68, 5}, {8, 0x350, 68, 8}};
    for (const auto &k : kinds)
        for (uint32_t g = 0; g < 2; ++g)
            for (uint32_t i = 0; i < 3; ++i) {
                zesim::clear_log();
                uint32_t a = 0x100 * k.port + 0x10 * g + i + 1;
                ASSERT_EQ(ze_lsw_port_set_tag_act(k.port, g, i, a), 0u);
                EXPECT_EQ(commands(), (Ids{k.block, k.block + 1}));
                auto sent = zetest::entries_of(k.block + 1).at(0).sent;
                EXPECT_EQ(zetest::word_at(sent, 0), k.key);
                EXPECT_EQ(zetest::word_at(sent, k.base + 12 * g + 4 * i), a);
            }
    uint32_t a = 0;
    ASSERT_EQ(ze_lsw_port_get_tag_act(4, 1, 2, &a), 0u);
    EXPECT_EQ(a, 0x400u + 0x10 + 3);
}

TEST_F(Port, CpuTagActionIsReachableOnlyDirectlyWithAnEthernetNumber) {
    EXPECT_EQ(ze_lsw_port_set_tag_act(6, 0, 0, 7), ZE_ERR_FAIL);
    EXPECT_TRUE(zesim::log().empty());
    ASSERT_EQ(ze_lsw_port_set_cpu_tag_act(2, 1, 1, 7), 0u);
    EXPECT_EQ(commands(), (Ids{0x310, 0x311}));
    EXPECT_EQ(zesim::word(0x310, 16), 7u);
}

TEST_F(Port, NniVariantAcceptsOnlyFiveAndEight) {
    EXPECT_EQ(ze_lsw_port_set_nni_tag_act(3, 0, 0, 1), ZE_ERR_FAIL);
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_TRUE(traces().empty());
    EXPECT_EQ(ze_lsw_port_set_tag_act(7, 0, 0, 1), ZE_ERR_FAIL);
    EXPECT_EQ(ze_lsw_port_set_tag_act(9, 0, 0, 1), ZE_ERR_FAIL);
    EXPECT_TRUE(zesim::log().empty());
}

TEST_F(Port, UnknownSelectorPairChangesNothingAndSucceeds) {
    auto before = zesim::block(0x320, {1});
    uint32_t a = 0xaa;
    EXPECT_EQ(ze_lsw_port_get_tag_act(1, 2, 0, &a), 0u);
    EXPECT_EQ(a, 0xaau);
    EXPECT_EQ(ze_lsw_port_set_uni_tag_act(1, 0, 3, 5), 0u);
    EXPECT_EQ(zetest::entries_of(0x321).at(0).sent, before);
}

TEST_F(Port, DefaultsByPortKind) {
    const struct {
        uint32_t port, mode;
        Ids ids;
        uint32_t block, vlan_off, pri_off;
    } cases[] = {
        {1, 1, {0x320, 0x321}, 0x320, 88, 96},
        {6, 1, {0x310, 0x311}, 0x310, 28, 36},
        {5, 0, {0x100, 0xe00, 0xe01}, 0xe00, 8, 16},
        {5, 1, {0x100, 0x211, 0x212}, 0x211, 8, 16},
        {5, 2, {0x100}, 0, 0, 0},
        {7, 1, {}, 0, 0, 0},
        {8, 1, {}, 0, 0, 0},
    };
    for (const auto &c : cases) {
        upmode(c.mode);
        const std::string at = std::to_string(c.port) + "/" + std::to_string(c.mode);
        ASSERT_EQ(ze_lsw_port_set_defvlan(c.port, 0x70064), 0u) << at;
        EXPECT_EQ(commands(), c.ids) << at;
        uint16_t vlan = 0xbeef;
        ASSERT_EQ(ze_lsw_port_get_defvlan(c.port, &vlan), 0u) << at;
        EXPECT_EQ(vlan, c.block ? 0x0064 : 0xbeef) << at;
        if (c.block) {
            EXPECT_EQ(zesim::word(c.block, c.vlan_off, {c.port}), 0x70064u) << at;
        }
        ASSERT_EQ(ze_lsw_port_set_defpri(c.port, 0x305), 0u) << at;
        uint8_t pri = 0xee;
        ASSERT_EQ(ze_lsw_port_get_defpri(c.port, &pri), 0u) << at;
        // The GPON form of the PON port keeps its priority.
        const bool gpon_pon = c.block == 0x211;
        EXPECT_EQ(pri, !c.block ? 0xee : gpon_pon ? 0 : 5) << at;
        if (c.block) {
            EXPECT_EQ(zesim::word(c.block, c.pri_off, {c.port}), gpon_pon ? 0u : 0x305u) << at;
        }
    }
    EXPECT_TRUE(traced_as("ze_lsw_pon_set_defpri"));
    uint16_t v = 0;
    EXPECT_EQ(ze_lsw_port_get_defvlan(9, &v), ZE_ERR_FAIL);
}

TEST_F(Port, PonDefaultsFoldEveryFailure) {
    upmode(0);
    zesim::fail(0xe00, ZE_DRV_INVALID_PARAM);
    EXPECT_EQ(ze_lsw_port_set_defvlan(5, 1), ZE_ERR_FAIL);
    EXPECT_TRUE(traced_as("ze_lsw_pon_set_defvlan"));
    zesim::fail(0x310, ZE_DRV_INVALID_PARAM);
    EXPECT_EQ(ze_lsw_port_set_defvlan(6, 1), ZE_ERR_PARAM);
}

// ---- commands ---------------------------------------------------------------

TEST_F(Port, CommandsFoldFailuresAndReplyOnlyOnSuccess) {
    uint32_t req[2] = {9, 0}, reply = 0xdead;
    EXPECT_EQ(call("ze_adapter_cli_lsw_port_get_mtu", req, 8, &reply), ZE_ERR_FAIL);
    EXPECT_EQ(reply, 0xdeadu);
    zesim::fail(0x320, ZE_DRV_INVALID_PARAM);
    req[0] = 1;
    EXPECT_EQ(call("ze_adapter_cli_lsw_port_set_loopback", req, 8, &reply), ZE_ERR_FAIL);
    zesim::clear_faults();
    req[0] = 0;
    EXPECT_EQ(call("ze_adapter_cli_lsw_port_get_mtu", req, 8, &reply), 0u);
    EXPECT_EQ(reply, 8u);
    EXPECT_EQ(req[1], 1518u);
}

TEST_F(Port, CommandsPassTheirFieldsInOrder) {
    uint32_t tag[4] = {2, 1, 2, 0x33}, reply = 0;
    ASSERT_EQ(call("ze_adapter_cli_lsw_port_set_tag_act", tag, 16, &reply), 0u);
    EXPECT_EQ(zesim::word(0x320, 80, {2}), 0x33u);
    tag[3] = 0;
    ASSERT_EQ(call("ze_adapter_cli_lsw_port_get_tag_act", tag, 16, &reply), 0u);
    EXPECT_EQ(tag[3], 0x33u);
    uint32_t pri[2] = {3, 0xffffff06};
    ASSERT_EQ(call("ze_adapter_cli_lsw_port_set_pri", pri, 8, &reply), 0u);
    pri[1] = 0xaaaaaaaa;
    ASSERT_EQ(call("ze_adapter_cli_lsw_port_get_pri", pri, 8, &reply), 0u);
    EXPECT_EQ(pri[1], 0xaaaaaa06u) << "only the priority byte is written";
}

TEST_F(Port, PhySetPowerIsCallableButNotRegistered) {
    EXPECT_EQ(ze_host_ifm_find("ze_adapter_cli_lsw_phy_set_power"), nullptr);
    uint32_t req[2] = {1, 1}, reply = 0;
    EXPECT_EQ(ze_adapter_cli_lsw_phy_set_power(req, 8, &reply), 0u);
    EXPECT_EQ(ze_adapter_cli_lsw_phy_set_power(req, 9, &reply), ZE_ERR_PARAM);
    EXPECT_NE(console().find("../adapter_cli/ze_adapter_cli_lsw_phy.cpp"), std::string::npos);
}

}  // namespace
