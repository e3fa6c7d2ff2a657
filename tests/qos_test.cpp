// QoS queues, shaping, scheduling and WRED.
#include "rate_support.h"
#include "ze_lsw_qos.h"

namespace {

using namespace zetest;
using Qos = SimTest;

TEST_F(Qos, SettersChangeOnlyTheirOwnFields) {
    // Every setter re-keys: it writes its key words again after the read.
    auto rmw = [](uint32_t get, uint32_t size, Fields keys, std::function<uint32_t()> call, Fields written) {
        expect_rmw({get, get - 1, size, keys, call, written, true});
    };
    rmw(2615, 28, {{0, 9}}, [] { return ze_lsw_qos_set_queue_shaping(9, 1, 2, 3); }, {{8, 1}, {20, 2}, {24, 3}});
    rmw(2577, 12, {{0, 17}}, [] { return ze_lsw_qos_set_queue_buffer(17, 100, 200); }, {{4, 100}, {8, 200}});
    rmw(2575, 20, {{0, 3}, {4, 0}, {8, 5}}, [] { return ze_lsw_qos_set_queue_map(3, 5, 0x106); }, {{16, 0x106}});
    rmw(2569, 16, {{0, 12}}, [] { return ze_lsw_qos_set_in_pri(12, 6); }, {{8, 1}, {12, 6}});
    // Entry 5 of port 2 carries global queue id 21.
    rmw(2579, 164, {{0, 2}}, [] { return ze_lsw_qos_set_egr_schattr(2, 5, 0x11, 0x1234); },
        {{104, 1}, {112, 21}, {116, 0x11}, {120, 0x1234}});
    rmw(2579, 164, {{0, 13}}, [] { return ze_lsw_qos_set_egr_schattr(13, 7, 1, 2); },
        {{144, 1}, {152, 111}, {156, 1}, {160, 2}});
    // Only port 13 carries the special shaping flag.
    rmw(2587, 24, {{0, 13}}, [] { return ze_lsw_qos_set_egr_shaping(13, 900); }, {{12, 1}, {16, 1}, {20, 900}});
    rmw(2587, 24, {{0, 10}}, [] { return ze_lsw_qos_set_egr_shaping(10, 900); }, {{12, 1}, {16, 0}, {20, 900}});

    // The getters read back what was written, among the other words.
    uint32_t a = 0, b = 0, c = 0, buf = 0, pri = 0, rate = 0, w = 0;
    uint8_t map = 0, sch = 0, count = 0;
    for (uint32_t r : {ze_lsw_qos_get_queue_shaping(9, &a, &b, &c),
                       ze_lsw_qos_get_queue_buffer(17, nullptr, &buf),  // b1 is not required
                       ze_lsw_qos_get_in_pri(12, &pri), ze_lsw_qos_get_egr_shaping(10, &rate),
                       ze_lsw_qos_get_queue_map(3, 5, &map),  // the low byte
                       ze_lsw_qos_get_egr_schattr(2, 5, &w, &sch), ze_lsw_qos_get_queuecount(&count)})
        EXPECT_EQ(r, 0u);
    EXPECT_EQ((Words{a, b, c, buf, pri, rate, map, sch, count}), (Words{1, 2, 3, 200, 6, 900, 0x06, 0x34, 8}));
}

// Null outputs and out-of-range scheduling keys reach no driver; only the
// latter are traced.
TEST_F(Qos, RefusalsReachNoDriver) {
    uint32_t w = 0;
    for (uint32_t r : {ze_lsw_qos_get_queuecount(nullptr), ze_lsw_qos_get_in_pri(0, nullptr),
                       ze_lsw_qos_get_queue_shaping(0, &w, nullptr, &w), ze_lsw_qos_get_egr_shaping(0, nullptr),
                       ze_lsw_qos_get_egr_schattr(0, 0, &w, nullptr), ze_lsw_qos_get_queue_buffer(0, &w, nullptr),
                       ze_lsw_qos_get_queue_map(0, 0, nullptr)})
        EXPECT_EQ(r, ZE_ERR_NULL_PTR);
    EXPECT_TRUE(traces().empty());
    for (auto [port, queue] : {std::pair{14u, 0u}, {0u, 8u}}) {
        EXPECT_EQ(ze_lsw_qos_set_egr_schattr(port, queue, 1, 2), ZE_ERR_PARAM);
        EXPECT_EQ(traces().back().result, ZE_ERR_PARAM);
    }
    EXPECT_TRUE(zesim::log().empty());
}

// set_in_pri ignores its write's answer but not its read's; egress shaping
// at rate 0 writes twice and returns the second write's failure.
TEST_F(Qos, WriteAnswers) {
    zesim::fail(2568, 0xdead);
    EXPECT_EQ(ze_lsw_qos_set_in_pri(12, 6), 0u);
    EXPECT_EQ(traces().back().result, 0u);
    zesim::fail(2569, kBusy);
    zesim::clear_log();
    EXPECT_EQ(ze_lsw_qos_set_in_pri(12, 6), ZE_ERR_PARAM);
    EXPECT_EQ(zesim::commands(), (Words{2569}));

    ASSERT_EQ(ze_lsw_qos_set_egr_shaping(13, 0), 0u);
    EXPECT_EQ(sent_words(2586, {0, 12, 16, 20}), (Words{13, 1, 1, 15625, 13, 0, 1, 15625}));
    zesim::fail(2586, 0x1234, 2);
    EXPECT_EQ(ze_lsw_qos_set_egr_shaping(1, 0), ZE_ERR_FAIL);
    EXPECT_EQ(traces().back().result, ZE_ERR_FAIL);
}

TEST_F(Qos, WredIsKeyedByWordsZeroAndTwo) {
    ze_lsw_qos_wred_s p{}, q{};
    for (uint32_t i = 0; i < 11; ++i) p.word[i] = 100 + i;
    p.word[0] = q.word[0] = 3;
    p.word[2] = q.word[2] = 1;
    zesim::fail(2583, 0xdead, 1);  // the preliminary read does not matter
    ASSERT_EQ(ze_lsw_qos_set_wred(p), 0u);
    EXPECT_EQ(zesim::commands(), (Words{2583, 2582}));
    EXPECT_EQ(words(entries_of(2583)[0].sent, {0, 4, 8}), (Words{3, 0, 1}));
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
