// Record and replay: a recording re-issued on a fresh simulator reproduces
// the driver command stream, a changed answer is reported at its line and
// ends the replay, and a malformed recording is refused before anything is
// sent.
#include <fstream>
#include <functional>
#include <sstream>

#include "example_scripts.h"
#include "replay.h"
#include "test_support.h"
#include "ze_dp.h"
#include "ze_igmp_api.h"
#include "ze_lsw_pm.h"

namespace {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::StartsWith;

// The simulator's log, one comparable text per call.
std::vector<std::string> driver_stream() {
    std::vector<std::string> calls;
    for (const zesim::LogEntry &e : zesim::log())
        calls.push_back(std::to_string(static_cast<int>(e.kind)) + " " + e.name + " " + std::to_string(e.cmd) +
                        (e.has_block ? " block " : " - ") + zesim::to_hex(e.sent) + " " +
                        zesim::to_hex(e.returned) + " " + std::to_string(e.result));
    return calls;
}

class RecordReplay : public zetest::SimTest {
protected:
    void TearDown() override {
        ze_host_record_stop();
        std::remove(path_.c_str());
        SimTest::TearDown();
    }

    void record(const std::function<void()> &session) {
        ASSERT_EQ(ze_host_record_start(path_.c_str()), 0);
        session();
        ze_host_record_stop();
    }

    int replay() {
        std::ostringstream out;
        const int status = zesh::replay(out, path_);
        report_ = out.str();
        return status;
    }

    std::vector<std::string> lines() const {
        std::ifstream in(path_);
        std::vector<std::string> all;
        for (std::string line; std::getline(in, line);) all.push_back(line);
        return all;
    }

