// The statistics commands: the three that pass the address of a local word
// (so they take the "every instance" path), the request fields that reach
// the API, and the shell's counter controls.
#include <sstream>
#include <vector>

#include "shell.h"
#include "test_support.h"
#include "ze_result.h"

namespace {

class PmCommands : public zetest::SimTest {
protected:
    // An empty request still comes in a buffer.
    uint32_t run(const char *suffix, std::vector<uint8_t> req = {}) {
        const uint32_t len = static_cast<uint32_t>(req.size());
        req.resize(len + 4);
        uint32_t reply;
        return call(std::string("ze_adapter_cli_lsw_pm_") + suffix, req.data(), len, &reply);
    }
};

TEST_F(PmCommands, BufferWordCommandsTakeTheEveryInstancePath) {
    // Commands counted without the bracket; the last logged datapath library call, or "".
    struct Case { const char *suffix; uint32_t result; size_t commands; const char *last; };
    const Case cases[] = {
        {"get_queue_statistic", ZE_OK, 128, ""},  // all queues, no queue map read
        {"get_ipv6_statistic", ZE_OK, 32, "ze_dp_right_release"},
        {"get_drop_reason_statistic", ZE_ERR_FAIL, 0, ""},  // refused by the port check
    };
    for (const Case &c : cases) {
        zesim::reset();
        EXPECT_EQ(run(c.suffix), c.result) << c.suffix;
        EXPECT_EQ(zesim::commands().size(), c.commands) << c.suffix;
        EXPECT_EQ(zetest::entries_of(2590).size(), c.commands == 128 ? 128u : 0u) << c.suffix;
        EXPECT_EQ(zesim::log().empty() ? "" : zesim::log().back().name, c.last) << c.suffix;
    }
}

// The request's fields reach the API (the bandwidth's two words, an LLID
// byte, a port word) over counters the shell fills and sets: a set 64-bit
// counter prints as high word * 2^32 + low word.
TEST_F(PmCommands, ArgumentsReachTheApiOverCountersTheShellSets) {
    EXPECT_EQ(run("get_epon_bandwidth_statistic", zetest::native_words({1, 2})), 0u);
    EXPECT_EQ(zetest::entries_of(3590).back().sent, zetest::native_words({1, 2}));
    std::ostringstream out;  // the library's console too, while the shell lives
    zesh::Shell sh(out);
    EXPECT_TRUE(sh.run_line("sim counters fill"));
    EXPECT_EQ(zesim::word(2590, 8, {127}), zesim::counter_pattern(127, 8));
    EXPECT_EQ(run("get_epon_tx_statistic", {3}), 0u);
    EXPECT_NE(out.str().find("llid_tx_data_byte                003: "), std::string::npos);
    EXPECT_TRUE(sh.run_line("sim counters set 802 8 0x1ffffffff 2"));
    EXPECT_EQ(run("get_uni_eth_statistic", zetest::native_words({2})), 0u);
    EXPECT_NE(out.str().find("ul_rx                            : 8589934591       | "),
              std::string::npos);
    EXPECT_TRUE(sh.run_line("sim counters set 3333 12 0x100000005"));  // the block's last word
    EXPECT_EQ(zesim::word(3333, 12), 5u);
    for (const char *bad : {"set 3333 16 1", "set 3371 16", "set 0x9999 0 1"})
        EXPECT_FALSE(sh.run_line(std::string("sim counters ") + bad)) << bad;
}

}  // namespace
