// Statistics paths beyond one table: queue and route walks and their stops,
// clear-all's order and stop, two-block groups, failed reads, range checks,
// 64-bit assembly.
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "test_support.h"
#include "ze_lsw_pm.h"
#include "ze_result.h"

namespace {

constexpr uint32_t kBusy = 0xf0000101;  // the driver code that maps to 18
constexpr uint32_t kOther = 0x1234;     // any other driver code

using zesim::counter_pattern;

class Pm : public zetest::SimTest {
protected:
    void restart() {
        zesim::reset();
        ze_host_trace_clear();
        take_console();
    }
    // How often `text` occurs on the console.
    size_t occurrences(const std::string &text) const {
        size_t n = 0;
        for (size_t pos = console().find(text); pos != std::string::npos;
             pos = console().find(text, pos + 1))
            ++n;
        return n;
    }
    // The datapath library operations and the commands other than the
    // bracket, in order: "name(index)", "ioctl cmd" (" block" if one went).
    static std::vector<std::string> steps() {
        std::vector<std::string> v;
        for (const zesim::LogEntry &e : zesim::log()) {
            if (e.kind == zesim::EntryKind::DpOp)
                v.push_back(e.name + "(" + std::to_string(e.cmd) + ")");
            else if (e.kind == zesim::EntryKind::Ioctl && e.cmd > 1)
                v.push_back("ioctl " + std::to_string(e.cmd) + (e.has_block ? " block" : ""));
        }
        return v;
    }
    void expect_one_trace(const char *func, uint32_t result) {
        auto t = traces();
        ASSERT_EQ(t.size(), 1u);
        EXPECT_STREQ(t[0].file, "ze_lsw_pm.cpp");
        EXPECT_STREQ(t[0].func, func);
        EXPECT_EQ(t[0].result, result);
        EXPECT_EQ(t[0].v[0], result);
        EXPECT_EQ(t[0].v[1] | t[0].v[2] | t[0].v[3], 0u);
    }
};

std::string format(const char *fmt, auto... v) {
    char text[160];
    std::snprintf(text, sizeof text, fmt, v...);
    return text;
}

// A queue row: `lead` (the queue id, or group, priority and queue id), then
// queue q's six counters as the fill pattern leaves them (or zeros).
std::string queue_row(const std::string &lead, uint32_t q, bool filled = true) {
    auto c = [&](uint32_t off) { return filled ? counter_pattern(q, off) : 0u; };
    return lead + format("%-15u %-15u %-15u %-15u %-15u %-15u\n", c(4), c(8), c(12), c(16),
                         c(20), c(24));
}
std::string port_queue_row(uint32_t group, uint32_t pri, uint32_t q, bool filled = true) {
    return queue_row(format("%-4u %-4u %-4u ", group, pri, q), q, filled);
}

const char kAllQueuesHeader[] =
    "Q_id  Q_in            Q_out           Q_tail_drop     buf_low_drop    q_fwred_drop    "
    "g_gwred_drop   \n";
const char kPortQueuesHeader[] =
    "Gid  Pri  Q_id Q_in            Q_out           Q_tail_drop     buf_low_drop    "
    "q_fwred_drop    g_gwred_drop   \n";

// Above port 14 every queue is read; a failed read keeps the rows before it.
TEST_F(Pm, QueuesAboveFourteenWalkAll128QueuesUntilAReadFails) {
    zesim::fill_counters();
    ASSERT_EQ(ze_lsw_pm_get_queue_statistic(15), 0u);
    std::string expected = kAllQueuesHeader;
    for (uint32_t q = 0; q < 128; ++q) expected += queue_row(format("%-5u ", q), q);
    EXPECT_EQ(take_console(), expected);
    ASSERT_EQ(zesim::commands().size(), 128u);
    EXPECT_EQ(zetest::word_at(zetest::entries_of(2590)[127].sent, 0), 127u);

    zesim::clear_log();
    zesim::fail(2590, kBusy, 6);  // queue 5
    EXPECT_EQ(ze_lsw_pm_get_queue_statistic(0xffffffff), ZE_ERR_PARAM);
    EXPECT_EQ(console(), expected.substr(0, expected.find("\n5 ") + 1));
    EXPECT_EQ(zetest::entries_of(2590).size(), 6u);
    expect_one_trace("ze_lsw_pm_get_queue_statistic", ZE_ERR_PARAM);
}

// A queue map entry of the QoS area: {port, group, priority} -> queue.
void map_queue(uint32_t port, uint32_t group, uint32_t pri, uint32_t valid, uint32_t queue) {
    zesim::Bytes b(20, 0);
    for (uint32_t off = 0; uint32_t v : {port, group, pri, valid, queue}) {
        std::memcpy(b.data() + off, &v, 4);
        off += 4;
    }
    zesim::store(2575, b);
}

TEST_F(Pm, PortQueuesPrintValidMappingsButReadEveryQueue) {
    zesim::fill_counters();
    map_queue(14, 0, 1, 1, 40);
    map_queue(14, 2, 2, 0, 9);  // invalid: read, not printed
    map_queue(14, 7, 7, 1, 127);
    map_queue(13, 0, 0, 1, 5);  // another port
    ASSERT_EQ(ze_lsw_pm_get_queue_statistic(14), 0u);
    EXPECT_EQ(console(), kPortQueuesHeader + port_queue_row(0, 1, 40) + port_queue_row(7, 7, 127));
    auto cmds = zesim::commands();
    ASSERT_EQ(cmds.size(), 128u);
    for (size_t i = 0; i < cmds.size(); ++i) EXPECT_EQ(cmds[i], i % 2 ? 2590u : 2575u) << i;
    const auto map = zetest::entries_of(2575)[18].sent;  // group 2, priority 2
    EXPECT_EQ(zetest::word_at(map, 0), 14u);
    EXPECT_EQ(zetest::word_at(map, 4), 2u);
    EXPECT_EQ(zetest::word_at(map, 8), 2u);
    EXPECT_EQ(zetest::word_at(zetest::entries_of(2590)[18].sent, 0), 9u);
}

TEST_F(Pm, PortQueueWalkStopsAtEitherFailedRead) {
    for (uint32_t cmd : {2575u, 2590u}) {
        restart();
        map_queue(2, 0, 0, 1, 3);
        zesim::fail(cmd, kOther, 3);
        EXPECT_EQ(ze_lsw_pm_get_queue_statistic(2), ZE_ERR_FAIL);
        EXPECT_EQ(console(), kPortQueuesHeader + port_queue_row(0, 0, 3, false));
        EXPECT_EQ(zesim::commands().size(), cmd == 2575 ? 5u : 6u);
        expect_one_trace("ze_lsw_pm_get_queue_statistic", ZE_ERR_FAIL);
    }
}

TEST_F(Pm, RouteIndexPrintsIpv6ThenIpv4WithoutRelease) {
    zesim::set_counter(3369, 16, 7, {15});  // IPv4 bytes of index 15 only
    ASSERT_EQ(ze_lsw_pm_get_ipv6_statistic(15), 0u);
    EXPECT_EQ(console().rfind("index   : 15\n============ipv6================\n", 0), 0u);
    size_t v4 = console().find("============ipv4================\n");
    ASSERT_NE(v4, std::string::npos);
    EXPECT_EQ(console().find("rt_rx_byte_num                   : 7 "),
              console().find("rt_rx_byte_num", v4));
    EXPECT_EQ(steps(), (std::vector<std::string>{"ioctl 3364 block", "ioctl 3369 block"}));
}

TEST_F(Pm, AllRouteIndexesEndWithOneReleaseUnlessARecordFails) {
    ASSERT_EQ(ze_lsw_pm_get_ipv6_statistic(16), 0u);
    EXPECT_EQ(occurrences("index   : "), 16u);
    EXPECT_EQ(occurrences("index   : 15\n"), 1u);
    EXPECT_EQ(occurrences(std::string(30, '=') + "\n" + std::string(30, '=') + "\n"), 16u);
    EXPECT_EQ(zesim::commands().size(), 32u);
    EXPECT_EQ(steps().back(), "ze_dp_right_release(0)");
    EXPECT_EQ(steps().size(), 33u);

    restart();
    zesim::fail(3369, kOther, 4);  // IPv4 record of index 3
    EXPECT_EQ(ze_lsw_pm_get_ipv6_statistic(16), ZE_ERR_FAIL);
    EXPECT_EQ(occurrences("index   : "), 4u);
    EXPECT_EQ(occurrences("============ipv4"), 3u);
    EXPECT_EQ(steps().back(), "ioctl 3369 block");
    expect_one_trace("ze_lsw_pm_get_ipv6_statistic", ZE_ERR_FAIL);
}

std::vector<std::string> clear_all_sequence() {
    std::vector<std::string> v;
    auto op = [&](const char *name, uint32_t i) {
        v.push_back(std::string(name) + "(" + std::to_string(i) + ")");
    };
    for (uint32_t i = 0; i < 16; ++i) op("ze_dp_cnt_ipv6_clr", i), op("ze_dp_cnt_ipv4_clr", i);
    for (uint32_t cmd : {260, 3589, 3372, 3350}) v.push_back("ioctl " + std::to_string(cmd));
    for (uint32_t p = 0; p < 7; ++p) op("ze_dp_l2_cnt_clr", p);
    for (uint32_t e = 0; e < 32; ++e)
        op("ze_dp_igr_flow_cnt_table_item_clr", e), op("ze_dp_egr_flow_cnt_table_item_clr", e);
    for (uint32_t i = 0; i < 8; ++i) op("ze_dp_qos_drop_reason_clr", i);
    return v;
}

// Clear-all runs every family in order and stops at the first failure.
TEST_F(Pm, ClearAllRunsInOrderUntilTheFirstFailure) {
    struct Stop {
        const char *call;  // datapath library call, or null for a command
        uint32_t cmd, nth, code, result;
        size_t steps;  // steps logged, the failing one included
    };
    const auto all = clear_all_sequence();
    const Stop stops[] = {
        {nullptr, 0, 0, 0, ZE_OK, all.size()},
        {"ze_dp_cnt_ipv4_clr", 0, 4, kBusy, ZE_ERR_PARAM, 8},  // index 3
        {nullptr, 3372, 1, kOther, ZE_ERR_FAIL, 35},
        {"ze_dp_egr_flow_cnt_table_item_clr", 0, 32, kOther, ZE_ERR_FAIL, 36 + 7 + 64},
        {"ze_dp_qos_drop_reason_clr", 0, 8, kBusy, ZE_ERR_PARAM, 36 + 7 + 64 + 8},
    };
    for (const Stop &s : stops) {
        restart();
        if (s.call) zesim::fail_call(s.call, s.code, s.nth);
        if (s.cmd) zesim::fail(s.cmd, s.code, s.nth);
        EXPECT_EQ(ze_lsw_pm_clear_all_statistic(), s.result);
        EXPECT_EQ(steps(), std::vector<std::string>(all.begin(), all.begin() + s.steps))
            << (s.call ? s.call : "command");
        if (s.result) expect_one_trace("ze_lsw_pm_clear_all_statistic", s.result);
        EXPECT_EQ(traces().size(), s.result ? 1u : 0u);
        EXPECT_TRUE(console().empty());
    }
}

TEST_F(Pm, ClearAllZeroesEveryCounterButKeepsKeys) {
    zesim::fill_counters();
    ASSERT_EQ(ze_lsw_pm_clear_all_statistic(), 0u);
    for (const zesim::Area *area : zesim::areas()) {
        if (std::string(area->name) != "stats") continue;
        for (const zesim::BlockDesc &d : area->blocks) {
            const uint32_t key = d.keys[0].width ? 4 : 0;  // keyed blocks: check instance 4
            zesim::Bytes b = zesim::block(d.get_id, {key});
            for (uint32_t off = 0; off < d.length; off += 4)
                EXPECT_EQ(zetest::word_at(b, off), off == 0 ? key : 0u) << d.name << " " << off;
        }
    }
}

TEST_F(Pm, NoOtherAreaDescribesACounterCommand) {
    std::vector<uint32_t> mine, others;
    for (const zesim::Area *area : zesim::areas()) {
        auto &ids = std::string(area->name) == "stats" ? mine : others;
        for (const zesim::BlockDesc &d : area->blocks) ids.insert(ids.end(), {d.get_id, d.set_id});
        for (const zesim::ActionDesc &a : area->actions) ids.push_back(a.id);
    }
    for (uint32_t id : mine)
        EXPECT_TRUE(id == 0 || std::count(others.begin(), others.end(), id) == 0) << id;
}

TEST_F(Pm, SixtyFourBitCounterIsHighTimesTwoToThe32PlusLow) {
    zesim::set_counter(802, 8, 0x1ffffffffull, {0});
    ASSERT_EQ(ze_lsw_pm_get_uni_eth_statistic(0), 0u);
    EXPECT_NE(console().find("ul_rx                            : 8589934591       | "),
              std::string::npos);
}

// The GPON alarms print what the second read (518) left in the record; the
// EPON alarm lines take the callback counters from the second block.
TEST_F(Pm, TwoBlockGroupsPrintTheRightBlock) {
    zesim::set_word(527, 0, 1);
    zesim::set_word(518, 0, 2);
    ASSERT_EQ(ze_lsw_pm_get_gpon_alarm_statistic(), 0u);
    EXPECT_EQ(take_console().rfind("LOS_OCCUR   : 2 \n", 0), 0u);
    EXPECT_EQ(zesim::commands(), (std::vector<uint32_t>{527, 518}));
    zesim::set_word(3588, 24, 3);
    zesim::set_word(3668, 0, 4);
    ASSERT_EQ(ze_lsw_pm_get_epon_alarm_statistic(), 0u);
    EXPECT_NE(console().find("ROGUE_ONU   : 0 \n"), std::string::npos);
    EXPECT_NE(console().find("mpcp_call_back_cnt         : 4\n"), std::string::npos);
    EXPECT_NE(console().find("alarm_call_back_times      : 3\n"), std::string::npos);
}

// A group whose read fails prints nothing: no header, no separator. One case
// per way of reading (one table, own printer, index word, two blocks, walks).
struct FailCase {
    const char *func;
    uint32_t (*print)();
    uint32_t cmd;
};

#define NO_ARG(name) "ze_lsw_pm_get_" #name "_statistic", ze_lsw_pm_get_##name##_statistic
#define ARG(name, v) \
    "ze_lsw_pm_get_" #name "_statistic", [] { return ze_lsw_pm_get_##name##_statistic(v); }

const FailCase kFailCases[] = {
    {NO_ARG(rt), 3363},           {NO_ARG(cpurtx), 3371},       {ARG(uni_eth, 1), 802},
    {NO_ARG(gpon_alarm), 527},    {NO_ARG(gpon_alarm), 518},    {NO_ARG(eps_pon), 3367},
    {NO_ARG(epon_alarm), 3588},   {NO_ARG(epon_alarm), 3668},   {ARG(epon_tx, 9), 3360},
    {ARG(drop_reason, 8), 2628},  {NO_ARG(tocpu_reason), 3345}, {ARG(ipv6, 2), 3364},
};

TEST_F(Pm, AFailedReadPrintsNothing) {
    for (const FailCase &f : kFailCases) {
        for (uint32_t code : {kBusy, kOther}) {
            restart();
            zesim::fill_counters();
            zesim::fail(f.cmd, code);
            const uint32_t want = code == kBusy ? ZE_ERR_PARAM : ZE_ERR_FAIL;
            EXPECT_EQ(f.print(), want) << f.func << " " << f.cmd;
            EXPECT_EQ(console(), "") << f.func << " " << f.cmd;
            expect_one_trace(f.func, want);
        }
    }
}

TEST_F(Pm, PortRangeChecks) {
    EXPECT_EQ(ze_lsw_pm_get_uni_eth_statistic(5), ZE_ERR_PARAM);
    EXPECT_TRUE(traces().empty());
    EXPECT_EQ(ze_lsw_pm_get_drop_reason_statistic(9), ZE_ERR_PARAM);
    expect_one_trace("ze_lsw_pm_get_drop_reason_statistic", ZE_ERR_PARAM);
    EXPECT_TRUE(zesim::log().empty());
    EXPECT_TRUE(console().empty());
}

TEST_F(Pm, DropReasonsOfAllPortsAreTheSinglePortSectionsUnderHeaders) {
    zesim::fill_counters();
    const char *labels[] = {"eth0", "eth1", "eth2", "eth3", "eth4", "pon", "cpu", "prbs"};
    const std::string long_sep(91, '=');
    std::string expected;
    for (uint32_t p = 0; p < 8; ++p) {
        ASSERT_EQ(ze_lsw_pm_get_drop_reason_statistic(p), 0u);
        std::string one = take_console();
        char head[160];
        std::snprintf(head, sizeof head, "%-20s\n", labels[p]);
        ASSERT_EQ(one.rfind(head, 0), 0u);
        std::snprintf(head, sizeof head, "\n%s%-4s%s\n", std::string(35, '=').c_str(), labels[p],
                      std::string(51, '=').c_str());
        expected += head + one.substr(21) + long_sep + "\n" + long_sep + "\n";
    }
    ASSERT_EQ(ze_lsw_pm_get_drop_reason_statistic(8), 0u);
    EXPECT_EQ(console(), expected);
    EXPECT_EQ(zetest::entries_of(2628).size(), 9u);  // one read per call
}

TEST_F(Pm, EponLlidAboveEightPrintsLlidsZeroToSeven) {
    zesim::fill_counters();
    std::string expected;
    for (uint32_t l = 0; l < 8; ++l) {
        ASSERT_EQ(ze_lsw_pm_get_epon_rx_statistic(l), 0u);
        std::string one = take_console();
        expected += one.substr(0, one.size() - 31);  // one of its two separators
    }
    expected += std::string(30, '=') + "\n";
    ASSERT_EQ(ze_lsw_pm_get_epon_rx_statistic(9), 0u);
    EXPECT_EQ(console(), expected);
}

TEST_F(Pm, BandwidthSendsItsTwoWordsAndTheEmptyFunctionsDoNothing) {
    EXPECT_EQ(ze_lsw_pm_get_eth_statistic(3), 0u);
    EXPECT_EQ(ze_lsw_pm_get_ugmac_line_statistic(), 0u);
    ASSERT_EQ(ze_lsw_pm_get_epon_bandwidth_statistic(7, 9), 0u);
    ASSERT_EQ(zesim::log().size(), 3u);  // the bandwidth command in its bracket
    const auto sent = zetest::entries_of(3590)[0].sent;
    EXPECT_EQ(zetest::word_at(sent, 0), 7u);
    EXPECT_EQ(zetest::word_at(sent, 4), 9u);
    EXPECT_TRUE(console().empty());
    EXPECT_TRUE(traces().empty());
    zesim::fail(3590, kOther);
    EXPECT_EQ(ze_lsw_pm_get_epon_bandwidth_statistic(7, 9), ZE_ERR_FAIL);
    expect_one_trace("ze_lsw_pm_get_epon_bandwidth_statistic", ZE_ERR_FAIL);
}

}  // namespace
