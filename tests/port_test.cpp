// Port attributes, status, tag actions, default VLAN and priority, PHY
// placeholders, and the port and PHY commands.
#include <algorithm>

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
        return std::ranges::any_of(traces(), [&](const auto &t) { return func == t.func; });
    }
};

// One UNI word: its setter, its getter (as a word) and where it lands.
template <class T, uint32_t (*F)(uint32_t, T *)>
uint32_t narrow(uint32_t port, uint32_t *value) {
    T v = static_cast<T>(*value);  // an output left alone stays as it was
    uint32_t r = F(port, &v);
    *value = v;
    return r;
}
const struct {
    const char *name;
    uint32_t (*set)(uint32_t, uint32_t);
    uint32_t (*get)(uint32_t, uint32_t *);
    uint32_t offset, mask;  // the getter returns the word under the mask
    bool eth_only;         // refuses every other port, traced
} kUniWords[] = {
    {"workmode", ze_lsw_port_set_workmode, ze_lsw_port_get_workmode, 16, 0xffffffff, true},
    {"loopback", ze_lsw_port_set_loopback, ze_lsw_port_get_loopback, 32, 0xffffffff, true},
    {"pause", ze_lsw_port_set_pause, narrow<uint8_t, ze_lsw_port_get_pause>, 136, 0xff, true},
    {"uni tag act", [](uint32_t p, uint32_t v) { return ze_lsw_port_set_uni_tag_act(p, 0, 0, v); },
     [](uint32_t p, uint32_t *v) { return ze_lsw_port_get_tag_act(p, 0, 0, v); }, 60, 0xffffffff, true},
    {"status", ze_lsw_port_set_status, narrow<uint8_t, ze_lsw_port_get_status>, 4, 0xff, false},
    {"defvlan", ze_lsw_port_set_defvlan, narrow<uint16_t, ze_lsw_port_get_defvlan>, 88, 0xffff, false},
    {"defpri", ze_lsw_port_set_defpri, narrow<uint8_t, ze_lsw_port_get_defpri>, 96, 0xff, false},
};

TEST_F(Port, EthernetWordsLandInTheRightPortAndCarryTheRest) {
    for (const auto &w : kUniWords) {
        zesim::set_word(0x320, 180, 0xc0ffee, {3});
        zesim::clear_log();
        const uint32_t value = 0x12345600 + w.offset;  // a value of its own per word
        ASSERT_EQ(w.set(3, value), 0u) << w.name;
        EXPECT_EQ(commands(), (Ids{0x320, 0x321})) << w.name;
        // Stored, the rest of the block carried, and another port's block left as it was.
        EXPECT_EQ((Ids{zesim::word(0x320, w.offset, {3}), zesim::word(0x320, 180, {3}),
                       zesim::word(0x320, w.offset, {2})}),
                  (Ids{value, 0xc0ffee, w.offset == 4 || w.offset == 88 ? 1u : 0u})) << w.name;
        uint32_t v = 0;
        EXPECT_EQ((Ids{w.get(3, &v), v}), (Ids{0, value & w.mask})) << w.name;
    }
    EXPECT_EQ(zesim::word(0x320, 152, {3}), 0x12345600u + 136) << "the second pause word";
    zesim::set_word(0x320, 184, 3, {4});
    uint32_t state = 0;
    EXPECT_EQ((Ids{ze_lsw_port_get_stpstate(4, &state), state}), (Ids{0, 3}));
}

TEST_F(Port, EthernetOnlyAttributesRefusePonAndBeyond) {
    // A refusal: 0xffffffff, and a trace that records it.
    auto refused = [this](uint32_t r) {
        const bool traced = !traces().empty() && traces().back().result == ZE_ERR_FAIL;
        ze_host_trace_clear();
        return r == ZE_ERR_FAIL && traced;
    };
    for (uint32_t port : {5u, 6u, 9u}) {
        uint32_t v = 0;
        EXPECT_TRUE(refused(ze_lsw_port_get_stpstate(port, &v))) << port;
        EXPECT_TRUE(refused(ze_lsw_port_set_cpu_tag_act(port, 0, 0, 1))) << port;
        for (const auto &w : kUniWords)
            EXPECT_TRUE(!w.eth_only || (refused(w.set(port, 1)) && refused(w.get(port, &v)))) << w.name << port;
    }
    EXPECT_TRUE(zesim::log().empty()) << "nothing sent";
}

TEST_F(Port, NullOutputsAreRefusedUntraced) {
    EXPECT_EQ((Ids{ze_lsw_port_get_workmode(0, nullptr), ze_lsw_port_get_pause(0, nullptr),
                   ze_lsw_port_get_loopback(0, nullptr), ze_lsw_port_get_stpstate(0, nullptr),
                   ze_lsw_port_get_stp(nullptr), ze_lsw_port_get_mtu(0, nullptr),
                   ze_lsw_port_get_tag_act(0, 0, 0, nullptr), ze_lsw_port_get_defvlan(0, nullptr),
                   ze_lsw_port_get_defpri(0, nullptr)}),
              Ids(9, ZE_ERR_NULL_PTR));
    EXPECT_TRUE(traces().empty());
    EXPECT_TRUE(zesim::log().empty());
}

