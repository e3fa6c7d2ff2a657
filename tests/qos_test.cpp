// QoS queues, shaping, scheduling and WRED.
#include <vector>

#include "rate_support.h"
#include "ze_lsw_qos.h"

namespace {

using Qos = zetest::SimTest;
using zetest::entries_of;
using zetest::kBusy;
using zetest::word_at;
using zetest::Words;
using zetest::words;

TEST_F(Qos, SettersChangeOnlyTheirFieldsAndGettersReadThemBack) {
    zesim::set_word(2615, 4, 0xaa, {9});
    ASSERT_EQ(ze_lsw_qos_set_queue_shaping(9, 1, 2, 3), 0u);
    EXPECT_EQ(zesim::commands(), (Words{2615, 2614}));
    EXPECT_EQ(words(zesim::block(2615, {9}), {4, 8, 20, 24}), (Words{0xaa, 1, 2, 3}));
    uint32_t p1 = 0, p2 = 0, p3 = 0;
    ASSERT_EQ(ze_lsw_qos_get_queue_shaping(9, &p1, &p2, &p3), 0u);
    EXPECT_EQ((Words{p1, p2, p3}), (Words{1, 2, 3}));

    ASSERT_EQ(ze_lsw_qos_set_queue_buffer(17, 100, 200), 0u);
    EXPECT_EQ(words(zesim::block(2577, {17}), {4, 8}), (Words{100, 200}));
    // Only the second buffer output is required.
    ASSERT_EQ(ze_lsw_qos_get_queue_buffer(17, nullptr, &p2), 0u);
    EXPECT_EQ(p2, 200u);

    zesim::set_word(2575, 12, 1, {3, 0, 5});  // valid flag belongs to the driver
    ASSERT_EQ(ze_lsw_qos_set_queue_map(3, 5, 0x106), 0u);
    EXPECT_EQ(words(zesim::block(2575, {3, 0, 5}), {12, 16}), (Words{1, 0x106}));
    uint8_t queue = 0;
    ASSERT_EQ(ze_lsw_qos_get_queue_map(3, 5, &queue), 0u);
    EXPECT_EQ(queue, 6);  // low byte

    ASSERT_EQ(ze_lsw_qos_get_queuecount(&queue), 0u);
    EXPECT_EQ(queue, 8);
}

TEST_F(Qos, NullOutputsAreRefusedWithoutTrace) {
    uint32_t w = 0;
    EXPECT_EQ(ze_lsw_qos_get_queuecount(nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_in_pri(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_queue_shaping(0, &w, nullptr, &w), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_egr_shaping(0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_egr_schattr(0, 0, &w, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_queue_buffer(0, &w, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_EQ(ze_lsw_qos_get_queue_map(0, 0, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_TRUE(traces().empty());
    EXPECT_TRUE(zesim::log().empty());
}

TEST_F(Qos, InPriIgnoresTheWritesAnswerButNotTheRead) {
    zesim::fail(2568, 0xdead);
    EXPECT_EQ(ze_lsw_qos_set_in_pri(12, 6), 0u);
    EXPECT_EQ(zesim::commands(), (Words{2569, 2568}));
    EXPECT_EQ(words(entries_of(2568)[0].sent, {0, 8, 12}), (Words{12, 1, 6}));
    EXPECT_EQ(traces().back().result, 0u);

    zesim::clear_faults();
    zesim::fail(2569, kBusy);
    EXPECT_EQ(ze_lsw_qos_set_in_pri(12, 6), ZE_ERR_PARAM);
    EXPECT_EQ(entries_of(2568).size(), 1u);  // no second write

    zesim::clear_faults();
    zesim::set_word(2569, 12, 6, {12});
    uint32_t pri = 0;
    ASSERT_EQ(ze_lsw_qos_get_in_pri(12, &pri), 0u);
    EXPECT_EQ(pri, 6u);
}

TEST_F(Qos, EgressShapingRateZeroWritesTwiceAndPortThirteenIsFlagged) {
    const struct {
        uint32_t port, rate, special;
        std::vector<Words> writes;  // enable, rate
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
            const Words &w = c.writes[i];
            EXPECT_EQ(words(sets[i].sent, {0, 12, 16, 20}), (Words{c.port, w[0], c.special, w[1]}));
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
    for (auto [port, queue] : {std::pair{14u, 0u}, {0u, 8u}}) {
        EXPECT_EQ(ze_lsw_qos_set_egr_schattr(port, queue, 1, 2), ZE_ERR_PARAM);
        EXPECT_EQ(traces().back().result, ZE_ERR_PARAM);
    }
    EXPECT_TRUE(zesim::log().empty());

    const uint32_t e = 4 + 20 * 5;
    zesim::set_word(2579, e + 4, 0x55, {2});
    ASSERT_EQ(ze_lsw_qos_set_egr_schattr(2, 5, 0x11, 0x1234), 0u);
    EXPECT_EQ(words(zesim::block(2579, {2}), {e, e + 4, e + 8, e + 12, e + 16, 4}),
              (Words{1, 0x55, 21, 0x11, 0x1234, 0}));
    ASSERT_EQ(ze_lsw_qos_set_egr_schattr(13, 7, 1, 2), 0u);
    EXPECT_EQ(zesim::word(2579, 4 + 20 * 7 + 8, {13}), 111u);

    uint32_t unused = 0;
    uint8_t s2 = 0;
    ASSERT_EQ(ze_lsw_qos_get_egr_schattr(2, 5, &unused, &s2), 0u);
    EXPECT_EQ(s2, 0x34);
}

TEST_F(Qos, WredIsKeyedByWordsZeroAndTwo) {
    ze_lsw_qos_wred_s p{};
    for (uint32_t i = 0; i < 11; ++i) p.word[i] = 100 + i;
    p.word[0] = 3;
    p.word[2] = 1;
    zesim::fail(2583, 0xdead);  // the preliminary read does not matter
    ASSERT_EQ(ze_lsw_qos_set_wred(p), 0u);
    EXPECT_EQ(zesim::commands(), (Words{2583, 2582}));
    EXPECT_EQ(words(entries_of(2583)[0].sent, {0, 4, 8}), (Words{3, 0, 1}));
    zesim::clear_faults();

    ze_lsw_qos_wred_s q{};
    q.word[0] = 3;
    q.word[2] = 1;
    q.word[5] = 0xbad;  // not a key: replaced by what is stored
    ASSERT_EQ(ze_lsw_qos_get_wred(&q), 0u);
    EXPECT_EQ(Words(q.word, q.word + 11), Words(p.word, p.word + 11));

    // A failed read leaves the record as it was.
    zesim::fail(2583, kBusy);
    q.word[5] = 0xbad;
    EXPECT_EQ(ze_lsw_qos_get_wred(&q), ZE_ERR_PARAM);
    EXPECT_EQ(q.word[5], 0xbadu);
}

}  // namespace
