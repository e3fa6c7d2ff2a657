// Simple, protocol, to-CPU and Ethernet CAR, and the WRED start-up.
#include <vector>

#include "rate_support.h"
#include "ze_lsw_car.h"

namespace {

using Car = zetest::SimTest;
using zetest::entries_of;
using zetest::word_at;
using zetest::Words;
using zetest::kBusy;
using zetest::words;

TEST_F(Car, SingleBlockSettersChangeOnlyTheirOwnFields) {
    const uint32_t eth[4] = {10, 11, 12, 13};
    auto simple = [](uint32_t kind) {
        return [kind] { return ze_lsw_car_set_simple_car(kind, 0x1ff, 22, 33); };
    };
    auto slots = [](std::initializer_list<uint32_t> offsets) {
        zetest::Fields f;
        for (uint32_t o : offsets) f.insert({{o, 0x1ff}, {o + 4, 22}, {o + 8, 33}});
        return f;
    };
    const zetest::Rmw cases[] = {
        // Simple CAR kinds: 0 and 2 write two slots, an unknown kind none.
        {0xa00, 0xa01, 72, {}, simple(0), slots({48, 60})},
        {0xa00, 0xa01, 72, {}, simple(1), slots({0})},
        {0xa00, 0xa01, 72, {}, simple(2), slots({24, 36})},
        {0xa00, 0xa01, 72, {}, simple(3), slots({12})},
        {0xa00, 0xa01, 72, {}, simple(7), {}},
        {0x604, 0x605, 60, {{0, 4}},
         [] { return ze_lsw_car_set_protocol_paket_action(4, 5, 0xabc); }, {{56, 0xabc}}},
        // Ingress Ethernet CAR: words 3 and 1 of the parameters.
        {0x320, 0x321, 188, {{0, 2}}, [&] { return ze_lsw_car_set_eth_car(2, 0, eth); },
         {{148, 1}, {156, 13}, {164, 11}}},
    };
    for (const auto &c : cases) zetest::expect_rmw(c);

    // The getters read the slot of the kind (the first value as a byte) from
    // the block the unknown kind wrote back as it was.
    for (auto [kind, slot] : {std::pair{0u, 48u}, {1u, 0u}, {2u, 24u}, {3u, 12u}, {7u, 0u}}) {
        uint8_t v1 = 9;
        uint32_t v2 = 9, v3 = 9;
        ASSERT_EQ(ze_lsw_car_get_simple_car(kind, &v1, &v2, &v3), 0u);
        const uint32_t w = 0xc0de0000 + slot;
        const Words expected = kind == 7 ? Words{9, 9, 9} : Words{w & 0xff, w + 4, w + 8};
        EXPECT_EQ((Words{v1, v2, v3}), expected) << kind;
    }
    uint32_t action = 0;
    ASSERT_EQ(ze_lsw_car_get_protocol_paket_action(4, 5, &action), 0u);
    EXPECT_EQ(action, 0xabcu);
}

TEST_F(Car, ProtocolCarStartsFromEntryZero) {
    // Entry 0's other fields are carried into the entry.
    zesim::store(0x604, zetest::patterned(60, {{0, 0}}));
    ASSERT_EQ(ze_lsw_car_set_protocol_paket_car(3, 1, 0x1e), 0u);
    EXPECT_EQ(word_at(entries_of(0x604)[0].sent, 0), 0u);
    zesim::Bytes expected = zetest::patterned(60, {{0, 3}, {16, 0x1e}});
    EXPECT_EQ(zesim::block(0x604, {3}), expected);
    EXPECT_EQ(word_at(zesim::block(0x604, {0}), 16), 0xc0de0010u);
    uint8_t car = 0;
    ASSERT_EQ(ze_lsw_car_get_protocol_paket_car(3, 1, &car), 0u);
    EXPECT_EQ(car, 0x1e);

    // Sub-entries whose word would lie beyond the block.
    zesim::clear_log();
    EXPECT_EQ(ze_lsw_car_set_protocol_paket_action(4, 6, 1), ZE_ERR_PARAM);
    EXPECT_EQ(ze_lsw_car_set_protocol_paket_car(4, 12, 1), ZE_ERR_PARAM);
    EXPECT_TRUE(zesim::log().empty());
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

TEST_F(Car, NullOutputsAreRefusedWithoutDriverAccess) {
    uint8_t b = 0;
    uint32_t w = 0;
    EXPECT_EQ(ze_lsw_car_get_simple_car(0, &b, nullptr, &w), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_car_get_protocol_paket_action(0, 0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_car_get_protocol_paket_car(0, 0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_car_get_tocpu_reason_car(0, nullptr, &w, &w), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_car_get_efc_car(0, &b, &w, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_car_set_eth_car(0, 0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_TRUE(traces().empty());
}

TEST_F(Car, EthCarEgressGoesThroughTheShaperAndOtherDirectionsDoNothing) {
    const uint32_t params[4] = {10, 11, 12, 13};
    ASSERT_EQ(ze_lsw_car_set_eth_car(2, 1, params), 0u);
    EXPECT_EQ(zesim::commands(), (Words{2587, 2586}));
    EXPECT_EQ(zesim::word(2587, 20, {10}), 11u);

    zesim::clear_log();
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
}

TEST_F(Car, InitWredFailures) {
    const struct {
        uint32_t cmd, code, result;
    } cases[] = {
        {0xa16, kBusy, ZE_ERR_PARAM},
        {0xa18, 0x5, ZE_ERR_FAIL},
        {0xa0a, kBusy, ZE_ERR_FAIL},  // never 18 for a profile
    };
    for (const auto &c : cases) {
        zesim::reset();
        zesim::fail(c.cmd, c.code, 2);
        EXPECT_EQ(ze_lsw_car_init_wred(), c.result) << std::hex << c.cmd;
        EXPECT_EQ(entries_of(c.cmd).size(), 2u);
        EXPECT_EQ(traces().back().result, c.result);
    }
}

}  // namespace