TEST_F(Port, MtuAndStpAreSwitchWideWords) {
    uint32_t enable = 0, mtu = 0;
    EXPECT_EQ((Ids{ze_lsw_port_set_stp(7), ze_lsw_port_get_stp(&enable), enable, zesim::word(0x300, 0)}),
              (Ids{0, 0, 7, 7}));
    for (uint32_t port = 0; port < 9; ++port)  // set through one port, read through another
        EXPECT_EQ((Ids{ze_lsw_port_set_mtu(port, 1500 + port), ze_lsw_port_get_mtu((port + 4) % 9, &mtu), mtu}),
                  (Ids{0, 0, 1500 + port}));
    zesim::clear_log();
    EXPECT_EQ((Ids{ze_lsw_port_set_mtu(9, 1600), static_cast<uint32_t>(zesim::log().size())}), (Ids{ZE_ERR_FAIL, 0}));
    EXPECT_EQ(zesim::word(0x100, 4), 1u) << "the up mode beside the MTU is carried";
}

TEST_F(Port, DriverInvalidParameterIsEighteenExceptWhereFolded) {
    upmode(0);
    for (uint32_t id : {0x320u, 0x310u, 0xe00u}) zesim::fail(id, ZE_DRV_INVALID_PARAM);
    EXPECT_EQ((Ids{ze_lsw_port_set_defvlan(1, 1), ze_lsw_port_set_defvlan(6, 1), ze_lsw_port_set_defvlan(5, 1),
                   ze_lsw_port_set_uni_tag_act(1, 0, 0, 1), ze_lsw_port_set_tag_act(1, 0, 0, 1),
                   ze_lsw_port_set_status(1, 1)}),
              (Ids{ZE_ERR_PARAM, ZE_ERR_PARAM, ZE_ERR_FAIL, ZE_ERR_PARAM, ZE_ERR_FAIL, ZE_ERR_FAIL}));
    EXPECT_TRUE(traced_as("ze_lsw_eth_set_status") && traced_as("ze_lsw_pon_set_defvlan"));
    uint8_t s = 0;
    EXPECT_EQ((Ids{ze_lsw_port_get_status(1, &s), traces().end()[-2].result, traces().back().result}),
              (Ids{ZE_ERR_FAIL, ZE_ERR_PARAM, ZE_ERR_FAIL})) << "the variant traces its own 18";
    zesim::fail(0x100, ZE_DRV_INVALID_PARAM);
    EXPECT_EQ(ze_lsw_port_get_status(5, &s), ZE_ERR_FAIL) << "a failing up mode read is folded too";
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
    EXPECT_EQ((Ids{ze_lsw_port_get_tag_act(4, 1, 2, &a), a}), (Ids{0, 0x400 + 0x10 + 3}));
}

TEST_F(Port, TagActionVariantsAcceptOnlyTheirPortsAndIgnoreUnknownPairs) {
    EXPECT_EQ((Ids{ze_lsw_port_set_nni_tag_act(3, 0, 0, 1), static_cast<uint32_t>(traces().size())}),
              (Ids{ZE_ERR_FAIL, 0})) << "the NNI refusal is untraced";
    for (uint32_t port : {6u, 7u, 9u}) EXPECT_EQ(ze_lsw_port_set_tag_act(port, 0, 0, 1), ZE_ERR_FAIL) << port;
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_TRUE(traced_as("ze_lsw_port_set_cpu_tag_act")) << "port 6 goes to the CPU variant";
    // The CPU block is reached only directly, with an Ethernet number.
    ASSERT_EQ(ze_lsw_port_set_cpu_tag_act(2, 1, 1, 7), 0u);
    EXPECT_EQ(commands(), (Ids{0x310, 0x311}));
    EXPECT_EQ(zesim::word(0x310, 16), 7u);
    uint32_t a = 0xaa;
    EXPECT_EQ((Ids{ze_lsw_port_get_tag_act(1, 2, 0, &a), a}), (Ids{0, 0xaa})) << "an unknown pair reads nothing";
    auto before = zesim::block(0x320, {1});
    EXPECT_EQ(ze_lsw_port_set_uni_tag_act(1, 0, 3, 5), 0u);
    EXPECT_EQ(zetest::entries_of(0x321).at(0).sent, before);
}

