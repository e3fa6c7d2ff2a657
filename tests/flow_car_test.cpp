// Flow CAR by sfid and by GEM port, and GEM-port ingress priority: both
// work from the SFC shadow.
#include <algorithm>

#include "rate_support.h"
#include "ze_lsw_car.h"
#include "ze_lsw_qos.h"

namespace {

using namespace zetest;

class FlowCar : public RateTest {
protected:
    bool traced_as(const std::string &func, uint32_t result) const {
        return std::ranges::any_of(traces(), [&](const auto &t) { return func == t.func && t.result == result; });
    }
};

TEST_F(FlowCar, SfidCarIsSetOnceAndEnablesTheClassifierEntryAndFailsItsOwnWay) {
    zesim::store(0x506, patterned(68, {{0, 9}}));
    ASSERT_EQ(ze_lsw_car_set_flow_car(9, 1, 2, 3, -4, 5, 6), 0u);
    EXPECT_EQ(zesim::commands(), (Words{0xa0b, 0xa0b, 0xa0a, 0xa33, 0xa32, 0x506, 0x507}));
    EXPECT_TRUE(traced_as("ze_lsw_car_get_fcar_index", 0));
    EXPECT_EQ(words(zesim::block(0xa0b, {9}), {0, 4, 8, 12, 16, 20, 24}), (Words{9, 1, 2, 3, 0xfffffffc, 5, 6}));
    EXPECT_EQ(words(zesim::block(0xa33, {9}), {4, 8}), (Words{1, 9}));
    // Entry enable and CAR enable on; the rest, entry valid included, kept.
    EXPECT_EQ(zesim::block(0x506, {9}), patterned(68, {{0, 9}, {8, 1}, {64, 1}}));

    zesim::clear_log();
    EXPECT_EQ(ze_lsw_car_set_flow_car(9, 7, 7, 7, 7, 7, 7), ZE_ERR_FAIL);
    EXPECT_EQ(zesim::commands(), (Words{0xa0b}));
    EXPECT_EQ(zesim::word(0xa0b, 4, {9}), 1u);

    // The profile check's busy answer is traced as 18 but the call fails -1.
    zesim::fail(0xa0b, kBusy, 1);
    EXPECT_EQ(ze_lsw_car_set_flow_car(3, 1, 1, 1, 1, 1, 1), ZE_ERR_FAIL);
    EXPECT_TRUE(traced_as("ze_lsw_car_get_fcar_index", ZE_ERR_PARAM));
    // Later steps are mapped and earlier writes stay.
    zesim::fail(0x507, kBusy, 1);
    EXPECT_EQ(ze_lsw_car_set_flow_car(3, 1, 1, 1, 1, 1, 1), ZE_ERR_PARAM);
    EXPECT_EQ(word_at(zesim::block(0xa33, {3}), 8), 3u);
    EXPECT_EQ(ze_lsw_car_get_flow_car(3, nullptr), ZE_ERR_NULL_PTR);
}

TEST_F(FlowCar, GemportCarBindsOnlyTheFirstFlowCountTimes) {
    flow(2, 100, kUp), flow(5, 100, kUp), flow(7, 100, kDown);
    flow(8, 100, kUp, 0);  // not in use
    ASSERT_EQ(ze_lsw_car_set_gemport_car(100, 0, 10, 20, 30, 40, 0x1, 60), 0u);
    EXPECT_EQ(zesim::commands(), (Words{0xa0a, 0xa32, 0x506, 0x507, 0xa32, 0x506, 0x507}));
    EXPECT_EQ(sent_words(0xa32, {0, 4, 8}), (Words{2, 1, 0, 2, 1, 0}));
    EXPECT_EQ((Words{zesim::word(0x506, 64, {2}), zesim::word(0x506, 64, {5})}), (Words{1, 0}));
    const ze_fcar_status_s &e = g_st_fcar_status[0];
    EXPECT_EQ((Words{e.in_use, e.gemport, e.direction}), (Words{1, 100, 0}));
    EXPECT_EQ(Words(e.params, e.params + 6), (Words{10, 20, 30, 40, 1, 60}));
    EXPECT_TRUE(traced_as("ze_lsw_car_inner_save_fcar", 0));
}

TEST_F(FlowCar, GemportProfilesAreReusedOnlyForIdenticalRequests) {
    const struct { uint32_t gemport, dir, p1, index; } steps[] = {
        {100, 0, 10, 0}, {100, 0, 10, 0},  // identical: same profile
        {100, 0, 11, 1},                   // other parameters
        {100, 1, 10, 2},                   // other direction
        {101, 0, 10, 3},                   // other GEM port
        {100, 1, 10, 2},
    };
    for (const auto &s : steps) {
        zesim::clear_log();
        ASSERT_EQ(ze_lsw_car_set_gemport_car(s.gemport, s.dir, s.p1, 0, 0, 0, 0, 0), 0u);
        // No flows: the profile is written and bound to nothing.
        ASSERT_EQ(zesim::commands(), (Words{0xa0a}));
        EXPECT_EQ(word_at(entries_of(0xa0a)[0].sent, 0), s.index) << s.gemport << "/" << s.dir;
    }
}

TEST_F(FlowCar, GemportCarFailures) {
    for (auto &e : g_st_fcar_status) e.in_use = 1;
    EXPECT_EQ(ze_lsw_car_set_gemport_car(100, 0, 1, 1, 1, 1, 1, 1), ZE_ERR_FAIL);
    EXPECT_TRUE(traced_as("ze_lsw_car_inner_get_fcar_table_index", ZE_ERR_FULL));
    EXPECT_TRUE(zesim::log().empty());
    std::memset(g_st_fcar_status, 0, sizeof g_st_fcar_status);

    flow(4, 100, kUp);
    zesim::fail(0xa32, kBusy);
    EXPECT_EQ(ze_lsw_car_set_gemport_car(100, 0, 1, 1, 1, 1, 1, 1), ZE_ERR_PARAM);
    EXPECT_EQ(g_st_fcar_status[0].in_use, 1);  // the record stays

    EXPECT_EQ(ze_lsw_car_get_gemport_car(100, 0, nullptr), ZE_ERR_NULL_PTR);
}

TEST_F(FlowCar, GemportPriorityWalksTheInUseFlowsOfTheGemport) {
    flow(1, 300, kUp), flow(4, 300, kDown), flow(9, 301, kUp);
    flow(6, 300, kUp, 0);  // not in use
    ASSERT_EQ(ze_lsw_qos_set_gemport_pri(300, 77, 5), 0u);
    EXPECT_EQ(sent_words(2568, {0, 12}), (Words{1, 5, 4, 5}));

    zesim::clear_log();
    EXPECT_EQ(ze_lsw_qos_set_gemport_pri(302, 0, 5), 0u);
    EXPECT_TRUE(zesim::log().empty());

    // set_in_pri's 18 for a busy driver is folded again into -1.
    zesim::fail(2569, kBusy, 2);
    zesim::clear_log();
    EXPECT_EQ(ze_lsw_qos_set_gemport_pri(300, 0, 5), ZE_ERR_FAIL);
    EXPECT_EQ(entries_of(2569).size(), 2u);
    EXPECT_EQ(traces().back().result, ZE_ERR_FAIL);
}

}  // namespace
