// Statistics paths beyond one table: queue and route walks and their stops,
// the every-index forms, clear-all's order and stop, two-block groups, failed
// reads, range checks.
#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "test_support.h"
#include "ze_lsw_pm.h"
#include "ze_result.h"

namespace {

constexpr uint32_t kBusy = 0xf0000101;  // the driver code that maps to 18
constexpr uint32_t kOther = 0x1234;     // any other driver code

using zetest::word_at;

std::string format(const char *fmt, auto... v) {
    char text[160];
    std::snprintf(text, sizeof text, fmt, v...);
    return text;
}

class Pm : public zetest::SimTest {
protected:
    void restart() {
        zesim::reset();
        ze_host_trace_clear();
        take_console();
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
        EXPECT_EQ(std::string(t[0].file) + " " + t[0].func, std::string("ze_lsw_pm.cpp ") + func);
        EXPECT_EQ((std::vector<uint32_t>{t[0].result, t[0].v[0], t[0].v[1], t[0].v[2], t[0].v[3]}),
                  (std::vector<uint32_t>{result, result, 0, 0, 0}));
    }
    // The texts print(i) leaves for i below n, each passed through edit(i, text).
    std::string each(uint32_t n, uint32_t (*print)(uint32_t), auto edit) {
        std::string all;
        for (uint32_t i = 0; i < n; ++i) {
            EXPECT_EQ(print(i), 0u) << i;
            all += edit(i, take_console());
        }
        return all;
    }
};

// A queue row: `lead` (the queue id, or group, priority and queue id), then
// queue q's six counters as the fill pattern leaves them (or zeros).
std::string queue_row(const std::string &lead, uint32_t q, bool filled = true) {
    auto c = [&](uint32_t off) { return filled ? zesim::counter_pattern(q, off) : 0u; };
    return lead + format("%-15u %-15u %-15u %-15u %-15u %-15u\n", c(4), c(8), c(12), c(16),
                         c(20), c(24));
}
std::string port_queue_row(uint32_t group, uint32_t pri, uint32_t q, bool filled = true) {
    return queue_row(format("%-4u %-4u %-4u ", group, pri, q), q, filled);
}

// Above port 14 every queue is read; a failed read keeps the rows before it.
TEST_F(Pm, QueuesAboveFourteenWalkAll128QueuesUntilAReadFails) {
    zesim::fill_counters();
    ASSERT_EQ(ze_lsw_pm_get_queue_statistic(15), 0u);
    std::string expected =
        "Q_id  Q_in            Q_out           Q_tail_drop     buf_low_drop    q_fwred_drop    "
        "g_gwred_drop   \n";
    for (uint32_t q = 0; q < 128; ++q) expected += queue_row(format("%-5u ", q), q);
    EXPECT_EQ(take_console(), expected);
    zesim::fail(2590, kBusy, 6);  // queue 5
    EXPECT_EQ(ze_lsw_pm_get_queue_statistic(0xffffffff), ZE_ERR_PARAM);
    EXPECT_EQ(console(), expected.substr(0, expected.find("\n5 ") + 1));
    expect_one_trace("ze_lsw_pm_get_queue_statistic", ZE_ERR_PARAM);
}

// A queue map entry of the QoS area: {port, group, priority} -> queue.
void map_queue(uint32_t port, uint32_t group, uint32_t pri, uint32_t valid, uint32_t queue) {
    zesim::set_word(2575, 12, valid, {port, group, pri});
    zesim::set_word(2575, 16, queue, {port, group, pri});
}

// Up to port 14 each map entry is read, then its queue, even for an invalid
// entry (not printed); either failed read ends the walk.
TEST_F(Pm, PortQueuesPrintValidMappingsButReadEveryQueueUntilAReadFails) {
    const std::string header =
        "Gid  Pri  Q_id Q_in            Q_out           Q_tail_drop     buf_low_drop    "
        "q_fwred_drop    g_gwred_drop   \n";
    zesim::fill_counters();
    map_queue(14, 0, 1, 1, 40);
    map_queue(14, 2, 2, 0, 9);  // invalid: read, not printed
    map_queue(14, 7, 7, 1, 127);
    map_queue(13, 0, 0, 1, 5);  // another port
    ASSERT_EQ(ze_lsw_pm_get_queue_statistic(14), 0u);
    EXPECT_EQ(console(), header + port_queue_row(0, 1, 40) + port_queue_row(7, 7, 127));
    auto cmds = zesim::commands();
    ASSERT_EQ(cmds.size(), 128u);
    for (size_t i = 0; i < cmds.size(); ++i) EXPECT_EQ(cmds[i], i % 2 ? 2590u : 2575u) << i;
    EXPECT_EQ(word_at(zetest::entries_of(2590)[18].sent, 0), 9u);  // group 2, priority 2
    for (uint32_t cmd : {2575u, 2590u}) {
        restart();
        map_queue(2, 0, 0, 1, 3);
        zesim::fail(cmd, kOther, 3);
        EXPECT_EQ(ze_lsw_pm_get_queue_statistic(2), ZE_ERR_FAIL);
        EXPECT_EQ(console(), header + port_queue_row(0, 0, 3, false));
        EXPECT_EQ(zesim::commands().size(), cmd == 2575 ? 5u : 6u);
        expect_one_trace("ze_lsw_pm_get_queue_statistic", ZE_ERR_FAIL);
    }
}

// One route index prints its IPv6 record, then its IPv4 one, and releases
// nothing. Past the last route index, EPON LLID or drop reason port, every
// one is printed as it prints on its own, with other separators.
TEST_F(Pm, RouteIndexesLlidsAndDropReasonPortsOneOrAll) {
    zesim::fill_counters();
    zesim::set_counter(3369, 16, 7, {15});  // IPv4 bytes of index 15
    ASSERT_EQ(ze_lsw_pm_get_ipv6_statistic(15), 0u);
    EXPECT_EQ(console().find("rt_rx_byte_num                   : 7 "),
              console().find("rt_rx_byte_num", console().find("============ipv4")));
    EXPECT_EQ(steps(), (std::vector<std::string>{"ioctl 3364 block", "ioctl 3369 block"}));
    EXPECT_EQ(take_console().rfind("index   : 15\n============ipv6================\n", 0), 0u);
    const std::string sep = std::string(30, '=') + "\n", long_sep = std::string(91, '=') + "\n";
    std::string want = each(16, ze_lsw_pm_get_ipv6_statistic,
                            [&](uint32_t, const std::string &s) { return s + sep + sep; });
    zesim::clear_log();
    ASSERT_EQ(ze_lsw_pm_get_ipv6_statistic(16), 0u);
    EXPECT_EQ(take_console(), want);
    EXPECT_EQ(steps().size(), 33u);
    EXPECT_EQ(steps().back(), "ze_dp_right_release(0)");
    zesim::fail(3369, kOther, 4);  // IPv4 record of index 3: no release
    EXPECT_EQ(ze_lsw_pm_get_ipv6_statistic(16), ZE_ERR_FAIL);
    EXPECT_EQ(take_console(), want.substr(0, want.find("============ipv4", want.find("index   : 3\n"))));
    EXPECT_EQ(steps().back(), "ioctl 3369 block");
    expect_one_trace("ze_lsw_pm_get_ipv6_statistic", ZE_ERR_FAIL);

    // LLIDs 0 to 7, each without the last of its two separators, then one.
    want = each(8, ze_lsw_pm_get_epon_rx_statistic,
                [](uint32_t, const std::string &s) { return s.substr(0, s.size() - 31); });
    ASSERT_EQ(ze_lsw_pm_get_epon_rx_statistic(9), 0u);
    EXPECT_EQ(take_console(), want + sep);

    // Each port's section under a wide header instead of its name, then two
    // long separators; one read in all.
    const char *labels[] = {"eth0", "eth1", "eth2", "eth3", "eth4", "pon", "cpu", "prbs"};
    want = each(8, ze_lsw_pm_get_drop_reason_statistic, [&](uint32_t p, const std::string &s) {
        EXPECT_EQ(s.rfind(format("%-20s\n", labels[p]), 0), 0u) << p;
        std::string section = format("\n%s%-4s%s\n", std::string(35, '=').c_str(), labels[p],
                                     std::string(51, '=').c_str());
        section.append(s, 21);  // the section without its name line
        return section + long_sep + long_sep;
    });
    zesim::clear_log();
    ASSERT_EQ(ze_lsw_pm_get_drop_reason_statistic(8), 0u);
    EXPECT_EQ(console(), want);
    EXPECT_EQ(zetest::entries_of(2628).size(), 1u);
}

// Clear-all runs every family in order and stops at the first failure; run
// through, every counter is zero and keyed blocks keep their keys.
TEST_F(Pm, ClearAllRunsInOrderUntilTheFirstFailure) {
    std::vector<std::string> all;
    auto op = [&](const char *name, uint32_t i) { all.push_back(format("%s(%u)", name, i)); };
    for (uint32_t i = 0; i < 16; ++i) op("ze_dp_cnt_ipv6_clr", i), op("ze_dp_cnt_ipv4_clr", i);
    for (uint32_t cmd : {260, 3589, 3372, 3350}) all.push_back("ioctl " + std::to_string(cmd));
    for (uint32_t p = 0; p < 7; ++p) op("ze_dp_l2_cnt_clr", p);
    for (uint32_t e = 0; e < 32; ++e)
        op("ze_dp_igr_flow_cnt_table_item_clr", e), op("ze_dp_egr_flow_cnt_table_item_clr", e);
    for (uint32_t i = 0; i < 8; ++i) op("ze_dp_qos_drop_reason_clr", i);

    zesim::fill_counters();
    ASSERT_EQ(ze_lsw_pm_clear_all_statistic(), 0u);
    EXPECT_EQ(steps(), all);
    EXPECT_TRUE(console().empty() && traces().empty());
    std::vector<uint32_t> mine, others;  // the counter commands belong to no other area
    for (const zesim::Area *area : zesim::areas()) {
        const bool stats = std::string(area->name) == "stats";
        auto &ids = stats ? mine : others;
        for (const zesim::ActionDesc &a : area->actions) ids.push_back(a.id);
        for (const zesim::BlockDesc &d : area->blocks) {
            ids.insert(ids.end(), {d.get_id, d.set_id});
            const uint32_t key = d.keys[0].width ? 4 : 0;  // keyed blocks: check instance 4
            const zesim::Bytes b = stats ? zesim::block(d.get_id, {key}) : zesim::Bytes();
            for (uint32_t off = 0; off < b.size(); off += 4)
                EXPECT_EQ(word_at(b, off), off == 0 ? key : 0u) << d.name << " " << off;
        }
    }
    for (uint32_t id : mine)
        EXPECT_TRUE(id == 0 || std::count(others.begin(), others.end(), id) == 0) << id;

    // The failing step: index 3's IPv4, a command, the last flow and drop reason entries.
    const std::pair<size_t, uint32_t> fails[] = {{7, kBusy}, {34, kOther}, {106, kOther}, {114, kBusy}};
    for (auto [at, code] : fails) {
        restart();
        const std::string &s = all[at];
        const size_t paren = s.find('(');  // the nth call of its name, or a command sent once
        if (paren == std::string::npos) zesim::fail(std::stoul(s.substr(6)), code, 1);
        else zesim::fail_call(s.substr(0, paren).c_str(), code, std::stoul(s.substr(paren + 1)) + 1);
        const uint32_t result = code == kBusy ? ZE_ERR_PARAM : ZE_ERR_FAIL;
        EXPECT_EQ(ze_lsw_pm_clear_all_statistic(), result) << s;
        EXPECT_EQ(steps(), std::vector<std::string>(all.begin(), all.begin() + at + 1)) << s;
        expect_one_trace("ze_lsw_pm_clear_all_statistic", result);
        EXPECT_TRUE(console().empty());
    }
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
// per way of reading (one table, own printer, index word, two blocks, walks),
// and the bandwidth command that only sends.
struct FailCase {
    const char *func;
    uint32_t (*print)();
    uint32_t cmd;
};

#define NO_ARG(name) "ze_lsw_pm_get_" #name "_statistic", ze_lsw_pm_get_##name##_statistic
#define ARG(name, ...) \
    "ze_lsw_pm_get_" #name "_statistic", [] { return ze_lsw_pm_get_##name##_statistic(__VA_ARGS__); }

const FailCase kFailCases[] = {
    {NO_ARG(rt), 3363},           {NO_ARG(cpurtx), 3371},       {ARG(uni_eth, 1), 802},
    {NO_ARG(gpon_alarm), 527},    {NO_ARG(gpon_alarm), 518},    {NO_ARG(eps_pon), 3367},
    {NO_ARG(epon_alarm), 3588},   {NO_ARG(epon_alarm), 3668},   {ARG(epon_tx, 9), 3360},
    {ARG(drop_reason, 8), 2628},  {NO_ARG(tocpu_reason), 3345}, {ARG(ipv6, 2), 3364},
    {ARG(epon_bandwidth, 7, 9), 3590},
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

// Out-of-range ports are refused before any read (only the drop reasons
// leave a trace); the Ethernet and UGMAC line statistics do nothing.
TEST_F(Pm, RefusedPortsAndEmptyFunctionsTouchNothing) {
    EXPECT_EQ(ze_lsw_pm_get_eth_statistic(3) | ze_lsw_pm_get_ugmac_line_statistic(), 0u);
    EXPECT_EQ(ze_lsw_pm_get_uni_eth_statistic(5), ZE_ERR_PARAM);
    EXPECT_TRUE(traces().empty());
    EXPECT_EQ(ze_lsw_pm_get_drop_reason_statistic(9), ZE_ERR_PARAM);
    expect_one_trace("ze_lsw_pm_get_drop_reason_statistic", ZE_ERR_PARAM);
    EXPECT_TRUE(zesim::log().empty() && console().empty());
}

}  // namespace
