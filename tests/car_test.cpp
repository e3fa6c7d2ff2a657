// Simple, protocol, to-CPU and Ethernet CAR, and the WRED start-up.
#include "rate_support.h"
#include "ze_lsw_car.h"

namespace {

using namespace zetest;
using Car = SimTest;

TEST_F(Car, SingleBlockSettersChangeOnlyTheirOwnFields) {
    // Simple CAR kinds and their slots: 0 and 2 write two, an unknown kind none.
    const std::vector<std::pair<uint32_t, Words>> kinds = {{0, {48, 60}}, {1, {0}}, {2, {24, 36}}, {3, {12}}, {7, {}}};
    for (const auto &[kind, slots] : kinds) {
        Fields f;
        for (uint32_t o : slots) f.insert({{o, 0x1ff}, {o + 4, 22}, {o + 8, 33}});
        expect_rmw({0xa00, 0xa01, 72, {}, [k = kind] { return ze_lsw_car_set_simple_car(k, 0x1ff, 22, 33); }, f});
    }
    // The getters read the kind's first slot (the first value as a byte)
    // from the block the unknown kind wrote back as it was.
    for (const auto &[kind, slots] : kinds) {
        uint8_t v1 = 9;
        uint32_t v2 = 9, v3 = 9, w = 0xc0de0000 + (slots.empty() ? 0 : slots[0]);
        ASSERT_EQ(ze_lsw_car_get_simple_car(kind, &v1, &v2, &v3), 0u);
        EXPECT_EQ((Words{v1, v2, v3}), (slots.empty() ? Words{9, 9, 9} : Words{w & 0xff, w + 4, w + 8})) << kind;
    }
    const uint32_t eth[4] = {10, 11, 12, 13};
    const Rmw cases[] = {
        {0x604, 0x605, 60, {{0, 4}}, [] { return ze_lsw_car_set_protocol_paket_action(4, 5, 0xabc); }, {{56, 0xabc}}},
        // Ethernet CAR: ingress takes words 3 and 1 of the parameters,
        // egress goes through the shaper of port 10.
        {0x320, 0x321, 188, {{0, 2}}, [&] { return ze_lsw_car_set_eth_car(2, 0, eth); },
         {{148, 1}, {156, 13}, {164, 11}}},
        {2587, 2586, 24, {{0, 10}}, [&] { return ze_lsw_car_set_eth_car(2, 1, eth); }, {{12, 1}, {16, 0}, {20, 11}}},
    };
    for (const auto &c : cases) expect_rmw(c);
    uint32_t action = 0;
    ASSERT_EQ(ze_lsw_car_get_protocol_paket_action(4, 5, &action), 0u);
    EXPECT_EQ(action, 0xabcu);
}

TEST_F(Car, ProtocolCarStartsFromEntryZero) {
    // Entry 0's other fields are carried into the entry.
    zesim::store(0x604, patterned(60, {{0, 0}}));
    ASSERT_EQ(ze_lsw_car_set_protocol_paket_car(3, 1, 0x1e), 0u);
    EXPECT_EQ(word_at(entries_of(0x604)[0].sent, 0), 0u);
    EXPECT_EQ(zesim::block(0x604, {3}), patterned(60, {{0, 3}, {16, 0x1e}}));
    EXPECT_EQ(word_at(zesim::block(0x604, {0}), 16), 0xc0de0010u);
    uint8_t car = 0;
    ASSERT_EQ(ze_lsw_car_get_protocol_paket_car(3, 1, &car), 0u);
    EXPECT_EQ(car, 0x1e);
}

// Both three-value CARs keep value 3 before value 2 in their block.
TEST_F(Car, TocpuReasonAndEfcCars) {
    zesim::set_word(0xa05, 20, 6, {9});  // reason 9 uses to-CPU CAR 6
    ASSERT_EQ(ze_lsw_car_set_tocpu_reason_car(9, 0x101, 2, 3), 0u);
    ASSERT_EQ(ze_lsw_car_set_efc_car(40, 0x1ab, 4, 5), 0u);  // no read first
    EXPECT_EQ(zesim::commands(), (Words{0xa05, 0xa04, 0xa07, 0xa06, 0xa03}));
    EXPECT_EQ(words(zesim::block(0xa05, {9}), {4, 16}), (Words{1, 1}));
    EXPECT_EQ(words(zesim::block(0xa07, {6}), {4, 8, 12}), (Words{0x101, 3, 2}));
    EXPECT_EQ(words(zesim::block(0xa03, {40}), {4, 8, 12}), (Words{0x1ab, 5, 4}));
    uint8_t v1 = 0, e1 = 0;
    uint32_t v2 = 0, v3 = 0, e2 = 0, e3 = 0;
    ASSERT_EQ(ze_lsw_car_get_tocpu_reason_car(9, &v1, &v2, &v3), 0u);
    ASSERT_EQ(ze_lsw_car_get_efc_car(40, &e1, &e2, &e3), 0u);
    EXPECT_EQ((Words{v1, v2, v3, e1, e2, e3}), (Words{1, 2, 3, 0xab, 4, 5}));

    // A failed reason write stops before the CAR.
    zesim::fail(0xa04, kBusy);
    zesim::clear_log();
    EXPECT_EQ(ze_lsw_car_set_tocpu_reason_car(9, 1, 2, 3), ZE_ERR_PARAM);
    EXPECT_EQ(zesim::commands(), (Words{0xa05, 0xa04}));
}

TEST_F(Car, RefusalsAndNoOpsReachNoDriver) {
    uint8_t b = 0;
    uint32_t w = 0;
    for (uint32_t r : {ze_lsw_car_get_simple_car(0, &b, nullptr, &w), ze_lsw_car_get_efc_car(0, &b, &w, nullptr),
                       ze_lsw_car_get_protocol_paket_action(0, 0, nullptr), ze_lsw_car_set_eth_car(0, 0, nullptr),
                       ze_lsw_car_get_protocol_paket_car(0, 0, nullptr),
                       ze_lsw_car_get_tocpu_reason_car(0, nullptr, &w, &w)})
        EXPECT_EQ(r, ZE_ERR_NULL_PTR);
    EXPECT_TRUE(traces().empty());
    // Protocol sub-entries whose word would lie beyond the block, and an
    // Ethernet CAR direction that is neither ingress nor egress.
    const uint32_t params[4] = {10, 11, 12, 13};
    EXPECT_EQ(ze_lsw_car_set_protocol_paket_action(4, 6, 1), ZE_ERR_PARAM);
    EXPECT_EQ(ze_lsw_car_set_protocol_paket_car(4, 12, 1), ZE_ERR_PARAM);
    EXPECT_EQ(ze_lsw_car_set_eth_car(2, 2, params), 0u);
    EXPECT_TRUE(zesim::log().empty());
    // The shaper's 18 is an inner code: it reaches the caller as -1.
    zesim::fail(2587, kBusy);
    EXPECT_EQ(ze_lsw_car_set_eth_car(2, 1, params), ZE_ERR_FAIL);
}

TEST_F(Car, InitWredWritesBothTablesAndFreesEveryProfile) {
    zesim::set_word(0xa0b, 4, 5, {77});
    ASSERT_EQ(ze_lsw_car_init_wred(), 0u);
    EXPECT_EQ(entries_of(0xa0a).size(), 128u);
    EXPECT_EQ(zesim::commands().size(), 16u + 4 + 128);
    const Words startup{6, 2, 0, 0, 0, 0, 100, 100, 100, 100};
    for (auto [cmd, count] : {std::pair{0xa16u, 16u}, {0xa18u, 4u}}) {
        auto sent = entries_of(cmd);
        ASSERT_EQ(sent.size(), count);
        EXPECT_EQ(word_at(sent.back().sent, 0), count - 1);
        EXPECT_EQ(words(sent.back().sent, {4, 8, 12, 16, 20, 24, 28, 32, 36, 40}), startup);
    }
    EXPECT_EQ(zesim::word(0xa0b, 4, {77}), 0u);

    // A failure stops at once; a profile's is never 18.
    const struct { uint32_t cmd, code, result; } fails[] = {
        {0xa16, kBusy, ZE_ERR_PARAM}, {0xa18, 0x5, ZE_ERR_FAIL}, {0xa0a, kBusy, ZE_ERR_FAIL}};
    for (const auto &c : fails) {
        zesim::reset();
        zesim::fail(c.cmd, c.code, 2);
        EXPECT_EQ(ze_lsw_car_init_wred(), c.result) << std::hex << c.cmd;
        EXPECT_EQ(entries_of(c.cmd).size(), 2u);
        EXPECT_EQ(traces().back().result, c.result);
    }
}

}  // namespace
