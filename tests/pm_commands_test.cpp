// The statistics commands: the three that pass the address of a local word
// (so they take the "every instance" path), the Ethernet statistic that only
// replies, the arguments that reach the API, the folding of API failures,
// and the shell's counter controls.
#include <sstream>
#include <vector>

#include "shell.h"
#include "test_support.h"
#include "ze_result.h"

namespace {

class PmCommands : public zetest::SimTest {
protected:
    // An empty request still comes in a buffer.
    uint32_t run(const char *suffix, std::vector<uint8_t> req, uint32_t *reply) {
        const uint32_t len = static_cast<uint32_t>(req.size());
        req.resize(len + 4);
        *reply = kUnset;
        return call(std::string("ze_adapter_cli_lsw_pm_") + suffix, req.data(), len, reply);
    }
    static constexpr uint32_t kUnset = 0xa5a5a5a5;
};

TEST_F(PmCommands, BufferWordCommandsTakeTheEveryInstancePath) {
    struct Case {
        const char *suffix;
        uint32_t result;
        size_t commands;   // without the bracket
        const char *last;  // the last logged datapath library call, or ""
    };
    const Case cases[] = {
        {"get_queue_statistic", ZE_OK, 128, ""},  // all queues, no queue map read
        {"get_ipv6_statistic", ZE_OK, 32, "ze_dp_right_release"},
        {"get_drop_reason_statistic", ZE_ERR_FAIL, 0, ""},  // refused by the port check
    };
    for (const Case &c : cases) {
        zesim::reset();
        uint32_t reply;
        EXPECT_EQ(run(c.suffix, {}, &reply), c.result) << c.suffix;
        EXPECT_EQ(zesim::commands().size(), c.commands) << c.suffix;
        EXPECT_EQ(zetest::entries_of(2590).size(), c.commands == 128 ? 128u : 0u) << c.suffix;
        EXPECT_EQ(zesim::log().empty() ? "" : zesim::log().back().name, c.last) << c.suffix;
        EXPECT_EQ(reply, kUnset);
    }
}

TEST_F(PmCommands, ApiFailuresFoldIntoMinusOne) {
    uint32_t reply;
    zesim::fail(3336, 0xf0000101);  // the API answers 18
    EXPECT_EQ(run("get_l2_statistic", {}, &reply), ZE_ERR_FAIL);
    EXPECT_EQ(run("get_uni_eth_statistic", {5, 0, 0, 0}, &reply), ZE_ERR_FAIL);
    auto t = traces();
    ASSERT_FALSE(t.empty());
    EXPECT_STREQ(t.back().file, "../adapter_cli/ze_adatper_cli_pm.cpp");
    EXPECT_STREQ(t.back().func, "ze_adapter_cli_lsw_pm_get_uni_eth_statistic");
    EXPECT_EQ(t.back().result, ZE_ERR_FAIL);
}

TEST_F(PmCommands, ArgumentsReachTheApi) {
    uint32_t reply;
    zesim::fill_counters();
    EXPECT_EQ(run("get_eth_statistic", std::vector<uint8_t>(408), &reply), 0u);
    EXPECT_EQ(reply, 408u);
    EXPECT_TRUE(zesim::log().empty());  // replies without reading
    EXPECT_EQ(run("get_epon_tx_statistic", {3}, &reply), 0u);
    EXPECT_NE(console().find("llid_tx_data_byte                003: "), std::string::npos);
    EXPECT_EQ(run("get_uni_eth_statistic", {4, 0, 0, 0}, &reply), 0u);
    EXPECT_EQ(zetest::word_at(zetest::entries_of(802).back().sent, 0), 4u);
    EXPECT_EQ(run("get_epon_bandwidth_statistic", {1, 0, 0, 0, 2, 0, 0, 0}, &reply), 0u);
    EXPECT_EQ(zetest::word_at(zetest::entries_of(3590).back().sent, 4), 2u);
    EXPECT_EQ(reply, kUnset);
}

TEST_F(PmCommands, ShellFillsAndSetsCounters) {
    auto run_line = [](const std::string &line) {
        std::ostringstream out;
        zesh::Shell sh(out);
        return sh.run_line(line);
    };
    EXPECT_TRUE(run_line("sim counters fill"));
    EXPECT_EQ(zesim::word(2590, 8, {127}), zesim::counter_pattern(127, 8));
    EXPECT_EQ(zesim::word(2590, 0, {127}), 127u);  // the key stays
    EXPECT_TRUE(run_line("sim counters set 802 8 0x1ffffffff 2"));
    EXPECT_EQ(zesim::word(802, 8, {2}), 0xffffffffu);
    EXPECT_EQ(zesim::word(802, 12, {2}), 1u);
    EXPECT_TRUE(run_line("sim counters set 3333 12 0x100000005"));  // the block's last word
    EXPECT_EQ(zesim::word(3333, 12), 5u);
    EXPECT_FALSE(run_line("sim counters set 3333 16 1"));
    EXPECT_FALSE(run_line("sim counters set 3371 16"));
    EXPECT_FALSE(run_line("sim counters set 0x9999 0 1"));
}

}  // namespace
