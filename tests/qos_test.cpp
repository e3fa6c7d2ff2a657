// QoS queues, shaping, scheduling and WRED.
#include <vector>

#include "test_support.h"
#include "ze_lsw_qos.h"

namespace {

using Qos = zetest::SimTest;
using zetest::entries_of;
using zetest::word_at;

constexpr uint32_t kBusy = 0xf0000101;

TEST_F(Qos, SettersReadModifyWriteTheirOwnFieldsOnly) {
    zesim::set_word(2615, 4, 0xaa, {9});
    ASSERT_EQ(ze_lsw_qos_set_queue_shaping(9, 1, 2, 3), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{2615, 2614}));
    auto q = zesim::block(2615, {9});
    EXPECT_EQ(word_at(q, 4), 0xaau);
    EXPECT_EQ(word_at(q, 8), 1u);
    EXPECT_EQ(word_at(q, 20), 2u);
    EXPECT_EQ(word_at(q, 24), 3u);
    uint32_t p1 = 0, p2 = 0, p3 = 0;
    ASSERT_EQ(ze_lsw_qos_get_queue_shaping(9, &p1, &p2, &p3), 0u);
    EXPECT_EQ((std::vector<uint32_t>{p1, p2, p3}), (std::vector<uint32_t>{1, 2, 3}));

    ASSERT_EQ(ze_lsw_qos_set_queue_buffer(17, 100, 200), 0u);
    EXPECT_EQ(zesim::word(2577, 4, {17}), 100u);
    EXPECT_EQ(zesim::word(2577, 8, {17}), 200u);

    zesim::set_word(2575, 12, 1, {3, 0, 5});  // valid flag belongs to the driver
    ASSERT_EQ(ze_lsw_qos_set_queue_map(3, 5, 0x106), 0u);
    auto m = zesim::block(2575, {3, 0, 5});
    EXPECT_EQ(word_at(m, 12), 1u);
    EXPECT_EQ(word_at(m, 16), 0x106u);
    uint8_t queue = 0;
    ASSERT_EQ(ze_lsw_qos_get_queue_map(3, 5, &queue), 0u);
    EXPECT_EQ(queue, 6);  // low byte
}