    std::string path_ = zetest::scratch_file(".rec");
    std::string report_;
};

class ExampleReplay : public RecordReplay, public ::testing::WithParamInterface<std::string> {};

TEST_P(ExampleReplay, ReproducesTheDriverCommandStream) {
    record([] { zetest::run_example(GetParam()); });
    const std::vector<std::string> recorded = driver_stream();
    const zesim::State after = zesim::state();
    ASSERT_FALSE(recorded.empty());
    zesim::reset();
    ASSERT_EQ(replay(), zesh::kReplayIdentical) << report_;
    EXPECT_EQ(driver_stream(), recorded);
    EXPECT_EQ(zesim::state(), after);
    EXPECT_THAT(report_, EndsWith("replay identical: " + std::to_string(recorded.size()) + " commands\n"));
}

INSTANTIATE_TEST_SUITE_P(Examples, ExampleReplay, ::testing::ValuesIn(zetest::example_scripts()),
                         [](const auto &info) { return info.param.substr(0, info.param.find('.')); });

// A recorded session, what changes before its replay, the first line that
// must differ (its first line holding `at`) and a line of the report.
struct Change {
    const char *name;
    std::function<void()> session;
    std::function<void()> change;
    const char *at;
    const char *report;
};

const Change kChanges[] = {
    {"fault_on_the_service_rule_write", [] { zetest::run_example("services.zesh"); },
     [] { zesim::fail(0x505, 7); }, "ioctl /dev/ze_ioctl_dp cmd=0x505 ",
     "  result    recorded 0x00000000, now 0x00000007\n"},
    {"changed_gem_port_block", [] { zetest::run_example("services.zesh"); },
     // The GEM port word leads the block; a word's low byte comes last on a
     // big-endian processor.
     [] { zesim::set_word(0x202, 8, 5, {1002}); },
     zetest::kBigEndian ? "cmd=0x202 result=0x00000000 sent=000003ea" : "cmd=0x202 result=0x00000000 sent=ea03",
     zetest::kBigEndian ? "  returned  byte 11: recorded 00, now 05\n" : "  returned  byte 8: recorded 00, now 05\n"},
    {"failing_kernel_call",
     [] {
         uint32_t mode = 0;
         ze_igmp_set_proxymode(1);
         ze_igmp_get_proxymode(&mode);
     },
     [] { zesim::fail_call("ze_kernel_igmp_get_proxymode", 9); }, "kcall ze_kernel_igmp_get_proxymode len=4 ",
     "  result    recorded 0x00000000, now 0x00000009\n"},
    {"failing_counter_clear", [] { ze_lsw_pm_clear_all_statistic(); },
     [] { zesim::fail_call("ze_dp_l2_cnt_clr", 7, 3); }, "dp ze_dp_l2_cnt_clr index=2 ",
     "  sent      no block\n  result    recorded 0x00000000, now 0x00000007\n"},
};

void PrintTo(const Change &c, std::ostream *os) { *os << c.name; }

class ChangedAnswer : public RecordReplay, public ::testing::WithParamInterface<Change> {};

TEST_P(ChangedAnswer, IsReportedAtItsLineAndEndsTheReplay) {
    record(GetParam().session);
    const std::vector<std::string> recording = lines();
    size_t at = 0, calls = 0;
    for (; at < recording.size() && recording[at].find(GetParam().at) == std::string::npos; ++at)
        calls += at > 0 && recording[at][0] != '#';
    ASSERT_LT(at, recording.size());
    zesim::reset();
    GetParam().change();
    EXPECT_EQ(replay(), zesh::kReplayDiffers);
    EXPECT_THAT(report_, StartsWith("replay: line " + std::to_string(at + 1) + " differs: "));
    EXPECT_THAT(report_, HasSubstr(GetParam().report));
    EXPECT_EQ(zesim::log().size(), calls + 1);  // nothing sent after the differing call
}

INSTANTIATE_TEST_SUITE_P(Changes, ChangedAnswer, ::testing::ValuesIn(kChanges),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_F(RecordReplay, MalformedRecordingIsRefusedBeforeAnythingIsSent) {
    const std::string h = "ze_adapter recording format 1\n", open = "ioctl /dev/ze_ioctl_dp cmd=0x0 result=0\n";
    const std::pair<std::string, const char *> kCases[] = {
        {"", "not a recording"},
        {"ze_adapter recording format 2\n" + open, "recording format 2 is not supported"},
        {h + "frobnicate x\n", "line 2: no call kind 'frobnicate'"},
        {h + open + "ioctl /dev/ze_ioctl_dp cmd=0x100\n", "line 3: no field result"},
        {h + "ioctl /dev/sda cmd=0x100 result=0\n", "'/dev/sda' is not a datapath driver node"},
        {h + "ioctl /dev/ze_ioctl_dp cmd=0x100 result=0 sent=00 returned=0000\n", "hex bytes of one length"},
        {h + "ioctl /dev/ze_ioctl_dp cmd=0x0 cmd=0x1 result=0\n", "'cmd=0x1' is not a field or repeats one"},
        {h + "kcall ze_kernel_igmp_dump len=4 result=0 sent=00 returned=00\n", "does not hold len bytes"},
        {h + "dp ze_dp_l2_cnt_clr index=x result=0\n", "bad number in index"},
        {h + "dp ze_dp_glb_attr_get cmd=0x100 result=0 colour=red\n", "unknown field 'colour'"},
        {h + "sim save /tmp/x\n", "'sim save' is not a simulator command that a replay runs"},
        {h + "sim reset; chip_set_upmode 0\n", "a sim line holds one sim command"},
    };
    for (const auto &[text, error] : kCases) {
        std::ofstream(path_) << text;
        EXPECT_EQ(replay(), zesh::kReplayUnusable) << text;
        EXPECT_THAT(report_, HasSubstr(error)) << text;
        EXPECT_TRUE(zesim::log().empty()) << text;
    }
    std::remove(path_.c_str());
    EXPECT_EQ(replay(), zesh::kReplayUnusable);
    EXPECT_THAT(report_, HasSubstr("cannot open"));
}

// On a device node the host datapath library sends its block as three
// ioctls; the recording holds the library call, as on the simulator.
TEST_F(RecordReplay, DatapathLibraryCallOnADeviceNodeIsOneLine) {
    const std::string node = zetest::scratch_file(".node");
    std::ofstream{node};
    ze_host_use_device(node.c_str());
    record([] {
        uint8_t block[76] = {1};
        ze_dp_glb_attr_get(block);
    });
    ze_host_use_simulator();
    std::remove(node.c_str());
    const std::string block = "01" + std::string(150, '0');
    EXPECT_EQ(lines(), (std::vector<std::string>{"ze_adapter recording format 1",
                                                 "dp ze_dp_glb_attr_get cmd=0x100 result=0xf0000202 sent=" +
                                                     block + " returned=" + block}));
}

}  // namespace
