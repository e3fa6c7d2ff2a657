// The datapath command channel: the bracket around every command, the
// recorded length, and how driver answers reach the API's callers.
#include "test_support.h"
#include "ze_chip.h"
#include "ze_lsw_common.h"

namespace {

using zetest::SimTest;
using Channel = SimTest;

TEST_F(Channel, NullLengthWordSendsNothing) {
    uint8_t blk[76] = {};
    EXPECT_EQ(ze_hlp_sdk_dp_cmdtype(0x100, blk, sizeof blk, nullptr), ZE_ERR_NULL_PTR);
    EXPECT_TRUE(zesim::log().empty());
}

TEST_F(Channel, FailingOpenSendsNeitherCommandNorClose) {
    zesim::fail(0, 0x1234);
    uint8_t blk[76] = {};
    uint32_t len = 0;
    EXPECT_EQ(ze_hlp_sdk_dp_cmdtype(0x100, blk, sizeof blk, &len), 0x1234u);
    EXPECT_EQ(zesim::raw_commands(), (std::vector<uint32_t>{0}));
}

TEST_F(Channel, FailingCommandIsStillClosedAndItsCodeReturned) {
    zesim::fail(1, 0x55);  // the close's own answer is ignored
    zesim::fail(0x100, 0x77);
    uint8_t blk[76] = {};
    uint32_t len = 0;
    EXPECT_EQ(ze_hlp_sdk_dp_cmdtype(0x100, blk, sizeof blk, &len), 0x77u);
    EXPECT_EQ(zesim::raw_commands(), (std::vector<uint32_t>{0, 0x100, 1}));
}

// The driver's close ends the bracket whatever it answers, so a failing
// close neither reaches the caller nor refuses the commands after it.
TEST_F(Channel, FailedCloseStillEndsTheBracket) {
    zesim::fail(1, 0x55);
    EXPECT_EQ(ze_chip_set_access_mode(4), 0u);
    uint32_t mode = 0;
    EXPECT_EQ(ze_chip_get_access_mode(&mode), 0u);
    EXPECT_EQ(mode, 4u);
    EXPECT_EQ(zesim::raw_commands(), (std::vector<uint32_t>{0, 0x100, 1, 0, 0x101, 1, 0, 0x100, 1}));
    for (const zesim::LogEntry &e : zesim::log()) EXPECT_EQ(e.result, e.cmd == 1 ? 0x55u : 0u) << e.cmd;
}

TEST_F(Channel, LengthIsRecordedButNeverSent) {
    uint8_t a[76] = {}, b[76] = {};
    uint32_t len_a = 0, len_b = 0;
    ASSERT_EQ(ze_hlp_sdk_dp_cmdtype(0x100, a, 76, &len_a), 0u);
    ASSERT_EQ(ze_hlp_sdk_dp_cmdtype(0x100, b, 468, &len_b), 0u);
    EXPECT_EQ(len_a, 76u);
    EXPECT_EQ(len_b, 468u);
    auto gets = zetest::entries_of(0x100);
    ASSERT_EQ(gets.size(), 2u);
    EXPECT_EQ(gets[0].sent, gets[1].sent);
    EXPECT_EQ(gets[0].returned, gets[1].returned);
}

// Every API function folds driver answers the same way, on the read and on
// the write: 0xf0000101 becomes 18, anything else 0xffffffff.
struct MappingCase {
    const char *name;
    uint32_t failing_cmd;
    uint32_t driver_code;
    uint32_t expected;
    size_t commands_sent;
};
void PrintTo(const MappingCase &c, std::ostream *os) { *os << c.name; }

class DriverAnswerMapping : public SimTest, public ::testing::WithParamInterface<MappingCase> {};

TEST_P(DriverAnswerMapping, FoldsIntoTheLibrarysCodes) {
    const MappingCase &c = GetParam();
    zesim::fail(c.failing_cmd, c.driver_code);
    EXPECT_EQ(ze_chip_set_access_mode(4), c.expected);
    EXPECT_EQ(zesim::commands().size(), c.commands_sent);
    auto recs = traces();
    ASSERT_EQ(recs.size(), 1u);
    EXPECT_EQ(recs[0].result, c.expected);
    EXPECT_EQ(recs[0].v[0], c.expected);
    EXPECT_EQ(recs[0].v[1] | recs[0].v[2] | recs[0].v[3], 0u);
}

INSTANTIATE_TEST_SUITE_P(GetAndSet, DriverAnswerMapping,
                         ::testing::Values(MappingCase{"ReadInvalidParam", 0x100, 0xf0000101, ZE_ERR_PARAM, 1},
                                           MappingCase{"ReadNoBlock", 0x100, 0xf0000102, ZE_ERR_FAIL, 1},
                                           MappingCase{"ReadOtherCode", 0x100, 1, ZE_ERR_FAIL, 1},
                                           MappingCase{"WriteInvalidParam", 0x101, 0xf0000101, ZE_ERR_PARAM, 2},
                                           MappingCase{"WriteOtherCode", 0x101, 0x80000000, ZE_ERR_FAIL, 2},
                                           MappingCase{"OpenInvalidParam", 0, 0xf0000101, ZE_ERR_PARAM, 0}),
                         [](const auto &info) { return std::string(info.param.name); });

TEST_F(Channel, OnlyTheDataNodeIsSimulated) {
    EXPECT_EQ(ze_os_hlp_sdk_interface(0x100, 0), ZE_HOST_ERR_NODE_OPEN);
    EXPECT_EQ(ze_os_hlp_sdk_sysctl(0x100, 0), ZE_HOST_ERR_NODE_OPEN);
    EXPECT_EQ(ze_os_hlp_sdk_dp(0, 0), 0u);
    EXPECT_EQ(ze_os_hlp_sdk_dp(0, 0), zesim::kErrBracket);  // a second open is refused
}

TEST_F(Channel, DeviceBackendReportsMissingAndRefusingNodes) {
    ze_host_use_device("/nonexistent/ze_ioctl_dp");
    EXPECT_EQ(ze_os_hlp_sdk_dp(0, 0), ZE_HOST_ERR_NODE_OPEN);
    ze_host_use_device("/dev/null");  // exists, but knows no datapath request
    EXPECT_EQ(ze_os_hlp_sdk_dp(0, 0), ZE_HOST_ERR_IOCTL);
    uint32_t mode = 7;
    EXPECT_EQ(ze_chip_get_upmode(&mode), ZE_ERR_FAIL);
    EXPECT_EQ(mode, 7u);
    ze_host_use_simulator();
    EXPECT_TRUE(zesim::log().empty());
}

}  // namespace