TEST_F(Qos, NullOutputsAreRefusedWithoutTrace) {
    uint32_t w = 0;
    uint8_t b = 0;
    EXPECT_EQ(ze_lsw_qos_get_queuecount(nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_in_pri(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_queue_shaping(0, &w, nullptr, &w), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_egr_shaping(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_egr_schattr(0, 0, &w, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_queue_buffer(0, &w, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_queue_map(0, 0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_TRUE(traces().empty());
    EXPECT_TRUE(zesim::log().empty());

    // Only the second buffer output is required.
    zesim::set_word(2577, 8, 77, {4});
    ASSERT_EQ(ze_lsw_qos_get_queue_buffer(4, nullptr, &w), 0u);
    EXPECT_EQ(w, 77u);
    ASSERT_EQ(ze_lsw_qos_get_queuecount(&b), 0u);
    EXPECT_EQ(b, 8);
}

TEST_F(Qos, InPriIgnoresTheWritesAnswerButNotTheRead) {
    zesim::fail(2568, 0xdead);
    EXPECT_EQ(ze_lsw_qos_set_in_pri(12, 6), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{2569, 2568}));
    auto set = entries_of(2568);
    EXPECT_EQ(word_at(set[0].sent, 0), 12u);
    EXPECT_EQ(word_at(set[0].sent, 8), 1u);
    EXPECT_EQ(word_at(set[0].sent, 12), 6u);
    EXPECT_EQ(traces().back().result, 0u);

    zesim::clear_faults();
    zesim::fail(2569, kBusy);
    EXPECT_EQ(ze_lsw_qos_set_in_pri(12, 6), ZE_ERR_PARAM);
    EXPECT_TRUE(entries_of(2568).size() == 1);  // no second write

    zesim::clear_faults();
    ASSERT_EQ(ze_lsw_qos_set_in_pri(12, 6), 0u);
    uint32_t pri = 0;
    ASSERT_EQ(ze_lsw_qos_get_in_pri(12, &pri), 0u);
    EXPECT_EQ(pri, 6u);
}

TEST_F(Qos, EgressShapingRateZeroWritesTwiceAndPortThirteenIsFlagged) {
    const struct {
        uint32_t port, rate, special;
        std::vector<std::pair<uint32_t, uint32_t>> writes;  // enable, rate
    } cases[] = {
        {2, 0, 0, {{1, 15625}, {0, 15625}}},
        {13, 0, 1, {{1, 15625}, {0, 15625}}},
        {13, 900, 1, {{1, 900}}},
        {10, 900, 0, {{1, 900}}},
    };
    for (const auto &c : cases) {
        zesim::clear_log();
        zesim::set_word(2587, 16, 7, {c.port});
        ASSERT_EQ(ze_lsw_qos_set_egr_shaping(c.port, c.rate), 0u);
        auto sets = entries_of(2586);
        ASSERT_EQ(sets.size(), c.writes.size()) << c.port << " " << c.rate;
        for (size_t i = 0; i < sets.size(); ++i) {
            EXPECT_EQ(word_at(sets[i].sent, 0), c.port);
            EXPECT_EQ(word_at(sets[i].sent, 12), c.writes[i].first);
            EXPECT_EQ(word_at(sets[i].sent, 16), c.special);
            EXPECT_EQ(word_at(sets[i].sent, 20), c.writes[i].second);
        }
        uint32_t rate = 0;
        ASSERT_EQ(ze_lsw_qos_get_egr_shaping(c.port, &rate), 0u);
        EXPECT_EQ(rate, c.rate ? c.rate : 15625u);
    }
    // A failing second write is returned.
    zesim::fail(2586, 0x1234, 2);
    EXPECT_EQ(ze_lsw_qos_set_egr_shaping(1, 0), ZE_ERR_FAIL);
    EXPECT_EQ(traces().back().result, ZE_ERR_FAIL);
}

TEST_F(Qos, SchedulingChecksThePortAndWritesTheGlobalQueueId) {
    EXPECT_EQ(ze_lsw_qos_set_egr_schattr(14, 0, 1, 2), ZE_ERR_PARAM);
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_EQ(traces().back().result, ZE_ERR_PARAM);

    zesim::set_word(2579, 4 + 20 * 5 + 4, 0x55, {2});
    ASSERT_EQ(ze_lsw_qos_set_egr_schattr(2, 5, 0x11, 0x1234), 0u);
    auto b = zesim::block(2579, {2});
    const uint32_t e = 4 + 20 * 5;
    EXPECT_EQ(word_at(b, e), 1u);
    EXPECT_EQ(word_at(b, e + 4), 0x55u);
    EXPECT_EQ(word_at(b, e + 8), 21u);
    EXPECT_EQ(word_at(b, e + 12), 0x11u);
    EXPECT_EQ(word_at(b, e + 16), 0x1234u);
    EXPECT_EQ(word_at(b, 4), 0u);  // other queues untouched

    ASSERT_EQ(ze_lsw_qos_set_egr_schattr(13, 7, 1, 2), 0u);
    EXPECT_EQ(zesim::word(2579, 4 + 20 * 7 + 8, {13}), 111u);

    uint32_t unused = 0;
    uint8_t s2 = 0;
    ASSERT_EQ(ze_lsw_qos_get_egr_schattr(2, 5, &unused, &s2), 0u);
    EXPECT_EQ(s2, 0x34);
    EXPECT_EQ(ze_lsw_qos_set_egr_schattr(0, 8, 1, 2), ZE_ERR_PARAM);
}

TEST_F(Qos, WredIsKeyedByWordsZeroAndTwo) {
    ze_lsw_qos_wred_s p{};
    for (uint32_t i = 0; i < 11; ++i) p.word[i] = 100 + i;
    p.word[0] = 3;
    p.word[2] = 1;
    zesim::fail(2583, 0xdead);  // the preliminary read does not matter
    ASSERT_EQ(ze_lsw_qos_set_wred(p), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{2583, 2582}));
    EXPECT_EQ(word_at(entries_of(2583)[0].sent, 0), 3u);
    EXPECT_EQ(word_at(entries_of(2583)[0].sent, 8), 1u);
    EXPECT_EQ(word_at(entries_of(2583)[0].sent, 4), 0u);
    zesim::clear_faults();

    ze_lsw_qos_wred_s q{};
    q.word[0] = 3;
    q.word[2] = 1;
    q.word[5] = 0xbad;  // not a key: replaced by what is stored
    ASSERT_EQ(ze_lsw_qos_get_wred(&q), 0u);
    for (uint32_t i = 0; i < 11; ++i) EXPECT_EQ(q.word[i], p.word[i]) << i;

    zesim::fail(2582, kBusy);
    EXPECT_EQ(ze_lsw_qos_set_wred(p), ZE_ERR_PARAM);
    zesim::fail(2583, kBusy);
    q.word[5] = 0xbad;
    EXPECT_EQ(ze_lsw_qos_get_wred(&q), ZE_ERR_PARAM);
    EXPECT_EQ(q.word[5], 0xbadu);
}

TEST_F(Qos, DriverFailuresAreMappedAndOutputsKept) {
    zesim::fail(2577, kBusy);
    uint32_t a = 5, b = 5;
    EXPECT_EQ(ze_lsw_qos_get_queue_buffer(1, &a, &b), ZE_ERR_PARAM);
    EXPECT_EQ(b, 5u);
    zesim::clear_faults();
    zesim::fail(2574, 0x77);
    EXPECT_EQ(ze_lsw_qos_set_queue_map(1, 1, 1), ZE_ERR_FAIL);
    EXPECT_EQ(traces().back().result, ZE_ERR_FAIL);
    EXPECT_EQ(ze_lsw_qos_get_gemport_pri(), 0u);
}

}  // namespace