TEST_F(Port, StatusAndDefaultsDispatchByPortKindAndUpMode) {
    // Per word (status, default VLAN, default priority): where the setter
    // stores it (kNone: nowhere) and what the getter then gives (0x5a: the
    // output is left alone).
    constexpr uint32_t kNone = 0xffffffff;
    const struct {
        uint32_t port, mode;
        Ids ids;
        uint32_t block, off[3], got[3];
    } cases[] = {
        {1, 1, {0x320, 0x321}, 0x320, {4, 88, 96}, {2, 0x64, 5}},
        {6, 1, {0x310, 0x311}, 0x310, {kNone, 28, 36}, {0x5a, 0x64, 5}},  // the CPU port has no status
        {5, 0, {0x100, 0xe00, 0xe01}, 0xe00, {0, 8, 16}, {2, 0x64, 5}},
        {5, 1, {0x100, 0x211, 0x212}, 0x211, {0, 8, kNone}, {2, 0x64, 0}},  // GPON keeps its priority
        {5, 2, {0x100}, 0, {kNone, kNone, kNone}, {0x5a, 0x5a, 0x5a}},
        {7, 1, {}, 0, {kNone, kNone, kNone}, {0x5a, 0x5a, 0x5a}},
        {8, 1, {}, 0, {kNone, kNone, kNone}, {0x5a, 0x5a, 0x5a}},
    };
    const uint32_t values[3] = {0x302, 0x70064, 0x305};
    for (const auto &c : cases)
        for (int k = 0; k < 3; ++k) {
            const auto &w = kUniWords[4 + k];  // the last three rows
            const std::string at = std::string(w.name) + " " + std::to_string(c.port) + "/" + std::to_string(c.mode);
            upmode(c.mode);
            ASSERT_EQ(w.set(c.port, values[k]), 0u) << at;
            EXPECT_EQ(commands(), c.port == 6 && k == 0 ? Ids{} : c.ids) << at;
            uint32_t got = 0x5a;
            EXPECT_EQ((Ids{w.get(c.port, &got), got}), (Ids{0, c.got[k]})) << at;
            EXPECT_EQ(c.off[k] == kNone ? values[k] : zesim::word(c.block, c.off[k], {c.port}), values[k]) << at;
        }
    for (const char *f : {"ze_lsw_eth_get_status", "ze_lsw_pon_set_status", "ze_lsw_pon_set_defpri"})
        EXPECT_TRUE(traced_as(f)) << f;
    uint8_t s = 0x5a;
    uint16_t v = 0;
    EXPECT_EQ((Ids{ze_lsw_port_get_status(200, &s), s, ze_lsw_port_get_defvlan(9, &v)}), (Ids{0, 0x5a, ZE_ERR_FAIL}));
    ze_host_trace_clear();
    EXPECT_EQ(ze_lsw_port_get_status(2, nullptr), ZE_ERR_FAIL);
    ASSERT_EQ(traces().size(), 2u) << "the variant traces the null output";
    EXPECT_EQ(traces()[0].result, ZE_ERR_FAIL);
}

// ---- commands ---------------------------------------------------------------

TEST_F(Port, CommandsPassTheirFieldsInOrder) {
    uint32_t tag[4] = {2, 1, 2, 0x33}, reply = 0;
    ASSERT_EQ(call("ze_adapter_cli_lsw_port_set_tag_act", tag, 16, &reply), 0u);
    EXPECT_EQ(zesim::word(0x320, 80, {2}), 0x33u);
    tag[3] = 0;
    EXPECT_EQ((Ids{call("ze_adapter_cli_lsw_port_get_tag_act", tag, 16, &reply), tag[3]}), (Ids{0, 0x33}));
    uint32_t set_pri[2] = {3, 0xffffff06};  // the set takes a word, the get replies a byte
    ASSERT_EQ(call("ze_adapter_cli_lsw_port_set_pri", set_pri, 8, &reply), 0u);
    struct {
        uint32_t port;
        uint8_t priority, pad[3];
    } pri = {3, 0xaa, {0xaa, 0xaa, 0xaa}};  // only the priority byte is written
    EXPECT_EQ((Ids{call("ze_adapter_cli_lsw_port_get_pri", &pri, 8, &reply), pri.priority, pri.pad[0], pri.pad[2]}),
              (Ids{0, 6, 0xaa, 0xaa}));
}

TEST_F(Port, PauseTimeAndPhyAnswerWithoutTouchingAnything) {
    uint32_t v = 42, req[2] = {1, 1}, reply = 0;
    EXPECT_EQ((Ids{ze_lsw_port_get_pausetime(99, &v), ze_lsw_port_set_pausetime(99, 1),
                   ze_lsw_phy_get_mode(99, nullptr), ze_lsw_phy_get_status(1, &v), ze_lsw_phy_get_power(1, &v), v,
                   static_cast<uint32_t>(traces().size())}),
              (Ids{0, 0, 0, 0, 0, 42, 5}));
    // The unregistered PHY power set command refuses other lengths as its family does.
    EXPECT_EQ(ze_adapter_cli_lsw_phy_set_power(req, 9, &reply), ZE_ERR_PARAM);
    EXPECT_NE(console().find("../adapter_cli/ze_adapter_cli_lsw_phy.cpp"), std::string::npos);
    EXPECT_TRUE(zesim::log().empty());
}

}  // namespace
